// The projection against rays from the sun, on planes all over the sky.
#include "numerics/projection.hpp"

#include <gtest/gtest.h>

#include "support/sky.hpp"

namespace dialwright {
namespace {

using sky::rad;

constexpr double kQuarter = std::numbers::pi / 2;

TEST(Projection, IsTheShadowOfTheTip) {
  for (const double latitude : {0.0, 23.0, 45.7438, 66.0, 90.0, -35.0}) {
    for (const double declination : {0.0, -14.57, 60.0, 90.0, 135.0, -180.0}) {
      for (const double reclination : {0.0, 20.0, -35.0, 75.0, 90.0}) {
        const sky::Plane wall = sky::Plane::facing(declination, reclination);
        const Piano plane{0.2, rad(latitude), rad(declination), kQuarter - rad(reclination)};
        const Projection project(plane);
        for (double H = -175; H <= 180; H += 17.5) {
          const Projection::Hour hour = project.atHour(rad(H));
          for (const double delta : {-23.445, -7.0, 0.0, 20.0, 80.0}) {
            const sky::Vec sun = sky::sun(rad(latitude), rad(H), rad(delta));
            if (std::abs(sky::dot(sun, wall.normal)) < 0.01) continue;
            const sky::Spot spot = wall.tipShadow(0.2, sun);
            const Punto point = ProiezioneSferica(plane, rad(H), rad(delta));
            const Punto prepared = hour(std::tan(rad(delta)));
            ASSERT_LT(sky::distance({point.x, point.y}, spot), 1e-11)
                << latitude << ' ' << declination << ' ' << reclination << ' ' << H;
            ASSERT_LT(sky::distance({point.x, point.y}, {prepared.x, prepared.y}), 1e-12);
          }
        }
      }
    }
  }
}

TEST(Projection, ARayAlongThePlaneKeepsTheOldPoint) {
  Punto point{3, 4};
  // A plane through the pole's axis and the meridian, and the sun on the meridian.
  assign(point, Projection({0.2, 0, kQuarter, kQuarter})(0, 0, 0));
  EXPECT_EQ(point.x, 3);
  EXPECT_EQ(point.y, 4);
}

}  // namespace
}  // namespace dialwright
