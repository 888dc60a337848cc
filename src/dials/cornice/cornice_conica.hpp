// Program 36: a cornice dial on the inside of a truncated cone that narrows downwards.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel, developed; refuses southern latitudes.
void DisegnaCorniceConica(Run& run);

}  // namespace dialwright
