// Tests of program 12: the cylinder of circular cross-section by spherical trigonometry.
#include "dials/cylindrical/sferico.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

#include "dials/cylindrical/wall_case.hpp"
#include "support/odd_input.hpp"
#include "support/sky.hpp"

namespace dialwright {
namespace {

using sky::rad;
using std::numbers::pi;

class Cylinder : public WallCase {
 public:
  explicit Cylinder(const TestWall& wall = {})
      : WallCase(Item::mnuCCs, QuadranteCilindricoSferico, wall) {}

  // The lines of the checked families alone: without the frame, which a bare run draws.
  std::vector<LineRecord> curves(std::initializer_list<Field> fields,
                                 std::string_view layer = "0") {
    boxes(fields);
    // A window that holds nothing keeps the free line away.
    set(Field::x1txt, "0").set(Field::x2txt, "0").run();
    std::vector<LineRecord> lines = linesOf(layer);
    std::erase_if(lines, [](const LineRecord& l) {
      return l.x1 == l.x2 && (l.y1 == -l.y2 || 2 * l.y1 == -l.y2);  // a generator
    });
    return lines;
  }
};

TEST(CylindricalDial, TheSectionIsThePlanToScale) {
  for (const TestWall& wall : kTestWalls) {
    if (wall.declination == 0) continue;  // no slice
    SCOPED_TRACE(wall.declination);
    Cylinder dial(wall);
    dial.curves({Field::Ck_Section});
    const auto style = dial.linesIn(palette(13)), ray = dial.linesOf("PS");
    ASSERT_EQ(style.size() * ray.size(), 1u);
    const auto& circles = dial.sheet.list().circles;  // the foot's, the slice, the section
    ASSERT_EQ(circles.size(), 3u);
    const CircleRecord &slice = circles[1], &section = circles[2];
    const sky::Spot centre{section.x, section.y};
    const sky::Spot foot{style[0].x1, style[0].y1}, tip{style[0].x2, style[0].y2};
    EXPECT_NEAR(section.radius, wall.radius, 1e-12);
    EXPECT_EQ(foot.x, 0);
    EXPECT_NEAR(sky::distance(foot, centre), wall.radius, 1e-12);
    EXPECT_NEAR(sky::distance(foot, tip), wall.style, 1e-12);
    EXPECT_NEAR(sky::distance(centre, tip), wall.radius + (wall.convex ? 1 : -1) * wall.style,
                1e-12);
    // The meridian through the tip ends on the circle, in N.
    EXPECT_EQ(ray[0].x1, ray[0].x2);
    EXPECT_NEAR(sky::distance({ray[0].x2, ray[0].y2}, centre), wall.radius, 1e-12);
    // The slice spans the declination, from the meridian to the foot.
    const double from = -slice.startAngle, to = -slice.endAngle;
    EXPECT_NEAR(std::remainder(to - from, 2 * pi), rad(std::abs(wall.declination)), 1e-8);
    const double toFoot = std::atan2(-(foot.y - centre.y), foot.x - centre.x);
    EXPECT_NEAR(std::sin(from - toFoot) * std::sin(to - toFoot), 0, 1e-8) << "an end is the foot";
  }
}

// --- What a run draws, and in which order

TEST(CylindricalDial, ADefaultRunDrawsItsFamiliesInOrder) {
  DialCase dial(Item::mnuCCs, QuadranteCilindricoSferico);
  dial.run();
  EXPECT_TRUE(dial.messages.empty());
  EXPECT_EQ(dial.sheet.caption(),
            "Cylindrical sundial of circular cross-section : Spherical trigonometric method");
  std::vector<Rgb> expected = palettes({15, 7, 12, 7, 12, 13, 11, 12, 13, 11, 9, 0, 12});
  expected[11] = rgb(255, 127, 39);
  EXPECT_EQ(inks(dial.sheet.list().lines), expected);
  ASSERT_EQ(dial.sheet.list().circles.size(), 1u);
  EXPECT_EQ(dial.sheet.list().circles[0].fill, palette(12));
  EXPECT_EQ(dial.pointsIn(palette(12)).size(), 1u);
}

TEST(CylindricalDial, LinesRunBackToThePointBeforeAndEndAtTheTangentGenerators) {
  Cylinder dial;
  const auto lines = dial.curves({Field::chkOreAstronomiche});
  const double edge = 0.4 * std::acos(0.4 / 0.6);
  EXPECT_NEAR(dial.params.ArcoLimite, edge, 1e-9);
  std::size_t joined = 0;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    joined += lines[i].x2 == lines[i - 1].x1 && lines[i].y2 == lines[i - 1].y1;
    EXPECT_LT(std::hypot(lines[i].x1 - lines[i].x2, lines[i].y1 - lines[i].y2), 0.01);
    EXPECT_LT(std::abs(lines[i].x1), edge);
  }
  EXPECT_GT(joined, lines.size() * 9 / 10);
}

TEST(CylindricalDial, TheFreeLineKeepsToTheWindowAndGivesWayToNumerals) {
  Cylinder dial;
  dial.set(Field::txtLineofdeclination, "5.5").set(Field::x1txt, "-.1").set(Field::y1txt, "-.1");
  dial.run();
  const auto lines = dial.linesOf("5.5");
  ASSERT_GT(lines.size(), 50u);
  for (const LineRecord& line : lines) {
    EXPECT_EQ(line.colour, rgb(255, 127, 39));
    EXPECT_GT(line.x1, -0.1);
    EXPECT_LT(-line.y1, -0.1);
  }
  dial.sheet.Clear();
  dial.check(Field::ckArabi).run();
  EXPECT_TRUE(dial.linesOf("5.5").empty());
}

TEST(CylindricalDial, TheLegendTellsTheTriangle) {
  Cylinder dial;
  dial.curves({Field::Ck_Section, Field::chkOreAstronomiche});
  EXPECT_EQ(dial.told(),
            "O|x|y|  G||O general origin of coordinates = G ||T R I A N G L E |"
            "Style: hypotenuse 0.30131|Perpendicular style0.2|radius 0.4|small radius  0.02|"
            "N is a point of the generator on the noon line (cyan)|"
            "C centre of the section: origin of coordinates |"
            "N Coordinates on the section 0.15093 -0.37043|"
            "M(white) is the generator aligned with the center of the cylinder|"
            "Arc between the foot G e M |Arc GM = r*d -0.10172|"
            "Arc between the generators N and M 0.15477|G coincides with O |"
            "x1 0|x2 0|y1 0.2|y2 -1||North|d| C | G |");
}

// --- Input that can't be drawn

TEST(CylindricalDial, ASouthernLatitudeIsRefused) {
  Cylinder dial;
  dial.set(Field::txtLAT, "-0.1").run();
  EXPECT_TRUE(dial.refused);
  EXPECT_EQ(dial.messages,
            std::vector<std::string>{"Sorry, unable to work in the Southern hemisphere "});
  EXPECT_EQ(dial.entities(), 0u);
}

TEST(CylindricalDial, OddInputEndsWithoutFaultsInTheDrawing) {
  for (const Field side : {Field::OptConvex, Field::Optconcave}) {
    expectBounded(Item::mnuCCs, QuadranteCilindricoSferico,
                  {side, Field::ck_Lemniscate, Field::ck_Sustilare, Field::ck_Triangolo,
                   Field::ck_Italiche, Field::ckTemp, Field::Ck_Section, Field::ck_Etna},
                  {Field::txtLAT, Field::txtDecl, Field::TxtRadius, Field::TxtStilo, Field::TxtHour,
                   Field::TxtFuso, Field::txtLON, Field::txtLineofdeclination});
  }
}

}  // namespace
}  // namespace dialwright
