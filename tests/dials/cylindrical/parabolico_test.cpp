// Tests of program 10: the cylinder of parabolic cross-section.
#include "dials/cylindrical/parabolico.hpp"

#include <gtest/gtest.h>

#include <numbers>

#include "dials/cylindrical/wall_case.hpp"
#include "support/odd_input.hpp"
#include "support/sky.hpp"

namespace dialwright {
namespace {

using sky::rad;

struct Dial : WallCase {
  explicit Dial(const TestWall& wall = {})
      : WallCase(Item::M_Parabolico, QuadranteParabolico, wall) {}
};

TEST(ParabolicCylinder, TheSectionIsThePlanToScale) {
  for (const TestWall& wall : kTestWalls) {
    SCOPED_TRACE(wall.declination);
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

// The length along the section is odd in its parameter.
TEST(ParabolicCylinder, ANegativeParameterUnrollsTheOtherWay) {
  const auto equinoctial = [](const char* parameter) {
    Dial dial;
    dial.set(Field::txtDecl, "0").set(Field::TxtRadius, parameter).run();
    return dial.pointsIn(palette(9));
  };
  const auto plain = equinoctial("2"), mirrored = equinoctial("-2");
  ASSERT_GT(plain.size(), 100u);
  ASSERT_EQ(mirrored.size(), plain.size());
  for (std::size_t i = 0; i < plain.size(); ++i) ASSERT_NEAR(mirrored[i].x, -plain[i].x, 1e-12);
}

TEST(ParabolicCylinder, TakesAnyInput) {
  expectBounded(Item::M_Parabolico, QuadranteParabolico, {Field::Ck_Section},
                {Field::txtLAT, Field::txtDecl, Field::TxtRadius, Field::TxtStilo, Field::TxtHour,
                 Field::txt_Definition, Field::TxtFuso, Field::txtLineofdeclination});
}

}  // namespace
}  // namespace dialwright
