// The theory of the sun.
#include "proof/almanac.hpp"

#include <cmath>

#include "proof/sky.hpp"

namespace dialwright::proof {

namespace {

constexpr double kEpoch = 2451545.0;  // the noon that starts the year 2000
constexpr double kCentury = 36525.0;  // days
constexpr double kSecondsOfDay = 86400;
constexpr double kArcSeconds = 3600;  // in a degree

double sine(double degrees) { return std::sin(radians(degrees)); }
double cosine(double degrees) { return std::cos(radians(degrees)); }

// What the uniform time of the theory is ahead of universal time, in days: the parabola of the
// earth's slowing down (F. R. Stephenson and L. V. Morrison). It errs by a minute in our years, in
// which the sun moves by 2 seconds of arc.
double uniformLead(double T) {
  const double centuries = T + (2000 - 1820) / 100.0;
  return (-20 + 32 * centuries * centuries) / kSecondsOfDay;
}

// Degrees by which Venus, Jupiter and the moon pull the sun forward, T centuries after 2000.
double perturbations(double T) {
  const double t = T + 1;
  return 0.00134 * cosine(153.23 + 22518.7541 * t) + 0.00154 * cosine(216.57 + 45037.5082 * t) +
         0.00200 * cosine(312.69 + 32964.3577 * t) +
         0.00179 * sine(350.74 + 445267.1142 * t - 0.00144 * t * t);
}

double trueLongitude(double T) {
  const double mean = 280.46646 + 36000.76983 * T + 0.0003032 * T * T;
  const double anomaly = 357.52911 + 35999.05029 * T - 0.0001537 * T * T;
  const double centre = (1.914602 - 0.004817 * T - 0.000014 * T * T) * sine(anomaly) +
                        (0.019993 - 0.000101 * T) * sine(2 * anomaly) +
                        0.000289 * sine(3 * anomaly);
  return mean + centre + perturbations(T);
}

// The nodding of the earth's axis, in degrees along the ecliptic and of its obliquity.
struct Nutation {
  double longitude, obliquity;
};

Nutation nutation(double T) {
  const double node = 125.04452 - 1934.136261 * T;
  const double sun = 280.4665 + 36000.7698 * T, moon = 218.3165 + 481267.8813 * T;
  return {
      (-17.20 * sine(node) - 1.32 * sine(2 * sun) - 0.23 * sine(2 * moon) + 0.21 * sine(2 * node)) /
          kArcSeconds,
      (9.20 * cosine(node) + 0.57 * cosine(2 * sun) + 0.10 * cosine(2 * moon) -
       0.09 * cosine(2 * node)) /
          kArcSeconds};
}

double meanObliquity(double T) {
  return 23.439291111 - 0.013004167 * T - 0.000000164 * T * T + 0.000000504 * T * T * T;
}

// Degrees that Greenwich has turned from the mean equinox.
double siderealTime(double days) {
  const double T = days / kCentury;
  return 280.46061837 + 360.98564736629 * days + 0.000387933 * T * T - T * T * T / 38710000;
}

}  // namespace

double julianDate(const Instant& instant) {
  const int back = instant.month <= 2 ? 1 : 0;
  const double year = instant.year - back, month = instant.month + 12 * back;
  const double century = std::floor(year / 100);
  return std::floor(365.25 * (year + 4716)) + std::floor(30.6001 * (month + 1)) + instant.day + 2 -
         century + std::floor(century / 4) - 1524.5 + instant.hours / 24;
}

Sun sunOn(double julianDate, double longitude) {
  constexpr double kAberration = -20.4898 / kArcSeconds;
  const double days = julianDate - kEpoch;
  const double T = (days + uniformLead(days / kCentury)) / kCentury;
  const Nutation nod = nutation(T);
  const double apparent = trueLongitude(T) + nod.longitude + kAberration;
  const double obliquity = meanObliquity(T) + nod.obliquity;
  const double ascension = std::atan2(cosine(obliquity) * sine(apparent), cosine(apparent));
  const double greenwich = siderealTime(days) + nod.longitude * cosine(obliquity);
  return {std::remainder(radians(greenwich) - longitude - ascension, 2 * kPi),
          std::asin(sine(obliquity) * sine(apparent))};
}

}  // namespace dialwright::proof
