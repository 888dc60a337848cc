// Programs 16 and 22 on a floor in the sun: every line is the path of the far end of the shadow of
// the rim or of the ball, and the drawing's order, inks and texts are those of the dial.
#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "dials/bifilar/ball.hpp"
#include "dials/bifilar/fontana.hpp"
#include "support/ball_shadow.hpp"
#include "support/dial_case.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::offGrid;
using sky::rad;

constexpr double kAngle = 2e-5;  // degrees; the circle constant is short by 4e-10
constexpr double kLatitude = 45.7438;
const std::vector<double> kLatitudes = {3, 12, 24, kLatitude, 62, 75};

// A level dial in a wide window that draws no family and, with both kinds asked for, no numerals.
template <class Gnomon>
class Floor : public DialCase {
 public:
  Floor(Item item, Driver driver, const Gnomon& gnomon_, double degrees)
      : DialCase(item, driver), gnomon(gnomon_), latitude(rad(degrees)) {
    set(Field::txtLAT, std::to_string(degrees))
        .set(Field::TxtRadius, std::to_string(gnomon.radius));
    set(Field::x1txt, "-.9").set(Field::x2txt, ".9").set(Field::y1txt, ".6");
    clearBoxes();
    for (const Field both : {Field::ckRomani, Field::ckArabi}) panel.setState(both, true);
  }

  sky::Vec sun(double x, double sheetY) const { return gnomon.sunAt(plane, {x, -sheetY}); }
  double hourAngle(sky::Vec sunwards) const { return deg(sky::hourAngleOf(latitude, sunwards)); }
  double declination(sky::Vec sunwards) const {
    return deg(sky::declinationOf(latitude, sunwards));
  }

  Gnomon gnomon;
  double latitude;
  sky::Plane plane = sky::floorFromTheNorth();
};

struct Fountain : Floor<sky::Rim> {
  explicit Fountain(double degrees = kLatitude)
      : Floor(Item::mnuFontana_H3, QuadranteFontana, {0.3, 0.2}, degrees) {
    check(Field::ckFunction);  // no free line
  }
};
struct BallOver : Floor<sky::Ball> {
  explicit BallOver(double degrees = kLatitude, const char* height = "0.1")
      : Floor(Item::mnuBall, QuadranteBall, {0.15, std::stod(height)}, degrees) {
    set(Field::txtD1, height);
  }
};

// Both ends of each line of a layer are the far end of a shadow, and the sun of that end is what
// `check` expects. Returns how many lines there are.
template <class Dial, class Check>
std::size_t everySun(Dial& dial, std::string_view layer, Check check) {
  const std::vector<LineRecord> lines = dial.linesOf(layer);
  for (const LineRecord& line : lines) {
    EXPECT_LT(sky::distance({line.x1, line.y1}, {line.x2, line.y2}), 0.02);
    for (const sky::Spot end : {sky::Spot{line.x1, line.y1}, {line.x2, line.y2}}) {
      const sky::Vec sunwards = dial.sun(end.x, end.y);
      EXPECT_TRUE(std::abs(end.x) < dial.panel.number(Field::x2txt) && end.y < 1);
      if (sunwards.z < 0.9999)
        sky::expectFarEnd(dial.gnomon, dial.plane, {end.x, -end.y}, sunwards);
      check(dial.hourAngle(sunwards), dial.declination(sunwards));
      if (::testing::Test::HasFailure()) return 0;
    }
  }
  return lines.size();
}

template <class Dial, class... Rest>
void expectFamilies(Rest... rest) {
  for (const double latitude : kLatitudes) {
    SCOPED_TRACE(latitude);
    Dial hours(latitude, rest...);
    hours.set(Field::TxtHour, "2").check(Field::chkOreAstronomiche).run();
    const std::size_t count = everySun(hours, "ore", [&](double H, double d) {
      // At noon itself a sun in the North counts as one in the South.
      if (std::abs(H) < kAngle && latitude < 23.445) return;
      EXPECT_LT(offGrid(H, 7.5), kAngle);
      EXPECT_LT(offGrid(d + 23.445, 0.05), kAngle);
      EXPECT_LT(std::abs(d), 23.4451);
    });
    EXPECT_GT(count, 500u);

    Dial days(latitude, rest...);
    days.check(Field::Ck_DayLightCurves).check(Field::ck_Equinoziale).run();
    for (const auto& [layer, declination] : std::map<const char*, double>{{"eq", 0},
                                                                          {"-23.445°", -23.445},
                                                                          {"23.445°", 23.445},
                                                                          {"-20.1552°", -20.1552},
                                                                          {"20.1552°", 20.1552},
                                                                          {"-11.4746°", -11.4746},
                                                                          {"11.4746°", 11.4746}}) {
      const double expected = declination;
      const std::size_t chords = everySun(days, layer, [&](double H, double d) {
        EXPECT_NEAR(d, expected, kAngle);
        EXPECT_LT(std::abs(H), 90.0001);
      });
      EXPECT_TRUE(chords > 100 || 90 - latitude + declination < 25) << layer;
    }
  }
}

