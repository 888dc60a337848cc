// Program 18: the vertical bifilar dial of an upright wire and a hanging chain.
#pragma once

#include "numerics/projection.hpp"
#include "shell/run.hpp"

namespace dialwright {

struct Trig;

namespace bifilar {

class WallSky;

// A chain hung between two points at the same level: the catenary f*cosh(x/f) - sag - f, whose
// vertex lies at the depth sag under the middle of the span.
struct Catena {
  double halfSpan = 0, sag = 0;
  double K = 0;  // sag/halfSpan
  double a = 0;  // halfSpan/f
  double f = 0;  // the scale factor; 0 where the chain has no sag

  double height(double x) const;  // over the hanging points; a fault without a scale factor
};

// The chain of a half span and a sag, metres, by some steps of the fixed point of
// cosh a = 1 + K*a; a step that fails keeps what stands. Twelve leave the ends of a usual chain
// less than a millimetre off the hanging points.
inline constexpr int kChainSteps = 12;
Catena RisolviCatena(double halfSpan, double sag, int steps = kChainSteps);

// An upright wire at the distance d2 before the middle of a wall and a chain in a plane at the
// distance d1.
struct Fili {
  double d1 = 0, d2 = 0;
  Catena chain;
};

// Where the shadows of wire and chain cross on the wall, by `assign`. It knows neither night nor
// the back of the wall: a sun there falls on the point of its opposite.
void PuntoCatenaria(const Fili& wires, const WallSky& sky, const Trig& H, const Trig& delta,
                    Punto& point);

}  // namespace bifilar

// Draws the dial of the panel. Refuses a southern latitude.
void QuadranteCatenaria(Run& run);

}  // namespace dialwright
