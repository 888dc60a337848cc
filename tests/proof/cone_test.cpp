// The cone of the proof: place and shadow undo each other, inside the cone and on its side of the
// seam.
#include "proof/surfaces/cone.hpp"

#include <gtest/gtest.h>

#include <numbers>

namespace dialwright::proof {
namespace {

using std::numbers::pi;

constexpr double kSemiAngle = 0.4;
const Vec kAxis = unit({0.2, -0.3, -0.9}), kStart = unit(cross(kAxis, {0, 0, 1})),
          kQuarter = cross(kAxis, kStart), kVertex{0.1, 0.2, 0.7};
// Unrolled so that generator 0 leads down and a quarter turn to the right.
const Cone kCone({kVertex, kAxis, kStart, kQuarter, kSemiAngle}, {{0.5, 1}, {0, -1}, {1, 0}});

Punto spotAt(double rho, double round) {
  const double turn = round * std::sin(kSemiAngle);
  return {0.5 + rho * std::sin(turn), 1 - rho * std::cos(turn)};
}

TEST(Cone, ASpotIsRolledToItsGenerator) {
  for (const double round : {-3.1, -pi / 2, 0.0, 1.0, 3.1}) {
    const auto place = kCone.place(spotAt(0.8, round));
    ASSERT_TRUE(place);
    const Vec way = place->at - kVertex;
    EXPECT_NEAR(length(way), 0.8, 1e-12);
    EXPECT_NEAR(angle(way, kAxis), kSemiAngle, 1e-9);
    EXPECT_NEAR(std::atan2(dot(way, kQuarter), dot(way, kStart)), round, 1e-9);
    // The normal is square to the generator and to the way round, and looks to the axis.
    EXPECT_NEAR(length(place->normal), 1, 1e-12);
    EXPECT_NEAR(dot(place->normal, way), 0, 1e-12);
    EXPECT_NEAR(dot(place->normal, cross(kAxis, way)), 0, 1e-12);
    EXPECT_GT(dot(place->normal, kVertex + 0.8 * kAxis - place->at), 0);
  }
  EXPECT_FALSE(kCone.place(spotAt(0.8, 3.15)));
  EXPECT_FALSE(kCone.place({0.5, 1.5}));
}

TEST(Cone, TheLightThroughAPointFallsOnItsShadow) {
  const Vec inside = kVertex + 0.5 * kAxis + 0.05 * kStart;
  for (const double round : {-3.0, -1.2, 0.0, 0.9, 2.5}) {
    for (const double rho : {0.3, 0.6, 1.5}) {
      const Punto spot = spotAt(rho, round);
      const Vec sunwards = unit(inside - kCone.place(spot)->at);
      const auto shadow = kCone.shadow(inside, sunwards);
      ASSERT_TRUE(shadow);
      EXPECT_NEAR(shadow->x, spot.x, 1e-9);
      EXPECT_NEAR(shadow->y, spot.y, 1e-9);
      // A point on the cone itself, with the same sun, has the shadow across.
      const auto across = kCone.shadow(kCone.place(spot)->at, sunwards);
      ASSERT_TRUE(across);
      EXPECT_NEAR(across->x, spot.x, 1e-6);
    }
  }
  EXPECT_FALSE(kCone.shadow(inside, -kAxis)) << "away from the vertex, out of the cone";
  EXPECT_TRUE(kCone.shadow(inside, kAxis)) << "straight on the vertex";
  const Vec outside = kVertex - 0.5 * kAxis;
  EXPECT_FALSE(kCone.shadow(outside, kAxis)) << "behind the vertex";
  EXPECT_FALSE(kCone.shadow(kVertex + 3.0 * kStart, unit(kStart + 0.1 * kAxis)))
      << "on the outside only";
}

// A shadow on the seam lies on both edges of the sector.
TEST(Cone, TheSeamIsTheSameOnBothEdges) {
  const Punto left = spotAt(0.7, -pi), right = spotAt(0.7, pi), near = spotAt(0.6, 3);
  EXPECT_NEAR(kCone.imageNear(near, left).x, right.x, 1e-9);
  EXPECT_NEAR(kCone.imageNear(near, right).x, right.x, 1e-12);
  EXPECT_NEAR(kCone.imageNear(spotAt(0.6, -3), right).x, left.x, 1e-9);
  EXPECT_EQ(kCone.imageNear(left, spotAt(0.7, 3)).x, spotAt(0.7, 3).x) << "not on the seam";
}

}  // namespace
}  // namespace dialwright::proof
