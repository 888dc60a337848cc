// Program 17: the vertical bifilar dial whose hour lines are equally spaced in angle.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel; txtHeightz and txtHeightx become the distances of the two wires, the
// second in millimetres. Refuses a southern latitude.
void QuadranteEquiangolare(Run& run);

}  // namespace dialwright
