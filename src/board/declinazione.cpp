// Working the board's figures out.
#include "board/declinazione.hpp"

namespace dialwright {

namespace {

constexpr double kHorizon = -0.01454;  // sine of the sun's depression at sunrise, 50 minutes
constexpr double kDay = 24;
constexpr double kSkyADay = 360.98564736629;  // degrees that the sky turns in a day

double aroundTheClock(double hours) {
  return hours > kDay ? hours - kDay : hours < 0 ? hours + kDay : hours;
}

// The same direction in -180 to 180.
double halfTurns(double degrees) {
  return std::abs(degrees) > 180 ? std::remainder(degrees, 360) : degrees;
}

void setTimes(const BoardInput& in, BoardFigures& f) {
  assign(f.LH, -(4 * in.Lon) / 60);
  assign(f.UT, in.hours + in.minutes / 60 + in.seconds / 3600);
  assign(f.dialTime, aroundTheClock(f.UT + f.LH + f.equation / 60));
  assign(f.hourAngle, (f.dialTime - 12) * 15);
  assign(f.noon, 12 - (f.LH + f.equation / 60) - in.zone);
  f.clock = in.dst ? 1 : in.onlyTrue ? 0 : in.zone;
}

void setDirections(const BoardInput& in, const SunOfMoment& sun, BoardFigures& f) {
  const double LatRad = sun.radians(in.Lat), h = sun.radians(f.hourAngle);
  const double sinLat = std::sin(LatRad), cosLat = std::cos(LatRad);
  assign(f.azimuth, halfTurns(sun.degrees(sun.ArcTanPieno(
                        std::sin(h), sinLat * std::cos(h) - cosLat * std::tan(sun.DeclSole)))));
  assign(f.height, sun.degrees(sun.ArcSin(sinLat * std::sin(sun.DeclSole) +
                                          cosLat * std::cos(sun.DeclSole) * std::cos(h))));
  assign(f.wall, halfTurns(f.azimuth - in.az * signOrOne(LatRad)));
}

void setDay(const BoardInput& in, const SunOfMoment& sun, BoardFigures& f) {
  const double LatRad = sun.radians(in.Lat);
  double c = 0;
  assign(c, over(kHorizon - std::sin(sun.DeclSole) * std::sin(LatRad),
                 std::cos(sun.DeclSole) * std::cos(LatRad)));
  if (std::abs(c) >= 1) {
    f.arc = c < -1 ? kDay : 0;
  } else {
    assign(f.arc, over(sun.ArcCos(c) * 24, sun.PiGreco));
  }
}

// A declination beyond a right angle, of a wall that looks North, as its mirror image among those
// that look South.
double folded(double declination) {
  if (std::abs(declination) < 90) return declination;
  return declination > 0 ? 180 - declination : -(declination + 180);
}

// The normal halves the angle between the sun and the way through the wall.
double normalOfMirror(const SunOfMoment& sun, double azimuth, double declination) {
  const double normal = (azimuth + declination) / 2 + 90;
  const bool away = std::cos(sun.radians(normal - azimuth)) < 0;
  return std::remainder(away ? normal + 180 : normal, 360);
}

}  // namespace

BoardFigures boardFigures(const BoardInput& in, SunOfMoment& sun) {
  BoardFigures f;
  sun.EqTempo(in.year, in.month, in.day, in.hours, in.minutes, in.seconds, f.equation);
  assign(f.declination, sun.degrees(sun.DeclSole));
  setTimes(in, f);
  setDirections(in, sun, f);
  setDay(in, sun, f);
  assign(f.mirror, (f.azimuth - folded(in.declination)) / 2);
  if (in.onlyTrue) {
    assign(f.mirrorNormal, normalOfMirror(sun, f.azimuth, in.declination));
    sun.reduceRightAscension();
  }
  return f;
}

double transitHours(double julianDay, double rightAscension, double longitude, bool ownPace) {
  const double days = julianDay - 2451545;
  const double T = days / 36525;
  const double theta =
      Normalizza360(280.46061837 + kSkyADay * days + 0.000387933 * T * T - T * T * T / 38710000);
  double q = (rightAscension + longitude - theta) / 360;
  if (ownPace) return (q - std::floor(q)) * kDay * 360 / kSkyADay;
  if (q < 0) q += 1;
  if (q > 1) q -= 1;
  return q * kDay;
}

}  // namespace dialwright
