// The colours of the sheet on white paper: white ink turns black and light inks are darkened, so
// that each can be read.
#pragma once

#include <algorithm>

#include "sheet/colour.hpp"

namespace dialwright {

// Perceived brightness, 0 for black to 255 for white (ITU-R BT.601).
constexpr int brightness(Rgb colour) {
  return (299 * redOf(colour) + 587 * greenOf(colour) + 114 * blueOf(colour)) / 1000;
}

// The ink for white paper: a light grey turns into the dark grey as far from black as it was from
// white; a light colour keeps its hue and is darkened to what can be read.
constexpr Rgb onPaper(Rgb ink) {
  constexpr int kBrightest = 110;
  const int red = redOf(ink);
  const int green = greenOf(ink);
  const int blue = blueOf(ink);
  if (red == green && green == blue) {
    const int level = std::min(red, 255 - red);
    return rgb(level, level, level);
  }
  const int bright = brightness(ink);
  if (bright <= kBrightest) return ink;
  return rgb(red * kBrightest / bright, green * kBrightest / bright, blue * kBrightest / bright);
}

}  // namespace dialwright
