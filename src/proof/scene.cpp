// Judging a point of the drawing by rays.
#include "proof/scene.hpp"

#include <cmath>
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
// The search for the sun that a point tells: directions that are the same.
constexpr double kSameDirection = 1e-13;
constexpr int kMostRounds = 100;
// Two shadows cross where they are so near to one another, metres.
constexpr double kMeeting = 1e-8;
constexpr int kMostCrossings = 8;

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

// Where two straight lines through two points each cross.
std::optional<Punto> crossing(Punto a0, Punto a1, Punto b0, Punto b1) {
  const double ax = a1.x - a0.x, ay = a1.y - a0.y, bx = b1.x - b0.x, by = b1.y - b0.y;
  const double part = ((b0.x - a0.x) * by - (b0.y - a0.y) * bx) / (ax * by - ay * bx);
  if (!std::isfinite(part)) return std::nullopt;
  return Punto{a0.x + part * ax, a0.y + part * ay};
}

// A spot's neighbour along the shadow whose nearest point is `own`, at a part of a distance: square
// to the way there, or for a spot on that shadow towards the other one's nearest point.
Punto along(Punto spot, Punto own, Punto other, double distanceOff) {
  const double dx = own.x - spot.x, dy = own.y - spot.y;
  const double way = std::hypot(dx, dy);
  const double step = 0.1;
  if (way > kMeeting) {
    const double scale = step * distanceOff / way;
    return {spot.x - scale * dy, spot.y + scale * dx};
  }
  return {spot.x + step * (other.x - spot.x), spot.y + step * (other.y - spot.y)};
}

}  // namespace

const Casters& Scene::castersOf(CurveFamily family) const {
  for (const Casters& each : casters) {
    if (each.family == family) return each;
  }
  return casters.front();
}

bool Scene::isLit(const Place& place, Vec sunwards) const {
  return sunwards.z >= kGrazing && dot(place.normal, sunwards) >= kGrazing;
}

std::optional<Vec> Scene::sunwardsAt(Punto spot, CurveFamily family, const Sun& sun) const {
  if (!std::isnan(sun.hourAngle) && !std::isnan(sun.declination)) return sky.towards(sun);
  const std::optional<Place> place = surface->place(spot);
  const auto told = place ? sunThrough(castersOf(family), *place, sun) : std::nullopt;
  return told ? std::optional(sky.towards(*told)) : std::nullopt;
}

Judgement Scene::judge(Punto spot, CurveFamily family, const Sun& sun) const {
  const std::optional<Vec> sunwards = sunwardsAt(spot, family, sun);
  return sunwards ? judge(spot, family, *sunwards) : nowhere(spot);
}

std::optional<Punto> Scene::shadow(Punto spot, CurveFamily family, const Sun& sun) const {
  const std::optional<Vec> sunwards = sunwardsAt(spot, family, sun);
  return sunwards ? shadowOf(castersOf(family), spot, *sunwards) : std::nullopt;
}

Judgement Scene::judge(Punto spot, CurveFamily family, Vec sunwards) const {
  const std::optional<Place> place = surface->place(spot);
  if (!place) return nowhere(spot);
  const bool lit = isLit(*place, sunwards);
  const Casters& of = castersOf(family);
  const auto shadow = of.all.size() == 1 ? shadowOf(*of.all[0], spot, *place, sunwards)
                                         : shadowOf(of, spot, sunwards);
  // Where two shadows do not cross, nothing is there to be read.
  if (!shadow) {
    return {lit && of.all.size() == 1, kInfinity, kInfinity, spot, sunwards};
  }
  Judgement judgement{lit, distance(*shadow, spot), 0, *shadow, sunwards};
  if (judgement.miss < kNoWay) return judgement;
  const Vec west = cross(sunwards, sky.pole());
  const auto later = shadowOf(of, *shadow, unit(sunwards + kMinute * west));
  judgement.minutes = later ? judgement.miss / distance(*shadow, *later) : kInfinity;
  return judgement;
}

// From the casters to what is known of the sun and back, until the direction stands.
std::optional<Sun> Scene::sunThrough(const Casters& of, const Place& place, const Sun& sun) const {
  Sun told;
  Vec direction = place.normal, seen = direction;
  for (int round = 0; round < kMostRounds; ++round) {
    Vec through = direction;
    for (const auto& caster : of.all) {
      const auto nearest = caster->nearest(place.at, through);
      if (!nearest) return std::nullopt;
      through = unit(*nearest - place.at);
    }
    seen = through;
    told = completed(sun, sky.of(through));
    through = sky.towards(told);
    if (length(through - direction) < kSameDirection) break;
    direction = through;
  }
  // What looks up to the casters without being lit is no shadow of any hour or day.
  if (!isLit(place, seen)) return std::nullopt;
  return told;
}

std::optional<Punto> Scene::shadowOf(const Caster& caster, Punto spot, const Place& place,
                                     Vec sunwards) const {
  const auto through = caster.nearest(place.at, sunwards);
  const auto shadow = through ? surface->shadow(*through, sunwards) : std::nullopt;
  return shadow ? std::optional(surface->imageNear(spot, *shadow)) : std::nullopt;
}

std::optional<Punto> Scene::shadowOf(const Casters& of, Punto spot, Vec sunwards) const {
  const auto nearest = [&](std::size_t caster, Punto from) {
    const auto place = surface->place(from);
    return place ? shadowOf(*of.all[caster], from, *place, sunwards) : std::nullopt;
  };
  if (of.all.size() == 1) return nearest(0, spot);
  // To where the straight lines through two points of each shadow cross, until that is on both.
  for (int round = 0; round < kMostCrossings; ++round) {
    const auto a = nearest(0, spot), b = nearest(1, spot);
    if (!a || !b) return std::nullopt;
    const double offA = distance(*a, spot), offB = distance(*b, spot);
    const double off = std::fmax(offA, offB);
    if (off < kMeeting) return spot;
    const auto a1 = nearest(0, along(spot, *a, *b, off)), b1 = nearest(1, along(spot, *b, *a, off));
    const auto cross = a1 && b1 ? crossing(*a, *a1, *b, *b1) : std::nullopt;
    if (!cross) return std::nullopt;
    spot = *cross;
  }
  return std::nullopt;
}

}  // namespace dialwright::proof
