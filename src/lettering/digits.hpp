// The outline digits: designs in a grid of 150 units to half a character's height.
#pragma once

#include "lettering/glyph.hpp"

namespace dialwright::digits {

extern const Glyph zero, one, two, three, four, five, six, seven, eight, nine;

}  // namespace dialwright::digits
