// The report's block on the sun's path: when it rises and sets, and when it shines on the dial.
#include <algorithm>
#include <cmath>
#include <vector>

#include "numerics/numbers.hpp"
#include "shell/dispatch.hpp"
#include "shell/report_lines.hpp"

namespace dialwright {

namespace {

constexpr double kNoDay = 0, kNoNight = 180;  // semi-diurnal arcs, degrees

// A stretch of the day, in hours.
struct Stretch {
  double start, end;
};

// The semi-diurnal arc at a latitude, degrees.
double semiArc(const Angles& angles, double latitude, double declination) {
  const double t = -std::tan(latitude) * std::tan(declination);
  if (!(std::abs(t) <= 1)) return t < -1 ? kNoNight : kNoDay;
  return angles.degrees(angles.ArcCos(t));
}

Stretch aroundHour(double hour, double arc) {
  return {rounded(hour - arc / 15, 2), rounded(hour + arc / 15, 2)};
}

// When the sun is both up and before the plane. The window turns round midnight: where all of the
// day counts, each of its turns that meets the day is a stretch; otherwise the one by its own
// clock.
std::vector<Stretch> litStretches(const Stretch& day, const Stretch& window, bool allTurns) {
  std::vector<Stretch> stretches;
  for (const double turn : {-24.0, 0.0, 24.0}) {
    if (turn != 0 && !allTurns) continue;
    const Stretch lit{std::max(day.start, window.start + turn),
                      std::min(day.end, window.end + turn)};
    if (lit.start < lit.end) stretches.push_back(lit);
  }
  return stretches;
}

void dayOnDial(const Report& r, double declination) {
  const DialParams& p = r.p;
  const double a = semiArc(p, p.LatRad * p.SegnoEmisfero, declination);
  const double b = semiArc(p, p.ElevStilo, declination);
  const Stretch day = aroundHour(12, a);
  const Stretch window = aroundHour(12 + p.degrees(p.OrarioSustilare) / 15, b);
  if (a == kNoDay) {
    r.say({{"Sun off dial all the day "}});
    return;
  }
  if (a == kNoNight) {
    r.say({{"Sun up all day "}});
  } else {
    r.say({{"Sunrise at ", hoursMinutes(day.start)}, {"Sunset at ", hoursMinutes(day.end)}});
  }
  const bool allTurns = r.run.trueShadows();
  const std::vector<Stretch> stretches =
      allTurns && b == kNoNight ? std::vector<Stretch>{day} : litStretches(day, window, allTurns);
  for (const Stretch& lit : stretches) {
    r.say({{"Sun on dial at ", hoursMinutes(lit.start)},
           {"Sun off dial at ", hoursMinutes(lit.end)}});
  }
  if (stretches.empty()) r.say({{"Sun off dial all the day "}});
}

std::string bothSigns(const Report& r, double angle) {
  return std::string(kPlusMinus) + roundedDegrees(r.p, std::abs(angle), 2);
}

// The sun's declination from which on it shines on the back of an upright wall; a fault where it
// never gets there.
double criticalOfSun(const Report& r) {
  const double angle = r.p.ArcSin(-std::cos(r.p.LatRad) * std::sin(r.p.DeclRad));
  return std::abs(angle) <= r.p.radians(kSolstice) ? angle : kFault;
}

void criticalAngles(const Report& r) {
  const DialParams& p = r.p;
  const double ofDial = p.ArcSin(over(std::sin(p.radians(kSolstice)), std::cos(p.LatRad)));
  if (sound(ofDial))
    r.say({{"critical declination of the dial = ", bothSigns(r, ofDial), kDegree}});
  const double ofSun = criticalOfSun(r);
  if (sound(ofSun)) r.say({{"critical declination of the sun = ", bothSigns(r, ofSun), kDegree}});
  if (p.LatRad == 0) {
    r.say({{"critical reclination of the dial = ", "90", kDegree}});
    return;
  }
  double slope = 0;
  assign(slope, p.degrees(arctan(over(std::cos(p.DeclRad), std::tan(p.LatRad)))));
  r.say({{"critical inclination of the dial = ", roundedText(90 - slope, 2), kDegree}});
}

void sunsPath(const Report& r, double declination) {
  const DialParams& p = r.p;
  r.ink(palette(11));
  r.say({{"Sun's declination = ", roundedDegrees(p, declination, 3), kDegree}});
  dayOnDial(r, declination);
  r.say({{"substyle hour = ", roundedText(clockHour(p, p.OrarioSustilare), 5)}});
  r.ink(palette(7));
  criticalAngles(r);
}

}  // namespace

void sunsPathBlock(const Report& r) {
  double declination = kSolstice;
  if (r.run.on(Field::ckFunction)) assign(declination, r.run.number(Field::txtLineofdeclination));
  const double critical = criticalOfSun(r);
  for (const double d : {r.p.radians(declination), critical}) {
    if (!sound(d)) continue;
    sunsPath(r, d);
    sunsPath(r, -d);
  }
}

}  // namespace dialwright
