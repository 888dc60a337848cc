// Program 12: an upright cylinder of circular cross-section by spherical trigonometry.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel. Refuses a southern latitude.
void QuadranteCilindricoSferico(Run& run);

}  // namespace dialwright
