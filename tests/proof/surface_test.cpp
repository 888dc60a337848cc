// The proof's plane: where it looks, and that its development and its shadows undo one another.
#include "proof/surface.hpp"

#include <gtest/gtest.h>

#include "proof/sky.hpp"

namespace dialwright::proof {
namespace {

void expectSame(Vec a, Vec b) { EXPECT_LT(length(a - b), 1e-12); }

TEST(Plane, LooksWhereItsDeclinationSays) {
  struct Case {
    double declination, reclination;
    Vec normal, right, up;
  };
  const double half = std::sqrt(0.5);
  for (const Case& c : {Case{0, 0, {0, -1, 0}, {1, 0, 0}, {0, 0, 1}},
                        {90, 0, {-1, 0, 0}, {0, -1, 0}, {0, 0, 1}},
                        {180, 0, {0, 1, 0}, {-1, 0, 0}, {0, 0, 1}},
                        {0, 90, {0, 0, 1}, {1, 0, 0}, {0, 1, 0}},
                        {0, -90, {0, 0, -1}, {1, 0, 0}, {0, -1, 0}},
                        {0, 45, {0, -half, half}, {1, 0, 0}, {0, half, half}}}) {
    const Plane plane = Plane::facing(radians(c.declination), radians(c.reclination));
    expectSame(plane.normal(), c.normal);
    expectSame(plane.right(), c.right);
    expectSame(plane.up(), c.up);
  }
}

TEST(Plane, AShadowLiesOnTheRay) {
  const Vec sun = unit({0.3, -0.8, 0.4});
  for (const double declination : {-60.0, 0.0, 50.0}) {
    for (const double reclination : {0.0, 35.0, 90.0}) {
      const Plane facing = Plane::facing(radians(declination), radians(reclination));
      const Plane plane({1, -2, 0.5}, facing.normal(), facing.right());
      for (const Punto spot : {Punto{0, 0}, {0.4, -0.7}, {-2, 1}}) {
        const std::optional<Place> place = plane.place(spot);
        ASSERT_TRUE(place);
        expectSame(place->normal, plane.normal());
        EXPECT_NEAR(dot(place->at - Vec{1, -2, 0.5}, plane.right()), spot.x, 1e-12);
        EXPECT_NEAR(dot(place->at - Vec{1, -2, 0.5}, plane.up()), spot.y, 1e-12);
        for (const double far : {0.0, 0.2, 7.0}) {
          const std::optional<Punto> shadow = plane.shadow(place->at + far * sun, sun);
          ASSERT_TRUE(shadow);
          EXPECT_NEAR(shadow->x, spot.x, 1e-11);
          EXPECT_NEAR(shadow->y, spot.y, 1e-11);
        }
      }
    }
  }
}

TEST(Plane, HasNoShadowFromBehindOrOfWhatIsBehind) {
  const Plane wall = Plane::facing(0, 0);
  const Vec before{0, -0.2, 0}, behind{0, 0.2, 0}, south = unit({0, -1, 1});
  EXPECT_TRUE(wall.shadow(before, south));
  EXPECT_FALSE(wall.shadow(behind, south));
  EXPECT_FALSE(wall.shadow(before, unit({0, 1, 1})));
  EXPECT_FALSE(wall.shadow(before, {1, 0, 0})) << "along the wall";
}

}  // namespace
}  // namespace dialwright::proof
