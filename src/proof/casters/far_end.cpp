// Where a body's shadow ends.
#include "proof/casters/far_end.hpp"

namespace dialwright::proof {

namespace {

// The part of a direction that is square to another one of length 1, stretched to length 1.
std::optional<Vec> aside(Vec direction, Vec from) {
  const Vec across = direction - dot(direction, from) * from;
  if (!(length(across) > 1e-12)) return std::nullopt;
  return unit(across);
}

}  // namespace

// The light grazes the ball in the ring square to the sun, which is highest on the normal's side.
std::optional<Vec> BallsFarEnd::nearest(Vec, Vec sunwards) const {
  const auto top = aside(normal_, sunwards);
  if (!top) return std::nullopt;
  return centre_ + radius_ * *top;
}

std::optional<Vec> RimsFarEnd::nearest(Vec, Vec sunwards) const {
  const auto towards = aside(sunwards, normal_);
  if (!towards) return std::nullopt;
  return ring_.centre - ring_.radius * *towards;
}

}  // namespace dialwright::proof
