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
    // The strokes of the greater sign at the same place, then a bar to their left; two caps.
    const std::vector<InkSpot> spots = Hours(hour).spots(), greater = Hours(hour + 1).spots();
    const std::size_t cell = greater.size() - 4;
    for (std::size_t i = 0; i < cell; ++i) EXPECT_EQ(spots[i].x, greater[i].x);
    for (std::size_t i = cell; i < cell + 4; ++i) EXPECT_LT(spots[i].x, -0.05);
    EXPECT_LT(spots[cell + 4].x, spots[cell + 2].x) << "the caps reach over both";
  }
}

TEST(Roman, NothingShowsOfASizeZeroOrOfAnHourThatIsNone) {
  for (const InkSpot& spot : Hours(8, 1, "0").spots()) EXPECT_EQ(std::hypot(spot.x, spot.y), 0);
  for (const int hour : {0, 13}) EXPECT_TRUE(Hours(hour).lines().empty()) << hour;
}

}  // namespace
}  // namespace dialwright
