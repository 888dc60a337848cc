// The sheet on A4 paper: its pages at true size with crop marks.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "paper/stroke_look.hpp"
#include "sheet/output_buffer.hpp"
#include "sheet/printing.hpp"

namespace dialwright {

struct PagesOptions {
  std::vector<int> numbers;  // in the order wanted; none for all that carry ink
  Inks inks = Inks::Black;
  double lineWidth = 0.00025;  // metres, of a line of width 1
};

// A document of A4 paper that pages are laid on. Its first page is there from the start.
class PaperDocument {
 public:
  virtual ~PaperDocument() = default;
  // A target on the page at hand, in twips from the corner of its printable part; a cut one draws
  // nothing beyond that part. One lives at a time.
  virtual std::unique_ptr<DrawTarget> target(const StrokeLook& look, bool cut) = 0;
  virtual void newPage() = 0;
};

// A4 paper in metres; the printable part lies in its middle.
inline constexpr double kPaperW = 0.210;
inline constexpr double kPaperH = 0.297;
inline constexpr double kMarginX = (kPaperW - kPageW) / 2;
inline constexpr double kMarginY = (kPaperH - kPageH) / 2;

// Pages of the sheet at 1:1. Each has crop marks at the corners of its part of the sheet and, in
// the margin, its number and place and a ruler of 100 mm to check the printer with. The result is
// empty, or says what can't be made: a page that isn't there, or no page with ink.
[[nodiscard]] std::string layPages(const SheetPlot& sheet, PaperDocument& document,
                                   const PagesOptions& options = {});

// The same as a PDF.
[[nodiscard]] std::string writePages(const SheetPlot& sheet, const Sink& sink,
                                     const PagesOptions& options = {});

}  // namespace dialwright
