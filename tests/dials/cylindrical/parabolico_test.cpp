// Tests of program 10: the cylinder of parabolic cross-section.
#include "dials/cylindrical/parabolico.hpp"

#include "support/dotted_dial.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

using sky::rad;

// The walls of the dotted dials that this one draws.
std::vector<DottedWall> walls() {
  std::vector<DottedWall> all;
  for (const DottedWall& wall : kDottedWalls)
    if (std::abs(wall.declination) <= 70) all.push_back(wall);
  return all;
}

struct Dial : DottedDial<sky::ParabolaSection> {
  explicit Dial(const DottedWall& wall = kDottedWalls[0])
      : DottedDial(Item::M_Parabolico, QuadranteParabolico, wall,
                   sky::parabolicWall(wall.radius, wall.style, wall.declination, wall.convex)) {
    set(Field::TxtHour, "1");
  }
};

TEST(ParabolicCylinder, DotsOfTheHoursLieInTheirPlanes) {
  for (const DottedWall& wall : walls()) {
    for (const bool zone : {false, true}) {
      Dial dial(wall);
      dial.set(Field::TxtFuso, "-1");
      const double shift = zone ? 7.6438 - 15 : 0;
      const auto spots = zone ? dial.dots({Field::ck_Etna}, 7) : dial.dots({}, 7);
      dial.expectInPlanes(spots, planes(hourPlane, wall.latitude, -90 + shift, 90 + shift, 15), 5);
    }
  }
}

// Six o'clock, the equator and the substyle have one colour.
TEST(ParabolicCylinder, BlueDotsAreSixOClockTheEquatorAndTheSubstyle) {
  for (const DottedWall& wall : walls()) {
    Dial dial(wall);
    const double H = sky::deg(sky::hourAngleOf(rad(wall.latitude), dial.model.tangent.normal));
    const sky::Vec pole{0, std::cos(rad(wall.latitude)), std::sin(rad(wall.latitude))};
    // On a wall that looks South the substyle is the noon generator.
    dial.expectInPlanes(dial.dots({}, 9),
                        {hourPlane(wall.latitude, 90), pole, hourPlane(wall.latitude, H)},
                        wall.declination == 0 ? 1 : 0);
  }
}

TEST(ParabolicCylinder, TheDayIsThatOfTheField) {
  for (const DottedWall& wall : walls()) {
    for (const double day : {23.445, 10.0}) {
      Dial dial(wall);
      dial.set(Field::txtLineofdeclination, textOf(day)).set(Field::TxtHour, "1e-9");
      dial.expectDay(dial.dots({}, 12), day);  // without the dots of noon
    }
  }
}

// Where the tip's own ray meets the wall first, the dot is the shadow.
TEST(ParabolicCylinder, LitDotsAreTheShadow) {
  for (const DottedWall& wall : {kDottedWalls[0], kDottedWalls[1]}) {
    Dial dial(wall);
    std::size_t lit = 0;
    for (const sky::Spot spot : dial.dots({}, 7)) {
      if (std::abs(spot.x) > 0.15 || spot.y > -1e-6) continue;
      const auto shadow = dial.model.shadow(dial.sunOf(spot));
      ASSERT_TRUE(shadow);
      ASSERT_NEAR(shadow->x, spot.x, 1e-9);
      ASSERT_NEAR(shadow->y, spot.y, 1e-9 * (1 - spot.y));
      ++lit;
    }
    EXPECT_GT(lit, 30u);
  }
}

TEST(ParabolicCylinder, TheGeneratorsAreNoonAndTheVertex) {
  for (const DottedWall& wall : walls()) {
    Dial dial(wall);
    dial.run();
    const auto noon = dial.linesIn(palette(4)), vertex = dial.linesIn(palette(1));
    ASSERT_EQ(noon.size() + vertex.size(), 2u);
    const auto shadow = dial.model.shadow(sky::sun(rad(wall.latitude), 0, rad(-5)));
    ASSERT_TRUE(shadow);
    EXPECT_NEAR(noon[0].x1, shadow->x, 1e-8);
    // In the vertex the section runs East.
    const double u = dial.model.unroll(vertex[0].x1);
    EXPECT_NEAR(dial.model.section.speed(u), 1, 1e-12);
  }
}

