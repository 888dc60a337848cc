// Program 1 against a wall in the sun: every family is where the tip's shadow falls, and the
// drawing's order, inks and texts are those of the dial.
#include <gtest/gtest.h>

#include <cmath>

#include "dials/flat/verticale_luce.hpp"
#include "support/flat_wall.hpp"
#include "support/mean_sun.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;

const std::vector<FlatSite> kSites = {{45.7438, -14.57}, {45.7438, 37}, {45.7438, -75}, {5, 20},
                                      {62, 0.5},         {20, -50},     {45, 130},      {35, 85}};

class Wall : public FlatWall {
 public:
  explicit Wall(const FlatSite& where) : FlatWall(Item::M_Light, DisegnaVerticaleLuce, where) {}
};

TEST(VerticaleLuce, HourLinesLieInTheirHourPlanes) {
  for (const FlatSite& site : kSites) {
    for (const double zone : {0.0, 7.3562}) {
      Wall wall(site);
      wall.set(Field::TxtInizio, "7").set(Field::TxtFine, "17");
      wall.check(Field::ck_Etna, zone > 0).check(Field::chkOreAstronomiche).run();
      const bool side = std::abs(site.declination) > 80;
      double H = side ? 15 : -75;
      // After the light graph's marks and rays (one an hour, like the hour lines) come the lines.
      const auto& lines = wall.sheet.list().lines;
      const std::size_t hours = side ? 13 : 21;
      ASSERT_GE(lines.size(), 2 * hours);
      for (std::size_t i = hours; i < 2 * hours; ++i, H += 7.5) {
        const LineRecord &line = lines[i], &ray = lines[i - hours];
        for (const sky::Spot& s : spotsOf(line))
          EXPECT_LT(apart(wall.hourAngle(s.x, s.y), H - zone, 180), kAngleSlack) << H;
        EXPECT_DOUBLE_EQ(line.y2, 0.8);
        EXPECT_EQ(line.colour, palette(H == 0 ? 12 : H == 90 ? 9 : 7));
        if (H == 90) continue;
        EXPECT_LT(wall.offHour(H - zone, ray.x1, ray.y1), kAngleSlack);
        EXPECT_NEAR(wall.declination(ray.x1, ray.y1), 0, kAngleSlack);
      }
    }
  }
}

TEST(VerticaleLuce, DeclinationCurvesAreTheSunsDays) {
  for (const FlatSite& site : kSites) {
    Wall wall(site);
    wall.check(Field::Ck_DayLightCurves).run();
    std::size_t count = 0;
    for (const auto& [colour, declination] :
         {std::pair{12, 23.445}, {13, 20.1552}, {11, 11.4746}}) {
      for (const PointRecord& point : wall.pointsIn(palette(colour))) {
        if (point.x == 0 && point.y == 0) continue;  // the foot of the style
        // A cone has two sheets: one is the day, the other its counterpart.
        EXPECT_NEAR(std::abs(wall.declination(point.x, point.y)), declination, kAngleSlack);
        EXPECT_TRUE(point.x > -0.5 && point.x < 0.5 && point.y > -0.2 && point.y < 1);
        ++count;
      }
    }
    EXPECT_GT(count, 50u) << site.latitude << ' ' << site.declination;
  }
}

TEST(VerticaleLuce, AnalemmaIsTheYearsMeanNoon) {
  Wall wall({45.7438, -14.57});
  wall.check(Field::ck_Lemniscate).run();
  const std::size_t points = wall.sheet.list().points.size() - 1;  // less the foot
  EXPECT_EQ(points % 13, 0u) << "drawn once for each hour from 6 to 18";
  double northern = 0, southern = 0;
  for (std::size_t i = 0; i < points / 13; ++i) {
    const PointRecord& point = wall.sheet.list().points[i];
    const double d = wall.declination(point.x, point.y);
    northern = std::max(northern, d);
    southern = std::min(southern, d);
    EXPECT_LT(sky::secondsFromEquationOfTime(sky::rad(wall.hourAngle(point.x, point.y) + 7.3562),
                                             sky::rad(d)),
              25);
    EXPECT_EQ(point.colour, palette(12));
  }
  EXPECT_NEAR(northern, 23.446, 0.001);
  EXPECT_NEAR(southern, -23.446, 0.001);
  EXPECT_EQ(wall.params.PiGreco, 3.1415926536) << "a finer constant stays for the report";
  wall.check(Field::ck_Lemniscate, false).run();
  EXPECT_EQ(wall.params.PiGreco, 3.141592654);
}

TEST(VerticaleLuce, ConicalStyleTouchesItalicAndBabylonianHours) {
  for (const FlatSite& site : {FlatSite{45.7438, -14.57}, {45.7438, 37}, {52, 10}}) {
    Wall wall(site);
    wall.check(Field::CkConic).check(Field::ck_Italiche).check(Field::ck_babiloniche).run();
    for (const auto& [layer, count, other] :
         {std::tuple{"ita", HorizonHours::Italic, HorizonHours::Babylonian},
          {"bab", HorizonHours::Babylonian, HorizonHours::Italic}}) {
      std::size_t lines = 0, own = 0;
      for (const LineRecord& line : wall.linesOf(layer)) {
        // From an hour behind the wall the tangent is one of the other count.
        const double off = wall.horizonCircle(count, line.x1, line.y1).off;
        ASSERT_LT(std::min(off, wall.horizonCircle(other, line.x1, line.y1).off), kAngleSlack);
        own += off < kAngleSlack ? 1 : 0;
        ++lines;
      }
      EXPECT_GT(lines, 1000u);
      EXPECT_GT(own, 0.7 * static_cast<double>(lines)) << layer;
    }
  }
}

