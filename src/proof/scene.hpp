// A dial as the proof sees it: a site, a surface and what throws the shadow on it; and the
// judgement of a point of the drawing.
#pragma once

#include <functional>
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
  // A further condition of light, if any: the place, its normal, and the sun's direction.
  std::function<bool(const Place&, Vec sunwards)> alsoLit;

  const Casters& castersOf(CurveFamily family) const;
  // Of a sun that leaves one of its numbers open, the one that the point itself tells is taken.
  Judgement judge(Punto spot, CurveFamily family, Sun sun) const;
  // The same for a direction of length 1.
  Judgement judge(Punto spot, CurveFamily family, Vec sunwards) const;

 private:
  // The sun behind the casters as a place sees them, with what is known of it; nothing where they
  // can't be seen.
  std::optional<Sun> sunThrough(const Casters& of, const Place& place, const Sun& sun) const;
  // The shadow's point nearest to a spot; nothing where there is no shadow, or two do not cross.
  std::optional<Punto> shadowOf(const Casters& of, Punto spot, Vec sunwards) const;
  bool isLit(const Place& place, Vec sunwards) const;
};

}  // namespace dialwright::proof
