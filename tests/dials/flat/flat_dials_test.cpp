// The flat dials 1, 2, 5 and 7 beside their shadows: the light graph, styles of their own, and what
// they leave in the record and on the panel.
#include <gtest/gtest.h>

#include "dials/flat/flat_wall.hpp"
#include "support/mean_sun.hpp"

namespace dialwright {
namespace {

// --- Program 1

// From the tip laid into the wall the hours are seen under their own angles, on the equinoctial.
TEST(VerticaleLuce, RaysOfTheLightGraphSpreadByTheHour) {
  for (const auto& [site, first, rays] : {std::tuple{FlatSite{}, -75.0, 21u},
                                          {{5, 20}, -75.0, 21u},
                                          {{45, 130}, 15.0, 13u},
                                          {{35, 85}, 15.0, 13u}}) {
    for (const double zone : {0.0, 7.3562}) {
      FlatWall wall(1, site, "chkOreAstronomiche TxtInizio=7 TxtFine=17");
      wall.panel.setState(Field::ck_Etna, zone > 0);
      wall.run();
      const auto& list = wall.sheet.list();
      ASSERT_GE(list.lines.size(), 2 * rays) << "the lines come after the rays";
      const auto bearing = [&](std::size_t i) {
        const LineRecord& ray = list.lines[i];
        return std::atan2(ray.y1 - ray.y2, ray.x1 - ray.x2);
      };
      for (std::size_t i = 0; i < rays; ++i) {
        const LineRecord& ray = list.lines[i];
        const double way = 7.5 * static_cast<double>(i);
        EXPECT_DOUBLE_EQ(list.lines[rays + i].y2, 0.8);
        EXPECT_EQ(ray.x2, list.lines[0].x2) << "to N2";
        if (first + way == 90) continue;
        const double H = wall.hourAngle(ray.x1, ray.y1);
        EXPECT_NEAR(std::remainder(H - (first + way - zone), 180), 0, kAngleSlack);
        EXPECT_NEAR(wall.declination(ray.x1, ray.y1), 0, kAngleSlack);
        EXPECT_NEAR(std::remainder(sky::deg(bearing(i) - bearing(0)) - way, 180), 0, kAngleSlack);
      }
    }
  }
}

TEST(VerticaleLuce, LeavesHoursOfSideWallsAndAFinerConstant) {
  FlatWall wall(1, {35, 85}, "ck_Lemniscate chkOreAstronomiche");
  wall.run();
  EXPECT_EQ(wall.panel.text(Field::TxtInizio) + wall.panel.text(Field::TxtFine), "1319");
  EXPECT_EQ(wall.params.PiGreco, 3.1415926536);
}

// --- Program 2

TEST(Inclinati, FiguresAreThoseOfTheCentre) {
  for (const FlatSite& site : {FlatSite{45.7438, -14.57, 30}, {45, 37, -25}, {35, -160, -40}}) {
    for (const char* variable : {"optX", "optY"}) {
      FlatWall wall(2, site, variable);
      wall.run();
      const sky::Spot centre = wall.centre();
      EXPECT_NEAR(std::abs(std::tan(wall.params.Sustilare)), std::abs(centre.x / centre.y), 1e-6);
      EXPECT_NEAR(wall.params.IpotenusaStilo * std::sin(wall.params.ElevStilo), wall.kStyle, 1e-8);
      // By its sine: an arcsine knows no hour before six.
      const double H = sky::rad(wall.hourAngle(-centre.x / 2, centre.y / 2));
      EXPECT_NEAR(std::abs(std::sin(wall.params.OrarioSustilare)), std::abs(std::sin(H)), 1e-6);
    }
  }
}

TEST(Inclinati, AStyleOutOfReachIsDrawnByItsSlopeUntilATriangleWasDrawn) {
  FlatWall wall(2, {45, 1, 44.8}, "optY ck_Triangolo");
  wall.run();
  EXPECT_FALSE(wall.pointsIn(palette(5)).empty());
  EXPECT_TRUE(wall.linesIn(palette(9)).empty());
  wall.set(Field::txtReclinZ, "90").run().sheet.Clear();
  wall.set(Field::txtReclinZ, "45.2").run();
  EXPECT_TRUE(wall.pointsIn(palette(5)).empty());
}

// --- Program 5

TEST(Frinter, LinesReachOverTheSheet) {
  FlatWall wall(5, {45, 37}, "chkOreAstronomiche"), pole(5, {90, 10});
  EXPECT_FALSE(pole.run().refused);
  EXPECT_EQ(pole.params.LatGradi, 89.9999);
  wall.run();
  for (const LineRecord& hour : wall.linesIn(palette(7)))
    EXPECT_EQ(std::pair(hour.y1, hour.y2), std::pair(-1.0, 1.0));
}

// --- Program 7

// The southern recipe draws the year upside down, one turn and no more.
TEST(Universale, SouthernYearIsUpsideDown) {
  FlatWall south(7, {45.7438, 37, 25}, "ck_Lemniscate y1txt=0.6 y2txt=-0.6 ckFunction");
  const auto turned = south.run().linesOf("analemma");
  ASSERT_TRUE(turned.size() > 300 && turned.size() <= 366) << turned.size();
  for (const LineRecord& line : turned) {
    const double day = south.declination(line.x1, line.y1);
    const double H = south.hourAngle(line.x1, line.y1) + 7.3562;
    ASSERT_LT(sky::secondsFromEquationOfTime(sky::rad(H), sky::rad(-day)), 25);
  }
}

TEST(Universale, ALevelPlaneFacesSouth) {
  FlatWall plate(7, {45, 30, 90}, "ck_Equinoziale");
  plate.run();
  EXPECT_EQ(plate.panel.text(Field::txtDecl), "0");
  EXPECT_EQ(plate.sheet.ForeColor, 16777215);
}

}  // namespace
}  // namespace dialwright
