// The DXF, group by group.
#include "sheet/dxf.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <stdexcept>
#include <string>

#include "support/laid_out.hpp"
#include "support/written.hpp"

namespace dialwright {
namespace {

constexpr double kPi = 3.141592654;

// The sheet of the start: 1.99 x 2.8 m, with a shift that must not show.
class DxfTest : public testing::Test {
 protected:
  // The groups as "code=value ", from a file that must have the form " code ", CR LF, value, CR LF
  // and the right head and tail, which are left out.
  std::string entities() {
    const std::string all =
        written([&](const Sink& sink) { DXF_Generate(sheet, kPi, sink, axes); });
    std::string groups;
    for (std::string_view file = all; !file.empty();) {
      const std::size_t code = file.find("\r\n");
      const std::size_t value = file.find("\r\n", code + 2);
      if (value == std::string_view::npos || file.front() != ' ' || file[code - 1] != ' ') {
        ADD_FAILURE() << "no group: " << file.substr(0, 40);
        break;
      }
      groups.append(file.substr(1, code - 2)).append(1, '=');
      groups.append(file.substr(code + 2, value - code - 2)).append(1, ' ');
      file.remove_prefix(value + 2);
    }
    const std::string head =
        "999=DXF creato da SheetPlot 0=SECTION 2=HEADER 9=$EXTMAX 10=1.99 20=2.8 30=0 "
        "9=$EXTMIN 10=0 20=0 30=0 0=ENDSEC 0=SECTION 2=ENTITIES ";
    const std::string tail = "0=ENDSEC 0=EOF ";
    if (!groups.starts_with(head) || !groups.ends_with(tail)) {
      ADD_FAILURE() << groups;
      return groups;
    }
    return groups.substr(head.size(), groups.size() - head.size() - tail.size());
  }

  // The values of one group code, a blank after each.
  std::string values(int code) {
    const std::string groups = " " + entities();
    const std::string start = " " + std::to_string(code) + '=';
    std::string found;
    for (std::size_t at = groups.find(start); at != std::string::npos;
         at = groups.find(start, at + 1)) {
      const std::size_t from = at + start.size();
      found += groups.substr(from, groups.find(' ', from) + 1 - from);
    }
    return found;
  }

