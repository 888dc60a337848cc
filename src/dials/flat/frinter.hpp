// Program 5: a vertical dial, facing North or South, by plane analytic geometry.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel. Refuses a missing and a southern latitude.
void DisegnaFrinter(Run& run);

}  // namespace dialwright
