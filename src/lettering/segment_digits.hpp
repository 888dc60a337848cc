// The slanted seven-segment digits: outline bars, for the hours of the upright wall.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the digit 0 to 9 upright and centred at the dial's point (x, y), `size` metres high. Any
// other digit draws nothing.
void DisegnaCifraSegmenti(Run& run, double x, double y, int digit, double size);

}  // namespace dialwright
