// Checks the Arabic numerals: their frame, the 3 stroke by stroke, and what holds for every digit.
#include "lettering/arabic.hpp"

#include <gtest/gtest.h>

#include <numbers>
#include <set>
#include <utility>

#include "lettering_support.hpp"

namespace dialwright {
namespace {

// Metres of a design grid's unit for the size 0.3.
constexpr double kUnit = 0.001;

struct Digits : Slate {
  Digits() { panel.setText(Field::txtArabi, "0.3"); }
};

void drawDigit(Run& run, int digit) {
  if (digit == 0)
    DisegnaCifraBase(run, 0, 0, run.params.PiGreco / 2, 0, 2);
  else
    DisegnaNumeroArabo(run, 0, 0, 90, digit, 1);
}

TEST(Arabic, TheThreeIsOfSixArcsInTheirColours) {
  Digits slate;
  DisegnaNumeroArabo(slate.run, 0, 0, 90, 3, 1);
  ASSERT_EQ(slate.lines().size(), 48u);
  const int inks[] = {10, 12, 12, 10, 15, 3};
  for (std::size_t i = 0; i < 48; ++i) {
    EXPECT_EQ(slate.lines()[i].colour, palette(inks[i / 8])) << i;
    if (i % 8 == 0) continue;
    EXPECT_NEAR(slate.lines()[i].x1, slate.lines()[i - 1].x2, 1e-12);
    EXPECT_NEAR(slate.lines()[i].y1, slate.lines()[i - 1].y2, 1e-12);
  }
  // The first arc runs from its second angle, 63 units from (-18, 73.5), clockwise.
  const double angle = (90 - 36.32632) * std::numbers::pi / 180;
  EXPECT_NEAR(slate.lines()[0].x1, (-18 - 63 * std::sin(angle)) * kUnit, 1e-9);
  EXPECT_NEAR(-slate.lines()[0].y1, (73.5 + 63 * std::cos(angle)) * kUnit, 1e-9);
  EXPECT_LT(slate.lines()[0].x1, slate.lines()[0].x2);
}

double distanceTo(const LineRecord& line, double x, double y) {
  const double dx = line.x2 - line.x1, dy = line.y2 - line.y1;
  const double length = dx * dx + dy * dy;
  const double t =
      length == 0 ? 0 : std::clamp(((x - line.x1) * dx + (y - line.y1) * dy) / length, 0.0, 1.0);
  return std::hypot(line.x1 + t * dx - x, line.y1 + t * dy - y);
}

// Every end of a stroke lies on another stroke: an outline that a chisel can follow.
TEST(Arabic, EveryDigitIsAClosedOutlineInItsFrameOfItsOwn) {
  std::set<std::pair<std::size_t, double>> seen;
  for (int digit = 0; digit <= 9; ++digit) {
    Digits slate;
    drawDigit(slate.run, digit);
    const auto& lines = slate.lines();
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const double ends[][2] = {{lines[i].x1, lines[i].y1}, {lines[i].x2, lines[i].y2}};
      for (const auto& [x, y] : ends) {
        double nearest = 1;
        for (std::size_t j = 0; j < lines.size(); ++j) {
          if (j != i) nearest = std::min(nearest, distanceTo(lines[j], x, y));
        }
        EXPECT_LT(nearest, 2 * kUnit) << "digit " << digit << ", stroke " << i;
      }
    }
    const Box box = slate.bounds();
    EXPECT_NEAR(box.top, 150 * kUnit, 2.5 * kUnit) << digit;
    EXPECT_NEAR(box.bottom, -150 * kUnit, 2.5 * kUnit) << digit;
    EXPECT_GT(box.left, -95 * kUnit) << digit;
    EXPECT_LT(box.right, 95 * kUnit) << digit;
    EXPECT_TRUE(seen.emplace(lines.size(), lines[0].x1).second) << digit << " is like another";
  }
  Digits unknown;
  DisegnaCifraBase(unknown.run, 0, 0, unknown.params.PiGreco / 2, 7, 2);
  EXPECT_EQ(unknown.inks(), (std::map<int, int>{{11, 18}, {14, 5}, {15, 2}})) << "the stem";
}

TEST(Arabic, TheDigitsOfTwelveStandAtEqualDistances) {
  Digits pair, alone;
  DisegnaNumeroArabo(pair.run, 0, 0, 90, 12, 2);
  DisegnaNumeroArabo(alone.run, -110 * kUnit, 0, 90, 1, 1);
  DisegnaNumeroArabo(alone.run, 110 * kUnit, 0, 90, 2, 1);
  expectTurned(alone, pair, 0, 0, 0);
}

TEST(Arabic, RotationIsRigid) {
  for (int number = 1; number <= 12; ++number) {
    Digits upright, turned;
    DisegnaNumeroArabo(upright.run, 0, 0, 90, number, number < 10 ? 1 : 2);
    DisegnaNumeroArabo(turned.run, 1, 2, 90 + 37, number, number < 10 ? 1 : 2);
    expectTurned(upright, turned, 37 * std::numbers::pi / 180, 1, 2);
  }
}

TEST(Arabic, AZeroSizeDrawsNothingVisibleAndAHugeOneNothingAtAll) {
  Slate slate, huge;
  slate.panel.setText(Field::txtArabi, "0");
  DisegnaNumeroArabo(slate.run, 0.1, 0.2, 90, 8, 1);
  EXPECT_FALSE(slate.lines().empty() || slate.hasLength());
  huge.panel.setText(Field::txtArabi, "1E308");
  DisegnaNumeroArabo(huge.run, 1e308, 1e308, 90, 12, 2);
  for (const LineRecord& line : huge.lines()) EXPECT_TRUE(std::isfinite(line.x1 + line.y2));
}

}  // namespace
}  // namespace dialwright
