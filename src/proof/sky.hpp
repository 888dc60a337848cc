// The proof's sky: the sun as a direction in space, from its hour angle and declination.
#pragma once

#include <numbers>

#include "proof/vec.hpp"
#include "sheet/meaning.hpp"

namespace dialwright::proof {

inline constexpr double kPi = std::numbers::pi;
inline double radians(double degrees) { return degrees * kPi / 180; }
inline double degrees(double radians) { return radians * 180 / kPi; }

// The directions of a site: towards the sun, and back to the sun of a direction.
class Sky {
 public:
  // The latitude in radians, North positive.
  explicit Sky(double latitude) : sine_(std::sin(latitude)), cosine_(std::cos(latitude)) {}

  // Towards a sun whose hour angle and declination are both known; of length 1.
  Vec towards(const Sun& sun) const {
    // In the frame of the equator: towards the meridian, the East and the pole.
    const double out = std::cos(sun.declination);
    const double meridian = out * std::cos(sun.hourAngle);
    const double east = -out * std::sin(sun.hourAngle);
    const double pole = std::sin(sun.declination);
    return {east, pole * cosine_ - meridian * sine_, pole * sine_ + meridian * cosine_};
  }

  // The sun that stands in a direction; its hour angle lies within half a turn of noon.
  Sun of(Vec direction) const {
    const Vec d = unit(direction);
    return {std::atan2(-d.x, d.z * cosine_ - d.y * sine_),
            std::asin(std::fmin(1, std::fmax(-1, d.y * cosine_ + d.z * sine_)))};
  }

  // Half the way of a declination's sun over the horizon, as an hour angle; no number where it
  // neither rises nor sets.
  double semiArc(double declination) const {
    return std::acos(-sine_ / cosine_ * std::tan(declination));
  }

  // The northern pole of the sky.
  Vec pole() const { return {0, cosine_, sine_}; }

 private:
  double sine_, cosine_;
};

}  // namespace dialwright::proof
