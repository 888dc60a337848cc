// The construction of a vertical dial on its wall, lettered as in the textbooks: G the foot of the
// style, C the centre, N its tip laid into the wall, M and P on the equinoctial.
#pragma once

#include <cmath>

#include "numerics/projection.hpp"
#include "shell/run.hpp"

namespace dialwright {

inline constexpr Rgb kEquinoctialBlue = rgb(49, 172, 238);

// False on a wall that looks due East or West, whose hour lines are parallel.
inline bool hasCentre(const DialParams& p) { return std::abs(p.DeclGradi) != 90; }

// The elevation of the polar style over the record's wall, positive where it points down.
double elevationByPosition(const DialParams& params);

// N2: the gnomonic centre, where the style's length falls when it is laid into the wall along the
// substyle.
Punto gnomonicCentre(const DialParams& params);

// M: where the noon line meets the equinoctial, for the record's Sustilare and DistPiedeCentro.
Punto noonOnEquinoctial(const DialParams& params);

// Draws the construction and its legend; the letters stand unless the function box is checked. Sets
// DistPiedeCentro, and on the equator Sustilare and the centre, which is C otherwise.
void SchemaGnomonico(Run& run, Punto& centre);

}  // namespace dialwright
