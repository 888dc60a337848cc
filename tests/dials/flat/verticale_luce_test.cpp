// Program 1 against a wall in the sun: every family is where the tip's shadow falls, and the
// drawing's order, inks and texts are those of the dial.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "dials/flat/verticale_luce.hpp"
#include "support/dial_case.hpp"
#include "support/sky.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;

constexpr double kAngle =
    2e-5;  // degrees: the circle constant is short by 4e-10, steep points magnify it

struct Site {
  double latitude;
  double declination;
};
const std::vector<Site> kSites = {{45.7438, -14.57}, {45.7438, 37}, {45.7438, -75}, {5, 20},
                                  {62, 0.5},         {20, -50},     {45, 130},      {35, 85}};

// A dial of a site with one box checked, and its wall.
class Wall : public DialCase {
 public:
  explicit Wall(const Site& site)
      : DialCase(Item::M_Light, DisegnaVerticaleLuce),
        latitude(rad(site.latitude)),
        plane(sky::Plane::facing(site.declination, 0)) {
    set(Field::txtLAT, std::to_string(site.latitude))
        .set(Field::txtDecl, std::to_string(site.declination));
    clearBoxes();
  }

  double hourAngle(double x, double sheetY) const {
    return deg(sky::hourAngleOf(latitude, sun(x, sheetY)));
  }
  double declination(double x, double sheetY) const {
    return deg(sky::declinationOf(latitude, sun(x, sheetY)));
  }
  sky::Vec sun(double x, double sheetY) const { return plane.sunOf(kStyle, {x, -sheetY}); }

  static constexpr double kStyle = 0.2;
  double latitude;
  sky::Plane plane;
};

// The difference of two angles in degrees, on a circle of that many degrees.
double apart(double a, double b, double circle = 360) {
  return std::abs(std::remainder(a - b, circle));
}

// Hours since sunset (italic), since sunrise (babylonian) or of the temporary day, of a sun; NaN
// when it never rises.
enum class Count { Italic, Babylonian, Temporary };
double hourOf(Count count, double hourAngle, double declination, double latitude) {
  const double arc = deg(sky::semiArc(latitude, rad(declination)));
  switch (count) {
    case Count::Italic: return (hourAngle - arc + 360) / 15;
    case Count::Babylonian: return (hourAngle + arc) / 15;
    case Count::Temporary: return (hourAngle / arc + 1) * 6;
  }
  return NAN;
}

TEST(VerticaleLuce, HourLinesLieInTheirHourPlanes) {
  for (const Site& site : kSites) {
    Wall wall(site);
    wall.set(Field::TxtInizio, "7")
        .set(Field::TxtFine, "17")
        .check(Field::chkOreAstronomiche)
        .run();
    const double first = std::abs(site.declination) > 80 ? 15 : -75;
    double H = first;
    // After the light graph's lines (one an hour, like the hour lines) come the hour lines.
    const auto& lines = wall.sheet.list().lines;
    const auto hours = static_cast<std::size_t>(std::abs(site.declination) > 80 ? 13 : 21);
    ASSERT_GE(lines.size(), 2 * hours);
    for (std::size_t i = hours; i < 2 * hours; ++i, H += 7.5) {
      for (const double part : {0.3, 0.9}) {
        const double x = lines[i].x1 + part * (lines[i].x2 - lines[i].x1);
        const double y = lines[i].y1 + part * (lines[i].y2 - lines[i].y1);
        EXPECT_LT(apart(wall.hourAngle(x, y), H, 180), kAngle)
            << site.latitude << ' ' << site.declination << ' ' << H;
      }
      EXPECT_DOUBLE_EQ(lines[i].y2, 0.8);
      EXPECT_EQ(lines[i].colour, palette(H == 0 ? 12 : H == 90 ? 9 : 7));
    }
  }
}

