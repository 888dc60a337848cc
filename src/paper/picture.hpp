// Pictures of the whole sheet: PDF at true size or to scale, PNG and BMP as on the screen.
#pragma once

#include <optional>
#include <string>

#include "paper/cairo_target.hpp"
#include "sheet/output_buffer.hpp"
#include "sheet/sheet_plot.hpp"

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

// The type of a picture at 1:n, in twips: it grows with the drawing, so that the lines of a text
// stand to each other and to the drawing as on the screen.
double textSizeAt(const SheetPlot& sheet, int n);

// These write one page or bitmap of the sheet's size into the sink. The result is empty, or says
// what can't be made; what the sink throws passes through.
[[nodiscard]] std::string writePdf(const SheetPlot& sheet, const Sink& sink,
                                   const PictureOptions& options = {});
[[nodiscard]] std::string writePng(const SheetPlot& sheet, const Sink& sink,
                                   const PictureOptions& options = kScreenPicture);
[[nodiscard]] std::string writeBmp(const SheetPlot& sheet, const Sink& sink,
                                   const PictureOptions& options = kScreenPicture);

}  // namespace dialwright
