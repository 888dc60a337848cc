// Tests of program 13: the filtering hat.
#include "dials/cylindrical/cappello.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"
#include "support/odd_input.hpp"
#include "support/sky.hpp"

namespace dialwright {
namespace {

using sky::rad;
using std::numbers::pi;

constexpr double kRadius = 0.14, kBrim = 0.4;

class Chapeau : public DialCase {
 public:
  explicit Chapeau(double latitude = 45.7438, std::initializer_list<Field> boxes = {})
      : DialCase(Item::mnuChapeau, QuadranteCappello) {
    clearBoxes();
    for (const Field box : boxes) panel.setState(box, true);
    set(Field::txtLAT, textOf(latitude));
  }
};

TEST(FilteringHat, AnalemmasAreOfNoonOrOfTheHoursAndOfAHalfYear) {
  Chapeau hours(45.7438, {Field::ck_Lemniscate, Field::Ck_Section});
  hours.set(Field::TxtHour, "2").run();
  EXPECT_EQ(hours.linesOf("analemma").size(), (29 + 15) * 365u);
  for (const auto& [half, count] : {std::pair{Field::Optconcave, 182u}, {Field::OptConvex, 181u}}) {
    Chapeau dial(45.7438, {Field::ck_Lemniscate, Field::CheckL});
    dial.panel.setState(half, true);
    dial.run();
    EXPECT_EQ(dial.linesOf("analemma").size(), count);
  }
}

// No longitude moves the analemmas of the hours; that of noon alone goes with the zone.
TEST(FilteringHat, TheHoursOfAnalemmasAreThePlacesOwn) {
  const auto meanAbscissa = [](bool hours, const char* longitude, std::size_t line) {
    Chapeau dial(45.7438, {Field::ck_Lemniscate});
    dial.panel.setState(Field::Ck_Section, hours);
    dial.set(Field::txtLON, longitude).set(Field::TxtHour, "1").run();
    const auto segments = dial.linesOf("analemma");
    double sum = 0;
    for (std::size_t i = 0; i < 365; ++i) sum += segments.at(365 * line + i).x1;
    return sum / 365;
  };
  constexpr std::size_t kNoon = 7;
  EXPECT_NEAR(meanAbscissa(true, "-7.6438", kNoon), 0, 0.01 * kRadius);
  EXPECT_EQ(meanAbscissa(true, "-7.6438", 0), meanAbscissa(true, "20", 0));
  EXPECT_GT(meanAbscissa(false, "-7.6438", 0), 0.1 * kRadius);
}

TEST(FilteringHat, NumeralsAreRomanTwiceWithBothBoxes) {
  Chapeau arabic(45.7438, {Field::ckArabi}), roman(45.7438, {Field::ckRomani}),
      both(45.7438, {Field::ckArabi, Field::ckRomani});
  for (Chapeau* dial : {&arabic, &roman, &both}) dial->set(Field::txtLineofdeclination, "20").run();
  EXPECT_GT(arabic.entities(), 15u);
  EXPECT_EQ(both.entities(), 2 * roman.entities());
  EXPECT_TRUE(arabic.linesOf("20").empty()) << "numerals stand on the line";
}

TEST(FilteringHat, ARunDrawsItsFamiliesInOrder) {
  Chapeau dial(45.7438, {Field::ck_Triangolo, Field::chkOreAstronomiche, Field::Ck_DayLightCurves,
                         Field::ck_babiloniche, Field::ck_Lemniscate, Field::ck_Italiche,
                         Field::ckTemp, Field::ck_Orizzonte, Field::ckFrame});
  dial.set(Field::TxtHour, "4").run();
  EXPECT_EQ(dial.sheet.caption(), "Filtering Hat Sundial");
  EXPECT_FALSE(dial.busy);
  EXPECT_EQ(dial.inks(),
            "Ore 12|mezze 6|-23.445° 12|23.445° 12|-20.1552° 13|20.1552° 13|-11.4746° 11|"
            "11.4746° 11|eq 9|bab1 13|analemma 10|ita1 12|temp1 11|23.445 10|");
  const auto& all = dial.sheet.list().lines;
  EXPECT_EQ(std::count_if(all.begin(), all.end(), [](const LineRecord& l) { return l.width == 4; }),
            std::ssize(all) - std::ssize(dial.linesOf("mezze")));
  EXPECT_EQ(dial.linesIn(palette(6))[0].width, 2);
  EXPECT_EQ(dial.linesIn(palette(3))[0].width, 1);
  const auto& circles = dial.sheet.list().circles;
  ASSERT_EQ(circles.size(), 2u);
  EXPECT_EQ(circles[0].colour, palette(14));
  EXPECT_EQ(circles[0].y, -kRadius);
  EXPECT_EQ(circles[1].radius, kBrim);
  // The frame comes last, by the window that the run wrote.
  ASSERT_EQ(dial.sheet.list().boxes.size(), 1u);
  EXPECT_NEAR(dial.sheet.list().boxes[0].x2, kRadius * pi, 1e-9);
  const auto lines = dial.linesOf("-20.1552°");
  for (std::size_t i = 1; i < lines.size(); ++i) EXPECT_EQ(lines[i].x1, lines[i - 1].x2);
}

TEST(FilteringHat, TheRunFillsThePanelAndTellsTheSizes) {
  Chapeau dial;
  dial.run();
  const double lowest = -(kBrim - kRadius) * std::tan(rad(90 - 45.7438 + 23.445));
  EXPECT_NEAR(dial.panel.number(Field::TxtStilo), kBrim - kRadius, 1e-12);
  EXPECT_NEAR(dial.panel.number(Field::x1txt), -kRadius * pi, 1e-9);
  EXPECT_NEAR(dial.panel.number(Field::x2txt), kRadius * pi, 1e-9);
  EXPECT_EQ(dial.panel.text(Field::y1txt), "0");
  EXPECT_NEAR(dial.panel.number(Field::y2txt), lowest, 1e-8);
  EXPECT_EQ(dial.panel.text(Field::y2txt), dial.panel.text(Field::txtV1));
  EXPECT_EQ(dial.told(),
            "|Sundial Data |latitude  = 45.7438|longitude  = -7.6438|radius  = 0.14 m|"
            "radius of the hat  = 0.4 m|style = 0.26 m|right = 0.4398 m|left = -0.4398 m|"
            "vertex ordinate = -0.634 m|");
}

TEST(FilteringHat, HourDivisionsAreOneTwoOrFour) {
  for (const auto& [text, halves, quarters] : {std::tuple{"1", 0u, 0u},
                                               {"2", 16 * 937u, 0u},
                                               {"3", 0u, 0u},
                                               {"4", 16 * 937u, 31 * 937u}}) {
    Chapeau dial(45.7438, {Field::chkOreAstronomiche});
    dial.set(Field::TxtHour, text).run();
    EXPECT_EQ(dial.linesOf("Ore").size(), 15 * 937u);
    EXPECT_EQ(dial.linesIn(palette(6)).size(), halves);
    EXPECT_EQ(dial.linesIn(palette(3)).size(), quarters);
  }
}

// --- Quirks

// With the horizon off, only the winter solstice is drawn.
TEST(FilteringHat, DayCurvesNeedTheHorizon) {
  Chapeau dial(45.7438, {Field::Ck_DayLightCurves});
  dial.set(Field::txtLineofdeclination, "1").run();
  EXPECT_EQ(dial.linesOf("-23.445°").size(), 4500u);
  EXPECT_EQ(dial.entities(), 4500u + dial.linesOf("1").size());
  Chapeau function(45.7438, {Field::Ck_DayLightCurves, Field::ck_Orizzonte, Field::ckFunction});
  function.set(Field::txtLineofdeclination, "1").run();
  EXPECT_FALSE(function.linesOf("23.445°").empty());
  EXPECT_EQ(function.entities(), function.linesOf("-23.445°").size() +
                                     function.linesOf("23.445°").size() +
                                     function.linesOf("1").size());
}

TEST(FilteringHat, OddInputEndsWithoutFaultsInTheDrawing) {
  expectBounded(Item::mnuChapeau, QuadranteCappello,
                {Field::ck_Lemniscate, Field::Ck_Section, Field::ck_Italiche, Field::ckTemp,
                 Field::ck_Etna, Field::ck_Triangolo},
                {Field::txtLAT, Field::txt_R2, Field::TxtRadius, Field::TxtHour, Field::txtLON,
                 Field::txtLineofdeclination});
  Chapeau flat(45.7438, {Field::chkOreAstronomiche});
  flat.set(Field::txt_R2, "0.14").run();
  for (const LineRecord& l : flat.sheet.list().lines) ASSERT_EQ(l.y1, 0);
}

}  // namespace
}  // namespace dialwright
