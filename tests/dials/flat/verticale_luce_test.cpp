// Program 1 beside its shadows: the light graph, the forms of the equator, and the drawing's order,
// inks and texts.
#include <gtest/gtest.h>

#include <cmath>

#include "dials/flat/verticale_luce.hpp"
#include "support/flat_wall.hpp"

namespace dialwright {
namespace {

using sky::rad;

const std::vector<FlatSite> kSites = {{45.7438, -14.57}, {45.7438, 37}, {45.7438, -75}, {5, 20},
                                      {62, 0.5},         {20, -50},     {45, 130},      {35, 85}};

class Wall : public FlatWall {
 public:
  explicit Wall(const FlatSite& where) : FlatWall(Item::M_Light, DisegnaVerticaleLuce, where) {}
};

double bearing(const LineRecord& ray) {
  return sky::deg(std::atan2(ray.y1 - ray.y2, ray.x1 - ray.x2));
}

TEST(VerticaleLuce, RaysOfTheLightGraphSpreadByTheHour) {
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
        EXPECT_DOUBLE_EQ(line.y2, 0.8);
        if (H == 90) continue;
        EXPECT_LT(wall.offHour(H - zone, ray.x1, ray.y1), kAngleSlack);
        EXPECT_NEAR(wall.declination(ray.x1, ray.y1), 0, kAngleSlack);
        // From the tip laid into the wall the hours are seen under their own angles.
        const double turned = bearing(ray) - bearing(lines[0]);
        EXPECT_LT(apart(turned, 7.5 * static_cast<double>(i - hours), 180), kAngleSlack);
      }
    }
  }
}

TEST(VerticaleLuce, AnalemmaIsDrawnThirteenTimes) {
  Wall wall({45.7438, -14.57});
  wall.check(Field::ck_Lemniscate).run();
  const std::size_t points = wall.sheet.list().points.size() - 1;  // less the foot
  EXPECT_EQ(points % 13, 0u) << "drawn once for each hour from 6 to 18";
  EXPECT_EQ(wall.params.PiGreco, 3.1415926536) << "a finer constant stays for the report";
  wall.check(Field::ck_Lemniscate, false).run();
  EXPECT_EQ(wall.params.PiGreco, 3.141592654);
}

// On the equator the equinoctial is an upright line, and a wall that faces the pole has one point
// for all hours.
TEST(VerticaleLuce, HasItsOwnFormsOnTheEquator) {
  Wall turned({0, 25}), south({0, 0});
  turned.check(Field::ck_Equinoziale).run();
  EXPECT_EQ(turned.linesIn(palette(9)).size(), 1u);
  EXPECT_TRUE(turned.linesOf("eq").empty());
  south.check(Field::chkOreAstronomiche).run();
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
