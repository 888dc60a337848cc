// The shared parts of the dotted dials.
#include "dials/cylindrical/dotted.hpp"

#include <cmath>

#include "dials/sun.hpp"

namespace dialwright {

namespace {

constexpr double kFootCircle = 0.002;  // radius
constexpr double kFootRow = 0.01;      // half the length of a row
constexpr double kFootStep = 0.0001;   // from dot to dot, and from row to row

}  // namespace

double hourOfSubstyle(const DialParams& p) {
  if (std::abs(p.DeclGradi) == 90) return (p.PiGreco / 2) * Sgn(p.DeclGradi);
  return arctan(over(std::tan(p.DeclRad), std::sin(p.LatRad)));
}

Sun sunOfTurnedHorizon(const DialParams& p, double turn, double side, const Sun& behindTip) {
  const double altitude =
      std::sin(p.LatRad) * std::sin(behindTip.declination) +
      std::cos(p.LatRad) * std::cos(behindTip.declination) * std::cos(behindTip.hourAngle);
  const double semiArc = semiDiurnalArc(p, cosineOfSemiArc(p.LatRad, behindTip.declination));
  if (altitude < 0 || !sound(semiArc)) return behindTip;
  return {turn + side * semiArc, behindTip.declination};
}

void footCircle(Run& run) {
  circle(run.sheet, {0, 0}, kFootCircle, palette(13));
  dot(run.sheet, {0, 0}, palette(12));
}

void footRows(Run& run) {
  for (const double x : run.sweep(-kFootRow, kFootRow, kFootStep)) {
    for (const double y : {0.0, -kFootStep}) dot(run.sheet, {x, y}, palette(7));
  }
  dot(run.sheet, {0, 0}, palette(12));
}

}  // namespace dialwright
