// The sheet's view: its lists, panels, read-outs, axes, page grid and printing.
#include "sheet/view.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/laid_out.hpp"
#include "support/recording_target.hpp"

namespace dialwright {
namespace {

constexpr double kAtStart = kTwipsPerMeter / 5;  // twips of the screen a metre: at 1:5

class ViewTest : public testing::Test {
 protected:
  void press(std::string_view name) {
    const auto command = findSheetCommand(name);
    ASSERT_TRUE(command.has_value()) << name;
    view.press(*command);
  }
  std::ptrdiff_t linesOn(std::string_view layer) {
    return std::ranges::count(sheet.list().lines, sheet.layer(layer), &LineRecord::layer);
  }

  SheetPlot sheet = laidOut(1.99, 2.8, 0.995, 0.84);
  SheetView view{sheet};
};

TEST_F(ViewTest, TheSmallestScaleFollowsTheLargerSideInHalfOpenBands) {
  const std::pair<double, int> kBands[] = {{0.1, 1},      {0.5639, 1},   {0.564, 2},  {1.128, 3},
                                           {1.693, 4},    {2.257, 5},    {2.821, 10}, {5.643, 20},
                                           {11.2869, 20}, {11.287, 100}, {15, 100}};
  for (const auto& [side, scale] : kBands) {
    EXPECT_EQ(laidOut(side / 2, side, 0, 0).ScalaMinima(), scale) << side;
  }
}

TEST_F(ViewTest, ChoosingAScaleRedrawsAndSetsTheBarsBack) {
  RecordingTarget screen;
  sheet.attach(&screen);
  view.resizeControl(9000, 6000);
  view.scrollTo(100, 200);
  EXPECT_EQ(view.surfaceTop(), 200);
  view.chooseScale(1);
  EXPECT_EQ(screen.orders, "clear ");
  EXPECT_EQ(view.surfaceTop(), 400);
  EXPECT_NEAR(view.VScroll1().maximum, 2.8 * 5670, 1e-6);
  sheet.Scala(4);  // below the smallest scale
  view.chooseScale(99);
  EXPECT_EQ(sheet.Scala(), 10);
}

// Notes how the buttons look at the moment of the redrawing.
struct LookWatcher : RecordingTarget {
  explicit LookWatcher(const SheetView& shown) : view(shown) {}
  void clear() override {
    looks.append(view.lookOfInvX() ? "X" : "-").append(view.lookOfInvY() ? "Y" : "-");
  }
  const SheetView& view;
  std::string looks;
};

TEST_F(ViewTest, InvertedAxesShowOnTheirButtonsUntilTheSheetIsCleared) {
  LookWatcher screen(view);
  sheet.attach(&screen);
  press("cmdInvX");
  press("CMDINVY");
  EXPECT_EQ(screen.looks, "--XY") << "X redraws before it shows its state, Y after";
  view.click(10, 10);
  press("cmdPulisci");
  EXPECT_EQ(sheet.SignX() + sheet.SignY(), 2);
  EXPECT_FALSE(view.lookOfInvX() || view.lookOfInvY());
  EXPECT_TRUE(view.selectedPages().empty());
}

TEST_F(ViewTest, AxesAreDrawnAgainAfterAShift) {
  press("cmdAssi");
  EXPECT_EQ(sheet.list().lines.at(0).x1, -0.995);
  EXPECT_NEAR(sheet.list().texts.at(1).y, -0.8, 1e-12);
  for (const char* x : {"0.5", "1e999"}) {  // a fault keeps the shift
    view.setText(SheetField::txtX, x);
    view.setText(SheetField::txtY, "1.25");
    press("cmdAssiAgg");
    EXPECT_EQ(sheet.ShiftX(), 0.5);
    EXPECT_EQ(sheet.ShiftY(), 1.25);
  }
  EXPECT_EQ(linesOn("AsseY"), 3) << "the old axes stay";
}

TEST_F(ViewTest, DimensionsChangeTheListAtOnceAndTheDrawingLater) {
  RecordingTarget screen;
  sheet.attach(&screen);
  for (const SheetField side : {SheetField::txtQH, SheetField::txtQL}) view.setText(side, "0.3333");
  press("cmdQAggiorna");
  std::string scales;
  for (const ScaleItem& item : view.scaleItems()) scales += item.text + " ";
  EXPECT_EQ(scales, "1:1 1:2 1:3 1:4 1:5 1:10 1:20 1:100 ");
  EXPECT_EQ(sheet.Scala(), 5) << "the scale grows, it does not shrink";
  EXPECT_EQ(screen.orders, "");
  sheet.QuadranteH(20);
  EXPECT_EQ(sheet.QuadranteH(), 15);
}

TEST_F(ViewTest, TheGridRunsOverItsMixedBounds) {
  press("CmdGriglia");
  // 0, 0.28, ... up to 3 * 0.28 + 1.99 and 0, 0.199, ... up to 3 * 0.199 + 2.8.
  EXPECT_EQ(linesOn("Page"), 11 + 18);
  EXPECT_NEAR(sheet.list().lines[1].y1, 0.28 - 0.84, 1e-12);
  EXPECT_NEAR(sheet.list().lines.back().x1, 17 * 0.199 - 0.995, 1e-9);
}

TEST_F(ViewTest, AClickReadsThePlaceAndSelectsThePage) {
  for (int i = 0; i < 2; ++i) view.click(0.45 * kAtStart, 0.3 * kAtStart);
  EXPECT_EQ(view.lblXYval(), "-545 : -540");
  ASSERT_EQ(view.selectedPages().size(), 2u) << "a page may be selected twice";
  EXPECT_EQ(view.selectedPages()[0].number, 13) << "ten columns; second row, third column";
  EXPECT_EQ(linesOn("sys:page"), 2 * 4);
  EXPECT_EQ(sheet.list().texts.back().text, "13");
}

TEST(PageGridTest, CountsAThinRestOnlyFromATwentieth) {
  EXPECT_EQ(PageGrid(0.43, 0.3, 0.2, 0.28).columns(), 3) << "2.15 pages";
  EXPECT_EQ(PageGrid(0.405, 0.3, 0.2, 0.28).columns(), 2);
}

class PrintTest : public ViewTest {
 protected:
  PrintTest() {
    view.ports.print = [this](const auto& job) { job(paper); };
    view.ports.message = [this](std::string_view text) { said = text; };
  }

