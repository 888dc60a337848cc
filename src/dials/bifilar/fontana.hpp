// Program 16: the fountain, a circular rim that stands level over a level floor.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel; txtDecl becomes "0". Refuses a southern latitude.
void QuadranteFontana(Run& run);

}  // namespace dialwright