  InvertedAxes axes = InvertedAxes::Stored;
  SheetPlot sheet = laidOut(1.99, 2.8, 0.995, 0.84);
};

TEST_F(DxfTest, EntitiesComeInDrawingOrderInMillimetresWithYUpwards) {
  EXPECT_EQ(entities(), "");
  sheet.xLine(0.0125, -0.25, 2, 3, palette(9), {.width = 3, .layer = sheet.layer("ore")});
  sheet.xCircle(0.1, 0.2, 0.015, palette(14), {.startAngle = 1});
  sheet.xPset(0.5, 0, palette(8));
  sheet.xCircle(0, 0, 1, palette(2), {.fill = 255, .startAngle = -kPi / 2, .endAngle = kPi});
  sheet.xBox(-0.5, -0.2, 0.5, 1, palette(3), true, sheet.layer("Quadro"));
  sheet.Dati("never", 0, 0);
  EXPECT_EQ(entities(),
            "0=LINE 8=ore 62=5 10=12.5 20=250 30=0 11=2000 21=-3000 31=0 "
            "0=CIRCLE 8=0 62=2 10=100 20=-200 30=0 40=15 "
            "0=POINT 8=0 62=8 10=500 20=0 30=0 "
            "0=ARC 8=0 62=3 10=0 20=0 30=0 40=1000 50=-90 51=180 "
            "0=LINE 8=Quadro 62=1 10=-500 20=-1000 30=0 11=500 21=-1000 31=0 "
            "0=LINE 8=Quadro 62=1 10=500 20=-1000 30=0 11=500 21=200 31=0 "
            "0=LINE 8=Quadro 62=1 10=500 20=200 30=0 11=-500 21=200 31=0 "
            "0=LINE 8=Quadro 62=1 10=-500 20=200 30=0 11=-500 21=-1000 31=0 ")
      << "a box's colour is not converted";
}

TEST_F(DxfTest, NumbersHaveFifteenDigitsAndNoLocale) {
  sheet.xLine(1.0 / 3, 1e-9, 1e15, -2.0 / 3, kBlack);
  EXPECT_EQ(values(10) + values(20) + values(11) + values(21),
            "333.333333333333 -1E-06 1E+18 666.666666666667 ");
}

TEST_F(DxfTest, ColoursFollowTheTableAndItsOddities) {
  for (int number = 0; number < 16; ++number) sheet.xLine(0, 0, 1, 1, palette(number));
  sheet.xLine(0, 0, 1, 1, rgb(1, 1, 0));
  sheet.xLine(0, 0, 1, 1, rgb(200, 0, 0));
  EXPECT_EQ(values(62), "0 5 3 4 1 6 2 7 8 5 7 4 1 6 2 1 1 200 ");
}

TEST_F(DxfTest, AnInvertedXAxisTurnsTheStoredXOverAtEachExport) {
  sheet.xLine(0.1, 0.2, 0.3, 0.4, kWhite);
  sheet.xPset(0.5, 0, kWhite);
  sheet.xCircle(0.6, 0, 0.1, kWhite);
  sheet.xCircle(0.7, 0, 0.1, kWhite, {.endAngle = 1});
  sheet.xBox(0.1, 0, 0.3, 1, kWhite, false);  // once for each use
  sheet.invertX();
  EXPECT_EQ(values(10), "-100 -500 -600 -700 -100 -300 300 100 ");
  EXPECT_EQ(sheet.list().lines[0].x1, -0.1);
  EXPECT_EQ(sheet.list().lines[0].x2, -0.3);
  EXPECT_EQ(sheet.list().lines[0].y1, 0.2);
  EXPECT_EQ(sheet.list().boxes[0].x1, 0.1) << "turned over four times in all";
  EXPECT_EQ(sheet.list().boxes[0].x2, 0.3);
  EXPECT_EQ(values(11), "300 -300 -300 100 100 ") << "every second export";
  sheet.invertY();
  for (int i = 0; i < 2; ++i) EXPECT_EQ(values(20), "200 0 0 0 -1000 1000 0 0 ");
}

TEST_F(DxfTest, TrueAxesMirrorBoxesAndArcsAtEachExport) {
  axes = InvertedAxes::True;
  sheet.xBox(0.1, 0, 0.3, 1, kWhite, false);
  // A quarter from 10 to 100 degrees, counter-clockwise.
  sheet.xCircle(0.7, 0.2, 0.1, kWhite, {.startAngle = kPi / 18, .endAngle = kPi / 1.8});
  const std::string plain = entities();
  sheet.invertX();
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(values(10) + "| " + values(11), "-100 -300 -300 -100 -700 | -300 -300 -100 -100 ");
    EXPECT_EQ(values(50) + values(51), "80 170 ");
  }
  EXPECT_EQ(sheet.list().circles[0].x, 0.7) << "the drawing stays as it is";
  sheet.invertY();
  EXPECT_EQ(values(50) + values(51), "-170 -80 ");
  EXPECT_EQ(values(20), "1000 1000 0 0 200 ");
  sheet.invertX();
  EXPECT_EQ(values(50) + values(51), "-100 -10 ");
  sheet.invertY();
  EXPECT_EQ(entities(), plain);
}

TEST_F(DxfTest, LinesOffTheSheetAreWrittenAndWhatIsNoNumberIsNot) {
  sheet.xLine(50, 50, 60, 60, kWhite);
  sheet.xPset(50, 50, kWhite);
  sheet.xLine(0, 0, std::nan(""), 1, kWhite);
  sheet.xLine(0, 1e306, 1, 1, kWhite);
  sheet.xCircle(0, 0, std::nan(""), kWhite);
  EXPECT_EQ(values(0) + values(11), "LINE 60000 ");
}

TEST_F(DxfTest, APolylineIsClippedShiftedAndInTargetUnits) {
  const LayerId layer = sheet.layer("path");
  sheet.xPlineStart(layer);
  for (const double x : {-0.1, 0.1, 1.2}) sheet.xPLineVertex(x, 0, palette(12), layer);
  sheet.xPlineEnd(layer);
  sheet.xLine(0, 0, 1, 1, kWhite);
  EXPECT_EQ(values(0), "POLYLINE VERTEX VERTEX VERTEX SEQEND LINE ");
  const double unit = sheet.ScreenFactor() * 1000;
  std::istringstream xs(values(10));
  double own = 0, x = 0;
  xs >> own;
  for (const double expected : {0.895, 1.095, 1.99}) {  // cut at the right edge
    xs >> x;
    EXPECT_NEAR(x, expected * unit, 1e-6 * unit);
  }
}

TEST_F(DxfTest, LayerNamesStayOnOneLineInWindows1252) {
  for (const std::string_view name : {"23.445°", "a\nb\r\nc", "<\"'>&", "日", "\xff", ""}) {
    sheet.xLine(0, 0, 1, 1, kWhite, {.layer = sheet.layer(name)});
  }
  EXPECT_EQ(values(8), "23.445\xb0 a_b__c ____& _ _ 0 ");
}

TEST_F(DxfTest, ASinkThatThrowsEndsTheWriting) {
  for (int i = 0; i < 5000; ++i) sheet.xLine(0, 0, 1.0 / 3, 1.0 / 7, kWhite);
  int calls = 0;
  const Sink full = [&calls](std::string_view) {
    if (++calls == 2) throw std::runtime_error("disk full");
  };
  EXPECT_THROW(DXF_Generate(sheet, kPi, full), std::runtime_error);
  EXPECT_EQ(calls, 2) << "it is not asked again";
}

TEST(DxfNameTest, TheDefaultNameRunsTheDateTogether) {
  std::tm now{};
  now.tm_year = 106;
  now.tm_mday = 5;
  now.tm_hour = 10;
  now.tm_min = 9;
  now.tm_sec = 45;
  EXPECT_EQ(DXF_DefaultName(now), "DXF20061510945");
}

}  // namespace
}  // namespace dialwright
