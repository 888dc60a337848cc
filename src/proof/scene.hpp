// A dial as the proof sees it: a site, a surface and what throws the shadow on it; and the
// judgement of a point of the drawing.
#pragma once

#include <memory>
#include <vector>

#include "proof/caster.hpp"
#include "proof/sky.hpp"
#include "proof/surface.hpp"
#include "sheet/meaning.hpp"

namespace dialwright::proof {

// What a point of the drawing is for a sun.
struct Judgement {
  bool lit = false;    // the sun is up, before the surface, and the caster can hide it
  double miss = 0;     // metres from the shadow on the drawing; infinity where there is none
  double minutes = 0;  // that the shadow needs for the way
  Punto shadow;        // where the shadow is, when there is one
  Vec sunwards;        // towards the sun that was asked for
};

// A point belongs to a shadow where each of the casters of its family hides the sun: one for most
// dials, two whose shadows cross for a bifilar one.
struct Casters {
  CurveFamily family = CurveFamily::None;  // None for all families without casters of their own
  std::vector<std::shared_ptr<const Caster>> all;
};

struct Scene {
  Sky sky{0};
  std::shared_ptr<const Surface> surface;
  std::vector<Casters> casters;

  const Casters& castersOf(CurveFamily family) const;
  // Of a sun that leaves one of its numbers open, the one that the point itself tells is taken.
  Judgement judge(Punto spot, CurveFamily family, const Sun& sun) const;
  // The same for a direction of length 1.
  Judgement judge(Punto spot, CurveFamily family, Vec sunwards) const;
  // Of such a judgement only where the shadow is, whatever the light; nothing where there is none.
  std::optional<Punto> shadow(Punto spot, CurveFamily family, const Sun& sun) const;

 private:
  // Towards a sun; what it leaves open is taken from the point.
  std::optional<Vec> sunwardsAt(Punto spot, CurveFamily family, const Sun& sun) const;
  // The sun behind the casters as a place sees them, with what is known of it; nothing where they
  // can't be seen.
  std::optional<Sun> sunThrough(const Casters& of, const Place& place, const Sun& sun) const;
  // The shadow's point nearest to a spot; nothing where there is no shadow, or two do not cross.
  std::optional<Punto> shadowOf(const Casters& of, Punto spot, Vec sunwards) const;
  // The same for one caster, of a spot with its place.
  std::optional<Punto> shadowOf(const Caster& caster, Punto spot, const Place& place,
                                Vec sunwards) const;
  bool isLit(const Place& place, Vec sunwards) const;
};

}  // namespace dialwright::proof
