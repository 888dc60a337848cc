// The utility board: dates in both calendars, the two notations of angles, what is told and what is
// written into the main panel, odd input. The ephemeris check has the sun's place.
#include "board/board.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "board/conversions.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {
namespace {

using Fill = std::vector<std::pair<BoardField, std::string_view>>;

class BoardTest : public ::testing::Test {
 protected:
  const BoardFigures& calculate(const Fill& fill = {}) {
    for (const auto& [field, text] : fill) {
      board.type(field, text);
      board.leave(field);
    }
    board.Declinazione();
    return board.figures();
  }
  // At an hour of a day "y-m-d", like "2024-3-21".
  const BoardFigures& at(std::string_view day, std::string_view hour, const Fill& more = {}) {
    const std::size_t month = day.find('-') + 1, rest = day.rfind('-') + 1;
    calculate({{BoardField::txtYear, day.substr(0, month - 1)},
               {BoardField::txtMonth, day.substr(month, rest - month - 1)},
               {BoardField::txtDay, day.substr(rest)},
               {BoardField::txtHH, hour}});
    return calculate(more);
  }
  // What stands behind the label of a line of the results.
  std::string told(std::string_view label) const {
    std::istringstream lines(board.text(BoardField::txtResult));
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with(label)) return line.substr(label.size());
    }
    return "no such line";
  }

  Panel panel;
  Board board{panel, [](std::string_view text) { return std::string(text); }};
};

TEST(EqTempo, CountsDaysInBothCalendars) {
  const auto julianDay = [](double year, double month, double day, double hours) {
    SunOfMoment sun;
    double equation = 0;
    sun.EqTempo(year, month, day, hours, 0, 0, equation);
    return sun.julianDay;
  };
  EXPECT_DOUBLE_EQ(julianDay(1957, 10, 4, 0.81 * 24), 2436116.31);
  EXPECT_EQ(julianDay(333, 1, 27, 12), 1842713);
  EXPECT_EQ(julianDay(-4712, 1, 1, 12), 0);
  EXPECT_EQ(julianDay(1582, 10, 4, 0), 2299159.5);
  EXPECT_EQ(julianDay(1582, 10, 15, 0), 2299160.5);
  // Days of one digit, and months whose text sorts below a day of the reform's month.
  EXPECT_EQ(julianDay(1583, 1, 5, 0) - julianDay(1582, 10, 15, 0), 82);
  EXPECT_EQ(julianDay(1582, 10, 15, 0) - julianDay(1582, 9, 5, 0), 30);
  // The hour is carried round, the date is not.
  EXPECT_EQ(julianDay(2000, 1, 1, 36), julianDay(2000, 1, 1, 12));
}

TEST_F(BoardTest, OpensInThePanelsZoneAndEachNotationFollowsTheOther) {
  EXPECT_EQ(board.text(BoardField::TxtFuso), "-1");
  board.click(BoardField::OptModoSess, true);
  calculate({{BoardField::txtLonG, "0"}, {BoardField::txtLonP, "30"}, {BoardField::txtLonS, ""}});
  for (const char* turned : {"-0.5", "0.5", "-0.5"}) {
    EXPECT_EQ(board.text(BoardField::txtLON), turned);
    board.press(BoardField::cmdSignLON);
  }
  EXPECT_EQ(GradiSexToDec('-', -7, 0, 0), 0) << "--7 is no number";
  board.click(BoardField::optModoDec, true);
  calculate({{BoardField::txtLAT, "-33.8"}});
  EXPECT_EQ(board[BoardField::cmdSignLAT].caption + board.text(BoardField::txtLatG), "-33");
  EXPECT_EQ(panel.text(Field::txtLAT), "45.7438");
  board.press(BoardField::cmdTrans);
  EXPECT_EQ(panel.text(Field::txtLAT), "-33.8");
  EXPECT_EQ(panel.text(Field::txtLON), "0.5");
}

