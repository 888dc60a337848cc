// The sheet's primitives: what they keep, and what reaches the target.
#include "sheet/sheet_plot.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/laid_out.hpp"
#include "support/recording_target.hpp"

namespace dialwright {
namespace {

constexpr double kTwips = 56700;  // a metre at 1:1

// A sheet of 0.4 x 0.3 m, its origin in the middle, at 1:1.
class SheetPlotTest : public testing::Test {
 protected:
  SheetPlotTest() { sheet.attach(&screen); }

  SheetPlot sheet = laidOut(0.4, 0.3, 0.2, 0.15);
  RecordingTarget screen;
};

TEST_F(SheetPlotTest, AnInvertedAxisMirrorsTheDrawingButNotTheRecordsAxesAndTexts) {
  sheet.invertX();
  sheet.xLine(0.05, -0.05, 0.1, 0, kWhite, {.width = 3});
  sheet.xLine(0.05, 0, 0.1, 0, kWhite, {.layer = sheet.layer("AssiXY")});
  sheet.xCircle(0.05, 0, 0.01, kWhite, {.startAngle = 0.5, .endAngle = 1});
  sheet.Dati("here", 0.05, 0);
  EXPECT_NEAR(screen.lines.at(0).x1, 0.15 * kTwips, 1e-9);
  EXPECT_NEAR(screen.lines.at(0).y1, 0.1 * kTwips, 1e-9);
  EXPECT_EQ(screen.lines[0].width, 1) << "widths show on paper only";
  EXPECT_NEAR(screen.lines.at(1).x1, 0.25 * kTwips, 1e-9);
  EXPECT_NEAR(screen.circles.at(0).x, 0.15 * kTwips, 1e-9);
  EXPECT_EQ(screen.circles.at(0).startAngle, 0.5) << "an arc's angles stay";
  EXPECT_NEAR(screen.texts.at(0).x, 0.25 * kTwips, 1e-9);
  EXPECT_EQ(sheet.list().lines.at(0).x1, 0.05);
}

TEST_F(SheetPlotTest, APointCountsOnTheLeftAndTopEdgeOnly) {
  const double none = std::nan("");
  for (const double x : {-0.2, sheet.xMax(), none}) sheet.xPset(x, 0, kWhite);
  for (const double y : {-0.15, sheet.yMax(), 7.0}) sheet.xPset(0, y, kWhite);
  EXPECT_EQ(screen.points.size(), 2u);
  EXPECT_EQ(sheet.list().points.size(), 2u) << "a point off the sheet isn't stored either";
}

TEST_F(SheetPlotTest, LinesAreCutAtTheEdges) {
  const std::pair<Segment, Segment> kCases[] = {
      {{-0.1, -0.1, 0.1, 0.1}, {-0.1, -0.1, 0.1, 0.1}},  // inside
      {{0, 0.3, 0, 0}, {0, 0, 0, 0.15}},                 // the first: from the inner end
      {{0.1, 0.1, 0.3, 0.3}, {0.1, 0.1, 0.15, 0.15}},    // the nearer of two edges
      {{-1, 0.05, 1, 0.05}, {0.2, 0.05, -0.2, 0.05}}};   // both
  for (auto [seen, expected] : kCases) {
    EXPECT_GT(sheet.ClipToSheet(seen), 0);
    EXPECT_NEAR(std::hypot(seen.x1 - expected.x1, seen.y1 - expected.y1), 0, 1e-12);
    EXPECT_NEAR(std::hypot(seen.x2 - expected.x2, seen.y2 - expected.y2), 0, 1e-12);
  }
}

TEST_F(SheetPlotTest, WhatIsNotOnTheSheetIsInvisibleButStored) {
  const Segment kCases[] = {{0.3, 0, 0.5, 0},           // only its infinite line crosses the sheet
                            {-1, 0.4, 1, 0.4},          // above
                            {0.1, 0.4, 0.5, 0},         // past the corner
                            {0.05, 0.05, 0.05, 0.05}};  // without length
  for (const auto& [x1, y1, x2, y2] : kCases) sheet.xLine(x1, y1, x2, y2, kWhite);
  EXPECT_TRUE(screen.lines.empty());
  EXPECT_EQ(sheet.list().size(), std::size(kCases));
  sheet.xLine(0, 0, std::numeric_limits<double>::infinity(), 0, kWhite);
  EXPECT_EQ(sheet.list().size(), std::size(kCases)) << "a failed argument skips the call";
}

TEST_F(SheetPlotTest, ATextWithoutAPositionFollowsTheCursorAndIsSentFarOffByARedraw) {
  std::string degrees;
  for (int i = 0; i < 120; ++i) degrees += "°";
  sheet.Dati(degrees, 0.1, -0.1);
  sheet.Dati("second");
  ASSERT_EQ(screen.texts.size(), 2u);
  EXPECT_EQ(screen.texts[0].text, degrees);
  EXPECT_NEAR(screen.texts[0].x, 0.3 * kTwips, 1e-9);
  const double below = 0.05 * kTwips + kTextLine;
  EXPECT_EQ(screen.texts[1].x, 0);
  EXPECT_NEAR(screen.texts[1].y, below, 1e-9);
  EXPECT_NEAR(sheet.list().texts.at(1).y, below, 1e-9) << "the cursor, in target units";
  EXPECT_NEAR(sheet.list().texts.at(1).shownX, -0.2, 1e-12) << "the place, in metres";
  EXPECT_NEAR(sheet.xCurrentY(), -0.1 + 2 * kTextLine / kTwips, 1e-12);

  sheet.Refresh();
  ASSERT_EQ(screen.texts.size(), 2u);
  EXPECT_EQ(screen.texts[0].text, degrees.substr(0, 200)) << "a hundred characters";
  EXPECT_GT(screen.texts[1].y, 100 * kTwips) << "cursor units taken for metres";
  EXPECT_EQ(sheet.list().texts[1].shownX, 0) << "where files show it too";
  EXPECT_EQ(screen.texts[1].text.size(), 100u) << "filled with blanks";
}

TEST_F(SheetPlotTest, RefreshDrawsTextsFirstThenTheEntitiesInTheirOrder) {
  sheet.xBox(-0.1, -0.1, 0.1, 0.1, palette(3), false);
  sheet.xLine(0, 0, 0.1, 0.1, kWhite);
  sheet.Dati("text", 0, 0);
  sheet.xPset(0, 0, kWhite);
  sheet.xCircle(0, 0, 0.01, kWhite);
  sheet.xLine(0, 0, 0.1, 0, kWhite, {.store = false});
  sheet.Refresh();
  EXPECT_EQ(screen.orders, "clear text box line point circle ");
  RecordingTarget printer;
  sheet.OutputToPRN(&printer);
  sheet.Refresh();
  EXPECT_EQ(printer.orders, "box line point circle ");
}

TEST_F(SheetPlotTest, APolylineIsDrawnAtItsEndFromItsOwnStartAndByNoRedraw) {
  const LayerId layer = sheet.layer("path");
  for (const double y : {0.0, 0.1}) {
    sheet.xPlineStart(layer);
    for (const double x : {-0.1, 0.1, 0.3}) sheet.xPLineVertex(x, y, palette(12), layer);
    EXPECT_EQ(screen.lines.size(), y == 0 ? 0u : 2u);
    sheet.xPlineEnd(layer);
  }
  ASSERT_EQ(screen.lines.size(), 4u);
  EXPECT_NEAR(screen.lines[3].x2, 0.4 * kTwips, 1e-9) << "cut at the right edge";
  sheet.Refresh();
  EXPECT_EQ(screen.orders, "clear ");
}

TEST_F(SheetPlotTest, BeyondItsLimitTheSheetDropsEntities) {
  sheet.limit(2);
  for (int i = 0; i < 3; ++i) sheet.xLine(0, 0, 0.1, 0.01 * i, kWhite);
  EXPECT_EQ(sheet.list().size(), 2u);
  EXPECT_TRUE(sheet.full());
}

}  // namespace
}  // namespace dialwright
