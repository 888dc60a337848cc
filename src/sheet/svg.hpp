// Writes the sheet as an SVG drawing at true scale, with the layers as Inkscape shows them.
#pragma once

#include <string>
#include <vector>

#include "sheet/output_buffer.hpp"
#include "sheet/sheet_plot.hpp"

namespace dialwright {

struct SvgOptions {
  bool dark = false;  // the sheet's own colours on its background, not inks for white paper
  // Layers that are shown one after the other, over and over, each for so long and with its name.
  std::vector<std::string> takeTurns{};
  double secondsEach = 1;
};

// The whole sheet in millimetres, to the micrometre: what stands on it at the place where it is
// seen, with the axis signs and the shift. The segments of a curve become one path, its points
// another; a line without length and whatever is no number is left out, as on the sheet.
void writeSvg(const SheetPlot& sheet, const Sink& sink, const SvgOptions& options = {});

}  // namespace dialwright
