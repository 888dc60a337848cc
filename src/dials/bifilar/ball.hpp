// Program 22: the horizontal ball dial.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel; txtDecl becomes "0". Refuses a southern latitude.
void QuadranteBall(Run& run);

}  // namespace dialwright
