// Judging strokes.
#include "proof/judge.hpp"

#include <algorithm>
#include <limits>

namespace dialwright::proof {

namespace {

// How far the middle of a chord may lie from a bent line, as a part of the chord's length
// and metres at most.
constexpr double kBend = 0.02, kMostBend = 0.001;
// A chord whose middle sun stands nearer to one of its ends, as a part of its length, is a jump:
// the shadow goes the other way round.
constexpr double kJump = 0.02;

bool same(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

bool same(const Sun& a, const Sun& b) {
  return same(a.hourAngle, b.hourAngle) && same(a.declination, b.declination);
}

// True of a chord with an end that stands for no sun, such as where the pen starts.
bool fromNowhere(const Meaning& meaning) {
  return !meaning.first.known() || !meaning.second.known();
}

// What every sun of a line of a family has in common, an angle: the hour angle, the declination, or
// the time since sunset or sunrise, in hours or in parts of the day. No number where nothing is.
double constantOf(CurveFamily family, const Sky& sky, const Sun& sun) {
  switch (family) {
    case CurveFamily::Hours: return sun.hourAngle;
    case CurveFamily::Declinations:
    case CurveFamily::Equinoctial: return sun.declination;
    case CurveFamily::Italic: return sun.hourAngle - sky.semiArc(sun.declination);
    case CurveFamily::Babylonian: return sun.hourAngle + sky.semiArc(sun.declination);
    case CurveFamily::Temporary: return sun.hourAngle / sky.semiArc(sun.declination);
    default: return Sun::kOpen;
  }
}

// False of a chord from one line of a family to another. The plane of an hour is that of the hour
// twelve hours later, too: a plane's line of it runs through both.
bool onOneLine(const Sky& sky, const Meaning& meaning) {
  constexpr double kApart = 1e-4;
  const double apart = constantOf(meaning.family, sky, meaning.second) -
                       constantOf(meaning.family, sky, meaning.first);
  const double round = meaning.family == CurveFamily::Hours ? kPi : 2 * kPi;
  return !(std::abs(std::remainder(apart, round)) > kApart);
}

// The hour angle that a line of the horizon's hours has on another day; no number where the sun
// does not rise or set on one of the two, or the family counts otherwise.
double hourOnDay(CurveFamily family, const Sky& sky, const Sun& sun, double declination) {
  const double own = sky.semiArc(sun.declination), other = sky.semiArc(declination);
  switch (family) {
    case CurveFamily::Italic: return sun.hourAngle + (other - own);
    case CurveFamily::Babylonian: return sun.hourAngle - (other - own);
    case CurveFamily::Temporary: return sun.hourAngle / own * other;
    default: return Sun::kOpen;
  }
}

// Half way from one sun to the other along the line of their family, the shorter way round. (Half
// way along a great circle would be no test: its shadow lies on every chord between two shadows of
// a tip.)
Sun middle(CurveFamily family, const Sky& sky, const Sun& a, const Sun& b) {
  const double day = (a.declination + b.declination) / 2;
  const double hour = hourOnDay(family, sky, a, day);
  if (std::isfinite(hour)) return {hour, day};
  return {a.hourAngle + std::remainder(b.hourAngle - a.hourAngle, 2 * kPi) / 2, day};
}

double distanceToChord(Punto p, Punto a, Punto b) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  const double square = dx * dx + dy * dy;
  double along = square > 0 ? ((p.x - a.x) * dx + (p.y - a.y) * dy) / square : 0.5;
  if (!(std::abs(along - 0.5) <= 0.5 - kJump)) along = 0.5;
  return std::hypot(a.x + along * dx - p.x, a.y + along * dy - p.y);
}

}  // namespace

Judgement SceneJudge::judge(Punto at, CurveFamily family, const Sun& sun) {
  for (const Known& known : known_) {
    if (known.at.x == at.x && known.at.y == at.y && known.family == family && same(known.sun, sun))
      return known.judgement;
  }
  Known& place = known_[next_];
  next_ = 1 - next_;
  place = {at, sun, family, scene_.judge(at, family, sun)};
  return place.judgement;
}

bool SceneJudge::isShadow(Punto at, CurveFamily family, const Sun& sun) {
  const Judgement judgement = judge(at, family, sun);
  return judgement.lit && judgement.miss <= within_;
}

bool SceneJudge::isTrack(Punto from, Punto to, const Meaning& meaning) {
  return !fromNowhere(meaning) && onOneLine(scene_.sky, meaning) &&
         strayOfMiddle(from, to, meaning) <= within_;
}

double SceneJudge::strayOfMiddle(Punto from, Punto to, const Meaning& meaning) const {
  const Punto half{(from.x + to.x) / 2, (from.y + to.y) / 2};
  const auto shadow = scene_.shadow(
      half, meaning.family, middle(meaning.family, scene_.sky, meaning.first, meaning.second));
  if (!shadow) return HUGE_VAL;
  const double bend = std::min(kMostBend, kBend * std::hypot(to.x - from.x, to.y - from.y));
  return std::max(0.0, distanceToChord(*shadow, from, to) - bend);
}

StrokeFinding SceneJudge::find(Punto from, Punto to, const Meaning& meaning) {
  if (fromNowhere(meaning) || !onOneLine(scene_.sky, meaning)) {
    return {Finding::Stray, std::hypot(to.x - from.x, to.y - from.y),
            std::numeric_limits<double>::infinity()};
  }
  const Judgement first = judge(from, meaning.family, meaning.first);
  const Judgement second = judge(to, meaning.family, meaning.second);
  if (!first.lit || !second.lit) return {.finding = Finding::Ghost};
  StrokeFinding found{Finding::True, std::max(first.miss, second.miss),
                      std::max(first.minutes, second.minutes)};
  if (from.x != to.x || from.y != to.y) {
    const double stray = strayOfMiddle(from, to, meaning);
    if (stray > within_) found.miss = std::max(found.miss, stray);
  }
  if (!(found.miss <= within_)) found.finding = Finding::Stray;
  return found;
}

}  // namespace dialwright::proof
