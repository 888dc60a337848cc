// Looking up at a level rim.
#include "proof/casters/level_rim.hpp"

#include <cmath>

namespace dialwright::proof {

namespace {

// How far the halves of a rim reach over one another, as a sine: what the middle of a chord between
// two points of their meeting asks for.
constexpr double kMeeting = 0.01;

}  // namespace

std::optional<Vec> LevelRim::nearest(Vec place, Vec sunwards) const {
  const double up = ring_.centre.z - place.z;
  if (!(up >= 0) || !(sunwards.z > 0)) return std::nullopt;
  const Vec through = place + (up / sunwards.z) * sunwards - ring_.centre;
  const double way = std::hypot(through.x, through.y);
  if (!(way > 0)) return std::nullopt;
  const Vec out{through.x / way, through.y / way, 0};
  const double level = std::hypot(sunwards.x, sunwards.y);
  const double towards = dot(out, sunwards);
  if (half_ == Half::FromSun && towards > kMeeting * level) return std::nullopt;
  if (half_ == Half::ToSun && towards < -kMeeting * level) return std::nullopt;
  return ring_.centre + ring_.radius * out;
}

}  // namespace dialwright::proof
