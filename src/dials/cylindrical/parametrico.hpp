// Program 8: an upright cylinder of circular cross-section by its tangent planes.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel. Refuses a southern latitude and the equator.
void QuadranteCilindricoParam(Run& run);

}  // namespace dialwright
