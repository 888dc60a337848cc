// The rim of a level plate or of a round hole in it.
#pragma once

#include "proof/caster.hpp"

namespace dialwright::proof {

class LevelRim : public RingEdge {
 public:
  // Which part of the rim counts: all of it, the half away from the sun, over which the light
  // leaves, or the half towards the sun, over which it comes.
  enum class Half { Both, FromSun, ToSun };

  LevelRim(Vec centre, double radius, Half half = Half::Both)
      : RingEdge({centre, radius, kNorth, kEast}), half_(half) {}
  // Where the rim, seen from below, stands nearest to the ray's way through its level: on the rim,
  // the radius of that way.
  std::optional<Vec> nearest(Vec place, Vec sunwards) const override;

 private:
  Half half_;
};

}  // namespace dialwright::proof
