// Program 7: a flat dial of any declination and reclination by spherical trigonometry.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel. Refuses a southern latitude.
void DisegnaUniversale(Run& run);

}  // namespace dialwright
