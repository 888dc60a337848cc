// A4 pages: which are made, what stands on them, and the printer's documents.
#include "paper/page_writer.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "paper/ink.hpp"
#include "paper/reading.hpp"
#include "sheet/view.hpp"
#include "support/laid_out.hpp"

namespace dialwright {
namespace {

constexpr int kResolution = 300;
constexpr double kDots = kResolution / 0.0254;  // a metre
int dot(double metres) { return static_cast<int>(metres * kDots); }
constexpr double kLeft = 0.0055;  // of the printable part on the paper
constexpr double kTop = 0.0085;

// A sheet of three by two pages with its origin in its corner.
class PagesTest : public testing::Test {
 protected:
  // The place within a page: column and row from 0, and metres from its corner.
  static double x(int column, double metres) { return column * kPageW + metres; }
  static double y(int row, double metres) { return row * kPageH + metres; }

  // Which pages the sheet inks, which it then has no more.
  std::vector<int> inked() {
    const std::vector<int> numbers = inkedPages(sheet);
    sheet.Clear();
    return numbers;
  }

  SheetPlot sheet = laidOut(2.9 * kPageW, 1.9 * kPageH, 0, 0);
};

using Numbers = std::vector<int>;

TEST_F(PagesTest, InkIsFoundWhereItFalls) {
  EXPECT_EQ(inked(), Numbers{});
  sheet.xLine(x(0, 0.1), y(0, 0.1), x(0, 0.1), y(0, 0.1), palette(15));
  EXPECT_EQ(inked(), Numbers{}) << "a line without length is not drawn";
  sheet.xLine(x(0, 0.1), 0.1, x(1, 0), 0.1, palette(15));
  EXPECT_EQ(inked(), Numbers{1}) << "an end on the border is no ink beyond";
  sheet.xLine(x(0, 0.19), y(0, 0.1), x(1, 0.01), y(0, 0.1), palette(15));
  EXPECT_EQ(inked(), (Numbers{1, 2}));
  sheet.xLine(x(0, kPageW - 0.02), y(1, 0.01), x(1, 0.01), y(0, kPageH - 0.02), palette(15));
  EXPECT_EQ(inked(), (Numbers{1, 2, 4})) << "past the corner of four pages";
  sheet.xPset(x(2, 0.05), y(1, 0.05), palette(15));
  EXPECT_EQ(inked(), Numbers{6});
  sheet.Dati("over the border", x(1, 0.19), y(0, 0.1));
  EXPECT_EQ(inked(), (Numbers{2, 3}));
  sheet.xLine(5, 5, 6, 6, palette(15));
  sheet.Dati("off", 5, 5);
  sheet.Dati("   ", 0.1, 0.1);
  SheetView(sheet).press(SheetCommand::CmdGriglia);
  EXPECT_EQ(inked(), Numbers{}) << "the page grid is no ink";
  sheet.ShiftX(1.45 * kPageW);
  sheet.xPset(-1.2 * kPageW, 0.1, palette(15));
  EXPECT_EQ(inkedPages(sheet), Numbers{1});
  sheet.invertX();
  EXPECT_EQ(inkedPages(sheet), Numbers{3});
}

TEST_F(PagesTest, OutlinesInkNoPageInsideThem) {
  sheet.QuadranteL(3 * kPageW);
  sheet.QuadranteH(3 * kPageH);
  sheet.xBox(0.01, 0.01, x(2, 0.1), y(2, 0.1), palette(15), false);
  EXPECT_EQ(inked(), (Numbers{1, 2, 3, 4, 6, 7, 8, 9}));
  sheet.xCircle(x(1, 0.1), y(1, 0.14), 0.25, palette(15));
  EXPECT_EQ(inked(), (Numbers{1, 2, 3, 4, 6, 7, 8, 9}));
  sheet.xCircle(x(1, 0.1), y(1, 0.14), 0.25, palette(15), {.fill = palette(6)});
  EXPECT_EQ(inked().size(), 9u);
}

TEST_F(PagesTest, PagesShowTheirPartAtTrueSizeWithinTheirMarks) {
  sheet.xLine(x(0, 0.05), y(1, 0.05), x(2, 0.05), y(1, 0.05), palette(14));
  sheet.xLine(x(1, 0.12), y(1, 0.02), x(1, 0.12), y(1, 0.22), palette(14));
  const Written pages = written(writePages, sheet, PagesOptions());
  ASSERT_EQ(pages.problem, "");
  const PdfReader reader(pages.bytes);
  EXPECT_EQ(reader.info("Pages"), "3");
  EXPECT_EQ(reader.info("Page size").substr(0, 20), "595.276 x 841.89 pts");
  EXPECT_TRUE(reader.text(2).starts_with("5 ")) << reader.text(2);
  EXPECT_NE(reader.text(3).find("(3 / 3, 2 / 2)"), std::string::npos) << reader.text(3);

  const Picture page = reader.rendered(2, kResolution);
  EXPECT_NEAR(page.crossingOfRow(dot(kTop + 0.1), 0, page.width), (kLeft + 0.12) * kDots, 0.6);
  EXPECT_NEAR(page.crossingOfColumn(dot(kLeft + 0.03), dot(0.02), dot(0.25)), (kTop + 0.05) * kDots,
              0.6);
  EXPECT_EQ(page.at(dot(kLeft + 0.12), dot(kTop + 0.1)), 0) << "black unless asked otherwise";
  EXPECT_EQ(page.inkedPixels(0, dot(0.03), dot(kLeft) - 1, dot(0.25)), 0) << "cut at the page";
  // The crop mark above the left upper corner, and the one beside it.
  EXPECT_NEAR(page.crossingOfRow(dot(kTop - 0.002), 0, dot(0.02)), kLeft * kDots, 0.6);
  EXPECT_NEAR(page.crossingOfColumn(dot(kLeft - 0.002), 0, dot(0.02)), kTop * kDots, 0.6);
}

TEST_F(PagesTest, TheRulerIsAHundredMillimetresLong) {
  const Written pages = written(writePages, sheet, PagesOptions{.numbers = {6}});
  const Picture page = PdfReader(pages.bytes).rendered(1, kResolution);
  // Halfway up the long ticks only these three stand; the label is to the left, the words right.
  const int row = dot(kTop + kPageH + 0.0024);
  const auto tick = [&](double millimetres) {
    const double at = (0.105 - 0.05 + millimetres / 1000) * kDots;
    return page.crossingOfRow(row, static_cast<int>(at - 20), static_cast<int>(at + 20));
  };
  EXPECT_NEAR((tick(100) - tick(0)) / kDots, 0.1, 0.0001);
  EXPECT_NEAR((tick(50) - tick(0)) / kDots, 0.05, 0.0001);
}

TEST_F(PagesTest, ChosenPagesComeInTheirOrderAndMustExist) {
  const PdfReader reader(written(writePages, sheet, PagesOptions{.numbers = {6, 2, 6}}).bytes);
  EXPECT_EQ(reader.info("Pages"), "3");
  EXPECT_TRUE(reader.text(2).starts_with("2 "));
  EXPECT_TRUE(reader.text(3).starts_with("6 "));
  const Written none = written(writePages, sheet, PagesOptions{.numbers = {7}});
  EXPECT_EQ(none.bytes, "");
  EXPECT_NE(none.problem.find("1 to 6"), std::string::npos);
  EXPECT_NE(written(writePages, sheet, PagesOptions()).problem, "") << "no ink";
}

TEST_F(PagesTest, ThePrinterMakesADocumentOfWhatTheSheetPrints) {
  sheet.Marchio = "Marked";
  sheet.Dati("listed");
  sheet.xLine(0.01, 0.1, x(1, 0.05), 0.1, palette(15));
  std::string bytes;
  const Sink sink = [&](std::string_view chunk) { bytes += chunk; };
  const SelectedPage selected[] = {PageGrid(sheet).page(2), PageGrid(sheet).page(1)};
  ASSERT_EQ(writePrintout(sink, [&](Printer& printer) { PrintArea(sheet, printer, selected); }),
            "");
  const PdfReader pages(bytes);
  EXPECT_EQ(pages.info("Pages"), "2");
  EXPECT_TRUE(pages.text(1).starts_with("2"));
  const Picture first = pages.rendered(1, kResolution);
  EXPECT_GT(first.inkedPixels(0, dot(0.1), dot(0.05), dot(0.12)), 100);
  EXPECT_EQ(first.inkedPixels(dot(0.06), dot(0.1), first.width, dot(0.12)), 0);

  bytes.clear();
  ASSERT_EQ(writePrintout(sink, [&](Printer& printer) { PrintAll(sheet, printer); }), "");
  EXPECT_TRUE(PdfReader(bytes).text(1).starts_with("Marked\nlisted"));
}

}  // namespace
}  // namespace dialwright
