// Program 5 against a wall in the sun.
#include "dials/flat/frinter.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "support/flat_wall.hpp"

namespace dialwright {
namespace {

const std::vector<FlatSite> kSites = {{45.7438, -14.57}, {45, 37},  {45, -75}, {5, 20},
                                      {62, 0.5},         {20, 130}, {50, -165}};

FlatWall dialOf(const FlatSite& site) { return FlatWall(Item::M_Frinter, DisegnaFrinter, site); }

template <class Test>
void onEveryWall(Field box, Test test) {
  for (const FlatSite& site : kSites) {
    SCOPED_TRACE(textOf(site.latitude) + ' ' + textOf(site.declination));
    FlatWall wall = dialOf(site);
    wall.check(box).run();
    test(wall);
  }
}

// Spots of a line that lie on it wherever the sheet is.
std::vector<sky::Spot> spotsOf(const LineRecord& l) {
  std::vector<sky::Spot> spots;
  for (const double part : {0.1, 0.45, 0.8})
    spots.push_back({l.x1 + part * (l.x2 - l.x1), l.y1 + part * (l.y2 - l.y1)});
  return spots;
}

TEST(Frinter, HourLinesLieInTheirPlanes) {
  for (const bool zone : {false, true}) {
    for (const FlatSite& site : kSites) {
      FlatWall wall = dialOf(site);
      wall.panel.setState(Field::ck_Etna, zone);
      wall.check(Field::chkOreAstronomiche).run();
      const std::vector<LineRecord>& lines = wall.sheet.list().lines;
      ASSERT_EQ(lines.size(), 25u);
      for (std::size_t i = 0; i < lines.size(); ++i) {
        const double H = -90 + 7.5 * static_cast<double>(i);
        EXPECT_EQ(lines[i].colour, palette(H == 0 ? 12 : H == 90 ? 9 : 7));
        EXPECT_EQ(lines[i].y1, -1);
        EXPECT_EQ(lines[i].y2, 1);
        if (std::abs(lines[i].x1) > 50) continue;  // all but level
        for (const sky::Spot& s : spotsOf(lines[i])) {
          EXPECT_LT(wall.offHour(H - (zone ? 7.3562 : 0), s.x, s.y), kAngleSlack) << H;
        }
      }
    }
  }
}

TEST(Frinter, CurvesAreTheSunsDays) {
  onEveryWall(Field::Ck_DayLightCurves, [](FlatWall& wall) {
    for (const auto& [colour, declination] :
         {std::pair{12, 23.445}, {13, 20.1552}, {11, 11.4746}}) {
      const std::vector<PointRecord> points = wall.pointsIn(palette(colour));
      EXPECT_GT(points.size(), 5000u);
      for (std::size_t i = 0; i < points.size(); i += 7) {
        ASSERT_NEAR(std::abs(wall.declination(points[i].x, points[i].y)), declination, kAngleSlack);
      }
    }
  });
}

TEST(Frinter, EquinoctialSubstyleAndHorizon) {
  onEveryWall(Field::ck_Equinoziale, [](FlatWall& wall) {
    ASSERT_EQ(wall.linesIn(palette(9)).size(), 1u);
    for (const sky::Spot& s : spotsOf(wall.linesIn(palette(9))[0]))
      EXPECT_NEAR(wall.declination(s.x, s.y), 0, kAngleSlack);
  });
  onEveryWall(Field::ck_Sustilare, [](FlatWall& wall) {
    const LineRecord line = wall.linesIn(palette(9)).at(0);
    const sky::Spot centre = wall.centre();
    EXPECT_NEAR(line.x1, -line.x2, 1e-9) << "through the foot";
    EXPECT_NEAR((line.x1 * centre.y + line.y1 * centre.x) / std::hypot(centre.x, centre.y), 0,
                1e-8);
  });
  onEveryWall(Field::ck_Orizzonte, [](FlatWall& wall) {
    const LineRecord line = wall.linesIn(palette(2)).at(0);
    EXPECT_EQ(line.x1, wall.sheet.ShiftX());
    EXPECT_EQ(line.x2, -line.x1);
    EXPECT_EQ(std::abs(line.y1) + std::abs(line.y2), 0);
  });
}

// Every line touches the circumpolar sky. Where the hour is behind the wall, counted from the
// substyle's hour, the tangent is the other one of its point: an italic line in place of a
// babylonian one and the reverse.
TEST(Frinter, HoursFromTheHorizon) {
  for (const auto& [box, count, colour] : {std::tuple{Field::ck_Italiche, HorizonHours::Italic, 14},
                                           {Field::ck_babiloniche, HorizonHours::Babylonian, 9}}) {
    onEveryWall(box, [&, count = count, colour = colour](FlatWall& wall) {
      const std::vector<LineRecord> lines = wall.linesIn(palette(colour));
      ASSERT_EQ(lines.size(), 15u);
      for (std::size_t i = 0; i < lines.size(); ++i) {
        const double H = -105 + 15 * static_cast<double>(i);
        const double fromSubstyle = wall.params.OrarioSustilare +
                                    sky::rad(H + (std::abs(wall.site.declination) > 90 ? 180 : 0));
        const bool behind = std::cos(fromSubstyle) < 0;
        const int hours =
            static_cast<int>(std::lround(H / 15)) + static_cast<int>(count) * (behind ? -6 : 6);
        for (const sky::Spot& s : spotsOf(lines[i])) {
          if (std::hypot(s.x, s.y) > 50) continue;
          const double h =
              sky::hourAngleOf(wall.latitude, wall.sun(s.x, s.y)) - sky::rad(15.0 * hours);
          const double d = sky::declinationOf(wall.latitude, wall.sun(s.x, s.y));
          EXPECT_NEAR(sky::deg(std::asin(sky::sun(wall.latitude, h, d).z)), 0, kAngleSlack)
              << H << ' ' << hours;
        }
      }
    });
  }
}

TEST(Frinter, TheAnalemmaIsTheYearsMeanNoon) {
  FlatWall wall = dialOf(kSites[0]);
  wall.check(Field::ck_Lemniscate).run();
  const std::vector<PointRecord>& points = wall.sheet.list().points;
  ASSERT_EQ(points.size(), 2 * 365u) << "each day twice, less the first";
  for (std::size_t i = 0; i < points.size(); i += 2) {
    const double d = wall.declination(points[i].x, points[i].y);
    ASSERT_LT(apart(wall.hourAngle(points[i].x, points[i].y), -7.3562), 17.0 / 4);
    ASSERT_EQ(points[i].colour, palette(d < 0 ? 12 : 3));
    ASSERT_EQ(points[i + 1].colour, palette(6));
    ASSERT_EQ(points[i + 1].x, points[i].x);
  }
}

TEST(Frinter, TheStyleJoinsFootTipAndCentre) {
  onEveryWall(Field::ck_Triangolo, [](FlatWall& wall) {
    const std::vector<LineRecord>& lines = wall.sheet.list().lines;
    ASSERT_EQ(lines.size(), 3u);
    const sky::Spot centre = wall.centre();
    EXPECT_EQ(lines[0].colour, palette(13));
    EXPECT_NEAR(std::hypot(lines[0].x1, lines[0].y1), wall.kStyle, 1e-9);
    EXPECT_NEAR(lines[0].x1 * centre.x - lines[0].y1 * centre.y, 0, 1e-7);
    EXPECT_EQ(lines[1].colour, palette(9));
    EXPECT_LT(sky::distance({lines[1].x2, -lines[1].y2}, centre), 1e-6);
    EXPECT_EQ(lines[2].colour, palette(14));
  });
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

TEST(Frinter, FamiliesComeInOrder) {
  FlatWall wall = dialOf(kSites[0]);
  wall.checkEveryBox().run();
  EXPECT_EQ(wall.order(), "L7 L12 L9 P12 P13 P11 L14 P6 P3 L2 L13 P15 ");
}

TEST(Frinter, TakesAnyInput) {
  for (const char* latitude : {"0", "90", "45", "1e300"}) {
    for (const char* declination : {"0", "180", "90", "-1e308"}) {
      FlatWall wall = dialOf({45, 0});
      wall.set(Field::txtLAT, latitude).set(Field::txtDecl, declination).set(Field::TxtHour, "-2");
      wall.checkEveryBox().set(Field::TxtStilo, declination).run();
      EXPECT_FALSE(wall.busy);
      EXPECT_TRUE(wall.isSound());
    }
  }
}

}  // namespace
}  // namespace dialwright
