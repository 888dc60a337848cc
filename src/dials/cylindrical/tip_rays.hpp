// What the way from a point of an upright surface to the style's tip obeys, which is the way to the
// sun: it gives the point's ordinate above the foot of the style, once the place of its vertical is
// known. A point stands for the sun that throws the tip's shadow there; since the formulas know
// planes and cones through the tip, they also give the point of the opposite sun. (Standard: the
// sun's way resolved along the pole, the meridian and the West.)
#pragma once

#include <cmath>

#include "dials/cylindrical/sun_angles.hpp"
#include "numerics/quadratic.hpp"
#include "sheet/meaning.hpp"

namespace dialwright {

// The level parts of the way from the point to the tip, metres.
struct LevelWay {
  double south, west;
};

// The way from a point so far to the right of the tip and so far behind it, for a tip before a wall
// of the declination.
inline LevelWay levelWay(const Trig& declination, double right, double behind) {
  return {behind * declination.cosine - right * declination.sine,
          behind * declination.sine + right * declination.cosine};
}

// The sun that stands behind the tip as seen from a point of that ordinate; above the foot of the
// style one of the night.
inline Sun sunBehindTip(const Trig& latitude, LevelWay way, double y) {
  const double towardsPole = -way.south * latitude.cosine - y * latitude.sine;
  const double towardsMeridian = way.south * latitude.sine - y * latitude.cosine;
  return {std::atan2(way.west, towardsMeridian),
          std::atan2(towardsPole, std::hypot(way.west, towardsMeridian))};
}

// The ordinate in the plane of an hour angle by its tangent; a fault at noon.
inline double hourOrdinate(const Trig& latitude, LevelWay way, double tangent) {
  return over(way.south * latitude.sine * tangent - way.west, latitude.cosine * tangent);
}

// The ordinate in the plane of the equator; a fault on the equator.
inline double equatorOrdinate(const Trig& latitude, LevelWay way) {
  return over(-way.south * latitude.cosine, latitude.sine);
}

// The ordinate in the horizon turned about the pole by an hour angle: an hour counted from sunset
// or sunrise.
inline double turnedHorizonOrdinate(const Trig& latitude, LevelWay way, const Trig& turn) {
  const double across = way.south * latitude.sine * (turn.cosine - 1) + way.west * turn.sine;
  const double down =
      latitude.sine * over(latitude.sine, latitude.cosine) + latitude.cosine * turn.cosine;
  return over(across, down);
}

// The ordinates on the cone of a declination and its opposite, K the squared cotangent.
inline Roots coneOrdinates(const Trig& latitude, LevelWay way, double K) {
  const double sine2 = latitude.sine * latitude.sine, cosine2 = latitude.cosine * latitude.cosine;
  return quadraticRoots(cosine2 - K * sine2,
                        -2 * latitude.sine * latitude.cosine * (1 + K) * way.south,
                        way.south * way.south * (sine2 - K * cosine2) + way.west * way.west);
}

}  // namespace dialwright
