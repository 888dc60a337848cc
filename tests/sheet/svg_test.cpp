// The SVG: true scale, joined paths, layers, and texts that no reader chokes on.
#include "sheet/svg.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <regex>

#include "sheet/paper_ink.hpp"
#include "support/laid_out.hpp"
#include "support/written.hpp"

namespace dialwright {
namespace {

// 0.4 x 0.3 m with the origin at (0.2, 0.15).
class SvgTest : public testing::Test {
 protected:
  std::string svg(bool dark = false) const {
    return written([&](const Sink& sink) { writeSvg(sheet, sink, {.dark = dark}); });
  }
  // What the pattern's group holds wherever it fits.
  std::vector<std::string> all(const std::string& pattern) const {
    const std::string text = svg();
    const std::regex expression(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator i(text.begin(), text.end(), expression), end; i != end; ++i)
      found.push_back((*i)[1]);
    return found;
  }
  std::vector<std::string> paths() const { return all(" d=\"([^\"]*)\""); }

  SheetPlot sheet = laidOut(0.4, 0.3, 0.2, 0.15);
};

using Texts = std::vector<std::string>;

TEST_F(SvgTest, TheSheetIsAtTrueScaleInMillimetresAndTextsAreNotMirrored) {
  EXPECT_EQ(countOf(svg(), "width=\"400mm\" height=\"300mm\" viewBox=\"0 0 400 300\""), 1u);
  sheet.Dati("stays", 0.1, 0);
  sheet.invertX();
  EXPECT_EQ(all("<text x=\"([^\"]*)\""), Texts{"300"});
}

TEST_F(SvgTest, AStrokeThatSharesAnEndGoesOnWithThePath) {
  const LayerId other = sheet.layer("other");
  for (const double x : {0.0, 0.01}) sheet.xLine(x, 0, x + 0.01, 0, kWhite);
  for (const double x : {0.03, 0.04}) sheet.xLine(x, 0, x - 0.01, 0, palette(12));
  sheet.xLine(0.04, 0, 0.05, 0, palette(12), {.width = 4});
  sheet.xLine(0.05, 0, 0.06, 0, palette(12), {.width = 4, .layer = other});
  sheet.xLine(0.07, 0, 0.08, 0, palette(12), {.width = 4, .layer = other});
  EXPECT_EQ(paths(), (Texts{"M200 150L210 150L220 150", "M220 150L230 150L240 150",
                            "M240 150L250 150", "M250 150L260 150", "M270 150L280 150"}));
  EXPECT_EQ(countOf(svg(), "stroke-width=\"1\""), 3u);
}

TEST_F(SvgTest, PointsOfACurveAreOnePathOfRoundDots) {
  sheet.xPset(0.03, 0, palette(9));
  sheet.xCircle(0.04, 0, 0, palette(9));  // without a radius
  EXPECT_EQ(paths(), Texts{"M230 150h0M240 150h0"});
  EXPECT_EQ(countOf(svg(), "stroke-linecap=\"round\""), 1u);
}

TEST_F(SvgTest, OnlyClosedShapesHaveAFill) {
  const double quarter = std::acos(0);
  sheet.xCircle(0, 0, 0.1, kWhite, {.fill = 255, .endAngle = quarter});
  sheet.xCircle(0, 0, 0.1, kWhite, {.fill = 255, .startAngle = -quarter, .endAngle = -2 * quarter});
  sheet.xPlineStart({});
  for (const double y : {0.0, 0.1}) sheet.xPLineVertex(0.1, y, palette(12), {});
  sheet.xPlineEnd({});
  EXPECT_EQ(paths(), (Texts{"M300 150A100 100 0 0 0 270.711 79.289A100 100 0 0 0 200 50",
                            "M200 150L200 50A100 100 0 0 0 129.289 79.289A100 100 0 0 0 100 150z",
                            "M300 150L300 250"}));
  EXPECT_EQ(countOf(svg(), " fill=\"#ff0000\""), 1u);
  sheet.xCircle(0, 0, 0.05, palette(12), {.fill = palette(9), .startAngle = 1});
  sheet.xBox(0.1, 0.05, -0.1, -0.05, palette(12), true);
  for (const char* shape : {"fill=\"#0000ff\" cx=\"200\"", "fill=\"#ff0000\" x=\"100\""})
    EXPECT_EQ(countOf(svg(), shape), 1u) << shape;
}

TEST_F(SvgTest, InksAreForWhitePaperUnlessTheDarkSheetIsAskedFor) {
  sheet.xLine(0, 0, 0.1, 0, palette(14));
  sheet.xCircle(0, 0, 0.1, palette(12), {.fill = kBlack});
  EXPECT_EQ(countOf(svg(), "#ffffff"), 1u) << "a fill of the ground's colour";
  EXPECT_EQ(countOf(svg(), "#ffff00"), 0u);
  EXPECT_EQ(countOf(svg(true), "stroke=\"#ffff00\""), 1u);
  EXPECT_EQ(countOf(svg(true), "<rect width=\"100%\" height=\"100%\" fill=\"#000000\"/>"), 1u);
}

TEST_F(SvgTest, TextsStandBelowTheirUpperLeftCornerInTheSheetsScale) {
  for (const char* text : {"one", "   "}) sheet.Dati(text, -0.2, -0.15);
  sheet.Dati("two");
  EXPECT_EQ(all("<text x=\"0\" y=\"([^\"]*)\""), (Texts{"2.619", "6.058"}));
  sheet.Scala(10);
  EXPECT_EQ(all("font-size=\"([^\"]*)\""), Texts{"28.219"});
}

TEST_F(SvgTest, HostileNamesAndTextsAreEscaped) {
  sheet.xLine(0, 0, 0.1, 0, kWhite, {.layer = sheet.layer("\"><x a='1'&\n\x01")});
  sheet.Dati(std::string("a\0b\x1b<b>&\"\xff\tü", 13), 0, 0);
  sheet.Messaggio("<title>");
  EXPECT_EQ(all("inkscape:label=\"([^\"]*)\"").at(0), "&quot;&gt;&lt;x a='1'&amp; ");
  EXPECT_EQ(all(">([^<]*)</text>"), Texts{"ab&lt;b&gt;&amp;&quot;\xEF\xBF\xBD ü"});
  EXPECT_EQ(all("<title>([^<]*)</title>"), Texts{"&lt;title&gt;"});
}

TEST(PaperInkTest, NoInkIsLighterThanRedAndTheDarkOnesStay) {
  for (int number = 0; number < 16; ++number) {
    const auto light = [](Rgb colour) {  // relative luminance
      return 0.2126 * std::pow(redOf(colour) / 255.0, 2.2) +
             0.7152 * std::pow(greenOf(colour) / 255.0, 2.2) +
             0.0722 * std::pow(blueOf(colour) / 255.0, 2.2);
    };
    const Rgb own = palette(number), ink = inkOnPaper(own);
    EXPECT_LT(light(ink), 0.22) << number;
    EXPECT_EQ(ink == own, light(own) < 0.21 || number == 12) << number;
    EXPECT_EQ(redOf(own) == greenOf(own), redOf(ink) == greenOf(ink)) << "the hue stays " << number;
  }
}

}  // namespace
}  // namespace dialwright
