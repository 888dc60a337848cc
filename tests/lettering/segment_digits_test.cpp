// The seven-segment digits: which bars are lit, and how large they come out.
#include "lettering/segment_digits.hpp"

#include <gtest/gtest.h>

#include "lettering_support.hpp"

namespace dialwright {
namespace {

struct Segments : Slate {
  explicit Segments(int digit) { DisegnaCifraSegmenti(run, 1, 2, digit, 0.27); }
};

TEST(SegmentDigits, LightTheBarsOfTheirDigit) {
  // Four strokes a bar, six the middle one.
  const int strokes[] = {24, 8, 22, 22, 18, 22, 26, 12, 30, 26};
  for (int digit = 0; digit <= 9; ++digit)
    EXPECT_EQ(Segments(digit).inks(), (std::map<int, int>{{15, strokes[digit]}})) << digit;
  for (const int none : {10, -1}) EXPECT_TRUE(Segments(none).lines().empty());
}

TEST(SegmentDigits, AreSlantedAndCentred) {
  const Bounds box = Segments(8).bounds();
  EXPECT_NEAR(box.top, 2.135, 1e-12);
  EXPECT_NEAR(box.left, 0.91, 1e-12);
  EXPECT_NEAR(box.right, 1.09, 1e-12);
  // The right side leans over to the right.
  const LineRecord side = Segments(1).lines().front();
  EXPECT_GT((side.x1 - side.x2) * (side.y2 - side.y1), 0);
}

}  // namespace
}  // namespace dialwright
