// The edge of a hat.
#include "proof/casters/brim.hpp"

namespace dialwright::proof {

std::optional<Vec> Brim::nearest(Vec, Vec sunwards) const {
  const Vec level{sunwards.x, sunwards.y, 0};
  if (!(length(level) > 0)) return std::nullopt;
  return ring_.centre + ring_.radius * unit(level);
}

std::vector<std::vector<Vec>> Brim::outline(Vec) const { return {ring_.points()}; }

}  // namespace dialwright::proof
