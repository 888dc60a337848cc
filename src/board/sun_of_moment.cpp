// Working the sun out.
#include "board/sun_of_moment.hpp"

#include <array>
#include <string>

#include "numerics/numbers.hpp"

namespace dialwright {

namespace {

// The reform of the calendar as the number of a date, a hundredth of yyyymmdd.
constexpr double kReform = 158210.15;

using Series = std::array<double, 4>;

// Per Julian century T from 1900 January 0.5; degrees but for the eccentricity.
constexpr double kEpoch = 2415020;
constexpr Series kObliquity = {23.452294, -0.0130125, -0.00000164, 0.000000503};
constexpr Series kMeanLongitude = {279.69668, 36000.76892, 0.0003025, 0};
constexpr Series kMeanAnomaly = {358.47583, 35999.04975, -0.00015, -0.0000033};
constexpr Series kEccentricity = {0.01675104, -0.0000418, -0.000000126, 0};
constexpr Series kCentre1 = {1.91946, -0.004789, -0.000014, 0};
constexpr Series kCentre2 = {0.020094, -0.0001, 0, 0};
constexpr double kCentre3 = 0.000293;

double at(double T, const Series& c) { return c[0] + c[1] * T + c[2] * T * T + c[3] * T * T * T; }

double square(double x) { return x * x; }

double hourOfDay(double hours, double minutes, double seconds) {
  const double H = hours + minutes / 60 + seconds / 3600;
  return H > 24 ? H - 24 : H < 0 ? H + 24 : H;
}

// The date as a number yyyymmdd.ddddd.
double dateNumber(double year, double month, double dayAndFraction) {
  std::string monthText = textOf(month);
  if (monthText.size() < 2) monthText.insert(0, "0");
  return numberOf(textOf(year) + monthText + textFixed(dayAndFraction, 5, 2));
}

// Equation of time in radians, to the second order of the eccentricity and of the obliquity.
double equationOfTime(double y2, double e, double L, double M) {
  return y2 * std::sin(2 * L) - 2 * e * std::sin(M) + 4 * e * y2 * std::sin(M) * std::cos(2 * L) -
         0.5 * y2 * y2 * std::sin(4 * L) - 1.25 * e * e * std::sin(2 * M);
}

double equationOfCentre(double T, double M) {
  return at(T, kCentre1) * std::sin(M) + at(T, kCentre2) * std::sin(2 * M) +
         kCentre3 * std::sin(3 * M);
}

}  // namespace

void SunOfMoment::setJulianDay(double year, double month, double day, double F) {
  const bool early = month == 1 || month == 2;
  const double y = early ? year - 1 : year;
  const double m = early ? month + 12 : month;
  const double a = std::floor(y / 100);
  double b = 2 - a + std::floor(a / 4);
  if (dateNumber(year, month, day + F) / 100 < kReform) b = 0;
  assign(julianDay,
         std::floor(365.25 * (y + 4716)) + std::floor(30.6001 * (m + 1)) + b + day + F - 1524.5);
}

void SunOfMoment::setRightAscension(double obliquity, double lambda) {
  const double f = over(std::cos(obliquity) - 1, std::cos(obliquity) + 1);
  const double alpha = lambda + f * std::sin(2 * lambda) + f * f * std::sin(4 * lambda) / 2 +
                       f * f * f * std::sin(6 * lambda) / 3 +
                       f * f * f * f * std::sin(8 * lambda) / 4;
  if (assign(rightAscension, over(alpha * 12, PiGreco)))
    rightAscensionParts = OreDaAngolo(rightAscension * 15);
}

void SunOfMoment::reduceRightAscension() {
  rightAscension -= 24 * std::floor(rightAscension / 24);
  rightAscensionParts = OreDaAngolo(rightAscension * 15);
}

void SunOfMoment::EqTempo(double year, double month, double day, double hours, double minutes,
                          double seconds, double& result) {
  setJulianDay(year, month, day, hourOfDay(hours, minutes, seconds) / 24);
  const double T = (julianDay - kEpoch) / 36525;
  double E0 = 0, y2 = 0, L = 0, M = 0, e = 0, C = 0, Eq = 0;
  assign(E0, radians(at(T, kObliquity)));
  assign(y2, square(std::tan(E0 / 2)));
  assign(L, radians(at(T, kMeanLongitude)));
  assign(M, radians(at(T, kMeanAnomaly)));
  assign(e, at(T, kEccentricity));
  assign(Eq, degrees(equationOfTime(y2, e, L, M)) * 4);
  equationWhole = Sgn(Eq) * std::floor(std::abs(Eq));
  equationFraction = Eq - equationWhole;
  result = Eq;

  assign(C, equationOfCentre(T, M));
  L = degrees(L);
  L -= 360 * std::floor(L / 360);
  const double lambda = radians(L + C);
  assign(DeclSole, ArcSin(std::sin(E0) * std::sin(lambda)));
  setRightAscension(E0, lambda);
}

}  // namespace dialwright