TEST(ParabolicCylinder, TheSectionIsThePlanToScale) {
  for (const DottedWall& wall : walls()) {
    SCOPED_TRACE(name(wall));
    Dial dial(wall);
    dial.panel.setState(Field::Ck_Section, true);
    dial.run();
    const auto style = dial.linesIn(palette(13)), normal = dial.linesIn(palette(11));
    ASSERT_EQ(style.size() * normal.size(), 1u);
    const sky::Spot foot{style[0].x1, -style[0].y1}, tip{style[0].x2, -style[0].y2};
    const double D = rad(wall.declination);
    EXPECT_NEAR(tip.x - foot.x, -wall.style * std::sin(D), 1e-9);
    EXPECT_NEAR(tip.y - foot.y, -wall.style * std::cos(D), 1e-9);
    EXPECT_NEAR(normal[0].x2 - foot.x, wall.style * std::sin(D), 1e-9);
    EXPECT_NEAR(dial.linesIn(palette(4))[0].x1, tip.x, 1e-9) << "noon below noon";
    // The wall through the foot, East to the right and North up.
    const auto wallDots = dial.pointsIn(palette(8));
    EXPECT_GT(wallDots.size(), 20u);
    for (const PointRecord& p : wallDots) {
      const double east = p.x - foot.x, north = -p.y - foot.y;
      EXPECT_LE(std::abs(east), wall.radius + 1e-9);
      EXPECT_NEAR(north,
                  (wall.convex ? 1 : -1) * east * east / (2 * wall.radius) - east * std::tan(D),
                  1e-8);
    }
    const auto& circles = dial.sheet.list().circles;
    ASSERT_EQ(circles.size(), D == 0 ? 1u : 2u);
    if (D != 0) {
      EXPECT_EQ(circles[0].radius, 0.1);
      EXPECT_NEAR(circles[0].startAngle, std::numbers::pi / 2 - std::max(D, 0.0), 1e-8);
      EXPECT_NEAR(circles[0].endAngle, std::numbers::pi / 2 - std::min(D, 0.0), 1e-8);
    }
    EXPECT_EQ(circles.back().radius, 0.01);
    EXPECT_EQ(circles.back().colour, palette(15));
  }
}

TEST(ParabolicCylinder, ARunDrawsItsFamiliesInOrder) {
  Dial dial;
  dial.panel.setState(Field::ck_Orizzonte, true);
  dial.panel.setState(Field::Ck_Section, true);
  dial.run();
  EXPECT_EQ(dial.messages,
            std::vector<std::string>{"Modify the definition if the graph is not well visible"});
  EXPECT_EQ(dial.sheet.caption(), "Cylindrical sundial of parabolic cross-section.");
  EXPECT_FALSE(dial.busy);
  EXPECT_EQ(inks(dial.sheet.list().points), palettes({7, 9, 12, 7, 12, 7, 8, 12}));
  EXPECT_EQ(inks(dial.sheet.list().lines), palettes({2, 1, 4, 13, 11}));
}

TEST(ParabolicCylinder, TheSouthAndWallsBeyondSeventyDegreesAreRefused) {
  for (const auto& [field, text, refused] :
       {std::tuple{Field::txtLAT, "-0.1", true}, std::tuple{Field::txtDecl, "70.1", true},
        std::tuple{Field::txtDecl, "-70.1", true}, std::tuple{Field::txtDecl, "90", true},
        std::tuple{Field::txtDecl, "70", false}, std::tuple{Field::txtDecl, "-70", false}}) {
    Dial dial;
    dial.set(field, text).run();
    EXPECT_EQ(dial.refused, refused) << text;
    EXPECT_EQ(dial.entities() == 0, refused) << text;
    if (refused) {
      EXPECT_EQ(dial.messages, std::vector<std::string>{"Sorry, graph not available  "});
    }
  }
}

// At noon the ordinate has no value and keeps that of the dot before: a level row, which only a
// large sheet shows.
TEST(ParabolicCylinder, NoonsOwnDotsAreALevelRow) {
  Dial dial;
  dial.sheet.QuadranteH(15);
  dial.sheet.QuadranteL(15);
  dial.sheet.ShiftX(7.5);
  dial.sheet.ShiftY(12);
  dial.set(Field::txtLineofdeclination, "0");  // of the equator, which has no dots of its own
  const auto row = dial.dots({}, 12);
  EXPECT_EQ(row.size(), 250u);
  for (const sky::Spot spot : row) EXPECT_EQ(spot.y, row[0].y);
}

TEST(ParabolicCylinder, TakesAnyInput) {
  expectBounded(Item::M_Parabolico, QuadranteParabolico, {Field::Ck_Section},
                {Field::txtLAT, Field::txtDecl, Field::TxtRadius, Field::TxtStilo, Field::TxtHour,
                 Field::txt_Definition, Field::TxtFuso, Field::txtLineofdeclination});
}

}  // namespace
}  // namespace dialwright
