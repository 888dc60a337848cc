// Program 4: a declining, reclining dial by projection, latter version.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel. Refuses a southern latitude, the equator, level planes.
void DisegnaNuovoProiettivo(Run& run);

}  // namespace dialwright
