// What the dials share that plot their curves as dots: their notice and the marks on the foot of
// the style.
#pragma once

#include "dials/pen.hpp"
#include "shell/dispatch.hpp"

namespace dialwright {

// Told at the start of every run: the definition is the distance from dot to dot.
inline constexpr const char* kDefinitionNotice =
    "Modify the definition if the graph is not well visible";

// The last hour (degrees either side of noon) from which the lines of italic and babylonian hours
// start on the equinoctial.
inline constexpr double kLastOldHour = 90;

// The loop of a curve over a part of the surface as wide as the radius asks, by the definition.
inline Sweep dots(Run& run, double first, double last) {
  return run.sweep(first, last, run.params.PassoCurva,
                   {.step = Field::txt_Definition, .bound = Field::TxtRadius});
}

// The hour angle (radians) whose line is the substyle; a fault on the equator, unless the wall
// looks East or West or the true shadows are asked for.
double hourOfSubstyle(const Run& run);

// The foot of the style as a circle with its centre.
void footCircle(Run& run);

// The foot of the style as two rows of dots with its centre.
void footRows(Run& run);

}  // namespace dialwright
