// Program 35: a cornice dial on the inside of an upright cylinder.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel, developed; refuses southern latitudes. Writes the width of the
// development and a border that is too wide for the cylinder back to the panel.
void DisegnaCorniceCilindrica(Run& run);

}  // namespace dialwright
