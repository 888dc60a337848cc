// The seven-segment digits: which bars are lit, and how large they come out.
#include "lettering/segment_digits.hpp"

#include <gtest/gtest.h>

#include "lettering_support.hpp"

namespace dialwright {
namespace {

TEST(SegmentDigits, LightTheBarsOfTheirDigit) {
  // Four strokes a bar, six the middle one.
  const int strokes[] = {24, 8, 22, 22, 18, 22, 26, 12, 30, 26};
  for (int digit = 0; digit <= 9; ++digit) {
    Slate slate;
    DisegnaCifraSegmenti(slate.run, 0, 0, digit, 0.27);
    EXPECT_EQ(slate.inks(), (std::map<int, int>{{15, strokes[digit]}})) << digit;
  }
  Slate slate;
  for (const int none : {10, -1}) DisegnaCifraSegmenti(slate.run, 0, 0, none, 0.27);
  EXPECT_TRUE(slate.lines().empty());
}

TEST(SegmentDigits, AreSlantedAndCentred) {
  Slate slate;
  DisegnaCifraSegmenti(slate.run, 1, 2, 8, 0.27);
  const Box box = slate.bounds();
  EXPECT_NEAR(box.left, 0.91, 1e-12);
  EXPECT_NEAR(box.right, 1.09, 1e-12);
  EXPECT_NEAR(box.bottom, 1.865, 1e-12);
  EXPECT_NEAR(box.top, 2.135, 1e-12);
  // The right side leans over to the right.
  Slate one;
  DisegnaCifraSegmenti(one.run, 0, 0, 1, 0.27);
  EXPECT_GT(one.lines().front().x1, one.lines().front().x2);
  EXPECT_LT(one.lines().front().y1, one.lines().front().y2);
}

}  // namespace
}  // namespace dialwright
