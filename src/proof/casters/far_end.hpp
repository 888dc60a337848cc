// The bodies of dials that are read at the far end of a shadow: of all of the body's points, the
// one whose shadow falls farthest from the sun's side.
#pragma once

#include "proof/caster.hpp"

namespace dialwright::proof {

// A ball over a plane of that normal: the point where the light grazes its upper side.
class BallsFarEnd : public Ball {
 public:
  BallsFarEnd(Vec centre, double radius, Vec normal) : Ball(centre, radius), normal_(normal) {}
  // Nothing for a sun in the normal's own direction, whose shadow is as far on all sides.
  std::optional<Vec> nearest(Vec place, Vec sunwards) const override;

 private:
  Vec normal_;
};

// The rim of a disc that lies parallel to a plane of that normal: its point opposite the sun.
class RimsFarEnd : public RingEdge {
 public:
  RimsFarEnd(Vec centre, double radius, Vec normal)
      : RingEdge({centre, radius, square(normal), cross(normal, square(normal))}),
        normal_(normal) {}
  std::optional<Vec> nearest(Vec place, Vec sunwards) const override;

 private:
  Vec normal_;
};

}  // namespace dialwright::proof
