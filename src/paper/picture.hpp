// Pictures of the whole sheet: PDF at true size or to scale, PNG and BMP as on the screen.
#pragma once

#include <optional>
#include <string>

#include "paper/cairo_target.hpp"
#include "sheet/sheet_plot.hpp"
#include "sheet/sink.hpp"

namespace dialwright {

// A line of width 1 on paper, in metres.
inline constexpr double kPaperLine = 0.00025;

// A pixel of a bitmap, in twips: 96 to the inch of 1440.
inline constexpr double kPixel = 15;

// The largest bitmap, in pixels.
inline constexpr double kMostPixelsOfSide = 20000;
inline constexpr double kMostPixels = 120e6;

struct PictureOptions {
  std::optional<int> scale;       // 1:n; left out, a PDF is 1:1 and a bitmap in the sheet's scale
  Inks inks = Inks::Paper;        // own inks stand on the sheet's ground, the others on white
  double lineWidth = kPaperLine;  // metres, of a line of width 1 in a PDF
};

// The sheet as on the screen, for a bitmap.
inline constexpr PictureOptions kScreenPicture{.scale = {}, .inks = Inks::Own};

// Draws the list, then each text where it came to stand, whatever the screen shows by now. The
// frame tells which part of the drawing lies where.
void drawPicture(const SheetPlot& sheet, const SheetFrame& frame, DrawTarget& target);

// The type of a picture at 1:n, in twips: that of the screen, but smaller where the drawing is, so
// that lines of text don't run together.
double textSizeAt(const SheetPlot& sheet, int n);

// These write one page or bitmap of the sheet's size into the sink. The result is empty, or says
// what stood in the way.
[[nodiscard]] std::string writePdf(const SheetPlot& sheet, const Sink& sink,
                                   const PictureOptions& options = {});
[[nodiscard]] std::string writePng(const SheetPlot& sheet, const Sink& sink,
                                   const PictureOptions& options = kScreenPicture);
[[nodiscard]] std::string writeBmp(const SheetPlot& sheet, const Sink& sink,
                                   const PictureOptions& options = kScreenPicture);

}  // namespace dialwright
