// Arabic numerals: the hours 1 to 12 as outline digits of arcs and straight strokes.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws `number` (1 to 12) centred at the dial's point (x, y), turned by `angleDegrees` (90 for
// upright text); `digits` is 1 or 2. Its height is the number of txtArabi, in metres.
void DisegnaNumeroArabo(Run& run, double x, double y, double angleDegrees, int number, int digits);

// One digit centred at (x, y). Its frame, half the character's height, is the number of txtArabi
// over `divisor`. DisegnaCifraBase knows 0, 1, 2 and 4 and draws anything else as 1;
// DisegnaCifraAlta knows 5, 6, 7 and 9; the two others draw a digit of their own whatever they are
// asked for.
void DisegnaCifra3(Run& run, double x, double y, double rotation, int digit, double divisor);
void DisegnaCifra8(Run& run, double x, double y, double rotation, int digit, double divisor);
void DisegnaCifraBase(Run& run, double x, double y, double rotation, int digit, double divisor);
void DisegnaCifraAlta(Run& run, double x, double y, double rotation, int digit, double divisor);

}  // namespace dialwright