TEST(VerticaleLuce, StandardMeridianShiftsTheHoursByTheLongitude) {
  Wall wall({45.7438, -14.57});
  wall.check(Field::chkOreAstronomiche).check(Field::ck_Etna).run();
  // 15 degrees East of Greenwich is the zone's meridian, 7.3562 degrees East of the site: noon
  // there comes sooner.
  const CircleRecord noon =
      *std::find_if(wall.sheet.list().circles.begin(), wall.sheet.list().circles.end(),
                    [](const CircleRecord& c) { return c.colour == palette(12); });
  EXPECT_LT(apart(wall.hourAngle(noon.x, noon.y), -7.3562, 180), kAngle);
  EXPECT_NEAR(wall.declination(noon.x, noon.y), 0, kAngle);
}

TEST(VerticaleLuce, DeclinationCurvesAreTheSunsDays) {
  for (const Site& site : kSites) {
    Wall wall(site);
    wall.check(Field::Ck_DayLightCurves).run();
    std::size_t count = 0;
    for (const auto& [colour, declination] :
         {std::pair{12, 23.445}, {13, 20.1552}, {11, 11.4746}}) {
      for (const PointRecord& point : wall.pointsIn(palette(colour))) {
        if (point.x == 0 && point.y == 0) continue;  // the foot of the style
        // A cone has two sheets: one is the day, the other its counterpart.
        EXPECT_NEAR(std::abs(wall.declination(point.x, point.y)), declination, kAngle);
        EXPECT_TRUE(point.x > -0.5 && point.x < 0.5 && point.y > -0.2 && point.y < 1);
        ++count;
      }
    }
    EXPECT_GT(count, 50u) << site.latitude << ' ' << site.declination;
  }
}

void expectHoursOf(Field box, Count count, Rgb colour) {
  for (const Site& site : kSites) {
    Wall wall(site);
    wall.check(box).set(Field::TxtInizio, "1").set(Field::TxtFine, "23").run();
    for (const LineRecord& line : wall.linesIn(colour)) {
      if (line.x2 == 0 && line.y2 == 0) continue;  // lines of the construction that end in the foot
      const double H = wall.hourAngle(line.x1, line.y1);
      const double d = wall.declination(line.x1, line.y1);
      ASSERT_TRUE(wall.plane.lit(wall.sun(line.x1, line.y1)));
      ASSERT_LE(std::abs(d), 23.4451);
      const double hour = hourOf(count, H, d, wall.latitude);
      EXPECT_NEAR(hour, std::round(hour), 1e-4)
          << site.latitude << ' ' << site.declination << ' ' << d;
      EXPECT_LT(sky::distance({line.x1, line.y1}, {line.x2, line.y2}), 0.01);
    }
  }
}

TEST(VerticaleLuce, DayLongHoursAreCountedFromSunriseAndSunset) {
  expectHoursOf(Field::ck_Italiche, Count::Italic, rgb(255, 128, 255));
  expectHoursOf(Field::ckTemp, Count::Temporary, palette(6));
}

TEST(VerticaleLuce, BabylonianHours) {
  Wall wall({45.7438, -14.57});
  wall.check(Field::ck_babiloniche).set(Field::TxtInizio, "3").set(Field::TxtFine, "6").run();
  std::vector<double> hours;
  for (const LineRecord& line : wall.linesIn(palette(13))) {
    if (line.x2 == 0 && line.y2 == 0) continue;
    hours.push_back(hourOf(Count::Babylonian, wall.hourAngle(line.x1, line.y1),
                           wall.declination(line.x1, line.y1), wall.latitude));
  }
  ASSERT_GT(hours.size(), 100u);
  EXPECT_TRUE(
      std::is_sorted(hours.begin(), hours.end(), [](double a, double b) { return a < b - 0.5; }));
  EXPECT_NEAR(hours.front(), 3, 1e-4);
  EXPECT_NEAR(hours.back(), 6, 1e-4);
}

