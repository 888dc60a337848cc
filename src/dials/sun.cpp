// The sun's series.
#include "dials/sun.hpp"

#include <cmath>

namespace dialwright {

double cosineOfSemiArc(double latitude, double declination) {
  return -std::tan(latitude) * std::tan(declination);
}

double semiDiurnalArc(const Angles& angles, double cosine) {
  return std::abs(cosine) < 1 ? angles.ArcCos(cosine) : kFault;
}

double semiDiurnalArcOrHalfTurn(const Angles& angles, double cosine) {
  return std::abs(cosine) >= 1 ? angles.PiGreco : angles.ArcCos(cosine);
}

SolarDay solarDay(const Angles& angles, double latitude, double degrees) {
  const double d = angles.radians(degrees);
  return {degrees,     d,           std::sin(d),
          std::cos(d), std::tan(d), semiDiurnalArc(angles, cosineOfSemiArc(latitude, d))};
}

std::span<const SolarDay> SolarDays::of(const Sweep& declinations) {
  if (declinations.samples() == 0) return {};
  if (days_.empty()) {
    for (const double degrees : declinations) {
      days_.push_back(solarDay(angles_, latitude_, degrees));
    }
  }
  return days_;
}

SunOfDay sunAtMeanLongitude(const Angles& angles, double longitude, double obliquity) {
  constexpr double c1 = 0.006954, c2 = 0.032732, c3 = -0.00032, c4 = 0.000143, c5 = -0.000003,
                   c6 = -0.000004;
  constexpr double r1 = 0.04306, r2 = -0.00093, r3 = 0.00003;
  const double L = longitude;
  const double sin1 = std::sin(L), cos1 = std::cos(L);
  const double sin2 = std::sin(2 * L), cos2 = std::cos(2 * L);
  const double centre =
      c1 * sin1 + c2 * cos1 + c3 * sin2 + c4 * cos2 + c5 * std::sin(3 * L) + c6 * std::cos(3 * L);
  const double s2 = std::sin(2 * L + 2 * c1 * sin1 + 2 * c2 * cos1 + 2 * c3 * sin2 + 2 * c4 * cos2);
  const double s4 = std::sin(4 * L + 4 * c1 * sin1 + 4 * c2 * cos1);
  const double s6 = std::sin(6 * L);
  return {angles.ArcSin(std::sin(L + centre) * std::sin(obliquity)),
          r1 * s2 + r2 * s4 + r3 * s6 - centre};
}

}  // namespace dialwright
