// Tests of program 13: the filtering hat.
#include "dials/cylindrical/cappello.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <string>

#include "numerics/numbers.hpp"
#include "support/cylinder_model.hpp"
#include "support/dial_case.hpp"
#include "support/mean_sun.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;
using std::numbers::pi;

constexpr double kRadius = 0.14, kBrim = 0.4;

// The hat: the sun's ray through the nearest point of the brim's edge meets the cylinder, which is
// unrolled from its southern generator, East to the right.
struct Hat {
  double latitude;
  sky::CircleSection cylinder{kRadius, 1};

  sky::Spot light(sky::Vec sun) const {
    const double across = std::hypot(sun.x, sun.y);
    const sky::Spot edge{kBrim * sun.x / across, kBrim * -sun.y / across - kRadius};
    const double u = cylinder.meet(edge, {-sun.x, sun.y}).value();
    const double way = sky::distance(edge, cylinder.point(u));
    return {sky::arcLength([this](double v) { return cylinder.point(v); }, 0, u),
            -way * sun.z / across};
  }

  // Hour angle and declination of the sun that lights a spot.
  std::pair<double, double> sunOf(sky::Spot spot) const {
    const double u = spot.x / kRadius;
    const double out = kBrim - kRadius;
    const double length = std::hypot(out, spot.y);
    const sky::Vec sun{out * std::sin(u) / length, -out * std::cos(u) / length, -spot.y / length};
    const sky::Spot back = light(sun);
    EXPECT_NEAR(std::remainder(back.x - spot.x, 2 * pi * kRadius), 0, 1e-9);
    EXPECT_NEAR(back.y, spot.y, 1e-9 * (1 + std::abs(spot.y)));
    return {sky::hourAngleOf(rad(latitude), sun), sky::declinationOf(rad(latitude), sun)};
  }
};

class Chapeau : public DialCase {
 public:
  explicit Chapeau(double latitude = 45.7438, std::initializer_list<Field> boxes = {})
      : DialCase(Item::mnuChapeau, QuadranteCappello), hat{latitude} {
    clearBoxes();
    for (const Field box : boxes) panel.setState(box, true);
    set(Field::txtLAT, textOf(latitude));
  }

  // Both ends of every nth line of a layer are lit by suns for which miss(hour angle, declination)
  // is nothing.
  template <class Miss>
  std::size_t expectSuns(std::string_view layer, Miss miss, std::size_t stride = 7) {
    const auto lines = linesOf(layer);
    for (std::size_t i = 0; i < lines.size(); i += stride) {
      for (const sky::Spot spot :
           {sky::Spot{lines[i].x1, -lines[i].y1}, sky::Spot{lines[i].x2, -lines[i].y2}}) {
        if (spot.x == 0 && spot.y == 0) continue;  // where the pen starts
        const auto [H, d] = hat.sunOf(spot);
        EXPECT_NEAR(miss(H, d), 0, 1e-7)
            << layer << " " << spot.x << ", " << spot.y << ": " << deg(H) << " " << deg(d);
        if (testing::Test::HasFailure()) return lines.size();
      }
    }
    return lines.size();
  }

  const Hat hat;
};

TEST(FilteringHat, EachFamilyIsTheLightOfItsSuns) {
  using Miss = std::function<double(double, double)>;
  struct Family {
    const char* layer;
    Miss miss;
  };
  const auto onDay = [](double day) { return [=](double, double d) { return d - rad(day); }; };
  std::array<double, 13> drawn{};  // lines of each family at all latitudes
  for (const double latitude : {45.7438, 62.0, 30.0, 12.0, -35.0}) {
    SCOPED_TRACE(latitude);
    const auto semiArc = [&](double d) { return sky::semiArc(rad(latitude), d); };
    for (const bool zone : {false, true}) {
      // Noon itself stands in the South, wherever the sun is.
      const auto hours = [&](double step) {
        return [&, step](double H, double) {
          const bool noon = std::abs(std::remainder(H, pi)) < 1e-9;
          return noon && !zone ? 0 : std::remainder(H + (zone ? rad(15 - 7.6438) : 0), rad(step));
        };
      };
      Chapeau dial(latitude,
                   {Field::chkOreAstronomiche, Field::ck_Orizzonte, Field::Ck_DayLightCurves,
                    Field::ck_Italiche, Field::ck_babiloniche, Field::ckTemp});
      dial.panel.setState(Field::ck_Etna, zone);
      dial.set(Field::TxtHour, "4").set(Field::txtLineofdeclination, "7.25").run();
      const Family families[] = {
          {"Ore", hours(15)},
          {"mezze", hours(3.75)},
          {"-23.445°", onDay(-23.445)},
          {"23.445°", onDay(23.445)},
          {"-20.1552°", onDay(-20.1552)},
          {"20.1552°", onDay(20.1552)},
          {"-11.4746°", onDay(-11.4746)},
          {"11.4746°", onDay(11.4746)},
          {"eq", onDay(0)},
          {"7.25", onDay(7.25)},
          {"ita1", [&](double H, double d) { return std::remainder(H - semiArc(d), pi / 12); }},
          {"bab1", [&](double H, double d) { return std::remainder(H + semiArc(d), pi / 12); }},
          // South of the tropics the sixth hour is drawn in the South, as noon is.
          {"temp1", [&](double H, double d) {
             return latitude < 0 ? 0 : std::remainder(H / semiArc(d), 1.0 / 6);
           }}};
      std::size_t i = 0;
      for (const Family& family : families) {
        SCOPED_TRACE(family.layer);
        drawn[i++] += static_cast<double>(dial.expectSuns(family.layer, family.miss, 31));
        if (testing::Test::HasFailure()) return;
      }
    }
  }
  const decltype(drawn) expected = {111457, 335141, 29346, 40680,  30588,  40312, 33160,
                                    38344,  35988,  37756, 106472, 106472, 103070};
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    // A sample on the horizon itself may fall on either side.
    EXPECT_NEAR(drawn[i], expected[i], 20) << "family " << i;
  }
}

