// The substyle's frame of a vertical dial, which the report shares with the dials, and the lines
// that dials draw in it.
#pragma once

#include <cmath>

#include "dials/pen.hpp"
#include "numerics/quadratic.hpp"
#include "shell/substyle_frame.hpp"

namespace dialwright {

// The conic's ordinates in the substyle's frame at u.
inline Roots conicAt(const ConicSet& c, double u) {
  return quadraticRoots(1, c.A1, c.A0 + c.A2 * u * u);
}

// The conic's ordinates on the dial at the abscissa x.
inline Roots conicOrdinates(const ConicSet& c, const SubstyleTurn& turn, double x) {
  const double u = x * turn.cosine, v = turn.distance - x * turn.sine;
  return quadraticRoots(turn.cosine * turn.cosine + c.A2 * turn.sine * turn.sine,
                        (2 * v + c.A1) * turn.cosine + 2 * c.A2 * u * turn.sine,
                        (v + c.A1) * v + c.A0 + c.A2 * u * u);
}

// The line on the dial through the centre that makes an angle, given by its tangent, with the
// substyle: an hour's, for the record's style elevation, substyle and distance and a style's
// length.
struct HourLine {
  HourLine(const DialParams& p, double style, double tangent) {
    const double substyle = std::tan(p.Sustilare);
    const double foot = over(style, std::sin(p.ElevStilo) * std::cos(p.ElevStilo)) * tangent;
    slope_ = -over(1 - tangent * substyle, tangent + substyle);
    rise_ = over(foot - p.DistPiedeCentro * tangent,
                 std::cos(p.Sustilare) * tangent + std::sin(p.Sustilare));
  }

  // The ordinate at the abscissa x; a fault for an upright line.
  double ordinate(double x) const { return slope_ * x + rise_; }

 private:
  double slope_, rise_;
};

// True for an hour (radians) whose sun stands behind the record's wall on the days of equal day and
// night, given from the substyle's hour as the arctangent has it: of a wall that faces away from
// the noon sun that is the hour of its back.
inline bool isBehindWall(const DialParams& p, double fromSubstyle) {
  return (std::cos(fromSubstyle) < 0) != (p.ElevStilo < 0);
}

// A line of italic (side -1) or babylonian (side +1) hours: the tangent to the latitude's conic
// from the hour B of the equinoctial, radians from the substyle's hour, which is that of the
// plane's back where the elevation is negative. Unlike the slope of a tangent it passes B = a
// quarter turn, and a conic that is a parabola, without a jump.
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
