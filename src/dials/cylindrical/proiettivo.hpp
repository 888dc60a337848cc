// Program 11: an upright cylinder of circular cross-section by projection of the plane dial.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel. Refuses a southern latitude.
void QuadranteProiettivo(Run& run);

}  // namespace dialwright
