// Degrees between their decimal and their sexagesimal form, and the filter of the board's keys.
#pragma once

#include "numerics/angles.hpp"

namespace dialwright {

// Splits the absolute value into whole degrees, whole minutes and seconds (not rounded); of a
// negative value the degrees are negative. A fault leaves all three as they are.
void GradiDecToSex(double decimal, double& degrees, double& minutes, double& seconds);

// Wholes (rounded down), minutes and seconds of hours or of degrees, with the seconds rounded to
// four decimals before they are split off: they never read 60. All 0 for a fault.
HourParts roundedParts(double value);

// degrees + minutes / 60 + seconds / 3600, negated unless the sign is '+', as its text of 15 digits
// reads: 0 where a minus would come to stand before another one. A fault when that overflows.
double GradiSexToDec(char sign, double degrees, double minutes, double seconds);

// Key filter of the board's texts: digits, "." and backspace pass, "+" and "-" where a sign is
// allowed; any other key becomes 0.
char SoloNumeri(char key, bool allowSign);

}  // namespace dialwright
