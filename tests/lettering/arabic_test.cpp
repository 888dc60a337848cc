// Checks the Arabic numerals: what holds for every digit, their frame and their turns.
#include "lettering/arabic.hpp"

#include <gtest/gtest.h>

#include "lettering_support.hpp"

namespace dialwright {
namespace {

// Metres of a design grid's unit for the size 0.3.
constexpr double kUnit = 0.001;

struct Digits : Slate {
  Digits() { panel.setText(Field::txtArabi, "0.3"); }
  explicit Digits(int number, double x = 0, double y = 0, double degrees = 90) : Digits() {
    DisegnaNumeroArabo(run, x, y, degrees, number, number < 10 ? 1 : 2);
  }
};

double distanceTo(const LineRecord& line, const InkSpot& p) {
  const double dx = line.x2 - line.x1, dy = line.y1 - line.y2;
  const double length = dx * dx + dy * dy;
  const double part = length == 0 ? 0 : ((p.x - line.x1) * dx + (p.y + line.y1) * dy) / length;
  const double t = std::clamp(part, 0.0, 1.0);
  return std::hypot(line.x1 + t * dx - p.x, t * dy - line.y1 - p.y);
}

// Every end of a stroke lies on another stroke: an outline that a chisel can follow.
TEST(Arabic, EveryDigitIsAClosedOutlineInItsFrame) {
  for (int digit = 0; digit <= 9; ++digit) {
    SCOPED_TRACE(digit);
    Digits slate;
    if (digit == 0)
      DisegnaCifraBase(slate.run, 0, 0, slate.params.PiGreco / 2, 0, 2);
    else
      DisegnaNumeroArabo(slate.run, 0, 0, 90, digit, 1);
    const std::vector<InkSpot> ends = slate.spots();
    for (std::size_t i = 0; i < ends.size(); ++i) {
      double nearest = 1;
      for (std::size_t j = 0; j < slate.lines().size(); ++j) {
        if (j != i / 2) nearest = std::min(nearest, distanceTo(slate.lines()[j], ends[i]));
      }
      EXPECT_LT(nearest, 2 * kUnit) << "stroke " << i / 2;
    }
    const Bounds box = slate.bounds();
    EXPECT_NEAR(box.top, 150 * kUnit, 2.5 * kUnit);
    EXPECT_NEAR(box.bottom, -150 * kUnit, 2.5 * kUnit);
    EXPECT_GT(box.left, -95 * kUnit);
    EXPECT_LT(box.right, 95 * kUnit);
  }
}

TEST(Arabic, DigitsKeepTheirColoursAndUnknownOnesAreDrawnAsOne) {
  EXPECT_EQ(Digits(3).inks(), (std::map<int, int>{{10, 16}, {12, 16}, {15, 8}, {3, 8}}));
  Digits unknown;
  DisegnaCifraBase(unknown.run, 0, 0, unknown.params.PiGreco / 2, 7, 2);
  EXPECT_EQ(unknown.inks(), (std::map<int, int>{{11, 18}, {14, 5}, {15, 2}}));
}

TEST(Arabic, TheDigitsOfTwelveStandAtEqualDistances) {
  Digits alone(1, -110 * kUnit);
  DisegnaNumeroArabo(alone.run, 110 * kUnit, 0, 90, 2, 1);
  expectTurned(alone, Digits(12), 0, 0, 0);
}

TEST(Arabic, RotationIsRigid) {
  for (int number = 1; number <= 12; ++number)
    expectTurned(Digits(number), Digits(number, 1, 2, 90 + 37), 37, 1, 2);
}

}  // namespace
}  // namespace dialwright
