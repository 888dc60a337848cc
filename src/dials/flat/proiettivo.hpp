// Program 3: a declining, reclining dial by projection, former version.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel. Refuses a southern latitude, the equator, walls that face East or
// West, level planes.
void DisegnaProiettivo(Run& run);

}  // namespace dialwright