template <class Dial>
void expectOtherHours() {
  for (const double latitude : kLatitudes) {
    SCOPED_TRACE(latitude);
    Dial dial(latitude);
    dial.check(Field::ck_Italiche).check(Field::ck_babiloniche).check(Field::ckTemp).run();
    const double fraction = 1.0 / 2;
    const auto arc = [&](double d) { return sky::arcOrHalfTurn(dial.latitude, rad(d)); };
    // Where the arc runs to half a turn, a steep root loses half of the digits.
    const auto steep = [&](double d) {
      return std::abs(std::tan(dial.latitude) * std::tan(rad(d))) > 0.999;
    };
    std::size_t count = everySun(dial, "ita", [&](double H, double d) {
      EXPECT_TRUE(steep(d) || offGrid((H - arc(d)) / 15, fraction) < kAngle) << H << ' ' << d;
    });
    count += everySun(dial, "bab", [&](double H, double d) {
      EXPECT_TRUE(steep(d) || offGrid((H + arc(d)) / 15, fraction) < kAngle) << H << ' ' << d;
    });
    count += everySun(dial, "temp", [&](double H, double d) {
      if (steep(d) || std::abs(H) < kAngle) return;  // noon as above
      EXPECT_LT(offGrid(H / arc(d) * 6, fraction), 10 * kAngle);
    });
    EXPECT_GT(count, 1000u);
  }
}

TEST(Fontana, LinesAreThePathsOfTheRimShadowsFarPoint) { expectFamilies<Fountain>(); }
TEST(Fontana, OtherHoursAreCountedFromSunriseAndSunset) { expectOtherHours<Fountain>(); }
TEST(Ball, LinesAreThePathsOfTheShadowsFarEnd) {
  for (const char* height : {"0.1", "0.15", "0"}) {
    expectFamilies<BallOver>(height);
  }
}
TEST(Ball, OtherHoursAreCountedFromSunriseAndSunset) { expectOtherHours<BallOver>(); }

// The first and the last babylonian line: the hours are counted one ahead.
TEST(Fontana, BabylonianHoursRunFromOneToThirteen) {
  Fountain dial;
  dial.set(Field::x1txt, "-3").set(Field::x2txt, "3").set(Field::y1txt, "3");
  dial.set(Field::TxtHour, "1").check(Field::ck_babiloniche).run();
  double least = 24, most = 0;
  everySun(dial, "bab", [&](double H, double d) {
    const double hour = (H + sky::arcOrHalfTurn(dial.latitude, rad(d))) / 15;
    least = std::min(least, hour);
    most = std::max(most, hour);
  });
  EXPECT_NEAR(least, 1, kAngle);
  EXPECT_NEAR(most, 13, kAngle);
}

// Noon's line between the tropics: where the sun culminates in the North, the shadow is drawn on
// the wrong side of the centre.
TEST(Fontana, NoonTakesANorthernSunForASouthernOne) {
  Fountain dial(12);
  dial.set(Field::TxtHour, "1").check(Field::chkOreAstronomiche).run();
  bool beyond = false;
  for (const LineRecord& line : dial.linesOf("ore")) {
    if (line.colour != palette(9) || std::abs(line.x1) > 1e-6) continue;
    EXPECT_GT(line.y1, 0.3) << "never above the centre";
    // The mirrored sun's declination is 2 * latitude - the true one.
    beyond = beyond || dial.declination(dial.sun(line.x1, line.y1)) < 2 * 12 - 23.4;
  }
  EXPECT_TRUE(beyond);
}

TEST(Fontana, StandardMeridianShiftsHourLinesAndNumeralsOnly) {
  Fountain dial;
  dial.check(Field::ck_Etna).check(Field::chkOreAstronomiche).check(Field::ck_Equinoziale).run();
  const double shift = 15 - 7.6438;
  everySun(dial, "ore", [&](double H, double) {
    EXPECT_LT(offGrid(H + dial.params.LonGradi + 15, 7.5), kAngle);
  });
  EXPECT_NEAR(dial.params.CorrFuso, rad(shift), 1e-3);
  double last = 0;
  everySun(dial, "eq", [&](double H, double) { last = std::max(last, std::abs(H)); });
  EXPECT_LT(last, 90) << "the equinoctial is symmetrical to noon";
}

