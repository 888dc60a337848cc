// The cylindrical dials beside their shadows: sections, the window, and what the hat leaves on the
// panel.
#include <gtest/gtest.h>

#include <numbers>

#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"
#include "support/sky.hpp"

namespace dialwright {
namespace {

using sky::distance;
using sky::rad;
using sky::Spot;
using std::numbers::pi;

struct Wall {
  double latitude = 45.7438, declination = -14.57, radius = 0.4, style = 0.2;
  double side = 1;  // +1 outside
};
// Outside and inside, turned either way.
constexpr Wall kWalls[] = {
    {}, {.side = -1}, {60, 25, 0.3, 0.25, 1}, {60, 55, 0.3, 0.1, -1}, {45, 0, 0.4, 0.15, -1}};

struct Bent : DialCase {
  Bent(int number, const Wall& wall, std::string_view settings) : DialCase(number, settings) {
    set(Field::txtLAT, textOf(wall.latitude)).set(Field::txtDecl, textOf(wall.declination));
    set(Field::TxtRadius, textOf(wall.radius)).set(Field::TxtStilo, textOf(wall.style));
    panel.setState(wall.side > 0 ? Field::OptConvex : Field::Optconcave, true);
    run();
  }
};

// --- Sections, plans to scale

TEST(Cylinders, TheSectionIsThePlan) {
  for (const Wall& wall : kWalls) {
    Bent dial(12, wall, "Ck_Section");
    const auto style = dial.linesIn(palette(13)), ray = dial.linesOf("PS");
    ASSERT_EQ(style.size() * ray.size(), 1u);
    const CircleRecord& section = dial.sheet.list().circles.back();
    const Spot centre{section.x, section.y};
    const Spot foot{style[0].x1, style[0].y1}, tip{style[0].x2, style[0].y2};
    EXPECT_EQ(foot.x, 0);
    EXPECT_NEAR(section.radius, wall.radius, 1e-12);
    EXPECT_NEAR(distance(foot, centre), wall.radius, 1e-12);
    EXPECT_NEAR(distance(foot, tip), wall.style, 1e-12);
    EXPECT_NEAR(distance(centre, tip), wall.radius + wall.side * wall.style, 1e-12);
    // The meridian through the tip ends on the circle, in N.
    EXPECT_EQ(ray[0].x1, ray[0].x2);
    EXPECT_NEAR(distance({ray[0].x2, ray[0].y2}, centre), wall.radius, 1e-12);
  }
}

// The wall through the foot, East to the right and North up.
TEST(Parabola, TheSectionIsThePlan) {
  for (const Wall& wall : kWalls) {
    Bent dial(10, wall, "Ck_Section");
    const auto style = dial.linesIn(palette(13)), normal = dial.linesIn(palette(11));
    ASSERT_EQ(style.size() * normal.size(), 1u);
    const Spot foot{style[0].x1, -style[0].y1}, tip{style[0].x2, -style[0].y2};
    const double D = rad(wall.declination);
    EXPECT_NEAR(tip.x - foot.x, -wall.style * std::sin(D), 1e-9);
    EXPECT_NEAR(tip.y - foot.y, -wall.style * std::cos(D), 1e-9);
    EXPECT_NEAR(normal[0].x2 - foot.x, wall.style * std::sin(D), 1e-9);
    EXPECT_NEAR(dial.linesIn(palette(4))[0].x1, tip.x, 1e-9) << "noon below noon";
    EXPECT_GT(dial.pointsIn(palette(8)).size(), 20u);
    for (const PointRecord& p : dial.pointsIn(palette(8))) {
      const double east = p.x - foot.x, north = -p.y - foot.y;
      EXPECT_LE(std::abs(east), wall.radius + 1e-9);
      EXPECT_NEAR(north, wall.side * east * east / (2 * wall.radius) - east * std::tan(D), 1e-8);
    }
  }
}

// --- Lines

TEST(Cylinders, TheFreeLineKeepsToTheWindow) {
  Bent dial(12, {}, "txtLineofdeclination=5.5 x1txt=-.1 y1txt=-.1");
  ASSERT_GT(dial.linesOf("5.5").size(), 50u);
  for (const LineRecord& line : dial.linesOf("5.5")) {
    EXPECT_GT(line.x1, -0.1);
    EXPECT_LT(-line.y1, -0.1);
  }
}

// --- The hat

// No longitude moves the analemmas of the hours; that of noon alone goes with the zone.
TEST(FilteringHat, TheHoursOfAnalemmasAreThePlacesOwn) {
  const auto first = [](const char* settings) {
    DialCase dial(13, "ck_Lemniscate TxtHour=1");
    return dial.with(settings).run().linesOf("analemma").at(0).x1;
  };
  EXPECT_EQ(first("Ck_Section txtLON=-7.6438"), first("Ck_Section txtLON=20"));
  EXPECT_NE(first("txtLON=-7.6438"), first("txtLON=20"));
}

TEST(FilteringHat, TheRunFillsThePanel) {
  DialCase dial(13, "ckFrame ck_Orizzonte Ck_DayLightCurves");
  dial.run();
  const double right = 0.14 * pi, lowest = -(0.4 - 0.14) * std::tan(rad(90 - 45.7438 + 23.445));
  const std::pair<Field, double> filled[] = {{Field::TxtStilo, 0.4 - 0.14}, {Field::x1txt, -right},
                                             {Field::x2txt, right},         {Field::y1txt, 0},
                                             {Field::y2txt, lowest},        {Field::txtV1, lowest}};
  for (const auto& [field, value] : filled)
    EXPECT_NEAR(dial.panel.number(field), value, 1e-8) << rowOf(field).name;
  EXPECT_NEAR(dial.sheet.list().boxes.at(0).x2, right, 1e-9) << "the frame is drawn by them";
}

// A brim of the cylinder's own radius throws no shadow down.
TEST(FilteringHat, WithoutABrimAllLinesAreLevel) {
  DialCase dial(13, "txt_R2=0.14 chkOreAstronomiche");
  for (const LineRecord& l : dial.run().sheet.list().lines) ASSERT_EQ(l.y1, 0);
}

}  // namespace
}  // namespace dialwright
