// Program 2: a declining, reclining dial by analytic geometry in space, swept along one of two
// coordinates.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial along the variable that the panel selects.
void DisegnaInclinati(Run& run);

// Along X, the East: refuses a missing latitude, and a wall that faces East or West.
void DisegnaInclinatiX(Run& run);

// Along Y, the North: refuses a missing latitude, and a plane without declination or a level one.
void DisegnaInclinatiY(Run& run);

}  // namespace dialwright