template <class Dial>
void expectAnalemma(Dial& dial, const std::vector<sky::Spot>& spots) {
  double northern = 0, southern = 0;
  for (const sky::Spot spot : spots) {
    const sky::Vec sunwards = dial.sun(spot.x, spot.y);
    northern = std::max(northern, dial.declination(sunwards));
    southern = std::min(southern, dial.declination(sunwards));
    // Mean noon of the zone: the equation of time stays within 17 minutes.
    EXPECT_LT(std::abs(dial.hourAngle(sunwards) + deg(dial.params.CorrFuso)), 17.0 / 4);
  }
  EXPECT_NEAR(northern, 23.446, 0.001);
  EXPECT_NEAR(southern, -23.446, 0.001);
  EXPECT_EQ(dial.params.LonAbs, dial.params.CorrFuso);
}

TEST(LevelDials, AnalemmaIsTheYearsMeanNoon) {
  Fountain rim;
  rim.set(Field::y2txt, "0").check(Field::ck_Lemniscate).run();
  std::vector<sky::Spot> spots;
  for (const PointRecord& p : rim.pointsIn(palette(12))) spots.push_back({p.x, p.y});
  EXPECT_EQ(spots.size(), 366u) << "the window does not cut it";
  expectAnalemma(rim, spots);

  BallOver sphere;
  sphere.check(Field::ck_Lemniscate).run();
  spots.clear();
  for (const LineRecord& line : sphere.linesOf("analemma")) {
    spots.push_back({line.x1, line.y1});
    EXPECT_EQ(line.colour, palette(7));
  }
  EXPECT_EQ(spots.size(), 365u) << "from the second day on";
  expectAnalemma(sphere, spots);
}

// --- The demonstration

TEST(LevelDials, DemonstrationPlotsTheSpheresShadow) {
  for (const double H : {32.5, -60.0}) {
    const sky::Vec sunwards = sky::sun(rad(kLatitude), rad(H), rad(10));
    Fountain rim;
    rim.set(Field::txtAO, std::to_string(H)).set(Field::txtDelta, "10").set(Field::txt_R2, ".2");
    rim.check(Field::ck_Triangolo).run();
    sky::expectOutlines({0.3, 0.2}, rim.plane, sunwards, rim.pointsIn(palette(7)),
                        rim.pointsIn(palette(4)));
    BallOver sphere;
    sphere.set(Field::txtAO, std::to_string(H)).set(Field::txtDelta, "10");
    sphere.check(Field::ck_Triangolo).run();
    sky::expectOutlines({0.15, 0.1}, sphere.plane, sunwards, sphere.pointsIn(palette(7)),
                        sphere.pointsIn(palette(4)));
  }
}

TEST(Fontana, PlanTakesTheLatitudeOfTheRunBefore) {
  Fountain dial;
  dial.set(Field::txtAO, "32.5").check(Field::ck_Triangolo);
  for (const double latitude : {0.0, rad(kLatitude)}) {
    const std::size_t before = dial.sheet.list().circles.size();
    dial.run();
    const CircleRecord centre = dial.sheet.list().circles[before + 1];
    const sky::Vec sunwards = sky::sun(latitude, rad(32.5), rad(23.45));
    const sky::Spot tip = dial.plane.tipShadow(0.2, sunwards);
    EXPECT_EQ(centre.colour, palette(13));
    EXPECT_NEAR(centre.radius, 0.003, 1e-12);
    EXPECT_LT(sky::distance({centre.x, -centre.y}, tip), 1e-8);
    // The tangents run along the shadow's way, since base and rim are alike.
    for (const Rgb colour : {palette(1), palette(10)}) {
      const LineRecord tangent =
          dial.linesIn(colour).at(dial.linesIn(colour).size() - (colour == palette(1) ? 2 : 1));
      EXPECT_NEAR(std::abs(tangent.x1 - tangent.x2), std::abs(tip.x), 1e-8);
      EXPECT_NEAR(std::abs(tangent.y1 - tangent.y2), std::abs(tip.y), 1e-8);
    }
  }
}