TEST(VerticaleLuce, EquinoctialIsTheDayWithoutDeclination) {
  for (const Site& site : kSites) {
    Wall wall(site);
    wall.check(Field::ck_Equinoziale).run();
    const std::vector<LineRecord> lines = wall.linesOf("eq");
    for (const LineRecord& line : lines) {
      EXPECT_NEAR(wall.declination(line.x1, line.y1), 0, kAngle);
      EXPECT_NEAR(line.x2 - line.x1, 0.005, 1e-9) << "from the previous point to the next";
      EXPECT_EQ(line.colour, rgb(49, 172, 238));
    }
    EXPECT_TRUE(std::abs(site.declination) > 90 || !lines.empty());
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
    // Mean noon of the zone: the dial's hour angle is the equation of time and the longitude,
    // within 17 minutes.
    EXPECT_LT(std::abs(wall.hourAngle(point.x, point.y) + 7.3562), 17.0 / 4);
    EXPECT_EQ(point.colour, palette(12));
  }
  EXPECT_NEAR(northern, 23.446, 0.001);
  EXPECT_NEAR(southern, -23.446, 0.001);
  EXPECT_EQ(wall.params.PiGreco, 3.1415926536) << "a finer constant stays for the report";
  wall.check(Field::ck_Lemniscate, false).run();
  EXPECT_EQ(wall.params.PiGreco, 3.141592654);
}

TEST(VerticaleLuce, ConicalStyleTouchesItalicAndBabylonianHours) {
  for (const Site& site : {Site{45.7438, -14.57}, {45.7438, 37}, {52, 10}}) {
    Wall wall(site);
    wall.check(Field::CkConic).check(Field::ck_Italiche).check(Field::ck_babiloniche).run();
    for (const auto& [layer, own, other] : {std::tuple{"ita", Count::Italic, Count::Babylonian},
                                            {"bab", Count::Babylonian, Count::Italic}}) {
      std::size_t lit = 0;
      std::size_t counted = 0;
      for (const LineRecord& line : wall.linesOf(layer)) {
        const sky::Vec sun = wall.sun(line.x1, line.y1);
        const double d = wall.declination(line.x1, line.y1);
        if (sun.z < 0 || std::abs(d) > 23.445) continue;
        const double H = wall.hourAngle(line.x1, line.y1);
        // Beyond its point of contact a tangent is an hour of the other count.
        const double mine = hourOf(own, H, d, wall.latitude);
        const double theirs = hourOf(other, H, d, wall.latitude);
        EXPECT_LT(
            std::min(apart(mine, std::round(mine), 24), apart(theirs, std::round(theirs), 24)),
            1e-4);
        counted += apart(mine, std::round(mine), 24) < 1e-4 ? 1 : 0;
        ++lit;
      }
      EXPECT_GT(lit, 100u);
      EXPECT_GT(counted, lit / 2) << layer;
    }
  }
}

