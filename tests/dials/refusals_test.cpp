// What the dials refuse, with which words, and that they endure all else.
#include <gtest/gtest.h>

#include "support/odd_input.hpp"

namespace dialwright {
namespace {

const std::string kSouth = "Sorry, unable to work in the Southern hemisphere |";
const std::string kEquator = "Sorry, unable to work at the equator |";
const std::string kLevel = "Sorry, unable to deal with horizontal dials |";
const std::string kModify = "Modify the definition if the graph is not well visible|";
const std::string kIncomplete = "Immettere Longitudine,latitudine,Declinazione e Ortostilo !!|";
const std::string kUnavailable = "Sorry, graph not available  |";
const std::string kUseX = "Horizontal dial, please use variable X";

struct Row {
  int program;
  const char* settings;
  std::string messages;  // each with a bar after it
  std::size_t entities = 0;
  std::string caption = {};
  int beeps = 0;
};

TEST(Dials, RefuseWithTheirWords) {
  const Row rows[] = {
      {1, "txtLAT=-10", kSouth},
      // The variable X frames the sheet before it looks at the fields, Y only when it can begin.
      {2, "optX txtDecl=90 txtReclinZ=90", kModify + "Please use the other variable !!|", 1, "", 1},
      {2, "optX txtLAT=", kModify + kIncomplete, 1},
      {2, "optY txtLAT=", kIncomplete},
      {2, "optY txtDecl=0 txtReclinZ=90", kModify, 0, kUseX, 1},
      {2, "optY txtDecl=10 txtReclinZ=0", kModify, 1, kUseX, 1},
      // The hemisphere comes first, then the equator, then the plane.
      {3, "txtLAT=-1 txtDecl=90 txtReclinZ=0", kSouth},
      {3, "txtLAT=0 txtDecl=90 txtReclinZ=0", kEquator},
      {3, "txtReclinZ=0", kLevel},
      {3, "txtReclinZ=180", kLevel},
      {3, "txtDecl=-90 txtReclinZ=90", "Please use programme n° 4 |"},
      {4, "txtLAT=-1 txtDecl=90 txtReclinZ=0", kSouth},
      {4, "txtLAT=0 txtDecl=90 txtReclinZ=0", kEquator},
      {4, "txtReclinZ=0", kLevel},
      {4, "txtReclinZ=180", kLevel},
      {5, "txtLAT=-1", kSouth},
      {5, "txtLAT=", kIncomplete},
      {6, "txtLAT=-10",
       "For sundials in the Southern hemisphere please use programme 7) and read the rules|"},
      {7, "txtLAT=-10",
       "Use positive latitude also for the Southern hemisphere and click on F; after RUN press "
       "Key InvertX |"},
      {8, "txtLAT=-0.1", kSouth},
      {8, "txtLAT=0", kEquator},
      {9, "txtLAT=-0.1", kModify + kSouth},
      {10, "txtLAT=-0.1", kUnavailable},
      {10, "txtDecl=70.1", kUnavailable},
      {10, "txtDecl=-70.1", kUnavailable},
      {11, "txtLAT=-0.1", kModify + kSouth},
      {12, "txtLAT=-0.1", kSouth}};
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << "program " << row.program << ' ' << row.settings);
    DialCase dial(row.program, "ckFrame");
    dial.with(row.settings).run();
    std::string messages;
    for (const std::string& message : dial.messages) messages += message + '|';
    EXPECT_EQ(messages, row.messages);
    EXPECT_EQ(dial.entities(), row.entities);
    EXPECT_EQ(dial.sheet.caption(), row.caption);
    EXPECT_EQ(dial.beeps, row.beeps);
    EXPECT_TRUE(dial.refused && !dial.busy && dial.panel[Field::cmdData].visible);
    EXPECT_EQ(dial.panel.on(Field::ckFunction), row.program == 7) << "the South is drawn by it";
  }
}

TEST(Dials, OfBallsWiresAndCornicesRefuseTheSouthButNotTheEquator) {
  for (const int number : {16, 17, 18, 22, 26, 35, 36, 38, 39}) {
    DialCase dial(number, "txtLAT=-0.0001 chkOreAstronomiche Ck_DayLightCurves");
    dial.run();
    EXPECT_TRUE(dial.refused && dial.entities() == 0 && !dial.busy) << number;
    EXPECT_EQ(dial.messages.at(0) + '|', kSouth);
    dial.set(Field::txtLAT, "0").run();
    EXPECT_FALSE(dial.refused) << number;
    EXPECT_GT(dial.entities(), 0u) << number;
  }
}

// The dotted ones by a definition that gets them nowhere: they tell what is left out.
TEST(Dials, LeaveOutWhatHasNoStep) {
  for (const int number : {8, 9, 11}) {
    for (const char* settings : {"txt_Definition=0", "txt_Definition=-5"}) {
      DialCase dial(number, "chkOreAstronomiche Ck_DayLightCurves");
      dial.with(settings).run();
      EXPECT_TRUE(dial.pointsIn(palette(11)).empty());
      EXPECT_EQ(dial.messages.size(), 2u) << "the notice, and a word for what is left out";
    }
  }
}

// With all boxes.
TEST(Dials, TakeAnyInput) {
  for (const DriverRow& row : drivers()) {
    const int program = rowOf(row.item).program;
    for (const char* variant : {"optX OptConvex", "optY Optconcave"}) {
      const DialCase start(row.item, variant);
      for (std::size_t i = 0; i < kFieldCount; ++i) {
        const Field field = fieldAt(i);
        if (rowOf(field).kind != FieldKind::Text || !start.panel[field].visible) continue;
        for (const char* text : kOddTexts) {
          SCOPED_TRACE(testing::Message() << rowOf(row.item).name << ' ' << variant << ' '
                                          << rowOf(field).name << '=' << text);
          DialCase dial(row.item, variant);
          dial.setBoxes(true).with("-ckTrue").set(field, text);
          expectBounded(dial.run());
        }
      }
      if (program != 2 && (program < 8 || program > 12)) break;  // it has no variants
    }
  }
}

}  // namespace
}  // namespace dialwright
