// Tests of program 35: the cornice dial in a cylinder.
#include "dials/cornice/cornice_cilindrica.hpp"

#include "border_model.hpp"

namespace dialwright {
namespace {

class Cylinder : public DialCase {
 public:
  Cylinder(double latitude, double border, std::initializer_list<Field> boxes = {})
      : DialCase(Item::mnuCorncil, DisegnaCorniceCilindrica), border_{latitude, border} {
    clearBoxes();
    for (const Field box : boxes) panel.setState(box, true);
    set(Field::txtLAT, textOf(latitude)).set(Field::txt_R2, textOf(border));
  }

  // The spot of the cylinder; half a turn away, on the southern half, where only that is a shadow.
  sky::Vec roll(sky::Spot at, double turn = 0) const {
    const double angle = at.x / 0.5 + turn;
    return {0.5 * std::sin(angle), 0.5 * std::cos(angle), at.y};
  }

  const Border border_;
};

TEST(CylindricalCornice, HourAndDayLinesAreGrazingLight) {
  for (const double latitude : {45.7438, 62.0, 30.0}) {
    for (const double border : {0.5, 0.4}) {
      SCOPED_TRACE(testing::Message() << latitude << " " << border);
      Cylinder dial(latitude, border, {Field::Ck_DayLightCurves});
      dial.set(Field::txtLineofdeclination, "-7.5").run();
      const auto place = [&](sky::Spot at) { return dial.roll(at); };
      const auto expect = [&](const char* layer, auto nominal, std::size_t least) {
        const Found found = examine(dial.linesOf(layer), dial.border_, place, nominal);
        EXPECT_LT(found.worst, 2e-9) << layer;
        EXPECT_GT(found.lines, least) << layer;
        return found.hours;
      };
      const auto after = expect("ore", wholeHours(0.1), 1000);
      const auto before = expect("ore2", wholeHours(0.01), 10000);
      EXPECT_GE(*after.begin(), 0);
      EXPECT_LE(*before.rbegin(), 0);
      expect("diurna", oneDay(-7.5), 5000);
      expect("diurne", oneDay(-7.5), 5000);
    }
  }
}

TEST(CylindricalCornice, TheSouthernHalfIsLaidOverTheNorthernOne) {
  Cylinder dial(10, 0.3);
  dial.run();
  std::size_t folded = 0;
  const auto place = [&](sky::Spot at) { return dial.roll(at); };
  const auto opposite = [&](sky::Spot at) { return dial.roll(at, std::numbers::pi); };
  for (const LineRecord& line : dial.linesOf("ore2")) {
    if (folded > 50 || examine({line}, dial.border_, place, wholeHours(0.01)).worst < 2e-9)
      continue;
    ++folded;
    EXPECT_LT(examine({line}, dial.border_, opposite, wholeHours(0.01)).worst, 2e-9);
  }
  EXPECT_GT(folded, 50u);
}

TEST(CylindricalCornice, BordersShadowLiesOnRaysThroughTheBorder) {
  Cylinder dial(45.7438, 0.45, {Field::ckFunction});
  dial.set(Field::txtAO, "-20").set(Field::txtLineofdeclination, "12").run();
  const auto lines = dial.linesIn(palette(11));
  ASSERT_GT(lines.size(), 4000u);
  for (const LineRecord& line : lines)
    EXPECT_NEAR(dial.border_.passes(dial.roll({line.x1, -line.y1}), {-20, 12}), 0, 1e-8);
}

TEST(CylindricalCornice, WritesTheWindowAndABorderThatFitsBack) {
  Cylinder dial(45.7438, 0.7, {Field::ckFrame});
  dial.set(Field::y2txt, "-.9").run();
  EXPECT_EQ(dial.panel.text(Field::txt_R2), "0.5");
  EXPECT_EQ(dial.panel.text(Field::x1txt), "1.570796327");
  EXPECT_EQ(dial.panel.text(Field::x2txt), "-1.570796327");
  EXPECT_EQ(dial.panel.text(Field::y1txt), "0");
  EXPECT_EQ(dial.panel.text(Field::y2txt), "-.9");
  ASSERT_EQ(dial.sheet.list().boxes.size(), 1u);
  EXPECT_EQ(dial.sheet.list().boxes[0].x1, 1.570796327);
  EXPECT_EQ(dial.sheet.list().boxes[0].y2, 0.9);
}

// Noon is left out where the border lies on the cylinder. The winter solstice has no line, and
// numerals that need no sun.
TEST(CylindricalCornice, NumeralsStandAtTheirHours) {
  for (const double border : {0.5, 0.4}) {
    Cylinder dial(45.7438, border, {Field::Ck_DayLightCurves});
    expectNumerals(
        dial, dial.border_, [&](sky::Spot at) { return dial.roll(at); }, -23.445, border < 0.5);
    EXPECT_TRUE(dial.linesIn(palette(4)).empty());
  }
}

TEST(CylindricalCornice, DrawsAndTellsTheCylinder) {
  Cylinder dial(45.7438, 0.45, {Field::ckFunction});
  dial.run();
  const auto& circles = dial.sheet.list().circles;
  ASSERT_EQ(circles.size(), 4u);
  EXPECT_EQ(circles[0].radius, 0.5);
  EXPECT_EQ(circles[0].endAngle, 3.141592654);
  EXPECT_EQ(circles[1].colour, palette(14));
  EXPECT_EQ(circles[3].x, -0.5 * 3.141592654 / 2);
  EXPECT_EQ(circles[3].fill, palette(5));
  const LineRecord& lowest = dial.sheet.list().lines.back();
  EXPECT_EQ(lowest.x1, 0.5 * 3.141592654);
  EXPECT_EQ(lowest.y2, 0.2);
  EXPECT_EQ(dial.told(),
            "|CYLINDRICAL DAM DIAL |latitude 45.7438 °|maximum radius 0.5|radius of border 0.45|"
            "Cylinder developed on a flat surface |height of the cylinder 0.2|"
            "distance between the two bases 0.2|total amplitude 360 °|circumference 3.1416|"
            "useful arc 180 °|lenght of the useful arc 1.4137|"
            "Optional line of declination (red line)23.445 °|"
            "Optional shade of the border (cyan line): delta 23.445 °  H 32.5 °|");
}

}  // namespace
}  // namespace dialwright
