// Program 6: a vertical dial of any declination by spherical trigonometry.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel. Refuses a southern latitude.
void DisegnaVerticale(Run& run);

}  // namespace dialwright