  RecordingTarget paper;
  std::string said;
};

TEST_F(PrintTest, PrintAsksWhatToPrintOnceThereIsAChoice) {
  sheet.Marchio = "Mark";
  sheet.Dati("a line");
  sheet.xLine(-0.1, 0, 0.1, 0, palette(12), {.width = 4});
  for (const bool coloured : {false, true}) {
    sheet.PrintMultiColor = coloured;
    press("cmdStampa");
    EXPECT_EQ(paper.lines.back().colour, coloured ? palette(12) : kBlack);
    EXPECT_EQ(paper.lines.back().width, 4);
  }
  ASSERT_EQ(paper.texts.size(), 2 * 2u);
  EXPECT_EQ(paper.texts[0].text + ";" + paper.texts[1].text, "Mark;a line");
  EXPECT_FALSE(view.printPanel());
  view.PrintArea();
  EXPECT_EQ(said, "Nessuna area selezionata");
}

TEST_F(PrintTest, SelectedPagesPrintAtTrueSizeAndLeaveTheSheetAsItWas) {
  sheet.xLine(-0.1, 0.1, 0.1, 0.1, palette(12));
  // The page whose right edge is at x = 0, and the next.
  for (const double x : {0.99, 1.0}) view.click(x * kAtStart, 0.9 * kAtStart);
  press("cmdStampa");
  EXPECT_TRUE(view.printPanel()) << "there is a choice";
  press("cmdPOk");
  EXPECT_EQ(std::pair(paper.pages, paper.documents), std::pair(2, 1));
  EXPECT_EQ(paper.texts.at(0).text + ";" + paper.texts.at(1).text, "35;36");
  EXPECT_NEAR(paper.lines.at(0).x2 - paper.lines[0].x1, 0.1 * kTwipsPerMeter, 1e-6);
  EXPECT_EQ(sheet.Scala(), 5);
  EXPECT_EQ(sheet.QuadranteL(), 1.99);
  EXPECT_EQ(sheet.ShiftX(), 0.995);
}

}  // namespace
}  // namespace dialwright
