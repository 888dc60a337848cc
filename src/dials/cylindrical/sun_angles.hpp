// The sun of a sample by spherical trigonometry: azimuth and altitude, with the sines of what a
// loop holds fixed taken once.
#pragma once

#include <cmath>

#include "dials/trig.hpp"
#include "numerics/fault.hpp"

namespace dialwright {

// The sun's declination, radians.
struct SunDeclination : Trig {
  double tangent;

  explicit SunDeclination(double radians) : Trig(radians), tangent(std::tan(radians)) {}
};

// The sun's azimuth from the South, positive to the West, but for a half turn; a fault in the East
// and the West, where its tangent has no value.
inline double azimuthByTangent(const Trig& latitude, const Trig& hour, const SunDeclination& sun) {
  return arctan(over(hour.sine, hour.cosine * latitude.sine - sun.tangent * latitude.cosine));
}

// The same in its quadrant.
inline double azimuth(const Trig& latitude, const Trig& hour, const SunDeclination& sun) {
  return std::atan2(hour.sine, hour.cosine * latitude.sine - sun.tangent * latitude.cosine);
}

// True when the azimuth by its tangent lies on the other side of the meridian than the sun does.
inline bool onOtherSide(const Trig& hour, double azimuth) {
  return Sgn(hour.sine) != Sgn(std::sin(azimuth));
}

// The sine of the sun's altitude.
inline double sineOfAltitude(const Trig& latitude, const Trig& hour, const Trig& sun) {
  return latitude.sine * sun.sine + latitude.cosine * sun.cosine * hour.cosine;
}

}  // namespace dialwright
