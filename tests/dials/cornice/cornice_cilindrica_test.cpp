// Tests of program 35: the cornice dial in a cylinder, but for its shadows.
#include "dials/cornice/cornice_cilindrica.hpp"

#include <gtest/gtest.h>

#include "support/dial_case.hpp"

namespace dialwright {
namespace {

struct Cylinder : DialCase {
  Cylinder(const char* border, Field box) : DialCase(Item::mnuCorncil, DisegnaCorniceCilindrica) {
    clearBoxes();
    panel.setState(box, true);
    set(Field::txt_R2, border);
  }
};

// The day of the winter solstice has no line.
TEST(CylindricalCornice, TheWinterSolsticeIsNotDrawn) {
  Cylinder dial("0.5", Field::Ck_DayLightCurves);
  dial.set(Field::txtLineofdeclination, "-23.445").run();
  EXPECT_TRUE(dial.linesIn(palette(4)).empty());
  dial.set(Field::txtLineofdeclination, "-23.444").run();
  EXPECT_GT(dial.linesIn(palette(4)).size(), 10000u);
}

TEST(CylindricalCornice, DrawsAndTellsTheCylinder) {
  Cylinder dial("0.45", Field::ckFunction);
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
  Cylinder wide("0.7", Field::ckFrame);
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
