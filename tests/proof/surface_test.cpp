// The proof's surfaces: where they look, that their developments keep lengths and stand square to
// the normals, and that places and shadows undo one another.
#include "proof/surface.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <numbers>

#include "proof/sky.hpp"
#include "proof/surfaces/cone.hpp"
#include "proof/surfaces/curved_wall.hpp"

namespace dialwright::proof {
namespace {

using std::numbers::pi;

void expectSame(Vec a, Vec b) { EXPECT_LT(length(a - b), 1e-12); }

constexpr double kSemiAngle = 0.4;
const Vec kAxis = unit({0.2, -0.3, -0.9}), kStart = unit(cross(kAxis, {0, 0, 1})),
          kVertex{0.1, 0.2, 0.7};
// Unrolled so that generator 0 leads down and a quarter turn to the right.
const Cone kCone({kVertex, kAxis, kStart, cross(kAxis, kStart), kSemiAngle},
                 {{0.5, 1}, {0, -1}, {1, 0}});

Punto spotAt(double rho, double round) {
  const double turn = round * std::sin(kSemiAngle);
  return {0.5 + rho * std::sin(turn), 1 - rho * std::cos(turn)};
}

std::vector<std::unique_ptr<Surface>> wallsFacing(double declination) {
  std::vector<std::unique_ptr<Surface>> walls;
  walls.push_back(std::make_unique<Plane>(Plane::facing(declination, 0)));
  for (const auto side : {RoundWall::Side::Outside, RoundWall::Side::Inside})
    walls.push_back(std::make_unique<RoundWall>(0.4, side, declination));
  for (const double side : {1.0, -1.0})
    walls.push_back(std::make_unique<ParabolicWall>(0.4, side, declination));
  return walls;
}

// At a spot the development turns no length and no side, and the light that passes before the
// surface there falls on it; what is behind it, and light from behind, don't meet it.
void expectSound(const Surface& surface, Punto spot) {
  SCOPED_TRACE(testing::Message() << spot.x << ", " << spot.y);
  constexpr double kStep = 1e-4;
  const auto [at, normal] = *surface.place(spot);
  const Vec right = (1 / kStep) * (surface.place({spot.x + kStep, spot.y})->at - at);
  const Vec up = (1 / kStep) * (surface.place({spot.x, spot.y + kStep})->at - at);
  EXPECT_NEAR(length(right), 1, 1e-6);
  EXPECT_NEAR(length(up), 1, 1e-6);
  EXPECT_LT(length(cross(right, up) - normal), 1e-3);
  EXPECT_NEAR(length(normal), 1, 1e-12);
  const auto falls = [&](Vec point, Vec sun) {
    const std::optional<Punto> shadow = surface.shadow(point, sun);
    return shadow && std::hypot(shadow->x - spot.x, shadow->y - spot.y) < 1e-6;
  };
  for (const double turn : {-1.2, -0.3, 0.0, 0.9}) {
    const Vec sun = unit(std::cos(turn) * normal + std::sin(turn) * right + 0.7 * up);
    EXPECT_TRUE(falls(at, sun)) << turn;
    EXPECT_TRUE(falls(at + 0.01 * sun, sun)) << turn;
    EXPECT_FALSE(falls(at - 0.01 * sun, sun)) << turn;
    EXPECT_FALSE(falls(at - 0.01 * sun, -sun)) << turn;
  }
}

TEST(Surface, IsUnrolledByItsLengthAndShaded) {
  for (double x = -1.2; x < 1.2; x += 0.11) {
    for (const double declination : {-60.0, 0.0, 35.0}) {
      for (const auto& wall : wallsFacing(radians(declination))) expectSound(*wall, {x, -0.3});
    }
    expectSound(kCone, {x, -0.3});
  }
}

TEST(Surface, LooksToItsDeclinationInTheOrigin) {
  for (const double declination : {-60.0, 0.0, 35.0}) {
    const double D = radians(declination);
    for (const auto& wall : wallsFacing(D)) {
      expectSame(wall->place({0, 0})->normal, {-std::sin(D), -std::cos(D), 0});
      expectSame(wall->place({0, 0.1})->at, {0, 0, 0.1});
      EXPECT_FALSE(wall->shadow(wall->place({0, 0})->normal, {0, 0, 1})) << "along the wall";
    }
  }
}

TEST(Plane, LooksWhereItsDeclinationAndReclinationSay) {
  struct Case {
    double declination, reclination;
    Vec normal, right, up;
  };
  const double half = std::sqrt(0.5);
  for (const Case& c : {Case{90, 0, {-1, 0, 0}, {0, -1, 0}, {0, 0, 1}},
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

TEST(RoundWall, ClosesAfterHalfATurnEitherWay) {
  const RoundWall wall(0.4, RoundWall::Side::Outside, 0);
  const double half = 0.4 * pi;
  expectSame(wall.place({half, 0})->at, wall.place({-half, 0})->at);
  EXPECT_FALSE(wall.place({half + 0.01, 0}));
  EXPECT_NEAR(wall.imageNear({half, 0}, {-half + 0.01, 0.5}).x, half + 0.01, 1e-12);
}

TEST(Cone, IsRolledAboutItsVertexAndMeetsItselfInTheSeam) {
  const Vec down = std::cos(kSemiAngle) * kAxis + std::sin(kSemiAngle) * kStart;
  expectSame(kCone.place(spotAt(0.8, 0))->at, kVertex + 0.8 * down);
  EXPECT_FALSE(kCone.place(spotAt(0.8, 3.15)));
  const Vec inside = kVertex + 0.5 * kAxis;
  EXPECT_TRUE(kCone.shadow(inside + 0.05 * kStart, kAxis)) << "straight on the vertex";
  EXPECT_FALSE(kCone.shadow(inside, -kAxis)) << "away from the vertex, out of the cone";
  EXPECT_FALSE(kCone.shadow(kVertex - 0.5 * kAxis, kAxis)) << "behind the vertex";
  EXPECT_FALSE(kCone.shadow(kVertex + 0.3 * kStart, -kAxis)) << "on the outside only";

  const Punto left = spotAt(0.7, -pi), right = spotAt(0.7, pi), off = spotAt(0.7, 3);
  EXPECT_NEAR(kCone.imageNear(spotAt(0.6, 3), left).x, right.x, 1e-9);
  EXPECT_NEAR(kCone.imageNear(spotAt(0.6, -3), right).x, left.x, 1e-9);
  EXPECT_EQ(kCone.imageNear(left, off).x, off.x) << "not on the seam";
}

}  // namespace
}  // namespace dialwright::proof