TEST(FilteringHat, AnalemmasAreTheMeanSunsHours) {
  Chapeau noon(45.7438, {Field::ck_Lemniscate});
  noon.run();
  Chapeau hours(45.7438, {Field::ck_Lemniscate, Field::Ck_Section});
  hours.set(Field::TxtHour, "2").run();
  EXPECT_EQ(noon.linesOf("analemma").size(), 365u);
  EXPECT_EQ(hours.linesOf("analemma").size(), (29 + 15) * 365u);
  for (Chapeau* dial : {&noon, &hours}) {
    const auto lines = dial->linesOf("analemma");
    for (std::size_t i = 0; i < lines.size(); i += 5) {
      if (lines[i].y1 < 0) continue;  // below the horizon
      const auto [H, d] = dial->hat.sunOf({lines[i].x1, -lines[i].y1});
      // 29 half hours from the evening on, then 15 whole hours.
      const int line = static_cast<int>(i / 365);
      const int halfHours = dial == &noon ? 0 : line < 29 ? 14 - line : 2 * (36 - line);
      const double mean = H + rad(15 - 7.6438) - rad(7.5) * halfHours;
      ASSERT_LT(sky::secondsFromEquationOfTime(mean, d), 25) << deg(H) << ' ' << deg(d);
    }
  }
  // The half of the year from December to June, and the other.
  for (const auto& [half, count] : {std::pair{Field::Optconcave, 182u}, {Field::OptConvex, 181u}}) {
    Chapeau dial(45.7438, {Field::ck_Lemniscate, Field::CheckL});
    dial.panel.setState(half, true);
    dial.run();
    EXPECT_EQ(dial.linesOf("analemma").size(), count);
  }
}

TEST(FilteringHat, NumeralsStandOnTheLineOfDeclination) {
  for (const bool both : {false, true}) {
    Chapeau dial(45.7438, {Field::ckArabi});
    dial.panel.setState(Field::ckRomani, both);
    dial.set(Field::txtArabi, "1e-9")
        .set(Field::txtNumbersize, "1e-9")
        .set(Field::txtLineofdeclination, "20")
        .run();
    std::size_t spots = 0;
    sky::Spot last;
    for (const LineRecord& line : dial.sheet.list().lines) {
      const sky::Spot spot{line.x1, -line.y1};
      if (sky::distance(spot, last) > 1e-6) {
        const auto [H, d] = dial.hat.sunOf(spot);
        EXPECT_NEAR(deg(H), -105 + 15 * static_cast<double>(spots % 15), 1e-5);
        EXPECT_NEAR(deg(d), 20, 1e-5);
        ++spots;
      }
      last = spot;
    }
    EXPECT_EQ(spots, both ? 30u : 15u);  // both boxes draw the Roman numerals twice
    EXPECT_TRUE(dial.linesOf("20").empty());
  }
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

// The azimuth of noon itself is always South, be the sun North of the zenith.
TEST(FilteringHat, NoonIsDrawnInTheSouth) {
  Chapeau dial(-35, {Field::chkOreAstronomiche});
  dial.run();
  const auto lines = dial.linesOf("Ore");
  EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                          [](const LineRecord& l) { return l.x1 == 0 && l.x2 == 0; }),
            937);
}

// A line that rises above the horizon is joined to the end of the line before it.
TEST(FilteringHat, RisingItalicHoursAreJoinedToTheLineBefore) {
  Chapeau dial(45.7438, {Field::ck_Italiche});
  dial.run();
  std::size_t longOnes = 0;
  for (const LineRecord& line : dial.linesOf("ita2")) {
    if (std::hypot(line.x1 - line.x2, line.y1 - line.y2) < 0.02) continue;
    ++longOnes;
    EXPECT_LT(line.y2, 0.01) << "ends at the horizon";
  }
  EXPECT_EQ(longOnes, 6u);
}

// The analemma takes over the zone's correction that the run of another dial left.
TEST(FilteringHat, TheAnalemmaIsShiftedByAnEarlierDialsZone) {
  Chapeau dial(45.7438, {Field::ck_Lemniscate});
  dial.params.CorrFuso = 0.1;
  dial.run();
  const LineRecord line = dial.linesOf("analemma")[100];
  const auto [H, d] = dial.hat.sunOf({line.x1, -line.y1});
  EXPECT_LT(sky::secondsFromEquationOfTime(H + rad(15 - 7.6438) + 0.1, d), 25);
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
