// How strokes look on a target of any kind: colours, widths and type.
#pragma once

#include "sheet/colour.hpp"

namespace dialwright {

// What becomes of the colours that the sheet gives.
enum class Inks {
  Own,    // as they are, for the sheet's own ground
  Paper,  // dark enough for white paper
  Black,
};

// How strokes look, in twips.
struct StrokeLook {
  Inks inks = Inks::Own;
  Rgb ground = kBlack;  // of the sheet
  double width = 15;    // of a line of width 1
  double textSize = 160;
  // The side of a pixel: lines along the axes are laid on whole pixels. 0 for a target without.
  double pixel = 0;

  // The colour to draw and to write with in the place of a sheet's colour.
  Rgb ink(Rgb colour) const;
  // The colour to fill with: it stays when the outlines are black, and one in the colour of the
  // ground is the paper's.
  Rgb fillInk(Rgb colour) const;
};

}  // namespace dialwright
