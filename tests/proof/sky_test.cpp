// The proof's sky against what everybody knows of the sun's way.
#include "proof/sky.hpp"

#include <gtest/gtest.h>

namespace dialwright::proof {
namespace {

void expectSame(Vec a, Vec b, double within = 1e-12) { EXPECT_LT(length(a - b), within); }

TEST(Sky, NoonStandsOverTheMeridian) {
  for (const double latitude : {-60.0, -23.4, 0.0, 12.0, 45.7, 75.0}) {
    for (const double day : {-23.4, 0.0, 23.4}) {
      const Vec sun = Sky(radians(latitude)).towards({0, radians(day)});
      const double fromZenith = radians(latitude - day);  // to the South
      expectSame(sun, {0, -std::sin(fromZenith), std::cos(fromZenith)});
    }
  }
}

// The sun turns about the pole: always at the same angle from it, and by as much as the hour does.
TEST(Sky, TheSunTurnsAboutThePole) {
  for (const double latitude : {-50.0, 0.0, 45.0, 90.0}) {
    const Sky sky(radians(latitude));
    EXPECT_NEAR(degrees(std::asin(sky.pole().z)), latitude, 1e-12);
    EXPECT_EQ(sky.pole().x, 0);
    for (const double day : {-23.0, 5.0, 60.0}) {
      const Vec noon = sky.towards({0, radians(day)});
      const Vec evening = sky.towards({1.3, radians(day)});
      EXPECT_NEAR(length(evening), 1, 1e-15);
      EXPECT_NEAR(dot(evening, sky.pole()), std::sin(radians(day)), 1e-15);
      const Vec a = cross(sky.pole(), noon), b = cross(sky.pole(), evening);
      EXPECT_NEAR(angle(a, b), 1.3, 1e-12);
      EXPECT_GT(dot(cross(evening, noon), sky.pole()), 0) << "westwards";
    }
  }
}

TEST(Sky, ADirectionTellsItsSun) {
  for (const double latitude : {-66.0, 0.0, 45.0}) {
    const Sky sky(radians(latitude));
    for (double H = -3.1; H < 3.2; H += 0.31) {
      for (const double day : {-0.41, 0.0, 0.3}) {
        const Sun told = sky.of(3 * sky.towards({H, day}));
        EXPECT_NEAR(told.hourAngle, H, 1e-12);
        EXPECT_NEAR(told.declination, day, 1e-12);
      }
    }
  }
}

}  // namespace
}  // namespace dialwright::proof
