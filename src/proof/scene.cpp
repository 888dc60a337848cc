// Judging a point of the drawing by rays.
#include "proof/scene.hpp"

#include <limits>

namespace dialwright::proof {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
// The sine of the sun's height, and of its height over the surface, that still count as light: the
// last digits of a sun that is just rising.
constexpr double kGrazing = -1e-8;
constexpr double kMinute = kPi / 720;  // of time, as an hour angle
// A way on the drawing that takes no time worth asking for, metres.
constexpr double kNoWay = 1e-7;

// Fills in what a sun leaves open.
Sun completed(const Sun& sun, const Sun& told) {
  return {std::isnan(sun.hourAngle) ? told.hourAngle : sun.hourAngle,
          std::isnan(sun.declination) ? told.declination : sun.declination};
}

double distance(Punto a, Punto b) { return std::hypot(a.x - b.x, a.y - b.y); }

}  // namespace

const Casters& Scene::castersOf(CurveFamily family) const {
  for (const Casters& each : casters) {
    if (each.family == family) return each;
  }
  return casters.front();
}

Judgement Scene::judge(Punto spot, CurveFamily family, Sun sun) const {
  Judgement judgement{.lit = false, .miss = kInfinity, .minutes = kInfinity, .shadow = spot};
  const std::optional<Place> place = surface->place(spot);
  if (!place) return judgement;
  const Casters& of = castersOf(family);
  const auto isLit = [&](Vec sunwards) {
    return sunwards.z >= kGrazing && dot(place->normal, sunwards) >= kGrazing &&
           (!alsoLit || alsoLit(*place, sunwards));
  };
  if (std::isnan(sun.hourAngle) || std::isnan(sun.declination)) {
    const Sun claimed = sun;
    sun = completed(claimed, {0, 0});
    // Twice: the nearest point of a caster depends on the sun itself.
    for (int i = 0; i < 2; ++i) {
      const Vec guess = sky.towards(sun);
      const auto through = of.all.front()->nearest(place->at, guess);
      if (!through) return judgement;
      const Vec told = unit(*through - place->at);
      // What looks up to the caster without being lit is no shadow of any hour or day.
      if (i == 1 && !isLit(told)) return judgement;
      sun = completed(claimed, sky.of(told));
    }
  }
  const Vec sunwards = sky.towards(sun);
  judgement.lit = isLit(sunwards);
  judgement.miss = judgement.minutes = 0;
  for (const auto& caster : of.all) {
    const auto through = caster->nearest(place->at, sunwards);
    auto shadow = through ? surface->shadow(*through, sunwards) : std::nullopt;
    if (shadow) shadow = surface->imageNear(spot, *shadow);
    const double miss = shadow ? distance(*shadow, spot) : kInfinity;
    if (miss <= judgement.miss) continue;
    judgement.miss = miss;
    judgement.minutes = shadow ? 0 : kInfinity;
    if (!shadow) continue;
    judgement.shadow = *shadow;
    if (miss < kNoWay) continue;
    const auto later =
        surface->shadow(*through, sky.towards({sun.hourAngle + kMinute, sun.declination}));
    judgement.minutes =
        later ? miss / distance(*shadow, surface->imageNear(*shadow, *later)) : kInfinity;
  }
  return judgement;
}

}  // namespace dialwright::proof
