// A4 pages: which are made, and what stands on them.
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

using Numbers = std::vector<int>;

// A sheet of three by two pages with its origin in its corner.
class PagesTest : public testing::Test {
 protected:
  // The place within a page: column and row from 0, and metres from its corner.
  static double x(int column, double metres) { return column * kPageW + metres; }
  static double y(int row, double metres) { return row * kPageH + metres; }

  // Which pages the sheet inks, which it then has no more.
  Numbers inked() {
    Numbers numbers = inkedPages(sheet);
    sheet.Clear();
    return numbers;
  }

  SheetPlot sheet = laidOut(2.9 * kPageW, 1.9 * kPageH, 0, 0);
};

TEST_F(PagesTest, InkIsFoundWhereItFalls) {
  const std::pair<Segment, Numbers> kLines[] = {
      {{x(0, 0.1), y(0, 0.1), x(0, 0.1), y(0, 0.1)}, {}},  // without length
      {{x(0, 0.1), y(0, 0.1), x(1, 0), y(0, 0.1)}, {1}},   // up to the border
      {{x(0, 0.19), y(0, 0.1), x(1, 0.01), y(0, 0.1)}, {1, 2}},
      {{x(1, -0.02), y(1, 0.01), x(1, 0.01), y(1, -0.02)}, {1, 2, 4}}};  // past a corner of four
  for (const auto& [line, pages] : kLines) {
    sheet.xLine(line.x1, line.y1, line.x2, line.y2, palette(15));
    EXPECT_EQ(inked(), pages) << line.x1 << ' ' << line.y1;
  }
  sheet.Dati("over the border", x(1, 0.19), y(0, 0.1));
  EXPECT_EQ(inked(), (Numbers{2, 3}));
  sheet.Dati("   ", 0.1, 0.1);
  SheetView(sheet).press(SheetCommand::CmdGriglia);
  EXPECT_EQ(inked(), Numbers{}) << "the page grid is no ink";
  sheet.ShiftX(1.45 * kPageW);
  sheet.xPset(-1.2 * kPageW, y(1, 0.05), palette(15));
  EXPECT_EQ(inkedPages(sheet), Numbers{4});
  sheet.invertX();
  EXPECT_EQ(inkedPages(sheet), Numbers{6});
}

TEST_F(PagesTest, AnOutlineInksNoPageInsideIt) {
  sheet.QuadranteL(3 * kPageW);
  sheet.QuadranteH(3 * kPageH);
  sheet.xCircle(x(1, 0.1), y(1, 0.14), 0.25, palette(15));
  EXPECT_EQ(inked(), (Numbers{1, 2, 3, 4, 6, 7, 8, 9}));
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
  // The ruler's long ticks, 50 mm from each other: only they stand halfway up.
  for (const double tick : {0.055, 0.105, 0.155}) {
    const int row = dot(kTop + kPageH + 0.0024);
    EXPECT_NEAR(page.crossingOfRow(row, dot(tick) - 20, dot(tick) + 20), tick * kDots, 0.6);
  }
}

TEST_F(PagesTest, ChosenPagesComeInTheirOrderAndMustExist) {
  const PdfReader reader(written(writePages, sheet, PagesOptions{.numbers = {6, 2, 6}}).bytes);
  EXPECT_EQ(reader.info("Pages"), "3");
  EXPECT_TRUE(reader.text(2).starts_with("2 "));
  EXPECT_TRUE(reader.text(3).starts_with("6 "));
  EXPECT_NE(written(writePages, sheet, PagesOptions{.numbers = {7}}).problem, "");
  EXPECT_NE(written(writePages, sheet, PagesOptions()).problem, "") << "no ink";
}

}  // namespace
}  // namespace dialwright
