// The DXF, group by group.
#include "sheet/dxf.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "support/written.hpp"

namespace dialwright {
namespace {

constexpr double kPi = 3.141592654;

// A group as "code=value".
using Groups = std::vector<std::string>;

// Splits the file, and insists on its form: " code ", CR LF, value, CR LF.
Groups parse(std::string_view file) {
  Groups groups;
  while (!file.empty()) {
    const std::size_t code = file.find("\r\n");
    const std::size_t value = file.find("\r\n", code + 2);
    if (value == std::string_view::npos || file.front() != ' ' || file[code - 1] != ' ') {
      ADD_FAILURE() << "no group: " << file.substr(0, 40);
      break;
    }
    groups.push_back(std::string(file.substr(1, code - 2)) + '=' +
                     std::string(file.substr(code + 2, value - code - 2)));
    file.remove_prefix(value + 2);
  }
  return groups;
}

std::string file(SheetPlot& sheet) {
  return written([&](const Sink& sink) { DXF_Generate(sheet, kPi, sink); });
}

const Groups kHead = {"999=DXF creato da SheetPlot",
                      "0=SECTION",
                      "2=HEADER",
                      "9=$EXTMAX",
                      "10=1.99",
                      "20=2.8",
                      "30=0",
                      "9=$EXTMIN",
                      "10=0",
                      "20=0",
                      "30=0",
                      "0=ENDSEC",
                      "0=SECTION",
                      "2=ENTITIES"};
const Groups kTail = {"0=ENDSEC", "0=EOF"};

// The sheet of the start: 1.99 x 2.8 m, with a shift that must not show.
class DxfTest : public testing::Test {
 protected:
  DxfTest() {
    sheet.QuadranteL(1.99);
    sheet.QuadranteH(2.8);
    sheet.ShiftX(0.995);
    sheet.ShiftY(0.84);
  }

  // The groups of the entities, between a head and a tail that must be right.
  Groups entities() {
    const Groups all = parse(file(sheet));
    const auto head = static_cast<std::ptrdiff_t>(kHead.size());
    const auto tail = static_cast<std::ptrdiff_t>(kTail.size());
    if (all.size() < kHead.size() + kTail.size()) {
      ADD_FAILURE() << "the file is too short";
      return {};
    }
    EXPECT_EQ(Groups(all.begin(), all.begin() + head), kHead);
    EXPECT_EQ(Groups(all.end() - tail, all.end()), kTail);
    return {all.begin() + head, all.end() - tail};
  }

  // The values of one group code, in order.
  Groups values(int code) {
    Groups found;
    const std::string start = std::to_string(code) + '=';
    for (const std::string& group : entities()) {
      if (group.starts_with(start)) found.push_back(group.substr(start.size()));
    }
    return found;
  }

