// The proof's bent walls and the hat: places and shadows undo one another, arcs are as long as
// their chords, and normals stand square to the wall.
#include "proof/surfaces/curved_wall.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <numbers>

#include "proof/casters/brim.hpp"
#include "proof/sky.hpp"

namespace dialwright::proof {
namespace {

struct Walls {
  std::unique_ptr<CurvedWall> wall;
  Vec normal;
  double reach;  // of the drawing, either side of the origin
};

std::vector<Walls> walls() {
  std::vector<Walls> all;
  for (const double degreesOf : {-60.0, 0.0, 35.0}) {
    const double D = radians(degreesOf);
    const Vec normal{-std::sin(D), -std::cos(D), 0};
    for (const auto side : {RoundWall::Side::Outside, RoundWall::Side::Inside})
      all.push_back({std::make_unique<RoundWall>(0.4, side, D), normal, 1.2});
    for (const double side : {1.0, -1.0})
      all.push_back({std::make_unique<ParabolicWall>(0.4, side, D), normal, 3});
  }
  return all;
}

TEST(CurvedWall, IsUnrolledByItsLengthAndSquareToItsNormal) {
  for (const Walls& each : walls()) {
    const CurvedWall& wall = *each.wall;
    EXPECT_LT(length(wall.place({0, 0})->at), 1e-12);
    EXPECT_LT(length(wall.place({0, 0})->normal - each.normal), 1e-12);
    // To the right of who faces the wall.
    EXPECT_GT(dot(wall.place({0.1, 0})->at, cross({0, 0, 1}, each.normal)), 0.05);
    constexpr double kStep = 1e-4;
    for (double x = -each.reach; x < each.reach; x += 0.07) {
      const Place a = *wall.place({x, -0.3}), b = *wall.place({x + kStep, -0.3});
      EXPECT_EQ(a.at.z, -0.3);
      EXPECT_NEAR(length(b.at - a.at), kStep, 1e-9) << x;
      EXPECT_NEAR(dot(unit(b.at - a.at), unit(a.normal + b.normal)), 0, 1e-7) << x;
      EXPECT_NEAR(length(a.normal), 1, 1e-12);
    }
  }
}

TEST(CurvedWall, AShadowLiesOnTheRayWhereItMeetsTheDialsSideFirst) {
  for (const Walls& each : walls()) {
    for (double x = -each.reach; x < each.reach; x += 0.11) {
      const Punto spot{x, -0.2};
      const Place place = *each.wall->place(spot);
      for (const double turn : {-1.2, -0.3, 0.0, 0.9}) {
        const Vec aside = cross({0, 0, 1}, place.normal);
        const Vec sun =
            unit(std::cos(turn) * place.normal + std::sin(turn) * aside + Vec{0, 0, 0.7});
        for (const double far : {0.0, 0.01}) {
          const auto shadow = each.wall->shadow(place.at + far * sun, sun);
          ASSERT_TRUE(shadow) << x << ' ' << turn;
          EXPECT_NEAR(shadow->x, spot.x, 1e-7);
          EXPECT_NEAR(shadow->y, spot.y, 1e-7);
        }
        const auto before = each.wall->shadow(place.at - 0.01 * sun, sun);
        EXPECT_TRUE(!before || std::hypot(before->x - spot.x, before->y - spot.y) > 1e-4);
      }
    }
    EXPECT_FALSE(each.wall->shadow(each.normal, {0, 0, 1})) << "a sun in the zenith";
  }
}

TEST(RoundWall, ClosesAfterHalfATurnEitherWay) {
  const RoundWall wall(0.4, RoundWall::Side::Outside, 0);
  const double half = 0.4 * std::numbers::pi;
  EXPECT_LT(length(wall.place({half, 0})->at - wall.place({-half, 0})->at), 1e-12);
  EXPECT_FALSE(wall.place({half + 0.01, 0}));
  EXPECT_NEAR(wall.imageNear({half, 0}, {-half + 0.01, 0.5}).x, half + 0.01, 1e-12);
  EXPECT_EQ(wall.imageNear({0.1, 0}, {0.2, 0.5}).y, 0.5);
}

TEST(Brim, LetsTheSunInOverItsOwnGenerator) {
  const Brim brim({0, 0.14, 0}, 0.4);
  for (const double azimuth : {-2.0, 0.0, 1.0, 3.1}) {
    const Vec level{-std::sin(azimuth), -std::cos(azimuth), 0};
    const Vec edge = *brim.nearest({}, unit(level + Vec{0, 0, 1}));
    EXPECT_NEAR(length(edge - Vec{0, 0.14, 0}), 0.4, 1e-12);
    EXPECT_NEAR(dot(unit(edge - Vec{0, 0.14, 0}), level), 1, 1e-12);
  }
  EXPECT_FALSE(brim.nearest({}, {0, 0, 1}));
}

}  // namespace
}  // namespace dialwright::proof
