// PDF, PNG and BMP of the sheet, measured in what independent readers make of them.
#include "paper/picture.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <stdexcept>

#include "numerics/fault.hpp"
#include "paper/reading.hpp"
#include "support/laid_out.hpp"

namespace dialwright {
namespace {

constexpr double kInch = 0.0254;
constexpr double kPixelsPerMeter = kTwipsPerMeter / kPixel;

// A sheet of 0.2 x 0.15 m with its origin in the middle.
class PictureTest : public testing::Test {
 protected:
  PdfReader pdf(const PictureOptions& options = {}) const {
    const Written result = written(writePdf, sheet, options);
    EXPECT_EQ(result.problem, "");
    return PdfReader(result.bytes);
  }
  std::string png() const { return written(writePng, sheet, kScreenPicture).bytes; }

  SheetPlot sheet = laidOut(0.2, 0.15, 0.1, 0.075);
};

TEST_F(PictureTest, AHundredMillimetresAreAHundredOnPaperOrTheirPart) {
  for (const double x : {-0.05, 0.05}) sheet.xLine(x, -0.02, x, 0.02, palette(15));
  for (const int n : {1, 4}) {
    const Picture page = pdf({.scale = n}).rendered(1, 300);
    const double metre = 300 / kInch / n;
    EXPECT_NEAR(page.width, 0.2 * metre, 1) << "the page has the sheet's size";
    EXPECT_NEAR(page.height, 0.15 * metre, 1);
    const int middle = page.width / 2, row = page.height / 2;
    EXPECT_NEAR(page.crossingOfRow(row, 0, middle), 0.05 * metre, 0.51);
    EXPECT_NEAR(page.crossingOfRow(row, middle, page.width), 0.15 * metre, 0.51);
  }
}

TEST_F(PictureTest, LinesAreAQuarterOfAMillimetreWideOrTheirRecordsMultiple) {
  for (const auto& [width, times] : {std::pair{PictureOptions().lineWidth, 4}, {0.0005, 1}}) {
    sheet.Clear();
    sheet.xLine(0, -0.02, 0, 0.02, palette(15), {.width = times});
    const Picture page = pdf({.scale = {}, .lineWidth = width}).rendered(1, 600);
    double ink = 0;
    for (int x = 0; x < page.width; ++x) ink += (255 - page.at(x, page.height / 2)) / 255.0;
    EXPECT_NEAR(ink / 600 * kInch, times * width, 0.00003);
  }
}

TEST_F(PictureTest, OwnInksStandOnTheSheetsGround) {
  sheet.BackColor = rgb(0, 0, 90);
  sheet.xLine(0, -0.02, 0, 0.02, palette(15), {.width = 4});
  const Picture page = pdf({.scale = {}, .inks = Inks::Own}).rendered(1, 100);
  EXPECT_LT(page.at(5, 5), 60);
  EXPECT_GT(page.at(page.width / 2, page.height / 2), 200);
  EXPECT_EQ(pictureOf(png()).pixels[0], 0x00005Au);
}

TEST_F(PictureTest, PixelsAgreeWithTheModel) {
  sheet.xLine(-0.09, 0.0317, 0.09, 0.0317, palette(15));
  sheet.xLine(0.02, -0.07, 0.06, 0.02, palette(15));
  sheet.invertX();
  const Picture image = pictureOf(png());
  EXPECT_EQ(image.width, std::ceil(0.2 * kPixelsPerMeter));
  EXPECT_EQ(image.height, std::ceil(0.15 * kPixelsPerMeter));
  EXPECT_NEAR(image.crossingOfColumn(60, 300, image.height), 0.1067 * kPixelsPerMeter, 0.51);
  for (int y = 20; y < 300; y += 40) {
    const double down = (y + 0.5) / kPixelsPerMeter - 0.005;
    const double model = (0.08 - 0.04 * down / 0.09) * kPixelsPerMeter;
    EXPECT_NEAR(image.crossingOfRow(y, 0, image.width), model, 0.5) << y;
  }
}

TEST_F(PictureTest, ArcsRunCounterClockwiseForTheEye) {
  constexpr double kQuarter = 3.141592654 / 2, kDiagonal = 0.02 * std::numbers::sqrt2 / 2;
  sheet.xCircle(0, 0, 0.02, palette(15), {.endAngle = kQuarter});
  sheet.xCircle(0.06, 0, 0.02, palette(15), {.endAngle = 4 * kQuarter});
  sheet.xCircle(0, 0.05, 0.02, palette(15), {.startAngle = -1e-9, .endAngle = -kQuarter});
  const Picture image = pictureOf(png());
  const std::tuple<double, double, bool> kPlaces[] = {
      {kDiagonal, -kDiagonal, true},
      {-kDiagonal, -kDiagonal, false},
      {0.06 - kDiagonal, kDiagonal, true},  // a whole turn
      {0.01, 0.05, true},                   // a radius of a slice
      {0, 0.04, true}};
  for (const auto& [x, y, inked] : kPlaces) {
    const int column = static_cast<int>((x + 0.1) * kPixelsPerMeter);
    const int row = static_cast<int>((y + 0.075) * kPixelsPerMeter);
    EXPECT_EQ(image.inkedPixels(column - 1, row - 1, column + 2, row + 2) > 0, inked)
        << x << ' ' << y;
  }
}

TEST_F(PictureTest, TextsStandWhereTheyWereWritten) {
  sheet.Dati("placed", 0.02, 0.01);
  for (const char* text : {"below", "bro\xE9ken", "after"}) sheet.Dati(text);
  const PdfReader reader = pdf();
  const auto [x, y] = reader.placeOf("placed");
  EXPECT_NEAR(x / kPointsPerMeter, 0.12, 0.0005);
  EXPECT_NEAR(y / kPointsPerMeter, 0.085, 0.001);
  EXPECT_NEAR(reader.placeOf("after").second - y, 3 * kTextLine / 20, 0.1)
      << "a text that is no UTF-8 spoils nothing";
}

TEST_F(PictureTest, TheSameDrawingGivesTheSameBytesWithAChosenDate) {
  sheet.Dati("text", 0, 0);
  sheet.xLine(-0.05, 0, 0.05, 0.01, palette(14));
  const auto bytes = [&] { return written(writePdf, sheet, PictureOptions()).bytes; };
  EXPECT_EQ(bytes(), bytes());
  setenv("SOURCE_DATE_EPOCH", "1500000000", 1);
  EXPECT_NE(pdf().info("CreationDate").find("2017"), std::string::npos);
  unsetenv("SOURCE_DATE_EPOCH");
}

TEST_F(PictureTest, WhatCantBeMadeIsRefusedWithAReason) {
  EXPECT_NE(written(writePdf, sheet, PictureOptions{.scale = 0}).problem, "");
  sheet.QuadranteH(15);
  sheet.QuadranteL(15);
  const Written large = written(writePng, sheet, PictureOptions{.scale = 1});
  EXPECT_NE(large.problem.find("1:6 "), std::string::npos) << large.problem;
  sheet.QuadranteH(0);
  EXPECT_NE(written(writeBmp, sheet, kScreenPicture).problem, "");
  sheet.QuadranteH(0.1);
  const Sink full = [](std::string_view) { throw std::length_error("full"); };
  for (const auto write : {writePdf, writePng, writeBmp}) {
    EXPECT_THROW((void)write(sheet, full, kScreenPicture), std::length_error);
  }
}

TEST_F(PictureTest, WildNumbersAreDrawnOrLeftOut) {
  for (const double wild : {1e300, -1e12, 1e7, kFault}) {
    sheet.xLine(0, 0, wild, wild, palette(15));
    sheet.xCircle(wild, 0, 0.1, palette(15));
    sheet.xCircle(0, 0, wild, palette(15), {.endAngle = 1});
    sheet.xCircle(0, 0, 0.01, palette(15), {.aspect = wild, .startAngle = wild, .endAngle = wild});
    sheet.xBox(-0.01, -0.01, wild, wild, palette(15), false);
    sheet.Dati("x", wild, wild);
  }
  sheet.xLine(-0.05, 0.05, 0.05, 0.05, palette(15));
  const Picture image = pictureOf(png());
  const int column = static_cast<int>(0.06 * kPixelsPerMeter);
  EXPECT_NEAR(image.crossingOfColumn(column, 440, 500), 0.125 * kPixelsPerMeter, 0.51);
}

}  // namespace
}  // namespace dialwright
