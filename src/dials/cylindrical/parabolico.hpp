// Program 10: an upright cylinder of parabolic cross-section by geometry in space.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel. Refuses a southern latitude and a wall that declines more than 70
// degrees.
void QuadranteParabolico(Run& run);

}  // namespace dialwright
