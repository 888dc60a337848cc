// The substyle's frame of a vertical dial: u runs along the equinoctial and v up the substyle from
// it. In this frame the declination curves are conics.
#pragma once

#include <array>
#include <cmath>

#include "numerics/projection.hpp"
#include "shell/dial_params.hpp"
#include "shell/dispatch.hpp"

namespace dialwright {

// From the substyle's frame to the dial's: a turn through `substyle` (radians) after taking off
// `distance`, the way from the equinoctial up to the foot of the style.
struct SubstyleTurn {
  double sine, cosine, distance;

  SubstyleTurn(double substyle, double equinoctialToFoot)
      : sine(std::sin(substyle)), cosine(std::cos(substyle)), distance(equinoctialToFoot) {}

  Punto operator()(double u, double v) const {
    return {u * cosine - (v - distance) * sine, u * sine + (v - distance) * cosine};
  }
};

// Squared cotangent of a sun's declination in degrees: the K of its cone.
inline double coneOf(const Angles& angles, double declination) {
  const double t = std::tan(angles.radians(declination));
  return over(1, t * t);
}

// The conic in which the cone of parameter K meets the plane, for a style and its elevation
// (radians). A coefficient that fails keeps its old value.
inline void setConic(ConicSet& conic, double style, double elevation, double K) {
  const double sine = std::sin(elevation);
  const double cosine = std::cos(elevation);
  const double den = sine * sine - K * cosine * cosine;
  const double reach = over(style, cosine);
  assign(conic.A0, over(reach * reach, den));
  assign(conic.A1, over(-2 * style * std::tan(elevation), den));
  assign(conic.A2, over(1, den));
}

// A pair of declinations on both sides of the equinoctial: its conic in the record and the colour
// number of its curves.
struct DeclinationPair {
  Declination conic;
  double declination;  // degrees
  int colour;
};
inline constexpr std::array<DeclinationPair, 3> kDeclinationPairs = {
    {{Declination::Solstice, kSolstice, 12},
     {Declination::Twentieth, kTwentieth, 13},
     {Declination::Eleventh, kEleventh, 11}}};

// The conics of the three declination pairs and of the latitude, for the record's style and
// elevation.
inline void setConics(DialParams& p) {
  for (const DeclinationPair& pair : kDeclinationPairs) {
    setConic(p.conic(pair.conic), p.Stilo, p.ElevStilo, coneOf(p, pair.declination));
  }
  const double t = std::tan(p.LatRad);
  setConic(p.conic(Declination::Latitude), p.Stilo, p.ElevStilo, t * t);
}

// Quarter of the discriminant of the conic's equation in v at u; the two ordinates are -A1/2 plus
// and minus its root.
inline double radicand(const ConicSet& conic, double u) {
  return conic.A1 * conic.A1 / 4 - conic.A0 - conic.A2 * u * u;
}

// Slope of the tangent to the conic through the point (u0, 0) of the equinoctial; side -1 or +1
// chooses which.
inline double tangentSlope(const ConicSet& c, double u0, double side) {
  const double q = root(c.A2 * c.A2 * c.A1 * c.A1 * u0 * u0 + c.A2 * c.A0 * c.A1 * c.A1 -
                        4 * c.A2 * c.A0 * c.A0 - 4 * c.A2 * c.A2 * c.A0 * u0 * u0);
  return over(-2 * c.A2 * c.A1 * u0 + side * 2 * q, c.A1 * c.A1 - 4 * c.A0 - 4 * c.A2 * u0 * u0);
}

}  // namespace dialwright
