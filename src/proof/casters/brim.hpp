// The brim of a hat: a level ring about an axis, whose edge lets the sun in where it stands between
// the axis and the sun.
#pragma once

#include "proof/caster.hpp"

namespace dialwright::proof {

class Brim : public Caster {
 public:
  Brim(Vec centre, double radius) : ring_{centre, radius, kEast, kNorth} {}
  // The edge's point in the sun's vertical plane through the axis, wherever the place is; nothing
  // with the sun in the zenith.
  std::optional<Vec> nearest(Vec place, Vec sunwards) const override;
  std::vector<std::vector<Vec>> outline(Vec sunwards) const override;

 private:
  Ring ring_;
};

}  // namespace dialwright::proof
