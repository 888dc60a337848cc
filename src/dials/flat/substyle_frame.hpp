// The substyle's frame of a vertical dial: (u, v) along and across the substyle, v measured from the dial's centre, in
// which the declination curves are conics.
#pragma once

#include <cmath>

#include "dials/pen.hpp"
#include "numerics/quadratic.hpp"
#include "shell/dial_params.hpp"
#include "shell/dispatch.hpp"

namespace dialwright {

// From the substyle's frame to the dial's: a turn through `substyle` (radians) after taking off `distance`, the way from
// the foot of the style to the dial's centre.
struct SubstyleTurn {
  double sine, cosine, distance;

  SubstyleTurn(double substyle, double footToCentre)
      : sine(std::sin(substyle)), cosine(std::cos(substyle)), distance(footToCentre) {}

  Punto operator()(double u, double v) const {
    return {u * cosine - (v - distance) * sine, u * sine + (v - distance) * cosine};
  }
};

// Squared cotangent of a sun's declination in degrees: the K of its cone.
inline double coneOf(const Angles& angles, double declination) {
  const double t = std::tan(angles.radians(declination));
  return over(1, t * t);
}

// The conic in which the cone of parameter K meets the plane, for a style and its elevation (radians). A coefficient
// that fails keeps its old value.
inline void setConic(ConicSet& conic, double style, double elevation, double K) {
  const double sine = std::sin(elevation);
  const double cosine = std::cos(elevation);
  const double den = sine * sine - K * cosine * cosine;
  const double reach = over(style, cosine);
  assign(conic.A0, over(reach * reach, den));
  assign(conic.A1, over(-2 * style * std::tan(elevation), den));
  assign(conic.A2, over(1, den));
}

// The conics of the three declination pairs and of the latitude, for the record's style and elevation.
inline void setConics(DialParams& p) {
  setConic(p.conic(Declination::Solstice), p.Stilo, p.ElevStilo, coneOf(p, kSolstice));
  setConic(p.conic(Declination::Twentieth), p.Stilo, p.ElevStilo, coneOf(p, kTwentieth));
  setConic(p.conic(Declination::Eleventh), p.Stilo, p.ElevStilo, coneOf(p, kEleventh));
  const double t = std::tan(p.LatRad);
  setConic(p.conic(Declination::Latitude), p.Stilo, p.ElevStilo, t * t);
}

// Quarter of the discriminant of the conic's equation in v at u; the two ordinates are -A1/2 plus and minus its root.
inline double radicand(const ConicSet& conic, double u) {
  return conic.A1 * conic.A1 / 4 - conic.A0 - conic.A2 * u * u;
}

// Slope of the tangent to the conic through the point (u0, 0) of the equinoctial; side -1 or +1 chooses which.
inline double tangentSlope(const ConicSet& c, double u0, double side) {
  const double q = root(c.A2 * c.A2 * c.A1 * c.A1 * u0 * u0 + c.A2 * c.A0 * c.A1 * c.A1 - 4 * c.A2 * c.A0 * c.A0 -
                        4 * c.A2 * c.A2 * c.A0 * u0 * u0);
  return over(-2 * c.A2 * c.A1 * u0 + side * 2 * q, c.A1 * c.A1 - 4 * c.A0 - 4 * c.A2 * u0 * u0);
}

// The conic's ordinates in the substyle's frame at u.
inline Roots conicAt(const ConicSet& c, double u) { return quadraticRoots(1, c.A1, c.A0 + c.A2 * u * u); }

// The conic's ordinates on the dial at the abscissa x.
inline Roots conicOrdinates(const ConicSet& c, const SubstyleTurn& turn, double x) {
  const double u = x * turn.cosine, v = turn.distance - x * turn.sine;
  return quadraticRoots(turn.cosine * turn.cosine + c.A2 * turn.sine * turn.sine,
                        (2 * v + c.A1) * turn.cosine + 2 * c.A2 * u * turn.sine, (v + c.A1) * v + c.A0 + c.A2 * u * u);
}

// Ordinate on the dial at the abscissa x of the line through the centre that makes an angle, given by its tangent, with
// the substyle; for the record's style elevation, substyle and distance and a style's length.
inline double hourLineOrdinate(const DialParams& p, double style, double tangent, double x) {
  const double foot = over(style, std::sin(p.ElevStilo) * std::cos(p.ElevStilo)) * tangent;
  const double slope = over(1 - tangent * std::tan(p.Sustilare), tangent + std::tan(p.Sustilare));
  return -slope * x + over(foot - p.DistPiedeCentro * tangent,
                           std::cos(p.Sustilare) * tangent + std::sin(p.Sustilare));
}

// A line of italic (side -1) or babylonian (side +1) hours: the tangent to the latitude's conic from the hour B of the
// equinoctial, radians from the substyle's hour, which is that of the plane's back where the elevation is negative.
// Unlike the slope of a tangent it passes B = a quarter turn, and a conic that is a parabola, without a jump.
struct OldHourLine {
  OldHourLine(double latitude, double style, double elevation, double B, double side) {
    const double k = (elevation < 0 ? -side : side) * std::cos(latitude);
    u_ = k * std::cos(B);
    v_ = std::sin(latitude) * std::cos(elevation) - k * std::sin(elevation) * std::sin(B);
    free_ = k * over(style, std::cos(elevation)) * std::sin(B);
  }

  // The ordinate in the substyle's frame at u.
  double at(double u) const { return over(u_ * u - free_, v_); }
  // The ordinate on the dial at the abscissa x.
  double ordinate(const SubstyleTurn& turn, double x) const {
    return over(u_ * x * turn.cosine - free_ - v_ * (turn.distance - x * turn.sine),
                v_ * turn.cosine - u_ * turn.sine);
  }

 private:
  double u_, v_, free_;
};

}  // namespace dialwright
