// What the dials share that plot their curves as dots: their notice, the three days, and the marks
// on the foot of the style.
#pragma once

#include <array>

#include "dials/pen.hpp"
#include "shell/dispatch.hpp"

namespace dialwright {

// Told at the start of every run: the definition is the distance from dot to dot.
inline constexpr const char* kDefinitionNotice =
    "Modify the definition if the graph is not well visible";

// A pair of declinations, its conic in the record and its colour number.
struct DottedDay {
  Declination conic;
  double declination;  // degrees
  int colour;
};
inline constexpr std::array<DottedDay, 3> kDottedDays = {{{Declination::Solstice, kSolstice, 12},
                                                          {Declination::Twentieth, kTwentieth, 13},
                                                          {Declination::Eleventh, kEleventh, 11}}};

// The last hour (degrees either side of noon) from which the lines of italic and babylonian hours
// start on the equinoctial.
inline constexpr double kLastOldHour = 90;

// The loop of a curve over a part of the surface as wide as the radius asks, by the definition.
inline Sweep dots(Run& run, double first, double last) {
  return run.sweep(first, last, run.params.PassoCurva,
                   {.step = Field::txt_Definition, .bound = Field::TxtRadius});
}

// The hour angle (radians) whose line is the substyle; a fault on the equator, unless the wall
// looks East or West.
double hourOfSubstyle(const DialParams& p);

// The foot of the style as a circle with its centre.
void footCircle(Run& run);

// The foot of the style as two rows of dots with its centre.
void footRows(Run& run);

}  // namespace dialwright