TEST(Fontana, SectionFollowsTheLowerRadius) {
  struct Cut {
    const char* lower;
    double start, end;
  };
  const double pi = 3.141592654;
  for (const Cut& cut : {Cut{"0", 0, pi},
                         {".15", 2 * pi - pi / 6, pi + pi / 6},
                         {".4", 2 * pi, 2 * pi},
                         {"-.15", pi / 6, pi - pi / 6}}) {
    Fountain dial;
    dial.set(Field::txt_R2, cut.lower).check(Field::ck_Triangolo).run();
    const auto& circles = dial.sheet.list().circles;
    const CircleRecord section = circles.at(circles.size() - 2);
    EXPECT_NEAR(section.y, -0.6 - std::stod(cut.lower), 1e-12);
    EXPECT_NEAR(section.startAngle, cut.start, 1e-9);
    EXPECT_NEAR(section.endAngle, cut.end, 1e-9);
    // A base wider than the rim leaves the whole circle, with the axis down to the floor.
    EXPECT_EQ(dial.linesIn(palette(15)).size(), cut.end == 2 * pi ? 2u : 1u);
  }
}

// --- Order, inks, texts

const std::string kDays =
    "eq 9|-23.445° 12|23.445° 12|-20.1552° 13|20.1552° 13|-11.4746° 11|11.4746° 11|";
const std::string kOthers = "ita " + std::to_string(rgb(255, 128, 128)) + "|bab 13|temp 11|";

template <class Dial>
void checkAll(Dial& dial) {
  for (const Field box :
       {Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Equinoziale, Field::ckTemp,
        Field::ck_Italiche, Field::ck_babiloniche, Field::ck_Lemniscate, Field::ck_Triangolo}) {
    dial.check(box);
  }
  dial.panel.setState(Field::ckFrame, true);
}

TEST(Fontana, DrawsInItsOrder) {
  Fountain dial;
  checkAll(dial);
  dial.check(Field::ckFunction, false).set(Field::txtLineofdeclination, "-5.5").run();
  EXPECT_EQ(dial.inks(), "ore 15|" + kDays + "-5.5 14|" + kOthers);
  everySun(dial, "-5.5", [](double, double d) { EXPECT_NEAR(d, -5.5, kAngle); });
  for (const LineRecord& line : dial.linesOf("ore")) {
    const double H = dial.hourAngle(dial.sun(line.x1, line.y1));
    const bool marked = std::abs(H) < 1 || std::abs(H) > 89;
    EXPECT_EQ(line.colour, palette(marked ? 9 : 15)) << H;
    EXPECT_LT(dial.declination(dial.sun(line.x2, line.y2)),
              dial.declination(dial.sun(line.x1, line.y1)))
        << "to the previous point";
  }
  const auto& list = dial.sheet.list();
  ASSERT_EQ(list.boxes.size(), 1u);
  EXPECT_EQ(list.name(list.boxes[0].layer), "Quadro");
  ASSERT_EQ(list.circles.size(), 8u);
  EXPECT_EQ(list.circles[5].radius, 0.3) << "the rim, after the plan's five circles";
  EXPECT_DOUBLE_EQ(list.circles[6].y, -0.9) << "the section";
  // The demonstration's altitude stays for the knob.
  const double h = std::asin(sky::sun(rad(kLatitude), rad(45), rad(23.45)).z);
  EXPECT_NEAR(list.circles[7].y, -(0.3 * std::tan(h) + 0.2 + 0.3 + 0.2), 1e-9);
  EXPECT_EQ(list.circles[7].fill, palette(6));
  EXPECT_EQ(dial.sheet.caption(), "Bifilar horizontal spherical dial by spherical trigonometry");
  EXPECT_FALSE(dial.busy);
}

TEST(Fontana, WritesItsLegendAndItsFields) {
  Fountain dial;
  dial.set(Field::txtDecl, "30").set(Field::txt_R2, "0.25").set(Field::TxtHour, "4");
  dial.check(Field::ck_Triangolo).run();
  EXPECT_EQ(dial.told(),
            "||height of the sun 47.5386 °|latitude 45.7438 °|delta 23.45 °|hour angle 45 °|"
            "radius 0.3|lower radius 0.25|height  0.2|virtual style 0.5278|Longitude -7.6438°|");
  EXPECT_NEAR(deg(std::asin(sky::sun(rad(kLatitude), rad(45), rad(23.45)).z)), 47.5386, 5e-5);
  EXPECT_EQ(dial.panel.text(Field::txtDecl), "0");
  EXPECT_EQ(dial.params.DeclRad, 0);
  EXPECT_EQ(dial.params.PassoOre, 4);
}

