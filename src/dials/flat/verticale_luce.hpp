// Program 1: a vertical declining dial by plane analytic geometry, drawn as a light graph.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel. Refuses a southern latitude.
void DisegnaVerticaleLuce(Run& run);

}  // namespace dialwright
