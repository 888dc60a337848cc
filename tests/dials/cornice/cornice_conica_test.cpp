// Tests of program 36: the cornice dial in a cone, but for its shadows.
#include "dials/cornice/cornice_conica.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "support/dial_case.hpp"

namespace dialwright {
namespace {

using std::numbers::pi;

class Cone : public DialCase {
 public:
  explicit Cone(std::initializer_list<Field> boxes = {})
      : DialCase(Item::mnuCorncon, DisegnaCorniceConica) {
    clearBoxes();
    for (const Field box : boxes) panel.setState(box, true);
  }
  // The radius and the angle round the cone, from the North over the East, of a spot of the sheet.
  void expectOn(double x, double sheetY, double radius, double round, double tolerance) const {
    const double sine = std::sin(std::atan((0.5 - 0.3) / 0.8)), up = -sheetY + 0.5 / sine;
    EXPECT_NEAR(std::hypot(x, up) * sine, radius, 1e-9);
    EXPECT_NEAR(std::atan2(x, up) / sine, round, tolerance);
  }
};

TEST(ConicalCornice, TheBordersShadowNeedsItsBox) {
  Cone dial;
  dial.run();
  for (const char* layer : {"ombra2", "ombra", "xombra"})
    EXPECT_TRUE(dial.linesOf(layer).empty()) << layer;
}

TEST(ConicalCornice, OutlineIsTheConesDevelopment) {
  Cone dial;
  dial.run();
  for (const auto& [layer, radius] : {std::pair{"basealta", 0.5}, {"basebassa", 0.3}}) {
    const auto lines = dial.linesOf(layer);
    ASSERT_GT(lines.size(), 1000u);
    const LineRecord &first = lines.front(), &last = lines.back();
    const double side = first.x2 < 0 ? -pi : pi;
    dial.expectOn(first.x2, first.y2, radius, side, 0.005);
    dial.expectOn(last.x1, last.y1, radius, -side, 0.005);
  }
  const auto& lines = dial.sheet.list().lines;
  ASSERT_GE(lines.size(), 4u);
  for (std::size_t i = 0; i < 4; ++i) {  // radial lines from base to base
    const LineRecord& line = lines.end()[static_cast<std::ptrdiff_t>(i) - 4];
    const double round = (i % 2 == 0 ? 1 : -1) * (i < 2 ? pi : pi / 2);
    dial.expectOn(line.x1, line.y1, 0.5, round, 1e-8);
    dial.expectOn(line.x2, line.y2, 0.3, round, 1e-8);
  }
}

TEST(ConicalCornice, TellsTheConeAndEndsWithoutAVertex) {
  Cone dial;
  dial.run();
  EXPECT_EQ(dial.sheet.caption(), "Dam or cornice dial by vectors");
  EXPECT_EQ(dial.told(),
            "|CONICAL DAM DIAL |latitude 45.7438 °|maximum radius 0.5|upper radius 0.45|"
            "lower radius  0.3|theoretical height of the cone 2|height of the truncated cone 0.8|"
            "lenght of the truncated element 0.8246|distance between the two bases 0.8|"
            "semiangle at vertex 14.0362 °|inclination of the element 75.9638 °|"
            "lenght of the element 2.0616|Conical surface developed on a plane |"
            "Total amplitude 87.3128 °|useful arc 43.6564 °|long radius 2.0616|"
            "Optional line of declination (red line)23.445 °|");
  ASSERT_EQ(dial.sheet.list().circles.size(), 9u);
  EXPECT_EQ(dial.sheet.list().circles[1].startAngle, -dial.params.DeclRad);

  Cone straight({Field::Ck_DayLightCurves, Field::ckFunction, Field::ckArabi});
  straight.set(Field::TxtStilo, "0.5");
  straight.run();
  EXPECT_EQ(straight.inks(), "");
  EXPECT_FALSE(straight.sheet.list().lines.empty());  // the numerals, on the origin
  for (const LineRecord& stroke : straight.sheet.list().lines)
    EXPECT_LT(std::hypot(stroke.x1, stroke.y1), 0.1);
  EXPECT_EQ(straight.sheet.list().circles.size(), 4u);
  EXPECT_NE(straight.told().find("semiangle at vertex 0 °|inclination of the element 90 °|Conical"),
            std::string::npos);
}

}  // namespace
}  // namespace dialwright
