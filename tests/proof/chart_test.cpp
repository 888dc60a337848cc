// The map of the sky as a surface of the proof.
#include "proof/surfaces/chart.hpp"

#include <gtest/gtest.h>

#include "proof/sky.hpp"

namespace dialwright::proof {
namespace {

constexpr double kRadius = 0.4;
const Sky kSky(radians(45.7438));
const Chart kChart(kSky, kRadius);

TEST(Chart, KnownDirectionsHaveTheirPlaces) {
  struct Case {
    Vec direction;
    Punto spot;
  };
  for (const auto& [direction, spot] :
       {Case{kSky.pole(), {0, 0}}, Case{{-1, 0, 0}, {kRadius, 0}}, Case{{1, 0, 0}, {-kRadius, 0}},
        Case{kSky.towards({0, 0}), {0, kRadius}},
        Case{kSky.towards({0, radians(-30)}), {0, kRadius * std::tan(radians(60))}}}) {
    const auto shadow = kChart.shadow({}, direction);
    ASSERT_TRUE(shadow);
    EXPECT_NEAR(shadow->x, spot.x, 1e-12);
    EXPECT_NEAR(shadow->y, spot.y, 1e-12);
    EXPECT_LT(length(kChart.place(spot)->at + direction), 1e-12);
  }
  EXPECT_FALSE(kChart.shadow({}, -kSky.pole()));
}

// The projection keeps angles: small steps in hour angle and in declination are square to each
// other and as long as on the sphere, but for one factor.
TEST(Chart, KeepsAnglesAndIsUndone) {
  constexpr double kStep = 1e-6;
  for (const double H : {-2.0, 0.3, 1.5}) {
    for (const double day : {-0.4, 0.0, 0.4}) {
      const auto spot = [&](double dH, double dDay) {
        return *kChart.shadow({}, kSky.towards({H + dH, day + dDay}));
      };
      const Punto at = spot(0, 0), later = spot(kStep, 0), higher = spot(0, kStep);
      const Sun sun = kSky.of(-kChart.place(at)->at);
      EXPECT_NEAR(sun.hourAngle, H, 1e-12);
      EXPECT_NEAR(sun.declination, day, 1e-12);
      const Vec across{later.x - at.x, later.y - at.y, 0}, up{higher.x - at.x, higher.y - at.y, 0};
      EXPECT_NEAR(dot(across, up) / (length(across) * length(up)), 0, 1e-5);
      EXPECT_NEAR(length(across) / length(up), std::cos(day), 1e-5);
    }
  }
}

}  // namespace
}  // namespace dialwright::proof