TEST(Ball, DrawsInItsOrder) {
  BallOver dial;
  checkAll(dial);
  dial.run();
  EXPECT_EQ(dial.inks(), "ore 9|" + kDays + kOthers + "analemma 7|");
  const auto& circles = dial.sheet.list().circles;
  ASSERT_EQ(circles.size(), 5u);
  EXPECT_EQ(circles[0].radius, 0.15);
  EXPECT_NEAR(circles[1].radius, std::sqrt(0.15 * 0.15 - 0.01), 1e-12);
  EXPECT_EQ(circles[1].colour, palette(8));
  // Noon of the summer solstice, whatever txtAO says.
  EXPECT_EQ(dial.told(),
            "|d1 IS NOT EQUAL TO ZERO|||height of the sun 67.7012 °|latitude 45.7438 °|"
            "delta 23.445 °|hour angle 0 °|eccentricity of the shadow 0.3794|virtual style 0.3953|"
            "radius 0.15|Longitude -7.6438°|");
  EXPECT_EQ(dial.sheet.list().texts[3].y, -0.953);
}

TEST(Ball, OnTheFloorItWritesNoWarning) {
  BallOver dial(kLatitude, "0");
  dial.run();
  EXPECT_EQ(dial.told(), "|");
  dial.set(Field::txtD1, "0.15").run();
  EXPECT_EQ(dial.sheet.list().circles.at(dial.sheet.list().circles.size() - 2).radius, 0);
}

// The numerals of the day of txtLineofdeclination: Roman ones by their box, Arabic ones by none.
TEST(Fontana, NumeralsStandOnTheLineOfDeclination) {
  Fountain dial;
  dial.set(Field::txtLineofdeclination, "0").run();
  EXPECT_EQ(dial.sheet.list().lines.size(), 0u) << "both boxes are checked";
  dial.check(Field::ckArabi, false).run();
  const std::vector<LineRecord> roman = dial.linesIn(palette(7));
  ASSERT_GT(roman.size(), 50u);
  double nearest = 1;
  for (const double H : {-75.0, -60.0, -45.0, -30.0, -15.0, 0.0, 15.0, 30.0, 45.0, 60.0, 75.0}) {
    const sky::Vec sunwards = sky::sun(dial.latitude, rad(H), 0);
    const double reach = 0.3 / std::hypot(sunwards.x, sunwards.y) + 0.2 / sunwards.z;
    const sky::Spot at{sunwards.x * reach, -sunwards.y * reach};
    nearest = 1;
    for (const LineRecord& stroke : roman)
      nearest = std::min(
          nearest, sky::distance(at, {(stroke.x1 + stroke.x2) / 2, (stroke.y1 + stroke.y2) / 2}));
    EXPECT_LT(nearest, 0.03) << H;
  }
  for (const bool arabic : {true, false}) {
    Fountain other;
    other.panel.setState(Field::ckRomani, false);
    other.panel.setState(Field::ckArabi, arabic);
    other.run();
    EXPECT_GT(other.sheet.list().lines.size(), 100u);
    EXPECT_FALSE(other.linesIn(palette(12)).empty()) << "an Arabic 3";
  }
}

// --- Refusals and odd input

TEST(LevelDials, RefuseTheSouth) {
  for (const Driver driver : {QuadranteFontana, QuadranteBall}) {
    DialCase dial(Item::mnuFontana_H3, driver);
    dial.set(Field::txtLAT, "-0.0001").run();
    EXPECT_TRUE(dial.refused);
    EXPECT_EQ(dial.entities(), 0u);
    EXPECT_EQ(dial.messages.front(), "Sorry, unable to work in the Southern hemisphere ");
    dial.set(Field::txtLAT, "0").run();
    EXPECT_FALSE(dial.refused);
    EXPECT_GT(dial.entities(), 1000u);
  }
}

TEST(LevelDials, TakeAnyInput) {
  for (const Driver driver : {QuadranteFontana, QuadranteBall}) {
    expectBounded(
        Item::mnuFontana_H3, driver, {Field::ckTemp, Field::ck_Triangolo, Field::ck_Lemniscate},
        {Field::txtLAT, Field::TxtStilo, Field::TxtRadius, Field::txt_R2, Field::txtD1,
         Field::TxtHour, Field::txtAO, Field::txtDelta, Field::txtLineofdeclination, Field::y2txt});
  }
}

}  // namespace
}  // namespace dialwright
