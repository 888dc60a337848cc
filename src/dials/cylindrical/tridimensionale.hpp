// Program 9: an upright cylinder of circular cross-section by geometry in space.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel. Refuses a southern latitude.
void QuadranteCilindrico3D(Run& run);

}  // namespace dialwright
