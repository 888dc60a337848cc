// Programs 16 and 22 on a floor in the sun: every line is the path of the far end of the shadow of
// the rim or of the ball, and the drawing's order, inks and texts are those of the dial.
#include "dials/bifilar/ball.hpp"
#include "dials/bifilar/fontana.hpp"
#include "numerics/numbers.hpp"
#include "support/odd_input.hpp"
#include "support/shadow_dial.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::offGrid;
using sky::rad;

// A level dial in a wide window.
template <class Gnomon>
struct Floor : ShadowDial<Gnomon> {
  Floor(Item item, Driver driver, const Gnomon& model, double degrees)
      : ShadowDial<Gnomon>(item, driver, model, {degrees, 0}) {
    this->plane = sky::floorFromTheNorth();
    this->set(Field::TxtRadius, textOf(model.radius));
    this->set(Field::x1txt, "-.9").set(Field::x2txt, ".9").set(Field::y1txt, ".6");
  }
};

struct Fountain : Floor<sky::Rim> {
  explicit Fountain(double degrees = kLatitude)
      : Floor(Item::mnuFontana_H3, QuadranteFontana, {0.3, 0.2}, degrees) {
    check(Field::ckFunction);  // no free line
  }
};
struct BallOver : Floor<sky::Ball> {
  explicit BallOver(double degrees = kLatitude, double height = 0.1)
      : Floor(Item::mnuBall, QuadranteBall, {0.15, height}, degrees) {
    set(Field::txtD1, textOf(height));
  }
};

template <class Dial, class... Rest>
void expectFamilies(Rest... rest) {
  for (const double latitude : {3.0, 12.0, 24.0, kLatitude, 62.0, 75.0}) {
    Dial dial(latitude, rest...);
    dial.checkAll({Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Equinoziale,
                   Field::ck_Italiche, Field::ck_babiloniche, Field::ckTemp});
    dial.set(Field::TxtHour, "2").run();
    const std::size_t count = dial.everySun("ore", [&](double H, double d) {
      // At noon itself a sun in the North counts as one in the South.
      return (std::abs(H) < kAngle && latitude < 23.445) || (onYear(d) && offGrid(H, 7.5) < kAngle);
    });
    EXPECT_GT(count, 500u);
    for (const double day : {0.0, -23.445, 23.445, -20.1552, 20.1552, -11.4746, 11.4746}) {
      const std::string layer = day == 0 ? "eq" : textOf(day) + "°";
      const std::size_t chords = dial.everyDay(layer, day, 90.0001);
      EXPECT_TRUE(chords > 100 || 90 - latitude + day < 25) << layer;
    }
    EXPECT_GT(dial.everyOtherHour("ita", "bab", "temp"), 1000u);
  }
}

TEST(Fontana, LinesAreThePathsOfTheRimShadowsFarPoint) { expectFamilies<Fountain>(); }
TEST(Ball, LinesAreThePathsOfTheShadowsFarEnd) {
  for (const double height : {0.1, 0.15, 0.0}) expectFamilies<BallOver>(height);
}

// The first and the last babylonian line: the hours are counted one ahead.
TEST(Fontana, BabylonianHoursRunFromOneToThirteen) {
  Fountain dial;
  dial.set(Field::x1txt, "-3").set(Field::x2txt, "3").set(Field::y1txt, "3");
  dial.set(Field::TxtHour, "1").check(Field::ck_babiloniche).run();
  double least = 24, most = 0;
  dial.everySun("bab", [&](double H, double d) {
    const double hour = (H + dial.arc(d)) / 15;
    least = std::min(least, hour);
    most = std::max(most, hour);
    return true;
  });
  EXPECT_NEAR(least, 1, kAngle);
  EXPECT_NEAR(most, 13, kAngle);
}

// Noon's line between the tropics: where the sun culminates in the North, the shadow is drawn on
// the wrong side of the centre.
TEST(Fontana, NoonTakesANorthernSunForASouthernOne) {
  Fountain dial(12);
  dial.set(Field::TxtHour, "1").check(Field::chkOreAstronomiche).run();
  double southern = 24;
  for (const LineRecord& line : dial.linesIn(palette(9))) {
    if (std::abs(line.x1) > 1e-6) continue;
    EXPECT_GT(line.y1, 0.3) << "never above the centre";
    southern = std::min(southern, dial.declination(dial.sun(line.x1, line.y1)));
  }
  EXPECT_LT(southern, 2 * 12 - 23.4) << "2 * latitude - the true one";
}

TEST(Fontana, StandardMeridianShiftsHourLinesAndNumeralsOnly) {
  Fountain dial;
  dial.checkAll({Field::ck_Etna, Field::chkOreAstronomiche, Field::ck_Equinoziale});
  dial.run();
  EXPECT_NEAR(dial.params.CorrFuso, rad(15 - 7.6438), 1e-3);
  const auto shifted = [&](double H, double) {
    return offGrid(H + dial.params.LonGradi + 15, 7.5) < kAngle;
  };
  EXPECT_GT(dial.everySun("ore", shifted), 500u);
  EXPECT_GT(dial.everyDay("eq", 0, 90), 500u) << "symmetrical to noon";
}

