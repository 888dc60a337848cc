// A part of the sheet in pixels, as a screen shows it.
#pragma once

#include <cstdint>
#include <functional>

#include "sheet/sheet_plot.hpp"

namespace dialwright {

// Pixels from the sheet's corner, at so many pixels a metre.
struct ScreenPart {
  double pixelsPerMeter;
  double left, top;
  int width, height;
};

// Rows of 32 bits a pixel, blue in the lowest eight.
struct PixelBlock {
  std::uint32_t* pixels;
  int bytesOfRow;
};

// Paints the part into a block of its size: in the sheet's own colours on its ground, a stroke one
// pixel wide, texts in proportion to the drawing. Once `stopped` is true the rest is left out.
void paintScreen(const SheetPlot& sheet, const ScreenPart& part, const PixelBlock& block,
                 const std::function<bool()>& stopped = {});

}  // namespace dialwright
