// Printing: the whole sheet on one page, or the selected pages at true size, one on each.
#pragma once

#include <span>

#include "sheet/pages.hpp"

namespace dialwright {

// A target of pages. Its first page is there from the start.
class Printer : public DrawTarget {
 public:
  virtual void newPage() = 0;
  virtual void endDocument() = 0;
};

// The texts as a list under the sheet's mark, and over it the drawing in the sheet's scale and
// shifts; black unless the sheet prints in colours.
void PrintAll(SheetPlot& sheet, Printer& printer);

// Each page in the order of selection at 1:1, its corner in the paper's, under a line with its
// number. The sheet is afterwards as it was; the screen is not drawn again.
void PrintArea(SheetPlot& sheet, Printer& printer, std::span<const SelectedPage> pages);

}  // namespace dialwright
