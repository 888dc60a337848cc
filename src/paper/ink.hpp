// Which pages over the sheet carry ink.
#pragma once

#include <vector>

#include "sheet/pages.hpp"
#include "sheet/sheet_plot.hpp"

namespace dialwright {

// The numbers, in order, of the pages on which a piece of a line, a point, a circle, a box or a
// text of the picture falls; the page grid and the frames of selected pages don't count.
std::vector<int> inkedPages(const SheetPlot& sheet);

}  // namespace dialwright
