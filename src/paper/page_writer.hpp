// The sheet on A4 paper: its pages at true size with crop marks, and what the sheet's own printing
// makes.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "paper/cairo_target.hpp"
#include "sheet/output_buffer.hpp"
#include "sheet/printing.hpp"

namespace dialwright {

struct PagesOptions {
  std::vector<int> numbers;  // in the order wanted; none for all that carry ink
  Inks inks = Inks::Black;
  double lineWidth = 0.00025;  // metres, of a line of width 1
};

// A PDF of A4 pages at 1:1. Each has crop marks at the corners of its part of the sheet and, in the
// margin, its number and place and a ruler of 100 mm to check the printer with. The result is
// empty, or says what can't be made: a page that isn't there, or no page with ink.
[[nodiscard]] std::string writePages(const SheetPlot& sheet, const Sink& sink,
                                     const PagesOptions& options = {});

// A PDF of A4 pages of what the job prints: PrintAll or PrintArea.
[[nodiscard]] std::string writePrintout(const Sink& sink, const std::function<void(Printer&)>& job);

}  // namespace dialwright
