// Program 26: the vertical ball dial.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel. Refuses a southern latitude.
void QuadranteBallVerticale(Run& run);

}  // namespace dialwright
