// The stereographic chart: the sky of a site with a dial's plane in it, from which one reads for
// which hours and dates the dial receives the sun.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// A number of hours in whole hours (floored) and minutes (not rounded).
struct OreMinuti {
  double hours;
  double minutes;
};
OreMinuti GradiInOreMinuti(double hours);

// Draws the chart of the panel's site and plane with its table of figures; TxtRadius is the radius
// of the equator. Refuses southern latitudes; beyond 66.555 degrees it ends with its caption.
void DiagrammaStereografico(Run& run);

// The chart's rings, hours, declinations and signs for the site of the record. Refuses southern
// latitudes.
void SfondoStereografico(Run& run);

}  // namespace dialwright
