// Checks the Roman numerals: their strokes, their places and their turns.
#include "lettering/roman.hpp"

#include <gtest/gtest.h>

#include "lettering_support.hpp"

namespace dialwright {
namespace {

struct Hours : Slate {
  explicit Hours(int hour, int mode = 1, std::string_view size = "0.2") {
    panel.setText(Field::txtNumbersize, size);
    DisegnaNumeroRomano(run, 0, 0, params.PiGreco / 2, hour, mode);
  }
};

TEST(Roman, EachHourHasItsStrokesAndTheirColour) {
  // V has 4 strokes, X 8, a bar 2, and every numeral two caps.
  const int strokes[] = {4, 6, 8, 8, 6, 8, 10, 12, 12, 10, 12, 14};
  for (int hour = 1; hour <= 12; ++hour) {
    const Hours numeral(hour);
    EXPECT_EQ(numeral.inks(), (std::map<int, int>{{7, strokes[hour - 1]}})) << hour;
    const Bounds box = numeral.bounds();
    EXPECT_NEAR(box.top, 0.1, 1e-9) << hour;
    EXPECT_NEAR(box.bottom, -0.1, 1e-9) << hour;
    // Bars alone stand at the cell's centre.
    EXPECT_TRUE(hour > 3 || std::abs(box.left + box.right) < 1e-12) << hour;
    expectTurned(numeral, Hours(hour, 2), -90, 0, 0);
  }
}

TEST(Roman, TheSmallerSignStandsBeforeInFourAndNine) {
  for (const int hour : {4, 9}) {
    const Hours numeral(hour), alone(hour + 1);
    // The strokes of the greater sign at the same place, a bar to their left, and two caps that
    // reach over both.
    const std::vector<InkSpot> spots = numeral.spots(), greater = alone.spots();
    const std::size_t cell = greater.size() - 4;
    for (std::size_t i = 0; i < cell; ++i) EXPECT_EQ(spots[i].x, greater[i].x);
    for (std::size_t i = cell; i < cell + 4; ++i) EXPECT_LT(spots[i].x, -0.05);
    EXPECT_NEAR(spots[cell].x, spots[cell + 1].x, 1e-9);
    EXPECT_LT(spots[cell + 4].x, spots[cell + 2].x);
  }
}

TEST(Roman, TheChevronsEdgesAreParallelAndMeetOnItsAxis) {
  const Hours five(5);
  for (std::size_t i = 0; i < 4; ++i) {
    const LineRecord& line = five.lines()[i];
    EXPECT_NEAR((line.y2 - line.y1) / (line.x2 - line.x1), i % 2 == 0 ? 4 : -4, 1e-6);
  }
  EXPECT_NEAR(five.lines()[2].x2, 0, 1e-9);
}

TEST(Roman, NothingShowsOfASizeZeroOrOfAnHourThatIsNone) {
  for (const InkSpot& spot : Hours(8, 1, "0").spots()) EXPECT_EQ(std::hypot(spot.x, spot.y), 0);
  for (const int hour : {0, 13}) EXPECT_TRUE(Hours(hour).lines().empty()) << hour;
}

}  // namespace
}  // namespace dialwright
