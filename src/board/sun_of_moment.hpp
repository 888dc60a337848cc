// The sun of a date and a time: Julian day, equation of time, declination and right ascension by
// the elements of Newcomb's theory (the low precision formulae of Meeus, "Astronomical Formulae for
// Calculators"). Universal time is taken for ephemeris time.
#pragma once

#include "numerics/angles.hpp"

namespace dialwright {

struct SunOfMoment : Angles {
  double equationWhole = 0;     // of the equation of time, whole minutes with its sign
  double equationFraction = 0;  // the rest, minutes
  double rightAscension = 0;    // hours; for two days in March above 24
  HourParts rightAscensionParts{};
  double julianDay = 0;
  double DeclSole = 0;  // radians

  // Works all of it out. The month counts from 1, years before Christ are 0 and below; time above
  // 24 hours or below 0 is carried round while the date stays. A date before 15 October 1582 is
  // one of the Julian calendar. `result` receives the equation of time in minutes: apparent less
  // mean time. What can't be worked out keeps its value.
  void EqTempo(double year, double month, double day, double hours, double minutes, double seconds,
               double& result);

  // Brings the right ascension below 24 hours.
  void reduceRightAscension();

 private:
  void setJulianDay(double year, double month, double day, double F);
  void setRightAscension(double obliquity, double lambda);
};

}  // namespace dialwright
