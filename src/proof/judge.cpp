// Judging strokes.
#include "proof/judge.hpp"

#include <algorithm>

namespace dialwright::proof {

namespace {

// How far the middle of a chord may lie from a bent line, as a part of the chord's length.
constexpr double kBend = 0.02;

bool same(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

bool same(const Sun& a, const Sun& b) {
  return same(a.hourAngle, b.hourAngle) && same(a.declination, b.declination);
}

double distanceToChord(Punto p, Punto a, Punto b) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  const double square = dx * dx + dy * dy;
  const double along =
      square > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / square, 0.0, 1.0) : 0;
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
  return strayOfMiddle(from, to, meaning) <= within_;
}

double SceneJudge::strayOfMiddle(Punto from, Punto to, const Meaning& meaning) {
  const Punto half{(from.x + to.x) / 2, (from.y + to.y) / 2};
  const Vec sunwards = unit(judge(from, meaning.family, meaning.first).sunwards +
                            judge(to, meaning.family, meaning.second).sunwards);
  const Judgement judgement = scene_.judge(half, meaning.family, sunwards);
  if (!(judgement.miss < HUGE_VAL)) return judgement.miss;
  const double bend = kBend * std::hypot(to.x - from.x, to.y - from.y);
  return std::max(0.0, distanceToChord(judgement.shadow, from, to) - bend);
}

StrokeFinding SceneJudge::find(Punto from, Punto to, const Meaning& meaning) {
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