  SheetPlot sheet;
};

TEST_F(DxfTest, AnEmptySheetIsAHeaderAndAnEnd) { EXPECT_TRUE(entities().empty()); }

TEST_F(DxfTest, EntitiesComeInDrawingOrderInMillimetresWithYUpwards) {
  sheet.xLine(0.0125, -0.25, 2, 3, palette(9), {.width = 3, .layer = sheet.layer("ore")});
  sheet.xCircle(0.1, 0.2, 0.015, palette(14), {.startAngle = 1});
  sheet.xPset(0.5, 0, palette(8));
  sheet.xCircle(0, 0, 1, palette(2), {.fill = 255, .startAngle = -kPi / 2, .endAngle = kPi});
  sheet.Dati("never", 0, 0);
  const Groups expected = {
      "0=LINE",   "8=ore", "62=5", "10=12.5", "20=250",  "30=0", "11=2000", "21=-3000", "31=0",
      "0=CIRCLE", "8=0",   "62=2", "10=100",  "20=-200", "30=0", "40=15",  //
      "0=POINT",  "8=0",   "62=8", "10=500",  "20=0",    "30=0",           //
      "0=ARC",    "8=0",   "62=3", "10=0",    "20=0",    "30=0", "40=1000", "50=-90",   "51=180"};
  EXPECT_EQ(entities(), expected);
}

TEST_F(DxfTest, NumbersHaveFifteenDigitsAndNoLocale) {
  sheet.xLine(1.0 / 3, 1e-9, 1e15, -2.0 / 3, kBlack);
  EXPECT_EQ(values(10), Groups{"333.333333333333"});
  EXPECT_EQ(values(20), Groups{"-1E-06"});
  EXPECT_EQ(values(11), Groups{"1E+18"});
  EXPECT_EQ(values(21), Groups{"666.666666666667"});
}

TEST_F(DxfTest, ColoursFollowTheTableAndItsOddities) {
  const std::pair<Rgb, std::string> kColours[] = {
      {palette(0), "0"},   {palette(1), "5"},      {palette(2), "3"},  {palette(3), "4"},
      {palette(4), "1"},   {palette(5), "6"},      {palette(6), "2"},  {palette(7), "7"},
      {palette(8), "8"},   {palette(9), "5"},      {palette(10), "7"}, {palette(11), "4"},
      {palette(12), "1"},  {palette(13), "6"},     {palette(14), "2"}, {palette(15), "1"},
      {rgb(1, 1, 0), "1"}, {rgb(200, 0, 0), "200"}};
  Groups expected;
  for (const auto& [colour, index] : kColours) {
    sheet.xLine(0, 0, 1, 1, colour);
    expected.push_back(index);
  }
  EXPECT_EQ(values(62), expected);
}

TEST_F(DxfTest, ABoxIsFourLinesAndItsColourIsNotConverted) {
  sheet.xBox(-0.5, -0.2, 0.5, 1, palette(3), true, sheet.layer("Quadro"));
  EXPECT_EQ(values(0), (Groups{"LINE", "LINE", "LINE", "LINE"}));
  EXPECT_EQ(values(62), (Groups{"1", "1", "1", "1"}));
  EXPECT_EQ(values(8), (Groups{"Quadro", "Quadro", "Quadro", "Quadro"}));
  EXPECT_EQ(values(10), (Groups{"-500", "500", "500", "-500"}));
  EXPECT_EQ(values(20), (Groups{"-1000", "-1000", "200", "200"}));
  EXPECT_EQ(values(11), (Groups{"500", "500", "-500", "-500"}));
  EXPECT_EQ(values(21), (Groups{"-1000", "200", "200", "-1000"}));
}

TEST_F(DxfTest, AnInvertedXAxisTurnsTheStoredXOverAtEachExport) {
  sheet.xLine(0.1, 0.2, 0.3, 0.4, kWhite);
  sheet.xPset(0.5, 0, kWhite);
  sheet.xCircle(0.6, 0, 0.1, kWhite);
  sheet.xCircle(0.7, 0, 0.1, kWhite, {.endAngle = 1});
  sheet.invertX();
  EXPECT_EQ(values(10), (Groups{"-100", "-500", "-600", "-700"}));
  EXPECT_EQ(values(10), (Groups{"100", "500", "600", "700"})) << "every second export";
  file(sheet);
  EXPECT_EQ(sheet.list().lines[0].x1, -0.1);
  EXPECT_EQ(sheet.list().lines[0].x2, -0.3);
  EXPECT_EQ(sheet.list().lines[0].y1, 0.2);
}

TEST_F(DxfTest, AnInvertedYAxisLeavesTheRecordsAlone) {
  sheet.xLine(0.1, 0.2, 0.3, 0.4, kWhite);
  sheet.invertY();
  EXPECT_EQ(values(20), Groups{"200"});
  EXPECT_EQ(values(20), Groups{"200"});
}

TEST_F(DxfTest, ABoxTurnsItsCoordinatesOverOnceForEachUse) {
  sheet.xBox(0.1, 0, 0.3, 1, kWhite, false);
  sheet.invertX();
  EXPECT_EQ(values(10), (Groups{"-100", "-300", "300", "100"}));
  EXPECT_EQ(values(11), (Groups{"-300", "-300", "100", "100"}));
  EXPECT_EQ(sheet.list().boxes[0].x1, 0.1) << "turned over four times in all";
  EXPECT_EQ(sheet.list().boxes[0].x2, 0.3);
}

TEST_F(DxfTest, LinesOffTheSheetAreWrittenAndWhatIsNoNumberIsNot) {
  sheet.xLine(50, 50, 60, 60, kWhite);
  sheet.xPset(50, 50, kWhite);
  sheet.xLine(0, 0, std::nan(""), 1, kWhite);
  sheet.xLine(0, 1e306, 1, 1, kWhite);
  sheet.xCircle(0, 0, std::nan(""), kWhite);
  EXPECT_EQ(values(0), Groups{"LINE"});
  EXPECT_EQ(values(11), Groups{"60000"});
}

TEST_F(DxfTest, APolylineIsClippedShiftedAndInTargetUnits) {
  sheet.QuadranteL(0.4);
  sheet.QuadranteH(0.4);
  sheet.resizeRaw(0.4, 0.4);
  sheet.ShiftX(0.2);
  sheet.ShiftY(0.2);
  const LayerId layer = sheet.layer("path");
  sheet.xPlineStart(layer);
  sheet.xPLineVertex(-0.1, 0, palette(12), layer);
  sheet.xPLineVertex(0.1, 0, palette(12), layer);
  sheet.xPLineVertex(0.3, 0, palette(12), layer);
  sheet.xPlineEnd(layer);
  sheet.xLine(0, 0, 1, 1, kWhite);
  const Groups all = parse(file(sheet));
  Groups kinds;
  std::vector<double> xs;
  for (const std::string& group : all) {
    if (group.starts_with("0=")) kinds.push_back(group.substr(2));
    if (group.starts_with("10=")) xs.push_back(std::stod(group.substr(3)));
  }
  EXPECT_EQ(kinds, (Groups{"SECTION", "ENDSEC", "SECTION", "POLYLINE", "VERTEX", "VERTEX", "VERTEX",
                           "SEQEND", "LINE", "ENDSEC", "EOF"}));
  const double unit = sheet.ScreenFactor() * 1000;
  ASSERT_EQ(xs.size(), 7u);  // two of the header, the polyline's own
  EXPECT_NEAR(xs[3], 0.1 * unit, 1e-6 * unit);
  EXPECT_NEAR(xs[4], 0.3 * unit, 1e-6 * unit);
  EXPECT_NEAR(xs[5], 0.4 * unit, 1e-6 * unit) << "cut at the right edge";
}

TEST_F(DxfTest, LayerNamesStayOnOneLineInWindows1252) {
  for (const std::string_view name : {"23.445°", "a\nb\r\nc", "<\"'>&", "日", "\xff", ""}) {
    sheet.xLine(0, 0, 1, 1, kWhite, {.layer = sheet.layer(name)});
  }
  EXPECT_EQ(values(8), (Groups{"23.445\xb0", "a_b__c", "____&", "_", "_", "0"}));
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
  now.tm_mon = 0;
  now.tm_mday = 5;
  now.tm_hour = 10;
  now.tm_min = 9;
  now.tm_sec = 45;
  EXPECT_EQ(DXF_DefaultName(now), "DXF20061510945");
}

}  // namespace
}  // namespace dialwright
