// The DXF, group by group.
#include "sheet/dxf.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <ctime>
#include <regex>
#include <string>

#include "support/laid_out.hpp"
#include "support/written.hpp"

namespace dialwright {
namespace {

constexpr double kPi = 3.141592654;

// The sheet of the start: 1.99 x 2.8 m, with a shift that must not show.
class DxfTest : public testing::Test {
 protected:
  // The groups between head and tail as "code=value "; what is no " code ", CR LF, value, CR LF
  // stands there as it is.
  std::string entities() {
    const std::string file =
        written([&](const Sink& sink) { DXF_Generate(sheet, kPi, sink, axes); });
    const std::string groups =
        std::regex_replace(file, std::regex(" ([0-9]+) \r\n([^\r\n]*)\r\n"), "$1=$2 ");
    const std::string head =
        "999=DXF creato da SheetPlot 0=SECTION 2=HEADER 9=$EXTMAX 10=1.99 20=2.8 30=0 "
        "9=$EXTMIN 10=0 20=0 30=0 0=ENDSEC 0=SECTION 2=ENTITIES ";
    const std::string tail = "0=ENDSEC 0=EOF ";
    if (!groups.starts_with(head) || !groups.ends_with(tail)) ADD_FAILURE() << groups;
    return groups.substr(head.size(), groups.size() - head.size() - tail.size());
  }

  // The values of one group code, a blank after each.
  std::string values(int code) {
    const std::string groups = entities();
    const std::regex group("\\b" + std::to_string(code) + "=([^ ]* )");
    std::string found;
    for (std::sregex_iterator i(groups.begin(), groups.end(), group), end; i != end; ++i)
      found += (*i)[1];
    return found;
  }

  InvertedAxes axes = InvertedAxes::Stored;
  SheetPlot sheet = laidOut(1.99, 2.8, 0.995, 0.84);
};

TEST_F(DxfTest, EntitiesComeInDrawingOrderInMillimetresWithYUpwards) {
  EXPECT_EQ(entities(), "");
  sheet.xLine(1.0 / 3, -0.25, 2, 1e15, palette(9), {.width = 3, .layer = sheet.layer("ore")});
  sheet.xCircle(0.1, 0.2, 0.015, palette(14), {.startAngle = 1});
  sheet.xPset(0.5, 0, palette(8));
  sheet.xCircle(0, 0, 1, palette(2), {.fill = 255, .startAngle = -kPi / 2, .endAngle = kPi});
  sheet.xBox(-0.5, -0.2, 0.5, 1, palette(3), true, sheet.layer("Quadro"));
  sheet.xPset(50, 50, kWhite);  // off the sheet, where only lines are kept
  sheet.xLine(0, 0, std::nan(""), 1, kWhite);
  sheet.xLine(0, 1e306, 1, 1, kWhite);
  sheet.xCircle(0, 0, std::nan(""), kWhite);
  sheet.Dati("never", 0, 0);
  EXPECT_EQ(entities(),
            "0=LINE 8=ore 62=5 10=333.333333333333 20=250 30=0 11=2000 21=-1E+18 31=0 "
            "0=CIRCLE 8=0 62=2 10=100 20=-200 30=0 40=15 "
            "0=POINT 8=0 62=8 10=500 20=0 30=0 "
            "0=ARC 8=0 62=3 10=0 20=0 30=0 40=1000 50=-90 51=180 "
            "0=LINE 8=Quadro 62=1 10=-500 20=-1000 30=0 11=500 21=-1000 31=0 "
            "0=LINE 8=Quadro 62=1 10=500 20=-1000 30=0 11=500 21=200 31=0 "
            "0=LINE 8=Quadro 62=1 10=500 20=200 30=0 11=-500 21=200 31=0 "
            "0=LINE 8=Quadro 62=1 10=-500 20=200 30=0 11=-500 21=-1000 31=0 ")
      << "a box's colour is not converted";
}

TEST_F(DxfTest, ColoursFollowTheTableAndItsOddities) {
  for (int number = 0; number < 16; ++number) sheet.xLine(0, 0, 1, 1, palette(number));
  sheet.xLine(0, 0, 1, 1, rgb(1, 1, 0));
  sheet.xLine(0, 0, 1, 1, rgb(200, 0, 0));
  EXPECT_EQ(values(62), "0 5 3 4 1 6 2 7 8 5 7 4 1 6 2 1 1 200 ");
}

// A box's corners once for each use.
TEST_F(DxfTest, AnInvertedXAxisTurnsTheStoredXOverAtEachExport) {
  sheet.xLine(0.1, 0.2, 0.3, 0.4, kWhite);
  sheet.xBox(0.1, 0, 0.3, 1, kWhite, false);
  sheet.invertX();
  EXPECT_EQ(values(10), "-100 -100 -300 300 100 ");
  EXPECT_EQ(sheet.list().lines[0].x2, -0.3);
  EXPECT_EQ(values(11), "300 -300 -300 100 100 ") << "every second export";
  sheet.invertY();
  for (int i = 0; i < 2; ++i) EXPECT_EQ(values(20), "200 -1000 1000 0 0 ");
}

TEST_F(DxfTest, TrueAxesMirrorBoxesAndArcsAtEachExport) {
  axes = InvertedAxes::True;
  sheet.xBox(0.1, 0, 0.3, 1, kWhite, false);
  // A quarter from 10 to 100 degrees, counter-clockwise.
  sheet.xCircle(0.7, 0.2, 0.1, kWhite, {.startAngle = kPi / 18, .endAngle = kPi / 1.8});
  const std::string plain = entities();
  sheet.invertX();
  EXPECT_EQ(values(10) + "| " + values(11), "-100 -300 -300 -100 -700 | -300 -300 -100 -100 ");
  EXPECT_EQ(values(50) + values(51), "80 170 ");
  sheet.invertY();
  EXPECT_EQ(values(50) + values(51), "-170 -80 ");
  EXPECT_EQ(values(20), "1000 1000 0 0 200 ");
  sheet.invertX();
  entities();
  sheet.invertY();
  EXPECT_EQ(entities(), plain);
}

TEST_F(DxfTest, APolylineIsClippedShiftedAndInTargetUnits) {
  const LayerId layer = sheet.layer("path");
  sheet.xPlineStart(layer);
  for (const double x : {-0.1, 0.1, 1.2}) sheet.xPLineVertex(x, 0, palette(12), layer);
  sheet.xPlineEnd(layer);
  sheet.xLine(0, 0, 1, 1, kWhite);
  EXPECT_EQ(values(0), "POLYLINE VERTEX VERTEX VERTEX SEQEND LINE ");
  // 0.895, 1.095 and, cut at the right edge, 1.99 m from the left; after the head's own place.
  EXPECT_EQ(values(10), "0 10149300 12417300 22566600 0 ");
}

TEST_F(DxfTest, LayerNamesStayOnOneLineInWindows1252) {
  for (const std::string_view name : {"23.445°", "a\nb\r\nc", "<\"'>&", "日", "\xff", ""}) {
    sheet.xLine(0, 0, 1, 1, kWhite, {.layer = sheet.layer(name)});
  }
  EXPECT_EQ(values(8), "23.445\xb0 a_b__c ____& _ _ 0 ");
}

TEST(DxfName, RunsTheDateTogether) {
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