TEST(VerticaleLuce, HasItsOwnFormsOnTheEquator) {
  // The wall turned by D on the equator: curves, and the analemma of a wall that faces South.
  Wall turned({0, 25});
  turned.check(Field::Ck_DayLightCurves).check(Field::ck_Equinoziale).run();
  std::size_t count = 0;
  for (const auto& [colour, declination] : {std::pair{13, 20.1552}, {11, 11.4746}}) {
    for (const PointRecord& point : turned.pointsIn(palette(colour))) {
      EXPECT_NEAR(std::abs(turned.declination(point.x, point.y)), declination, kAngle);
      ++count;
    }
  }
  EXPECT_GT(count, 100u);
  const std::vector<LineRecord> equinoctial = turned.linesIn(palette(9));
  ASSERT_EQ(equinoctial.size(), 1u);
  EXPECT_NEAR(turned.declination(equinoctial[0].x1, 0.5), 0, kAngle);
  EXPECT_TRUE(turned.linesOf("eq").empty());

  Wall south({0, 0});
  south.check(Field::ck_Lemniscate).check(Field::chkOreAstronomiche).run();
  for (const PointRecord& point : south.pointsIn(palette(6))) {
    // In the half year when the sun stands behind this wall its counterpart is drawn, above the
    // foot.
    EXPECT_LT(apart(south.hourAngle(point.x, point.y), -7.3562, 180), 17.0 / 4);
  }
  EXPECT_GT(south.pointsIn(palette(6)).size(), 1000u);
  for (const CircleRecord& mark : south.sheet.list().circles) {
    if (mark.radius == 0.002) {
      EXPECT_EQ(mark.x, 0) << "hour points collapse into the foot";
    }
  }
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
  EXPECT_EQ(lines[19].colour, palette(12)) << "noon";
  EXPECT_EQ(lines.back().colour, rgb(49, 172, 238)) << "N to C2, the last line of the letters";
  EXPECT_EQ(list.points.back().x, 0);
  EXPECT_EQ(list.points.back().colour, palette(12)) << "the foot comes last";
  EXPECT_EQ(dial.sheet.caption(), "Vertical dial, light graph by 2D analytic geometry");

  const std::vector<TextRecord>& texts = list.texts;
  ASSERT_EQ(texts.size(), 14u + 7u + 12u);
  EXPECT_EQ(texts[0].text, "-45");
  EXPECT_EQ(texts[1].text, "9");
  EXPECT_EQ(texts[13].text, "3");
  EXPECT_NEAR(texts[1].y - texts[0].y, -0.05, 1e-12);
  EXPECT_EQ(texts[14].text, "  N");
  EXPECT_EQ(texts[20].text, "  G");
  EXPECT_EQ(texts[21].text, "  ");
  EXPECT_EQ(texts[21].x, 0);
  EXPECT_EQ(texts[21].y, -0.8);
  EXPECT_EQ(texts[22].text, "  C center of the dial");
  EXPECT_NEAR(texts[22].shownX, -dial.sheet.ShiftX(), 1e-12)
      << "the legend runs down the sheet's left edge";
  EXPECT_EQ(texts[32].text, "  ");
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

TEST(VerticaleLuce, RefusesTheSouthAndRewritesTheHoursOfSideWalls) {
  DialCase south(Item::M_Light, DisegnaVerticaleLuce);
  south.set(Field::txtLAT, "-10").run();
  EXPECT_TRUE(south.refused);
  EXPECT_EQ(south.entities(), 0u);
  EXPECT_EQ(south.messages,
            std::vector<std::string>{"Sorry, unable to work in the Southern hemisphere "});
  EXPECT_TRUE(south.panel[Field::cmdData].visible);

  DialCase west(Item::M_Light, DisegnaVerticaleLuce);
  west.set(Field::txtDecl, "85").run();
  EXPECT_EQ(west.panel.text(Field::TxtInizio), "13");
  EXPECT_EQ(west.panel.text(Field::TxtFine), "19");
  EXPECT_FALSE(west.busy);
}

TEST(VerticaleLuce, TakesAnyInput) {
  const std::vector<Field> fields = {Field::txtLAT,    Field::txtLON,  Field::txtDecl,
                                     Field::TxtStilo,  Field::TxtHour, Field::txt_Definition,
                                     Field::TxtInizio, Field::TxtFine, Field::TxtFuso,
                                     Field::x1txt,     Field::y2txt};
  for (const Field field : fields) {
    for (const char* text :
         {"", "abc", "0", "-1", "1e-9", "90", "180", "1e9", "1e308", "1e999", "-1e308"}) {
      DialCase dial(Item::M_Light, DisegnaVerticaleLuce);
      for (const Field box : {Field::CkConic, Field::ck_Lemniscate, Field::ck_Sustilare,
                              Field::ck_Orizzonte, Field::ck_Triangolo}) {
        dial.check(box);
      }
      dial.set(field, text).run();
      dial.check(Field::ck_Italiche).check(Field::ckTemp).set(field, text).run();
      EXPECT_LT(dial.entities(), 500'000u);
      for (const LineRecord& line : dial.sheet.list().lines) {
        for (const double value : {line.x1, line.y1, line.x2, line.y2})
          ASSERT_TRUE(std::isfinite(value)) << rowOf(field).name << '=' << text;
      }
      for (const CircleRecord& circle : dial.sheet.list().circles) {
        for (const double value : {circle.x, circle.y, circle.radius})
          ASSERT_TRUE(std::isfinite(value)) << rowOf(field).name << '=' << text;
      }
    }
  }
}

}  // namespace
}  // namespace dialwright
