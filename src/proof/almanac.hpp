// The sun of a date: where it stands in the sky at an instant, to a few seconds of arc.
#pragma once

#include "sheet/meaning.hpp"

namespace dialwright::proof {

// A date of the Gregorian calendar and a time of day.
struct Instant {
  int year = 2000, month = 1, day = 1;
  double hours = 12;  // universal time; may lie before 0 or after 24
};

// The Julian date of an instant, in days of universal time. (J. Meeus, Astronomical Algorithms,
// chapter 7.)
double julianDate(const Instant& instant);

// The sun of a Julian date at a longitude (radians, West positive), as the earth's centre sees it:
// local apparent hour angle within half a turn of noon, and apparent declination. Good to 25
// seconds of arc from 1800 to 2200. (J. Meeus, Astronomical Algorithms, chapters 12, 22 and 25; the
// perturbations by Venus, Jupiter and the moon from the same author's Astronomical Formulae for
// Calculators, chapter 18.)
Sun sunOn(double julianDate, double longitude);

}  // namespace dialwright::proof
