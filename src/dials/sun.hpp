// The sun that all dials share: the semi-diurnal arc and the series of the analemma.
#pragma once

#include <span>
#include <vector>

#include "numerics/angles.hpp"
#include "numerics/sweep.hpp"

namespace dialwright {

// The hour colours: noon red, six in the evening blue, the others pale.
constexpr int hourInk(double degrees, int ordinary = 7) {
  return degrees == 0 ? 12 : degrees == 90 ? 9 : ordinary;
}

// -tan(latitude) * tan(declination), the cosine of the semi-diurnal arc; both angles in radians.
double cosineOfSemiArc(double latitude, double declination);

// The semi-diurnal arc of a cosine, radians; a fault where the sun neither rises nor sets.
double semiDiurnalArc(const Angles& angles, double cosine);

// The same for the families whose lines run on through polar day and night: half a turn there.
double semiDiurnalArcOrHalfTurn(const Angles& angles, double cosine);

// A day of the year as all the hours of a family of curves meet it.
struct SolarDay {
  double degrees, radians;       // the sun's declination
  double sine, cosine, tangent;  // of it
  double arc;                    // the semi-diurnal arc as semiDiurnalArc gives it
};

SolarDay solarDay(const Angles& angles, double latitude, double degrees);

// The days of a family's loops over the declination at a latitude (radians), worked out by the
// first loop that asks for them.
class SolarDays {
 public:
  SolarDays(const Angles& angles, double latitude) : angles_(angles), latitude_(latitude) {}

  // The days of a sweep, which is empty or the same each time.
  std::span<const SolarDay> of(const Sweep& declinations);

 private:
  const Angles& angles_;
  double latitude_;
  std::vector<SolarDay> days_;
};

// Degrees, minutes and seconds of the obliquity that the analemmas use, in degrees.
constexpr double obliquity(double seconds) { return 23 + 26.0 / 60 + seconds / 3600; }

// The sun of one day.
struct SunOfDay {
  double declination;     // radians
  double equationOfTime;  // radians of hour angle
};

// The sun at a mean longitude counted from the spring equinox, radians, by short series for the
// equation of the centre and the reduction to the equator; the obliquity is in radians.
SunOfDay sunAtMeanLongitude(const Angles& angles, double longitude, double obliquity);

// Days of the year, in the loops over the mean longitude.
inline constexpr double kDaysOfYear = 365.2422;

}  // namespace dialwright
