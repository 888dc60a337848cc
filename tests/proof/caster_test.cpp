// The casters: no other point of theirs stands nearer to the sun, and at the end of a shadow no
// other point's shadow lies farther out.
#include "proof/caster.hpp"

#include <gtest/gtest.h>

#include <array>

#include "proof/casters/far_end.hpp"
#include "proof/sky.hpp"
#include "proof/surface.hpp"

namespace dialwright::proof {
namespace {

const std::array<Vec, 4> kSuns = {unit({0.2, -0.9, 0.5}), unit({-0.7, -0.4, 0.1}),
                                  unit({0.05, -0.3, 0.9}), unit({0.4, -0.6, -0.2})};
const std::array<Vec, 3> kPlaces = {Vec{0, 0, 0}, {0.3, 0.02, -0.4}, {-0.5, 0.1, 0.2}};

// The nearest point that a caster tells against many points of its own.
void expectNearest(const Caster& caster, const std::vector<Vec>& points) {
  for (const Vec place : kPlaces) {
    for (const Vec sun : kSuns) {
      double least = kPi;
      for (const Vec point : points) least = std::min(least, angle(point - place, sun));
      const std::optional<Vec> nearest = caster.nearest(place, sun);
      ASSERT_EQ(nearest.has_value(), least < kPi / 2 - 1e-3);
      if (!nearest) continue;
      EXPECT_LT(angle(*nearest - place, sun), least + 1e-9);
      EXPECT_GT(angle(*nearest - place, sun), least - 2e-3) << "one of its own points";
    }
  }
}

std::vector<Vec> pointsOf(const CurvedEdge::Curve& curve) {
  std::vector<Vec> points;
  for (int i = 0; i <= 20000; ++i) points.push_back(curve(i / 20000.0));
  return points;
}

TEST(StraightEdge, HidesTheSunAtItsNearestPoint) {
  const Vec from{-0.4, -0.5, 0.3}, to{0.6, -0.3, -0.1};
  const StraightEdge edge(from, to);
  std::vector<Vec> points;
  for (int i = -400000; i <= 400000; ++i) points.push_back(from + (i / 4000.0) * (to - from));
  expectNearest(edge, points);
  // A sun right behind one of its points.
  const Vec place{0.1, 0.4, -0.3}, point = from + 0.3 * (to - from);
  EXPECT_LT(length(*edge.nearest(place, unit(point - place)) - point), 1e-12);
  EXPECT_FALSE(edge.nearest(point, kSuns[0])) << "from the edge itself";
  EXPECT_FALSE(edge.nearest(place, unit(place - point))) << "in the sun's back";
}

TEST(CurvedEdge, HidesTheSunAtItsNearestPoint) {
  const auto chain = [](double u) {
    const double x = 2 * u - 1;
    return Vec{x, -0.4, 0.5 * std::cosh(x) - 0.4};
  };
  const auto ring = [](double u) {
    return Vec{0.3 * std::cos(2 * kPi * u), -0.7 + 0.2 * std::sin(2 * kPi * u),
               0.3 * std::sin(2 * kPi * u)};
  };
  expectNearest(CurvedEdge(chain), pointsOf(chain));
  expectNearest(CurvedEdge(ring, true), pointsOf(ring));
  // Right behind a point, at the ends as well.
  for (const double u : {0.0, 0.123456, 0.5, 0.999, 1.0}) {
    const Vec place{0.1, 0.4, -0.3};
    EXPECT_LT(length(*CurvedEdge(chain).nearest(place, unit(chain(u) - place)) - chain(u)), 1e-11);
    EXPECT_LT(length(*CurvedEdge(ring, true).nearest(place, unit(ring(u) - place)) - ring(u)),
              1e-11);
  }
}

TEST(Ball, IsTouchedByTheNearestRay) {
  const Vec centre{0.1, -0.5, 0.2};
  const Ball ball(centre, 0.15);
  for (const Vec place : kPlaces) {
    for (const Vec sun : kSuns) {
      const Vec touched = *ball.nearest(place, sun);
      EXPECT_NEAR(length(touched - centre), 0.15, 1e-12);
      EXPECT_NEAR(dot(touched - centre, touched - place), 0, 1e-12) << "a tangent";
      const double wide = std::asin(0.15 / length(centre - place));
      EXPECT_NEAR(angle(touched - place, sun), std::abs(angle(centre - place, sun) - wide), 1e-9);
    }
  }
  EXPECT_TRUE(ball.nearest({}, unit(centre))) << "the sun behind its middle";
  EXPECT_FALSE(ball.nearest(centre + Vec{0.1, 0, 0}, kSuns[0])) << "from within";
}

// The point of the farthest shadow against the shadows of all points.
void expectFarthest(const Caster& caster, const Plane& plane, const std::vector<Vec>& points) {
  for (const Vec sun : {unit({0.2, -0.9, 0.5}), unit({-0.7, -0.4, 0.1}), unit({0.05, -0.3, 0.9})}) {
    const Vec level = sun - dot(sun, plane.normal()) * plane.normal();
    const auto outwards = [&](Punto shadow) {
      return -dot(shadow.x * plane.right() + shadow.y * plane.up(), unit(level));
    };
    const std::optional<Vec> end = caster.nearest({}, sun);
    ASSERT_TRUE(end);
    double most = -10;
    for (const Vec point : points) {
      if (const auto shadow = plane.shadow(point, sun)) most = std::max(most, outwards(*shadow));
    }
    const double told = outwards(*plane.shadow(*end, sun));
    EXPECT_GT(told, most - 1e-9);
    EXPECT_LT(told, most + 2e-3);
  }
  EXPECT_FALSE(caster.nearest({}, plane.normal())) << "as far on all sides";
}

TEST(FarEnd, IsTheShadowsFarthestPoint) {
  for (const Plane& plane : {Plane::facing(0, kPi / 2), Plane::facing(0.3, 0)}) {
    const Vec centre = 0.2 * plane.normal();
    std::vector<Vec> ball;
    for (double turn = 0; turn < 2 * kPi; turn += 0.01) {
      for (double height = -1; height < 1; height += 0.01) {
        const double out = std::sqrt(1 - height * height);
        ball.push_back(centre + 0.15 * Vec{out * std::cos(turn), out * std::sin(turn), height});
      }
    }
    expectFarthest(BallsFarEnd(centre, 0.15, plane.normal()), plane, ball);
    const RimsFarEnd rim(centre, 0.15, plane.normal());
    const std::vector<Vec> edge = rim.outline({}).at(0);
    expectFarthest(rim, plane, edge);
    for (const Vec point : edge) {
      EXPECT_NEAR(length(point - centre), 0.15, 1e-12);
      EXPECT_NEAR(dot(point - centre, plane.normal()), 0, 1e-12);
    }
  }
}

}  // namespace
}  // namespace dialwright::proof
