// Program 5 beside its shadows: whole lines, the analemma's inks, the equator and the poles.
#include "dials/flat/frinter.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "support/flat_wall.hpp"

namespace dialwright {
namespace {

const std::vector<FlatSite> kSites = {{45.7438, -14.57}, {45, 37},  {45, -75}, {5, 20},
                                      {62, 0.5},         {20, 130}, {50, -165}};

FlatWall dialOf(const FlatSite& site) { return FlatWall(Item::M_Frinter, DisegnaFrinter, site); }

TEST(Frinter, EachHourRunsFromOneMetreAboveToOneBelow) {
  for (const bool zone : {false, true}) {
    FlatWall wall = dialOf(kSites[1]);
    wall.check(Field::ck_Etna, zone).check(Field::chkOreAstronomiche).run();
    const std::vector<LineRecord>& lines = wall.sheet.list().lines;
    ASSERT_EQ(lines.size(), 25u);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const double H = -90 + 7.5 * static_cast<double>(i);
      EXPECT_EQ(lines[i].colour, palette(H == 0 ? 12 : H == 90 ? 9 : 7));
      EXPECT_EQ(std::pair(lines[i].y1, lines[i].y2), std::pair(-1.0, 1.0));
      for (const sky::Spot& s : spotsOf(lines[i]))
        EXPECT_LT(wall.offHour(H - (zone ? 7.3562 : 0), s.x, s.y), kAngleSlack) << H;
    }
  }
}

TEST(Frinter, TheSubstylePassesTheFootAndTheHorizonCrossesTheSheet) {
  FlatWall wall = dialOf(kSites[1]);
  wall.check(Field::ck_Sustilare).check(Field::ck_Orizzonte).run();
  EXPECT_NEAR(wall.linesIn(palette(9)).at(0).x1, -wall.linesIn(palette(9)).at(0).x2, 1e-9);
  const LineRecord horizon = wall.linesIn(palette(2)).at(0);
  EXPECT_EQ(std::pair(horizon.x1, horizon.x2),
            std::pair(wall.sheet.ShiftX(), -wall.sheet.ShiftX()));
}

TEST(Frinter, TheAnalemmaIsSetTwice) {
  FlatWall wall = dialOf(kSites[0]);
  wall.check(Field::ck_Lemniscate).run();
  const std::vector<PointRecord>& points = wall.sheet.list().points;
  ASSERT_EQ(points.size(), 2 * 365u) << "each day twice, less the first";
  for (std::size_t i = 0; i < points.size(); i += 2) {
    const double d = wall.declination(points[i].x, points[i].y);
    ASSERT_EQ(points[i].colour, palette(d < 0 ? 12 : 3));
    ASSERT_EQ(points[i + 1].colour, palette(6));
    ASSERT_EQ(std::pair(points[i + 1].x, points[i + 1].y), std::pair(points[i].x, points[i].y));
  }
}

TEST(Frinter, OnTheEquator) {
  FlatWall wall = dialOf({0, 30});
  wall.check(Field::chkOreAstronomiche)
      .check(Field::Ck_DayLightCurves)
      .check(Field::ck_Italiche)
      .run();
  for (const PointRecord& p : wall.pointsIn(palette(13))) {
    ASSERT_NEAR(std::abs(wall.declination(p.x, p.y)), 20.1552, kAngleSlack);
  }
  EXPECT_GT(wall.pointsIn(palette(13)).size(), 10000u);
  EXPECT_TRUE(wall.linesIn(palette(14)).empty()) << "no hours from the horizon";
  const LineRecord hour = wall.sheet.list().lines[8];
  for (const sky::Spot& s : spotsOf(hour)) EXPECT_LT(wall.offHour(-30, s.x, s.y), kAngleSlack);

  // A wall that faces a pole has no curves; one that holds the axis has level hours between the
  // solstices.
  wall.set(Field::txtDecl, "0").sheet.Clear();
  wall.run();
  EXPECT_TRUE(wall.pointsIn(palette(13)).empty());
  FlatWall east = dialOf({0, -90});
  east.check(Field::chkOreAstronomiche).run();
  const std::vector<LineRecord> level = east.linesIn(palette(14));
  ASSERT_EQ(level.size(), 21u);
  for (std::size_t i = 0; i < level.size(); ++i) {
    const double H = -75 + 7.5 * static_cast<double>(i);
    EXPECT_NEAR(std::abs(east.declination(level[i].x1, level[i].y1)), 23.445, kAngleSlack);
    EXPECT_LT(apart(east.hourAngle(level[i].x1, level[i].y1), -90 + std::abs(H)), kAngleSlack);
  }
}

TEST(Frinter, RefusalsAndThePole) {
  FlatWall wall = dialOf({-1, 10});
  wall.panel.setState(Field::ckFrame, true);
  wall.run();
  wall.set(Field::txtLAT, " ").run();
  EXPECT_EQ(wall.messages, (std::vector<std::string>{
                               "Sorry, unable to work in the Southern hemisphere ",
                               "Immettere Longitudine,latitudine,Declinazione e Ortostilo !!"}));
  EXPECT_EQ(wall.entities(), 0u);
  wall.set(Field::txtLAT, "90").run();
  EXPECT_EQ(wall.params.LatGradi, 89.9999);
  EXPECT_EQ(wall.sheet.caption(), "Vertical dial by 2D analytic geometry");
}

}  // namespace
}  // namespace dialwright