TEST_F(BoardTest, TellsTheWallInBothHemispheres) {
  for (const std::string_view latitude : {"41.9", "0", "-33.9"}) {
    const double north = latitude.front() == '-' ? -1 : 1;
    const double sun = at("2021-5-3", "15", {{BoardField::txtLAT, latitude}}).azimuth;
    EXPECT_GT(sun, 0) << "the sun of the afternoon is in the West";
    for (const double wall : {-170.0, -14.57, 90.0, sun}) {
      const std::string az = textOf(north * (sun - wall));
      EXPECT_NEAR(calculate({{BoardField::txtAngle, az}}).wall, wall, 1e-9);
      EXPECT_TRUE(told("Declination of the dial: ").ends_with(wall < 0 ? "    East" : "    West"));
    }
  }
}

// The sun's own hours are in UT, unless the box asks for the zone's clock an hour ahead; with true
// shadows they are on the zone's clock with or without it.
TEST_F(BoardTest, TellsTheDayOnItsClockAndHandsTheSunToThePanel) {
  const auto hour = [this](std::string_view label) { return numberOf(told(label)); };
  for (const bool onlyTrue : {false, true}) {
    panel.setState(Field::ckTrue, onlyTrue);
    board.click(BoardField::ckDst, false);
    const BoardFigures& f = at("2024-3-21", "3", {{BoardField::TxtFuso, "-5"}});
    EXPECT_NEAR(f.noon, 17 - (7.6438 / 15 + f.equation / 60), 1e-12);
    EXPECT_EQ(hour("noon:  "), std::floor(f.noon) - (onlyTrue ? 0 : 5));
    // The panel's field means degrees and is handed hours.
    EXPECT_EQ(panel.text(Field::txtAO), textOf(onlyTrue ? f.hourAngle : f.dialTime - 12));
    EXPECT_EQ(panel.text(Field::txtDelta), textOf(f.declination));
    EXPECT_EQ(panel.text(Field::txtLineofdeclination), textOf(f.declination));
    const double star = panel.number(Field::txtSid_h) + panel.number(Field::txtSid_m) / 60 +
                        panel.number(Field::txtSid_s) / 3600;
    EXPECT_NEAR(star, board.sun().rightAscension, 1e-6);
    board.click(BoardField::ckDst, true);
    calculate();
    EXPECT_EQ(hour("noon:  "), std::floor(f.noon) + 1);
    EXPECT_EQ(hour("sunrise at:   "), std::floor(f.sunrise()) + 1);
    EXPECT_EQ(hour("sunset at:   "), std::floor(f.sunset()) + 1);
  }
}

TEST_F(BoardTest, TellsThePolarDayAndNight) {
  for (const auto& [day, arc] : {std::pair{"2024-6-21", 24}, {"2024-12-21", 0}}) {
    EXPECT_EQ(at(day, "1", {{BoardField::txtLAT, "70"}}).arc, arc);
    EXPECT_EQ(told("no sunset  "), "");
    EXPECT_EQ(told("sunset at:   "), "no such line");
  }
}

TEST_F(BoardTest, WritesItsLinesInOrder) {
  at("1992-2-13", "6", {{BoardField::txtLAT, "-0.5"}, {BoardField::TxtFuso, "2"}});
  board.press(BoardField::cmdCalcola);
  const std::string& text = board.text(BoardField::txtResult);
  EXPECT_TRUE(text.starts_with("Sun's Azimuth   "));
  std::size_t place = 0;
  for (const char* next :
       {"\r\nEquation of time: -14  ", "\r\n\r\nLatitude:   0 -30 0\r\n", "Longitude: -7 38 ",
        "\r\n\r\nLongitude of the standard meridian:  30\r\n",
        "Local longitude in h m s  -0 : 30 : ", "\r\n\r\ntime of the dial:  ",
        "\r\n\r\nRight Ascension : "}) {
    place = text.find(next, place);
    ASSERT_NE(place, text.npos) << next;
  }
}

