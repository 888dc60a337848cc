// The utility board: dates and the sun of published examples, the two notations of angles, what is
// told and what is written into the main panel, odd input.
#include "board/board.hpp"

#include <gtest/gtest.h>

#include <initializer_list>
#include <sstream>
#include <utility>

#include "board/conversions.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {
namespace {

std::string english(std::string_view text) { return std::string(text); }

using Fill = std::initializer_list<std::pair<BoardField, std::string_view>>;

class BoardTest : public ::testing::Test {
 protected:
  const BoardFigures& calculate(Fill fill = {}) {
    for (const auto& [field, text] : fill) {
      board.type(field, text);
      board.leave(field);
    }
    board.Declinazione();
    return board.figures();
  }
  const BoardFigures& at(std::string_view day, std::string_view month, std::string_view year,
                         std::string_view hour, Fill more = {}) {
    calculate({{BoardField::txtDay, day},
               {BoardField::txtMonth, month},
               {BoardField::txtYear, year},
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
  Board board{panel, english};
};

double julianDay(double year, double month, double day, double hours) {
  SunOfMoment sun;
  double equation = 0;
  sun.EqTempo(year, month, day, hours, 0, 0, equation);
  return sun.julianDay;
}

TEST(EqTempo, CountsDaysInBothCalendars) {
  EXPECT_DOUBLE_EQ(julianDay(1957, 10, 4, 0.81 * 24), 2436116.31);
  EXPECT_EQ(julianDay(333, 1, 27, 12), 1842713);
  EXPECT_EQ(julianDay(-4712, 1, 1, 12), 0);
  EXPECT_EQ(julianDay(-1000, 7, 12, 12), 1356001);
  EXPECT_EQ(julianDay(1582, 10, 4, 0), 2299159.5);
  EXPECT_EQ(julianDay(1582, 10, 15, 0), 2299160.5);
  // Days of one digit, and months whose text sorts below a day of the reform's month.
  EXPECT_EQ(julianDay(1583, 1, 5, 0) - julianDay(1582, 10, 15, 0), 82);
  EXPECT_EQ(julianDay(1582, 10, 15, 0) - julianDay(1582, 9, 5, 0), 30);
  // The hour is carried round, the date is not.
  EXPECT_EQ(julianDay(2000, 1, 1, 36), julianDay(2000, 1, 1, 12));
  EXPECT_EQ(julianDay(2000, 1, 1, -6), julianDay(2000, 1, 1, 18));
}

TEST(EqTempo, GivesTheSunOfAPublishedDay) {  // 1992 October 13, 0 h
  SunOfMoment sun;
  double equation = 0;
  sun.EqTempo(1992, 10, 13, 0, 0, 0, equation);
  EXPECT_NEAR(equation, 13.711, 0.05);
  EXPECT_NEAR(sun.degrees(sun.DeclSole), -7.7851, 0.004);
  EXPECT_NEAR(sun.rightAscension * 15, 198.3782, 0.015);
  EXPECT_EQ(sun.equationWhole, 13);
  EXPECT_NEAR(sun.equationFraction, equation - 13, 1e-12);
  sun.EqTempo(1992, 2, 13, 0, 0, 0, equation);
  EXPECT_EQ(sun.equationWhole, -14);
  EXPECT_LT(sun.equationFraction, 0);
}

TEST(Conversions, SplitAndJoin) {
  double d = 7, m = 7, s = 7;
  GradiDecToSex(-7.6438, d, m, s);
  EXPECT_EQ(d, -7);
  EXPECT_EQ(m, 38);
  EXPECT_NEAR(s, 37.68, 1e-9);
  GradiDecToSex(kFault, d, m, s);
  EXPECT_EQ(m, 38);
  EXPECT_DOUBLE_EQ(GradiSexToDec('+', 7, 38, 37.68), 7.6438);
  EXPECT_DOUBLE_EQ(GradiSexToDec('-', 0, 30, 0), -0.5);
  EXPECT_EQ(GradiSexToDec('-', -7, 0, 0), 0);  // "--7" is no number
  EXPECT_EQ(SoloNumeri('5', false), '5');
  EXPECT_EQ(SoloNumeri(8, false), 8);
  EXPECT_EQ(SoloNumeri('-', true), '-');
  for (const char key : {'-', '+', ',', 'e', ' '}) EXPECT_EQ(SoloNumeri(key, false), 0);
}

TEST_F(BoardTest, OpensWithThePanelsSite) {
  EXPECT_EQ(board.text(BoardField::txtLAT), "45.7438");
  EXPECT_EQ(board.text(BoardField::TxtFuso), "-1");
  EXPECT_EQ(board.text(BoardField::txtLonG), "7");
  EXPECT_EQ(board.text(BoardField::txtLonS), "37.6800");
  EXPECT_EQ(board[BoardField::cmdSignLON].caption, "-");
  EXPECT_TRUE(board[BoardField::txtLAT].enabled);
  EXPECT_FALSE(board[BoardField::txtLATS].enabled);
  using namespace std::chrono;
  board.setMoment(sys_days(1969y / 7 / 20) + 20h + 17min + 40s);
  EXPECT_EQ(board.text(BoardField::txtMonth), "7");
  EXPECT_EQ(board.text(BoardField::txtSS), "40");
}

TEST_F(BoardTest, EachNotationFollowsTheOther) {
  board.click(BoardField::OptModoSess, true);
  EXPECT_TRUE(board[BoardField::cmdSignLAT].enabled && !board.on(BoardField::optModoDec));
  EXPECT_FALSE(board[BoardField::txtLON].enabled);
  calculate({{BoardField::txtLonG, "0"}, {BoardField::txtLonP, "30"}, {BoardField::txtLonS, ""}});
  EXPECT_EQ(board.text(BoardField::txtLON), "-0.5");
  board.press(BoardField::cmdSignLON);
  EXPECT_EQ(board.text(BoardField::txtLON), "0.5");
  board.press(BoardField::cmdSignLON);
  EXPECT_EQ(board.text(BoardField::txtLON), "-0.5");
  board.click(BoardField::optModoDec, true);
  EXPECT_FALSE(board.on(BoardField::OptModoSess));
  calculate({{BoardField::txtLAT, "-33.8"}});
  EXPECT_EQ(board.text(BoardField::txtLatG), "33");
  EXPECT_EQ(board[BoardField::cmdSignLAT].caption, "-");
  EXPECT_EQ(panel.text(Field::txtLAT), "45.7438");
  board.press(BoardField::cmdTrans);
  EXPECT_EQ(panel.text(Field::txtLAT), "-33.8");
  EXPECT_EQ(panel.text(Field::txtLON), "-0.5");
}

TEST_F(BoardTest, TellsTheWallInBothHemispheres) {
  for (const std::string_view latitude : {"41.9", "0", "-33.9"}) {
    const double north = latitude.front() == '-' ? -1 : 1;
    const double sun = at("3", "5", "2021", "15", {{BoardField::txtLAT, latitude}}).azimuth;
    EXPECT_GT(sun, 0) << "the sun of the afternoon is in the West";
    EXPECT_EQ(board.figures().wall, sun) << "az = 0";
    EXPECT_TRUE(told("Declination of the dial: ").ends_with("    West"));
    for (const double wall : {-170.0, -14.57, 90.0}) {
      const std::string az = textOf(north * (sun - wall));
      EXPECT_NEAR(calculate({{BoardField::txtAngle, az}}).wall, wall, 1e-9);
      EXPECT_TRUE(told("Declination of the dial: ").ends_with(wall < 0 ? "East" : "West"));
    }
    calculate({{BoardField::txtAngle, "0"}});
  }
}

TEST_F(BoardTest, TurnsTheMirrorHalfWay) {
  const std::pair<std::string_view, double> folds[] = {
      {"-14.57", -14.57}, {"100", 80}, {"-100", -80}, {"90", 90}};
  for (const auto& [typed, counted] : folds) {
    panel.setText(Field::txtDecl, typed);
    const BoardFigures& f = at("3", "5", "2021", "15");
    EXPECT_DOUBLE_EQ(f.mirror, (f.azimuth - counted) / 2);
  }
}

TEST_F(BoardTest, TellsTheDay) {
  const BoardFigures& f = at("21", "3", "2024", "12", {{BoardField::TxtFuso, "-5"}});
  EXPECT_NEAR(f.arc, 12.1, 0.2);
  EXPECT_NEAR(f.noon, 12 - (7.6438 / 15 + f.equation / 60) + 5, 1e-12);
  const auto hour = [this](std::string_view label) { return numberOf(told(label)); };
  EXPECT_EQ(hour("noon:  "), std::floor(f.noon) - 5);  // without the box it is UT
  board.click(BoardField::ckDst, true);
  calculate();
  EXPECT_EQ(hour("noon:  "), std::floor(f.noon) + 1);
  EXPECT_EQ(hour("sunrise at:   "), std::floor(f.sunrise()) + 1);
  EXPECT_EQ(hour("sunset at:   "), std::floor(f.sunset()) + 1);
  EXPECT_EQ(told("Daily Arc:      ").substr(0, 3), "12 ");
}

TEST_F(BoardTest, TellsThePolarDayAndNight) {
  EXPECT_EQ(at("21", "6", "2024", "1", {{BoardField::txtLAT, "70"}}).arc, 24);
  EXPECT_EQ(told("no sunset  "), "");
  EXPECT_EQ(told("sunset at:   "), "no such line");
  EXPECT_EQ(told("Daily Arc:      "), "24 0 0");
  EXPECT_EQ(at("21", "12", "2024", "1").arc, 0);
  EXPECT_EQ(told("no sunset  "), "");
}

TEST_F(BoardTest, WritesItsLinesInOrder) {
  at("13", "2", "1992", "6", {{BoardField::txtLAT, "-0.5"}, {BoardField::TxtFuso, "2"}});
  EXPECT_EQ(told("Equation of time: ").substr(0, 5), "-14  ");
  EXPECT_EQ(told("Latitude:   "), "0 -30 0");
  EXPECT_EQ(told("Longitude: ").substr(0, 6), "-7 38 ");
  EXPECT_EQ(told("Longitude of the standard meridian:  "), "30");
  EXPECT_EQ(told("Local longitude in h m s  ").substr(0, 10), "-0 : 30 : ");
  board.press(BoardField::cmdCalcola);
  const std::string& text = board.text(BoardField::txtResult);
  EXPECT_NE(text.find("\r\n\r\nLatitude:   "), text.npos);
  EXPECT_NE(text.find("\r\n\r\ntime of the dial:  "), text.npos);
  EXPECT_NE(text.find("\r\n\r\nRight Ascension : "), text.npos);
  EXPECT_TRUE(text.starts_with("Sun's Azimuth   "));
}

TEST_F(BoardTest, WritesTheSunIntoThePanel) {
  const BoardFigures& f = at("3", "5", "2021", "15");
  EXPECT_EQ(panel.text(Field::txtDelta), textOf(f.declination));
  EXPECT_EQ(panel.text(Field::txtLineofdeclination), textOf(f.declination));
  EXPECT_EQ(panel.text(Field::txtAO), textOf(f.dialTime - 12));
  const double star = panel.number(Field::txtSid_h) + panel.number(Field::txtSid_m) / 60 +
                      panel.number(Field::txtSid_s) / 3600;
  EXPECT_NEAR(star, board.sun().rightAscension, 1e-12);
  EXPECT_EQ(panel.text(Field::TxtDate), "28 04 1935");
}

// Venus over Boston on 20 March 1988, a published example: 0.81965 of the day.
TEST_F(BoardTest, WritesATransitAtZeroHours) {
  panel.setText(Field::txtSid_h, "2");
  panel.setText(Field::txtSid_m, "46");
  panel.setText(Field::txtSid_s, "55.51");
  at("20", "3", "1988", "0", {{BoardField::txtLON, "71.0833"}});
  EXPECT_EQ(panel.text(Field::TxtDate), "20 03 1988 Transit UT 19:40");
  EXPECT_EQ(panel.text(Field::txtSid_h), "2");
}

TEST_F(BoardTest, TellsTheClockAndTheSunsDegreesWithTrueShadows) {
  panel.setState(Field::ckTrue, true);
  const BoardFigures& f = at("21", "3", "2024", "3", {{BoardField::TxtFuso, "-5"}});
  EXPECT_EQ(panel.text(Field::txtAO), textOf(f.hourAngle));
  EXPECT_EQ(numberOf(told("noon:  ")), std::floor(f.noon)) << "on the zone's clock";
  EXPECT_NEAR(f.noon, 17 - (7.6438 / 15 + f.equation / 60), 1e-12);
  EXPECT_EQ(told("Right Ascension : ").substr(0, 4), "0 3 ");
  board.click(BoardField::ckDst, true);
  calculate();
  EXPECT_EQ(numberOf(told("noon:  ")), std::floor(f.noon) + 1);
  // A beam from the sun leaves the mirror square to the wall.
  for (const double wall : {-14.57, 100.0, 180.0, -60.0}) {
    panel.setText(Field::txtDecl, textOf(wall));
    for (const std::string_view hour : {"8", "15"}) {
      at("3", "5", "2021", hour);
      EXPECT_LT(std::abs(std::remainder(f.azimuth - f.mirrorNormal, 360)), 90);
      EXPECT_NEAR(std::remainder(2 * f.mirrorNormal - f.azimuth - wall - 180, 360), 0, 1e-9);
      EXPECT_EQ(told("normal of the mirror: "), textOf(f.mirrorNormal));
    }
  }
}

TEST_F(BoardTest, RoundsSecondsBeforeItSplitsThemWithTrueShadows) {
  const auto seconds = [this](std::string_view latitude) {
    calculate({{BoardField::txtLAT, latitude}});
    return board.text(BoardField::txtLatG) + ' ' + board.text(BoardField::txtLatP) + ' ' +
           board.text(BoardField::txtLATS);
  };
  EXPECT_EQ(seconds("33.99999999999"), "33 59 60.0000");
  panel.setState(Field::ckTrue, true);
  EXPECT_EQ(seconds("33.99999999999"), "34 0 0.0000");
  EXPECT_EQ(seconds("-7.6438"), "7 38 37.6800");
  EXPECT_EQ(told("Latitude:   "), "-7 -38 -37.68");
}

// A star that is just past the meridian at 0 h comes back after a turn of the sky, 3.9 minutes
// short of the day.
TEST_F(BoardTest, WritesTheTransitAtTheSkysPaceWithTrueShadows) {
  constexpr double kMeridian = 280.46061837;  // at Greenwich, of 1 January 2000 at noon
  EXPECT_NEAR(transitHours(2451545, kMeridian - 1e-6, 0), 24, 1e-4);
  EXPECT_NEAR(transitHours(2451545, kMeridian - 1e-6, 0, true), 24 - 3.9317 / 60, 1e-4);
}

TEST_F(BoardTest, TakesAnyInput) {
  for (std::size_t i = 0; i < kBoardFieldCount; ++i) {
    const BoardField field = boardFieldAt(i);
    if (rowOf(field).kind != FieldKind::Text) continue;
    for (const std::string_view odd :
         {"", "letters", "-", "1e308", "-1e308", "1e999", "90", "-90"}) {
      const std::string before = board.text(field);
      at("21", "6", "2024", "6", {{field, odd}});
      const std::string& text = board.text(BoardField::txtResult);
      EXPECT_EQ(text.find("nan"), text.npos) << rowOf(field).name << "=" << odd;
      EXPECT_EQ(text.find("inf"), text.npos) << rowOf(field).name << "=" << odd;
      for (const Field written : board.written())
        EXPECT_FALSE(panel.text(written).empty()) << rowOf(field).name << "=" << odd;
      calculate({{field, before}});
    }
  }
  const double declination = at("x", "6", "2024", "6").declination;
  EXPECT_EQ(at("0", "6", "2024", "6").declination, declination);
}

}  // namespace
}  // namespace dialwright
