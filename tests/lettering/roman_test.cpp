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
  const std::size_t strokes[] = {4, 6, 8, 8, 6, 8, 10, 12, 12, 10, 12, 14};
  for (int hour = 1; hour <= 12; ++hour) {
    const Hours numeral(hour);
    EXPECT_EQ(numeral.lines().size(), strokes[hour - 1]) << hour;
    EXPECT_EQ(numeral.inks().at(7), static_cast<int>(strokes[hour - 1])) << hour;
    const Box box = numeral.bounds();
    EXPECT_NEAR(box.top, 0.1, 1e-9) << hour;
    EXPECT_NEAR(box.bottom, -0.1, 1e-9) << hour;
  }
}

TEST(Roman, BarsAloneStandAtTheCellsCentre) {
  double width = 0;
  for (int hour = 1; hour <= 3; ++hour) {
    const Box box = Hours(hour).bounds();
    EXPECT_NEAR(box.left, -box.right, 1e-12) << hour;
    EXPECT_GT(box.right - box.left, width);
    width = box.right - box.left;
  }
}

TEST(Roman, TheSmallerSignStandsBeforeInFourAndNine) {
  for (const int hour : {4, 9}) {
    const Hours numeral(hour);
    const Hours alone(hour + 1);
    // The cell's strokes are those of the greater sign, at the same place; the bar is to their
    // left.
    const std::size_t cell = alone.lines().size() - 2;
    for (std::size_t i = 0; i < cell; ++i) EXPECT_EQ(numeral.lines()[i].x1, alone.lines()[i].x1);
    for (std::size_t i = cell; i < cell + 2; ++i) {
      EXPECT_LT(numeral.lines()[i].x1, -0.05);
      EXPECT_NEAR(numeral.lines()[i].x1, numeral.lines()[i].x2, 1e-9);
    }
    // Both caps reach over bar and cell alike.
    const LineRecord& top = numeral.lines()[cell + 2];
    const LineRecord& bottom = numeral.lines()[cell + 3];
    EXPECT_NEAR(top.x1, bottom.x1, 1e-9);
    EXPECT_NEAR(top.x2, bottom.x2, 1e-9);
    EXPECT_LT(top.x1, numeral.lines()[cell + 1].x1);
  }
}

TEST(Roman, TheChevronsEdgesAreParallelAndMeetOnItsAxis) {
  const Hours five(5);
  const auto slope = [&](std::size_t i) {
    const LineRecord& line = five.lines()[i];
    return (line.y2 - line.y1) / (line.x2 - line.x1);
  };
  EXPECT_NEAR(slope(0), 4, 1e-6);
  EXPECT_NEAR(slope(1), -4, 1e-6);
  EXPECT_NEAR(slope(2), slope(0), 1e-6);
  EXPECT_NEAR(slope(3), slope(1), 1e-6);
  EXPECT_NEAR(five.lines()[2].x2, 0, 1e-9);
}

TEST(Roman, ModeTwoIsAQuarterTurnClockwise) {
  for (int hour = 1; hour <= 12; ++hour) {
    const Hours upright(hour), turned(hour, 2);
    ASSERT_EQ(turned.lines().size(), upright.lines().size());
    for (std::size_t i = 0; i < upright.lines().size(); ++i) {
      EXPECT_NEAR(turned.lines()[i].x1, -upright.lines()[i].y1, 1e-8) << hour;
      EXPECT_NEAR(turned.lines()[i].y1, upright.lines()[i].x1, 1e-8) << hour;
    }
  }
}

TEST(Roman, NothingShowsOfASizeZeroOrOfAnHourThatIsNone) {
  const Hours small(8, 1, "0");
  for (const LineRecord& line : small.lines()) {
    EXPECT_EQ(line.x1, line.x2);
    EXPECT_EQ(line.y1, line.y2);
  }
  EXPECT_TRUE(Hours(0).lines().empty());
  EXPECT_TRUE(Hours(13).lines().empty());
}

}  // namespace
}  // namespace dialwright