// Venus over Boston on 20 March 1988, a published example: 0.81965 of the day. With true shadows a
// star that is just past the meridian at 0 h comes back after a turn of the sky, 3.9 minutes short
// of the day.
TEST_F(BoardTest, WritesATransitAtZeroHours) {
  panel.setText(Field::txtSid_h, "2");
  panel.setText(Field::txtSid_m, "46");
  panel.setText(Field::txtSid_s, "55.51");
  at("1988-3-20", "0", {{BoardField::txtLON, "71.0833"}});
  EXPECT_EQ(panel.text(Field::TxtDate), "20 03 1988 Transit UT 19:40");
  EXPECT_EQ(panel.text(Field::txtSid_h), "2");
  constexpr double kMeridian = 280.46061837;  // at Greenwich, of 1 January 2000 at noon
  EXPECT_NEAR(transitHours(2451545, kMeridian - 1e-6, 0), 24, 1e-4);
  EXPECT_NEAR(transitHours(2451545, kMeridian - 1e-6, 0, true), 24 - 3.9317 / 60, 1e-4);
}

// A beam from the sun leaves the mirror square to the wall. Without true shadows a wall that looks
// North counts as its image in the line from East to West.
TEST_F(BoardTest, TurnsTheMirrorHalfWay) {
  for (const auto& [wall, counted] :
       {std::pair{-14.57, -14.57}, {100.0, 80.0}, {-100.0, -80.0}, {90.0, 90.0}, {180.0, 0.0}}) {
    panel.setText(Field::txtDecl, textOf(wall));
    for (const std::string_view hour : {"8", "15"}) {
      panel.setState(Field::ckTrue, false);
      const BoardFigures& f = at("2021-5-3", hour);
      EXPECT_NEAR(f.mirror, (f.azimuth - counted) / 2, 1e-12);
      panel.setState(Field::ckTrue, true);
      calculate();
      EXPECT_LT(std::abs(std::remainder(f.azimuth - f.mirrorNormal, 360)), 90);
      EXPECT_NEAR(std::remainder(2 * f.mirrorNormal - f.azimuth - wall - 180, 360), 0, 1e-9);
    }
  }
}

TEST_F(BoardTest, RoundsSecondsBeforeItSplitsThemWithTrueShadows) {
  for (const auto& [onlyTrue, latitude, split] :
       {std::tuple{false, "33.99999999999", "33 59 60.0000"},
        {true, "33.99999999999", "34 0 0.0000"},
        {true, "-7.6438", "7 38 37.6800"}}) {
    panel.setState(Field::ckTrue, onlyTrue);
    calculate({{BoardField::txtLAT, latitude}});
    EXPECT_EQ(board.text(BoardField::txtLatG) + ' ' + board.text(BoardField::txtLatP) + ' ' +
                  board.text(BoardField::txtLATS),
              split);
  }
  EXPECT_EQ(told("Latitude:   "), "-7 -38 -37.68");
}

TEST_F(BoardTest, TakesAnyInput) {
  for (std::size_t i = 0; i < kBoardFieldCount; ++i) {
    const BoardField field = boardFieldAt(i);
    if (rowOf(field).kind != FieldKind::Text) continue;
    const std::string before = board.text(field);
    for (const char* odd : {"", "letters", "-", "1e308", "-1e308", "1e999", "90", "-90"}) {
      SCOPED_TRACE(testing::Message() << rowOf(field).name << "=" << odd);
      at("2024-6-21", "6", {{field, odd}});
      const std::string& text = board.text(BoardField::txtResult);
      EXPECT_TRUE(text.find("nan") == text.npos && text.find("inf") == text.npos);
      for (const Field written : board.written()) EXPECT_FALSE(panel.text(written).empty());
    }
    calculate({{field, before}});
  }
}

}  // namespace
}  // namespace dialwright
