// The edge of a hat.
#include "proof/casters/brim.hpp"

#include <cmath>
#include <numbers>

namespace dialwright::proof {

std::optional<Vec> Brim::nearest(Vec, Vec sunwards) const {
  const Vec level{sunwards.x, sunwards.y, 0};
  if (!(length(level) > 0)) return std::nullopt;
  return centre_ + radius_ * unit(level);
}

std::vector<std::vector<Vec>> Brim::outline(Vec) const {
  constexpr int kPieces = 180;
  std::vector<Vec> ring;
  for (int i = 0; i <= kPieces; ++i) {
    const double turn = 2 * std::numbers::pi * i / kPieces;
    ring.push_back(centre_ + radius_ * Vec{std::cos(turn), std::sin(turn), 0});
  }
  return {ring};
}

}  // namespace dialwright::proof
