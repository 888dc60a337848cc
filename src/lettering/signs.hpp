// The designs of the zodiac signs and of the cardinal arrow, in a grid of 28 units to half a
// height.
#pragma once

#include "lettering/glyph.hpp"

namespace dialwright::signs {

extern const Glyph capricorn, sagittarius, aquarius, scorpio, pisces, libra, aries, virgo, taurus,
    leo, gemini, cancer, cardinal;

}  // namespace dialwright::signs
