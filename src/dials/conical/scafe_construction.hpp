// The sheet for the construction of a conical dial.
#pragma once

#include "dials/conical/cone.hpp"

namespace dialwright {

// Draws the section of the stone in the meridian, the conic of the dial's edge in plan, their
// letters and the table of their lengths.
void CostruzioneScafe(Run& run, const Cone& cone);

}  // namespace dialwright
