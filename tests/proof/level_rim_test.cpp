// The rim of a level plate as a caster: it hides the sun where the ray passes it.
#include "proof/casters/level_rim.hpp"

#include <gtest/gtest.h>

#include "proof/sky.hpp"

namespace dialwright::proof {
namespace {

const Vec kCentre{0.3, -0.2, 1};
constexpr double kRadius = 0.4;

Vec onRim(double turn) { return kCentre + kRadius * Vec{std::cos(turn), std::sin(turn), 0}; }

TEST(LevelRim, HidesTheSunWhereTheRayPassesIt) {
  using Half = LevelRim::Half;
  const Vec sunwards = unit({0.3, -0.6, 0.5});
  for (double turn = 0.1; turn < 6.2; turn += 0.4) {
    const Vec edge = onRim(turn);
    const Vec place = edge - 1.7 * sunwards;
    const bool towards = dot(edge - kCentre, sunwards) > 0;
    for (const Half half : {Half::Both, Half::ToSun, Half::FromSun}) {
      const auto nearest = LevelRim(kCentre, kRadius, half).nearest(place, sunwards);
      const bool counts = half == Half::Both || (half == Half::ToSun) == towards;
      ASSERT_EQ(nearest.has_value(), counts) << turn;
      EXPECT_LT(length(nearest.value_or(edge) - edge), 1e-12);
    }
  }
}

// Beside the rim it tells the point that is nearest to the ray's way through its level.
TEST(LevelRim, TellsTheNearestPointBesideIt) {
  const LevelRim rim(kCentre, kRadius);
  const Vec sunwards = unit({0.3, -0.6, 0.5});
  for (const double reach : {0.5, 0.9, 1.1, 2.0}) {
    const Vec through = kCentre + reach * (onRim(2) - kCentre);
    EXPECT_LT(length(*rim.nearest(through - 0.8 * sunwards, sunwards) - onRim(2)), 1e-12);
  }
  const Vec below = kCentre - Vec{0, 0, 0.5};
  EXPECT_FALSE(rim.nearest(below, {0, 0, 1})) << "right below the centre";
  EXPECT_FALSE(rim.nearest(below + Vec{0.1, 0, 1}, sunwards)) << "from above";
  EXPECT_FALSE(rim.nearest(below, unit({0.3, -0.6, -0.1}))) << "of a sun that is down";
}

}  // namespace
}  // namespace dialwright::proof
