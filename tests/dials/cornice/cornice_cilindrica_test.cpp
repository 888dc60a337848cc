// Tests of program 35: the cornice dial in a cylinder.
#include "dials/cornice/cornice_cilindrica.hpp"

#include "border_model.hpp"

namespace dialwright {
namespace {

struct Cylinder : CorniceDial {
  Cylinder(double latitude, double radius, std::initializer_list<Field> boxes = {})
      : CorniceDial(Item::mnuCorncil, DisegnaCorniceCilindrica, {latitude, radius}, boxes) {
    set(Field::txt_R2, textOf(radius));
  }
  sky::Vec place(sky::Spot at) const override {
    const double angle = at.x / 0.5 + turn;
    return {0.5 * std::sin(angle), 0.5 * std::cos(angle), at.y};
  }
  double turn = 0;  // half a one for the southern half, where only that has the shadow
};

TEST(CylindricalCornice, HourAndDayLinesAreGrazingLight) {
  for (const double latitude : {45.7438, 62.0, 30.0}) {
    for (const double radius : {0.5, 0.4}) {
      Cylinder dial(latitude, radius, {Field::Ck_DayLightCurves});
      dial.set(Field::txtLineofdeclination, "-7.5").run();
      EXPECT_GE(*dial.expectGrazing("ore", wholeHours(0.1), 1000).begin(), 0);
      EXPECT_LE(*dial.expectGrazing("ore2", wholeHours(0.01), 10000).rbegin(), 0);
      for (const char* layer : {"diurna", "diurne"}) dial.expectGrazing(layer, oneDay(-7.5), 5000);
    }
  }
}

TEST(CylindricalCornice, TheSouthernHalfIsLaidOverTheNorthernOne) {
  Cylinder dial(10, 0.3);
  dial.run();
  std::size_t folded = 0;
  for (const LineRecord& line : dial.linesOf("ore2")) {
    dial.turn = 0;
    if (folded > 50 || dial.examine({line}, wholeHours(0.01)).worst < 2e-9) continue;
    ++folded;
    dial.turn = std::numbers::pi;
    EXPECT_LT(dial.examine({line}, wholeHours(0.01)).worst, 2e-9);
  }
  EXPECT_GT(folded, 50u);
}

TEST(CylindricalCornice, BordersShadowLiesOnRaysThroughTheBorder) {
  Cylinder dial(45.7438, 0.45, {Field::ckFunction});
  dial.set(Field::txtAO, "-20").set(Field::txtLineofdeclination, "12").run();
  const auto lines = dial.linesIn(palette(11));
  ASSERT_GT(lines.size(), 4000u);
  for (const LineRecord& line : lines) dial.expectShadow(line.x1, line.y1, {-20, 12});
}

// Noon is left out where the border lies on the cylinder. The winter solstice has no line, and
// numerals that need no sun.
TEST(CylindricalCornice, NumeralsStandAtTheirHours) {
  for (const double radius : {0.5, 0.4}) {
    Cylinder dial(45.7438, radius, {Field::Ck_DayLightCurves});
    dial.expectNumerals(-23.445, radius < 0.5);
    EXPECT_TRUE(dial.linesIn(palette(4)).empty());
  }
}

TEST(CylindricalCornice, DrawsAndTellsTheCylinder) {
  Cylinder dial(45.7438, 0.45, {Field::ckFunction});
  dial.run();
  const auto& circles = dial.sheet.list().circles;
  ASSERT_EQ(circles.size(), 4u);
  EXPECT_EQ(circles[0].endAngle, 3.141592654);
  EXPECT_EQ(circles[3].x, -0.5 * 3.141592654 / 2);
  EXPECT_EQ(dial.sheet.list().lines.back().x1, 0.5 * 3.141592654);
  EXPECT_EQ(dial.told(),
            "|CYLINDRICAL DAM DIAL |latitude 45.7438 °|maximum radius 0.5|radius of border 0.45|"
            "Cylinder developed on a flat surface |height of the cylinder 0.2|"
            "distance between the two bases 0.2|total amplitude 360 °|circumference 3.1416|"
            "useful arc 180 °|lenght of the useful arc 1.4137|"
            "Optional line of declination (red line)23.445 °|"
            "Optional shade of the border (cyan line): delta 23.445 °  H 32.5 °|");

  // The window and a border that fits are written back.
  Cylinder wide(45.7438, 0.7, {Field::ckFrame});
  wide.set(Field::y2txt, "-.9").run();
  EXPECT_EQ(wide.panel.text(Field::txt_R2), "0.5");
  EXPECT_EQ(wide.panel.text(Field::x1txt), "1.570796327");
  EXPECT_EQ(wide.panel.text(Field::x2txt), "-1.570796327");
  EXPECT_EQ(wide.panel.text(Field::y1txt), "0");
  EXPECT_EQ(wide.sheet.list().boxes.at(0).x1, 1.570796327);
  EXPECT_EQ(wide.sheet.list().boxes.at(0).y2, 0.9);
}

}  // namespace
}  // namespace dialwright
