// Roman numerals: the hours I to XII from one keystone cell that widens away from the dial's
// centre.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws `hour` (1 to 12) centred at the dial's point (x, y), turned by `angleRadians` (a quarter
// turn for upright text); mode 2 turns it by a further quarter turn clockwise. Its height is the
// number of txtNumbersize, in metres. What the arithmetic can't give is left out.
void DisegnaNumeroRomano(Run& run, double x, double y, double angleRadians, int hour, int mode);

}  // namespace dialwright
