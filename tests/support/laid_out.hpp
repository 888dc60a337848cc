// A sheet of a size, with its origin at a place of it.
#pragma once

#include "sheet/sheet_plot.hpp"

namespace dialwright {

// All in metres, the origin from the upper left corner.
inline SheetPlot laidOut(double width, double height, double x, double y) {
  SheetPlot sheet;
  sheet.QuadranteL(width);
  sheet.QuadranteH(height);
  sheet.ShiftX(x);
  sheet.ShiftY(y);
  return sheet;
}

}  // namespace dialwright