TEST(VerticaleLuce, HasItsOwnFormsOnTheEquator) {
  Wall turned({0, 25});
  turned.check(Field::Ck_DayLightCurves).check(Field::ck_Equinoziale).run();
  for (const auto& [colour, declination] : {std::pair{13, 20.1552}, {11, 11.4746}}) {
    const std::vector<PointRecord> points = turned.pointsIn(palette(colour));
    EXPECT_GT(points.size(), 50u);
    for (const PointRecord& point : points)
      EXPECT_NEAR(std::abs(turned.declination(point.x, point.y)), declination, kAngleSlack);
  }
  const std::vector<LineRecord> equinoctial = turned.linesIn(palette(9));
  ASSERT_EQ(equinoctial.size(), 1u);
  EXPECT_NEAR(turned.declination(equinoctial[0].x1, 0.5), 0, kAngleSlack);
  EXPECT_TRUE(turned.linesOf("eq").empty());

  // A wall that faces the pole draws the opposite of a sun behind it; its hour points collapse.
  Wall south({0, 0});
  south.check(Field::ck_Lemniscate).check(Field::chkOreAstronomiche).run();
  for (const PointRecord& point : south.pointsIn(palette(6)))
    EXPECT_LT(apart(south.hourAngle(point.x, point.y), -7.3562, 180), 17.0 / 4);
  EXPECT_GT(south.pointsIn(palette(6)).size(), 1000u);
  for (const CircleRecord& mark : south.sheet.list().circles)
    EXPECT_TRUE(mark.x == 0 || mark.radius != 0.002);
}

TEST(VerticaleLuce, DefaultDrawingInItsOrder) {
  DialCase dial(Item::M_Light, DisegnaVerticaleLuce);
  dial.set(Field::txtDecl, "-14.57").run();
  const DisplayList& list = dial.sheet.list();
  const auto lines = list.lines;
  // Hours 9 to 15 by halves: a mark and a ray each, then the hour lines.
  ASSERT_GT(lines.size(), 26u);
  EXPECT_EQ(list.order()[0], EntityKind::Circle);
  EXPECT_EQ(list.order()[1], EntityKind::Line);
  EXPECT_EQ(list.circles[0].radius, 0.002);
  EXPECT_EQ(list.circles[0].x, lines[0].x1) << "rays run from the hour point to N2";
  for (std::size_t i = 1; i < 13; ++i) EXPECT_EQ(lines[i].x2, lines[0].x2);
  EXPECT_EQ(lines.back().colour, rgb(49, 172, 238)) << "N to C2, the last line of the letters";
  EXPECT_EQ(list.points.back().x, 0);
  EXPECT_EQ(list.points.back().colour, palette(12)) << "the foot comes last";
  EXPECT_EQ(dial.sheet.caption(), "Vertical dial, light graph by 2D analytic geometry");

  const std::string told = dial.told();
  const std::string start =
      "-45|9|-30|10|-15|11|0|12|15|1|30|2|45|3|  N|  C| N|P| R|M   |  G|  |  C center of the dial|";
  EXPECT_EQ(told.substr(0, start.size()), start);
  EXPECT_TRUE(told.ends_with("|  MNP : substyle hour angle|  |"));
  EXPECT_NEAR(list.texts[1].y - list.texts[0].y, -0.05, 1e-12);
  EXPECT_EQ(std::pair(list.texts[21].x, list.texts[21].y), std::pair(0.0, -0.8));
  EXPECT_NEAR(list.texts[22].shownX, -dial.sheet.ShiftX(), 1e-12)
      << "the legend runs down the sheet's left edge";
  dial.check(Field::ckFunction).run();
  EXPECT_EQ(list.texts.size(), 33u + 14u + 12u) << "no letters";
}

TEST(VerticaleLuce, GivesUpHourLinesForOtherHours) {
  for (const Field box : {Field::ckTemp, Field::ck_Italiche, Field::ck_babiloniche}) {
    Wall wall({45.7438, -14.57});
    wall.check(Field::chkOreAstronomiche).check(box).run();
    EXPECT_EQ(wall.sheet.list().texts.size(), 7u + 12u) << "letters and legend, no hours";
  }
}

TEST(VerticaleLuce, RewritesTheHoursOfSideWalls) {
  DialCase west(Item::M_Light, DisegnaVerticaleLuce);
  west.set(Field::txtDecl, "85").run();
  EXPECT_EQ(west.panel.text(Field::TxtInizio), "13");
  EXPECT_EQ(west.panel.text(Field::TxtFine), "19");
  EXPECT_FALSE(west.busy);
}

}  // namespace
}  // namespace dialwright