TEST(LevelDials, AnalemmaIsTheYearsMeanNoon) {
  Fountain rim;
  rim.set(Field::y2txt, "0").check(Field::ck_Lemniscate).run();
  EXPECT_EQ(rim.pointsIn(palette(12)).size(), 366u) << "the window does not cut it";
  rim.expectAnalemma(rim.pointsIn(palette(12)));

  BallOver sphere;
  sphere.check(Field::ck_Lemniscate).run();
  EXPECT_EQ(sphere.linesOf("analemma").size(), 365u) << "from the second day on";
  sphere.expectAnalemma(sphere.linesOf("analemma"));
}

// --- The demonstration

TEST(LevelDials, DemonstrationPlotsTheSpheresShadow) {
  for (const double H : {32.5, -60.0}) {
    const auto expectShadow = [H](auto&& dial) {
      dial.set(Field::txtAO, textOf(H)).set(Field::txtDelta, "10").set(Field::txt_R2, ".2");
      dial.check(Field::ck_Triangolo).run();
      sky::expectOutlines({dial.gnomon.radius, dial.gnomon.height}, dial.plane,
                          sky::sun(dial.latitude, rad(H), rad(10)), dial.pointsIn(palette(7)),
                          dial.pointsIn(palette(4)));
    };
    expectShadow(Fountain());
    expectShadow(BallOver());
  }
}

TEST(Fontana, PlanTakesTheLatitudeOfTheRunBefore) {
  Fountain dial;
  dial.set(Field::txtAO, "32.5").check(Field::ck_Triangolo);
  for (const double latitude : {0.0, rad(kLatitude)}) {
    const std::size_t before = dial.sheet.list().circles.size();
    dial.run();
    const CircleRecord centre = dial.sheet.list().circles[before + 1];
    const sky::Spot tip = dial.plane.tipShadow(0.2, sky::sun(latitude, rad(32.5), rad(23.45)));
    EXPECT_EQ(centre.colour, palette(13));
    EXPECT_LT(sky::distance({centre.x, -centre.y}, tip), 1e-8);
    // The tangents run along the shadow's way, since base and rim are alike.
    for (const auto& [colour, fromLast] : {std::pair{1, 2}, {10, 1}}) {
      const LineRecord tangent = dial.linesIn(palette(colour)).end()[-fromLast];
      EXPECT_NEAR(std::abs(tangent.x1 - tangent.x2), std::abs(tip.x), 1e-8);
      EXPECT_NEAR(std::abs(tangent.y1 - tangent.y2), std::abs(tip.y), 1e-8);
    }
  }
}

TEST(Fontana, SectionFollowsTheLowerRadius) {
  const double pi = 3.141592654;
  for (const auto& [lower, start, end] : {std::tuple{0.0, 0.0, pi},
                                          {0.15, 2 * pi - pi / 6, pi + pi / 6},
                                          {0.4, 2 * pi, 2 * pi},
                                          {-0.15, pi / 6, pi - pi / 6}}) {
    Fountain dial;
    dial.set(Field::txt_R2, textOf(lower)).check(Field::ck_Triangolo).run();
    const CircleRecord section = dial.sheet.list().circles.end()[-2];
    EXPECT_NEAR(section.y, -0.6 - lower, 1e-12);
    EXPECT_NEAR(section.startAngle, start, 1e-9);
    EXPECT_NEAR(section.endAngle, end, 1e-9);
    // A base wider than the rim leaves the whole circle, with the axis down to the floor.
    EXPECT_EQ(dial.linesIn(palette(15)).size(), end == 2 * pi ? 2u : 1u);
  }
}

// --- Order, inks, texts

const std::string kDays =
    "eq 9|-23.445° 12|23.445° 12|-20.1552° 13|20.1552° 13|-11.4746° 11|11.4746° 11|";
const std::string kOthers = "ita " + std::to_string(rgb(255, 128, 128)) + "|bab 13|temp 11|";

void checkAll(DialCase& dial) {
  for (const Field box :
       {Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Equinoziale, Field::ckTemp,
        Field::ck_Italiche, Field::ck_babiloniche, Field::ck_Lemniscate, Field::ck_Triangolo})
    dial.check(box);
  dial.set(Field::txtDecl, "30").panel.setState(Field::ckFrame, true);
}

