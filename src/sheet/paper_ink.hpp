// The inks of the sheet as they are seen on white paper.
#pragma once

#include "sheet/colour.hpp"

namespace dialwright {

// The colour to draw with on white paper in the place of a sheet's colour. White, the sheet's main
// ink, turns black; a colour lighter than pure red is darkened, its hue kept, until it is as light
// as red (a contrast of 4 to 1 with the paper); any other stays. Lightness is the relative
// luminance of sRGB (IEC 61966-2-1, WCAG 2).
Rgb inkOnPaper(Rgb colour);

}  // namespace dialwright
