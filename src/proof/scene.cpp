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

// The judgement of a point off the surface.
Judgement nowhere(Punto spot) {
  return {.lit = false, .miss = kInfinity, .minutes = kInfinity, .shadow = spot, .sunwards = {}};
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
  if (std::isnan(sun.hourAngle) || std::isnan(sun.declination)) {
    const std::optional<Place> place = surface->place(spot);
    if (!place) return nowhere(spot);
    // Twice: the nearest point of a caster depends on the sun itself.
    Sun told;
    for (int i = 0; i < 2; ++i) {
      const Vec guess = sky.towards(completed(sun, completed(told, {0, 0})));
      const auto through = castersOf(family).all.front()->nearest(place->at, guess);
      if (!through) return nowhere(spot);
      told = sky.of(*through - place->at);
    }
    sun = completed(sun, told);
  }
  return judge(spot, family, sky.towards(sun));
}

Judgement Scene::judge(Punto spot, CurveFamily family, Vec sunwards) const {
  const std::optional<Place> place = surface->place(spot);
  if (!place) return nowhere(spot);
  Judgement judgement{.shadow = spot, .sunwards = sunwards};
  judgement.lit = sunwards.z >= kGrazing && dot(place->normal, sunwards) >= kGrazing &&
                  (!alsoLit || alsoLit(*place, sunwards));
  for (const auto& caster : castersOf(family).all) {
    const auto through = caster->nearest(place->at, sunwards);
    auto shadow = through ? surface->shadow(*through, sunwards) : std::nullopt;
    if (shadow) shadow = surface->alike(*shadow, spot);
    const double miss = shadow ? distance(*shadow, spot) : kInfinity;
    if (miss <= judgement.miss) continue;
    judgement.miss = miss;
    judgement.minutes = shadow ? 0 : kInfinity;
    if (!shadow) continue;
    judgement.shadow = *shadow;
    if (miss < kNoWay) continue;
    const Vec west = cross(sunwards, sky.pole());
    const auto later = surface->shadow(*through, unit(sunwards + kMinute * west));
    judgement.minutes = later ? miss / distance(*shadow, *later) : kInfinity;
  }
  return judgement;
}

}  // namespace dialwright::proof