TEST(Fontana, DrawsInItsOrder) {
  Fountain dial;
  checkAll(dial);
  dial.check(Field::ckFunction, false).set(Field::txtLineofdeclination, "-5.5");
  dial.set(Field::txt_R2, "0.25").run();
  EXPECT_EQ(dial.inks(), "ore 15|" + kDays + "-5.5 14|" + kOthers);
  EXPECT_GT(dial.everyDay("-5.5", -5.5), 100u);
  for (const LineRecord& line : dial.linesOf("ore")) {
    const sky::Vec from = dial.sun(line.x1, line.y1), to = dial.sun(line.x2, line.y2);
    const double H = std::abs(dial.hourAngle(from));
    EXPECT_EQ(line.colour, palette(H < 1 || H > 89 ? 9 : 15)) << H;
    EXPECT_LT(dial.declination(to), dial.declination(from)) << "to the previous point";
  }
  const auto& list = dial.sheet.list();
  EXPECT_EQ(list.name(list.boxes.at(0).layer), "Quadro");
  ASSERT_EQ(list.circles.size(), 8u);
  EXPECT_EQ(list.circles[5].radius, 0.3) << "the rim, after the plan's five circles";
  // The demonstration's altitude stays for the knob.
  const double h = std::asin(sky::sun(rad(kLatitude), rad(45), rad(23.45)).z);
  EXPECT_NEAR(list.circles[7].y, -(0.3 * std::tan(h) + 0.2 + 0.3 + 0.2), 1e-9);
  EXPECT_NEAR(deg(h), 47.5386, 5e-5);
  EXPECT_EQ(dial.told(),
            "||height of the sun 47.5386 °|latitude 45.7438 °|delta 23.45 °|hour angle 45 °|"
            "radius 0.3|lower radius 0.25|height  0.2|virtual style 0.5278|Longitude -7.6438°|");
  EXPECT_EQ(dial.panel.text(Field::txtDecl), "0");
  EXPECT_EQ(dial.params.DeclRad, 0);
  EXPECT_FALSE(dial.busy);
}

TEST(Ball, DrawsInItsOrder) {
  BallOver dial;
  checkAll(dial);
  dial.run();
  EXPECT_EQ(dial.inks(), "ore 9|" + kDays + kOthers + "analemma 7|");
  EXPECT_NEAR(dial.sheet.list().circles.at(1).radius, std::sqrt(0.15 * 0.15 - 0.01), 1e-12);
  // Noon of the summer solstice, whatever txtAO says.
  EXPECT_EQ(dial.told(),
            "|d1 IS NOT EQUAL TO ZERO|||height of the sun 67.7012 °|latitude 45.7438 °|"
            "delta 23.445 °|hour angle 0 °|eccentricity of the shadow 0.3794|virtual style 0.3953|"
            "radius 0.15|Longitude -7.6438°|");
  EXPECT_EQ(dial.sheet.list().texts[3].y, -0.953);
  EXPECT_EQ(BallOver(kLatitude, 0).run().told(), "|") << "no warning on the floor";
}

// The numerals of the day of txtLineofdeclination: Roman ones by their box, Arabic ones by none.
TEST(Fontana, NumeralsStandOnTheLineOfDeclination) {
  Fountain dial;
  dial.set(Field::txtLineofdeclination, "0").run();
  EXPECT_EQ(dial.sheet.list().lines.size(), 0u) << "both boxes are checked";
  dial.check(Field::ckArabi, false).run();
  for (double H = -75; H < 80; H += 15) {
    const sky::Vec sunwards = sky::sun(dial.latitude, rad(H), 0);
    const double reach = 0.3 / std::hypot(sunwards.x, sunwards.y) + 0.2 / sunwards.z;
    double nearest = 1;
    for (const LineRecord& stroke : dial.linesIn(palette(7))) {
      const sky::Spot middle{(stroke.x1 + stroke.x2) / 2, (stroke.y1 + stroke.y2) / 2};
      nearest = std::min(nearest, sky::distance({sunwards.x * reach, -sunwards.y * reach}, middle));
    }
    EXPECT_LT(nearest, 0.03) << H;
  }
  for (const bool arabic : {true, false}) {
    Fountain other;
    other.panel.setState(Field::ckRomani, false);
    other.panel.setState(Field::ckArabi, arabic);
    EXPECT_FALSE(other.run().linesIn(palette(12)).empty()) << "an Arabic 3";
  }
}

TEST(LevelDials, RefuseTheSouthAndTakeAnyInput) {
  for (const Driver driver : {QuadranteFontana, QuadranteBall}) {
    expectRefusesSouth(Item::mnuFontana_H3, driver);
    expectBounded(
        Item::mnuFontana_H3, driver, {Field::ckTemp, Field::ck_Triangolo, Field::ck_Lemniscate},
        {Field::txtLAT, Field::TxtStilo, Field::TxtRadius, Field::txt_R2, Field::txtD1,
         Field::TxtHour, Field::txtAO, Field::txtDelta, Field::txtLineofdeclination, Field::y2txt});
  }
}

}  // namespace
}  // namespace dialwright
