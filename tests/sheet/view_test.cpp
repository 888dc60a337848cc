// The sheet's view: its lists, panels, read-outs, axes, page grid and printing.
#include "sheet/view.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "support/laid_out.hpp"
#include "support/recording_target.hpp"

namespace dialwright {
namespace {

class ViewTest : public testing::Test {
 protected:
  void press(std::string_view name) {
    const auto command = findSheetCommand(name);
    ASSERT_TRUE(command.has_value()) << name;
    view.press(*command);
  }
  std::size_t linesOn(std::string_view layer) {
    const LayerId id = sheet.layer(layer);
    return static_cast<std::size_t>(std::ranges::count(sheet.list().lines, id, &LineRecord::layer));
  }

  SheetPlot sheet = laidOut(1.99, 2.8, 0.995, 0.84);
  SheetView view{sheet};
};

std::string itemsOf(const SheetView& view) {
  std::string all;
  for (const ScaleItem& item : view.scaleItems()) all += item.text + " ";
  return all;
}

TEST_F(ViewTest, TheSmallestScaleFollowsTheLargerSideInHalfOpenBands) {
  const std::pair<double, int> kBands[] = {{0.1, 1},      {0.5639, 1},   {0.564, 2},  {1.128, 3},
                                           {1.693, 4},    {2.257, 5},    {2.821, 10}, {5.643, 20},
                                           {11.2869, 20}, {11.287, 100}, {15, 100}};
  for (const auto& [side, scale] : kBands) {
    sheet.QuadranteH(side);
    sheet.QuadranteL(side / 2);
    EXPECT_EQ(sheet.ScalaMinima(), scale) << side;
    sheet.QuadranteH(side / 2);
    sheet.QuadranteL(side);
    EXPECT_EQ(sheet.ScalaMinima(), scale) << side;
  }
}

TEST_F(ViewTest, TheListHoldsTheScalesThatTheSheetAllows) {
  EXPECT_EQ(itemsOf(view), "1:5 1:10 1:20 1:100 ");
  EXPECT_EQ(view.scaleText(), "1:5");
  sheet.QuadranteH(20);
  EXPECT_EQ(sheet.QuadranteH(), 15);
  EXPECT_EQ(itemsOf(view) + view.scaleText(), "1:100 1:100");
  view.CaricaComboScala(3, 7);
  EXPECT_EQ(view.scaleItems().front().n, 3);
  EXPECT_EQ(view.scaleText(), "") << "a scale that is not in the list shows nothing";
}

TEST_F(ViewTest, ChoosingAScaleRedrawsAndSetsTheBarsBack) {
  RecordingTarget screen;
  sheet.attach(&screen);
  view.resizeControl(9000, 6000);
  view.scrollTo(100, 200);
  EXPECT_EQ(view.surfaceLeft(), -100);
  EXPECT_EQ(view.surfaceTop(), 200);
  view.chooseScale(1);
  EXPECT_EQ(sheet.Scala(), 10);
  EXPECT_EQ(screen.orders, "clear ");
  EXPECT_EQ(view.surfaceTop(), 400);
  EXPECT_NEAR(view.surfaceHeight(), 2.8 * 5670, 1e-6);
  EXPECT_EQ(view.VScroll1().maximum, view.surfaceHeight());
  EXPECT_EQ(view.HScroll1().largeChange, 9000);
  EXPECT_EQ(view.lblDimVal(), "3 x 2");
  sheet.Scala(4);
  EXPECT_EQ(sheet.Scala(), 10) << "below the smallest scale: no effect";
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
  EXPECT_EQ(view.lookOfInvX(), rgb(255, 255, 128));
  press("cmdInvX");
  EXPECT_EQ(sheet.SignX(), 1);
  EXPECT_FALSE(view.lookOfInvX());
  view.click(10, 10);
  press("cmdPulisci");
  EXPECT_EQ(sheet.SignY(), 1);
  EXPECT_FALSE(view.lookOfInvY());
  EXPECT_TRUE(view.selectedPages().empty());
  EXPECT_EQ(sheet.list().size() + sheet.list().texts.size(), 0u);
  for (const char* unknown : {"cmdRun", ""}) EXPECT_FALSE(findSheetCommand(unknown));
}

TEST_F(ViewTest, AxesAreDrawnAgainAfterAShift) {
  press("cmdAssi");
  EXPECT_TRUE(view.axesPanel());
  ASSERT_EQ(sheet.list().lines.size(), 2u);
  const LineRecord across = sheet.list().lines[0];
  EXPECT_EQ(across.x1, -0.995);
  EXPECT_EQ(across.x2, 0.995);
  EXPECT_EQ(across.colour, palette(12));
  EXPECT_EQ(sheet.list().name(across.layer), "AsseX");
  ASSERT_EQ(sheet.list().texts.size(), 3u);
  EXPECT_EQ(sheet.list().texts[1].text, "y");
  EXPECT_NEAR(sheet.list().texts[1].y, -0.8, 1e-12);
  EXPECT_EQ(view.text(SheetField::txtX), "0.995");
  for (const char* x : {"0.5", "1e999"}) {  // a fault keeps the shift
    view.setText(SheetField::txtX, x);
    view.setText(SheetField::txtY, "1.25");
    press("cmdAssiAgg");
    EXPECT_EQ(sheet.ShiftX(), 0.5);
    EXPECT_EQ(sheet.ShiftY(), 1.25);
  }
  EXPECT_TRUE(view.axesPanel());
  EXPECT_EQ(linesOn("AsseY"), 3u) << "the old axes stay";
  press("cmdAssiChiudi");
  EXPECT_FALSE(view.axesPanel());
}

TEST_F(ViewTest, DimensionsChangeTheListAtOnceAndTheDrawingLater) {
  RecordingTarget screen;
  sheet.attach(&screen);
  press("cmdDim");
  EXPECT_TRUE(view.dimensionsPanel());
  view.setText(SheetField::txtQH, "0.3333");
  view.setText(SheetField::txtQL, "0.5");
  press("cmdQAggiorna");
  EXPECT_EQ(sheet.QuadranteH(), 0.3333);
  EXPECT_EQ(sheet.QuadranteL(), 0.5);
  EXPECT_EQ(view.text(SheetField::txtQH), "0.33");
  EXPECT_EQ(itemsOf(view), "1:1 1:2 1:3 1:4 1:5 1:10 1:20 1:100 ");
  EXPECT_EQ(sheet.Scala(), 5) << "the scale grows, it does not shrink";
  EXPECT_EQ(screen.orders, "");
  EXPECT_FALSE(view.dimensionsPanel());
}

TEST_F(ViewTest, TheGridRunsOverItsMixedBounds) {
  press("CmdGriglia");
  // 0, 0.28, ... up to 3 * 0.28 + 1.99 and 0, 0.199, ... up to 3 * 0.199 + 2.8.
  EXPECT_EQ(linesOn("Page"), 11u + 18u);
  const LineRecord& level = sheet.list().lines[1];
  EXPECT_NEAR(level.y1, 0.28 - 0.84, 1e-12);
  EXPECT_NEAR(level.x2, 0.995, 1e-12);
  EXPECT_EQ(level.colour, rgb(128, 128, 128));
  EXPECT_NEAR(sheet.list().lines.back().x1, 17 * 0.199 - 0.995, 1e-9);
}

TEST_F(ViewTest, AClickReadsThePlaceAndSelectsThePage) {
  const double perMeter = kTwipsPerMeter / 5;
  view.click(0.45 * perMeter, 0.3 * perMeter);
  EXPECT_EQ(view.lblXYval(), "-545 : -540");
  ASSERT_EQ(view.selectedPages().size(), 1u);
  const SelectedPage page = view.selectedPages()[0];
  EXPECT_EQ(page.number, 13) << "ten columns; second row, third column";
  EXPECT_NEAR(page.x, 0.398 - 0.995, 1e-12);
  EXPECT_NEAR(page.y, 0.28 - 0.84, 1e-12);
  EXPECT_EQ(linesOn("sys:page"), 4u);
  EXPECT_EQ(sheet.list().texts.back().text, "13");
  EXPECT_NEAR(sheet.list().texts.back().x, page.x + 0.003, 1e-12);
  view.click(0.45 * perMeter, 0.3 * perMeter);
  EXPECT_EQ(view.selectedPages().size(), 2u) << "a page may be selected twice";
}

TEST(PageGridTest, CountsAThinRestOnlyFromATwentieth) {
  EXPECT_EQ(PageGrid(0.43, 0.3, 0.2, 0.28).columns(), 3) << "2.15 pages";
  EXPECT_EQ(PageGrid(0.405, 0.3, 0.2, 0.28).columns(), 2);
  EXPECT_EQ(PageGrid(0.43, 0.3, 0.2, 0.28).at(5, 0).number, 4) << "past the surface";
  for (const double side : {0, -1}) EXPECT_EQ(PageGrid(side, side, 0.2, 0.28).pages(), 0);
}

TEST_F(ViewTest, PrintAsksWhatToPrintOnceThereIsAChoice) {
  RecordingTarget paper;
  std::string said;
  view.ports.print = [&](const std::function<void(Printer&)>& job) { job(paper); };
  view.ports.message = [&](std::string_view text) { said = text; };
  sheet.Marchio = "Mark";
  sheet.Dati("a line");
  sheet.xLine(-0.1, 0, 0.1, 0, palette(12), {.width = 4});
  press("cmdStampa");
  EXPECT_FALSE(view.printPanel());
  ASSERT_EQ(paper.texts.size(), 2u);
  EXPECT_EQ(paper.texts[0].text + ";" + paper.texts[1].text, "Mark;a line");
  EXPECT_NEAR(paper.texts[0].y, 850.5, 1e-9);
  EXPECT_NEAR(paper.lines.at(0).x2 - paper.lines[0].x1, 0.2 * kTwipsPerMeter / 5, 1e-6);
  EXPECT_EQ(paper.lines[0].colour, kBlack);
  EXPECT_EQ(paper.lines[0].width, 4);
  sheet.PrintMultiColor = true;
  press("cmdStampa");
  EXPECT_EQ(paper.lines.at(1).colour, palette(12));

  view.PrintArea();
  EXPECT_EQ(said, "Nessuna area selezionata");
  view.click(0.99 * kTwipsPerMeter / 5, 0.84 * kTwipsPerMeter / 5);
  press("cmdStampa");
  EXPECT_TRUE(view.printPanel());
  press("cmdPCancel");
  EXPECT_FALSE(view.printPanel());
}

TEST_F(ViewTest, SelectedPagesPrintAtTrueSizeAndLeaveTheSheetAsItWas) {
  RecordingTarget paper, screen;
  view.ports.print = [&](const std::function<void(Printer&)>& job) { job(paper); };
  sheet.xLine(-0.1, 0.1, 0.1, 0.1, palette(12), {.width = 3});
  for (const double x : {0.99, 1.0}) {  // the page whose right edge is at x = 0, and the next
    view.click(x * kTwipsPerMeter / 5, 0.9 * kTwipsPerMeter / 5);
  }
  view.scrollTo(50, 50);
  sheet.attach(&screen);
  press("cmdStampa");
  press("cmdPOk");
  EXPECT_EQ(paper.pages, 2);
  EXPECT_EQ(paper.documents, 1);
  ASSERT_EQ(paper.texts.size(), 2u);
  EXPECT_EQ(paper.texts[0].text + ";" + paper.texts[1].text, "35;36");
  EXPECT_EQ(sheet.Scala(), 5);
  EXPECT_EQ(sheet.QuadranteL(), 1.99);
  EXPECT_EQ(sheet.ShiftX(), 0.995);
  EXPECT_EQ(view.text(SheetField::txtX), "0.995");
  EXPECT_FALSE(sheet.OutputToPRN());
  EXPECT_EQ(screen.orders, "") << "no redraw of the screen";
  int parts = 0;
  double length = 0;
  for (const RecordingTarget::Line& line : paper.lines) {
    if (std::abs(line.y1 - 5670) + std::abs(line.y2 - 5670) > 1) continue;
    ++parts;
    length += std::abs(line.x2 - line.x1) / kTwipsPerMeter;
  }
  EXPECT_EQ(parts, 2) << "cut at the page's edge, going on on the next page";
  EXPECT_NEAR(length, 0.2, 1e-9);
}

TEST(InputSoloNumeriTest, LetsNumbersThrough) {
  int beeps = 0;
  const auto beep = [&] { ++beeps; };
  for (const char32_t key : {U'7', U'-', U'\b'}) EXPECT_EQ(InputSoloNumeri(key, beep), key);
  EXPECT_EQ(InputSoloNumeri(U',', beep), U'.');
  EXPECT_EQ(beeps, 0);
  for (const char32_t key : {U'x', U'٣'}) EXPECT_FALSE(InputSoloNumeri(key, beep));
  EXPECT_EQ(beeps, 2);
}

}  // namespace
}  // namespace dialwright
