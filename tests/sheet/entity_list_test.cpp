// The entity list's columns, and its texts one a line.
#include "sheet/entity_list.hpp"

#include <gtest/gtest.h>

#include <string>

#include "sheet/sheet_plot.hpp"
#include "support/written.hpp"

namespace dialwright {
namespace {

// Its rows, after the header.
std::string csv(const SheetPlot& sheet) {
  const std::string all = written([&](const Sink& sink) { writeEntityList(sheet.list(), sink); });
  return all.substr(all.find('\n') + 1);
}

TEST(EntityListTest, EachKindFillsItsOwnColumns) {
  SheetPlot sheet;
  const LayerId ore = sheet.layer("ore");
  sheet.xLine(0.1, -0.2, 1.0 / 3, 1e-7, palette(9), {.width = 2, .layer = ore});
  sheet.xPset(0.01, 0.02, palette(12), ore);
  sheet.xBox(1, 2, 3, 4, 255, true);
  sheet.xCircle(1, 2, 3, 7, {.fill = 65535, .aspect = 0.5, .startAngle = -1, .endAngle = 2});
  sheet.xCircle(1, 2, 3, 7, {.fill = -5, .layer = ore});
  sheet.xBox(1, 2, 3, 4, 255, false);
  sheet.xPlineStart(ore);
  sheet.xPLineVertex(0.5, 0.25, 7, ore);
  sheet.xPlineEnd(ore);
  sheet.Dati("text", 0.5, 0.75);
  EXPECT_EQ(csv(sheet),
            "L,0.1,-0.2,0.3333333333333333,1e-07,,,,,16711680,,2,ore,\r\n"
            "P,0.01,0.02,,,,,,,255,,,ore,\r\n"
            "B,1,2,3,4,,,,,255,1,,0,\r\n"
            "C,1,2,,,3,0.5,-1,2,7,65535,,0,\r\n"
            "C,1,2,,,3,1,0,0,7,-1,,ore,\r\n"
            "B,1,2,3,4,,,,,255,0,,0,\r\n"
            "V,0,0,,,,,,,0,,,ore,START\r\n"
            "V,0.5,0.25,,,,,,,7,,,ore,VERTEX\r\n"
            "V,0,0,,,,,,,0,,,ore,END\r\n"
            "T,0.5,0.75,,,,,,,,,,,text\r\n");
}

TEST(EntityListTest, QuotesWhatWouldBreakARow) {
  SheetPlot sheet;
  sheet.xLine(0, 0, 1, 1, 0, {.layer = sheet.layer("a,\"b\"\n")});
  sheet.Dati("5\" wide, 3 high", 0, 0);
  sheet.Dati(std::string(120, 'x'), 0, 0);
  EXPECT_EQ(csv(sheet),
            "L,0,0,1,1,,,,,0,,1,\"a,\"\"b\"\"\n\",\r\n"
            "T,0,0,,,,,,,,,,,\"5\"\" wide, 3 high\"\r\n"
            "T,0,0,,,,,,,,,,," +
                std::string(100, 'x') + "\r\n");
}

TEST(EntityListTest, TextsStandOneALine) {
  SheetPlot sheet;
  sheet.Dati("first", 0, 0);
  sheet.Dati("");
  sheet.Dati("two\r\nlines");
  EXPECT_EQ(written([&](const Sink& sink) { writeTexts(sheet.list(), sink); }),
            "first\n\ntwo  lines\n");
}

}  // namespace
}  // namespace dialwright
