// The twelve zodiac signs, and their placing on a flat dial.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws a sign with its middle at the dial's point (x, y), turned by `angleDegrees` (90 for an
// upright one). Its height is the number of txtZodiacsize, in metres; the style's length, `scale`,
// does not change it.
using SegnoZodiaco = void(Run& run, double x, double y, double angleDegrees, double scale);

SegnoZodiaco SegnoZodiaco1;   // Capricorn
SegnoZodiaco SegnoZodiaco2;   // Sagittarius
SegnoZodiaco SegnoZodiaco3;   // Aquarius
SegnoZodiaco SegnoZodiaco4;   // Scorpio
SegnoZodiaco SegnoZodiaco5;   // Pisces
SegnoZodiaco SegnoZodiaco6;   // Libra
SegnoZodiaco SegnoZodiaco7;   // Aries
SegnoZodiaco SegnoZodiaco8;   // Virgo
SegnoZodiaco SegnoZodiaco9;   // Taurus
SegnoZodiaco SegnoZodiaco10;  // Leo
SegnoZodiaco SegnoZodiaco11;  // Gemini
SegnoZodiaco SegnoZodiaco12;  // Cancer

// Places all twelve on a declining and reclining plane, each beside the branch of the analemma on
// which the sun enters it. The dial is that of a southern site drawn by its positive latitude, so
// that declinations are of the opposite sign: Capricorn stands above, Cancer below. Reads the style
// and the plane from the record, the base hour angle too, and the window from the panel.
void DisegnaSegniZodiaco(Run& run);

// The cardinal arrow: a mark in the signs' grid and size that points along the angle.
void MarcaCardinale(Run& run, double x, double y, double angleDegrees);

}  // namespace dialwright
