// Program 26 on a wall in the sun: every line is the path of the far end of the half ball's shadow,
// and the drawing's order, inks and texts are those of the dial.
#include "dials/bifilar/ball_verticale.hpp"

#include "numerics/numbers.hpp"
#include "support/odd_input.hpp"
#include "support/shadow_dial.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::offGrid;
using sky::rad;

struct HalfBall : ShadowDial<sky::Ball> {
  explicit HalfBall(const Site& site = {kLatitude, 20})
      : ShadowDial(Item::mnuBall_v, QuadranteBallVerticale, {0.2, 0}, site) {
    bothWays = true;
  }
};

TEST(BallVerticale, LinesAreThePathsOfTheShadowsFarEnd) {
  std::size_t night = 0;
  for (const Site& site :
       {Site{kLatitude, 0}, {kLatitude, 37}, {62, -20}, {30, -75}, {5, 10}, {kLatitude, 90}}) {
    HalfBall dial(site);
    dial.checkAll({Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Equinoziale,
                   Field::ck_Italiche, Field::ck_babiloniche, Field::ckTemp});
    dial.set(Field::TxtInizio, "1").set(Field::TxtFine, "23").set(Field::TxtHour, "2").run();
    const std::size_t count = dial.everySun(
        "ore", [](double H, double d) { return onYear(d) && offGrid(H, 7.5) < kAngle; });
    EXPECT_GT(count, 1000u);
    EXPECT_LT(dial.opposite, count) << "of twice as many ends";
    night += dial.opposite;

    std::size_t chords = 0;
    for (const double day : {0.0, -23.445, 23.445, -20.1552, 20.1552, -11.4746, 11.4746}) {
      chords += dial.everySun(day == 0 ? "eq" : textOf(day) + "°", [&](double H, double d) {
        // The equator's sun of that hour lights the wall.
        const double lit = sky::dot(sky::sun(dial.latitude, rad(H), 0), dial.plane.normal);
        return std::abs(d - day) < kAngle && std::abs(H) < (day == -20.1552 ? 150 : 120) &&
               lit > -1e-8;
      });
    }
    EXPECT_GT(chords, 500u);
    EXPECT_GT(dial.everyOtherHour("Ita", "bab", "Temp"), 1000u);
  }
  EXPECT_GT(night, 100u) << "before sunrise and after sunset";
}

TEST(BallVerticale, AnalemmaIsTheYearsMeanNoon) {
  HalfBall dial;
  dial.check(Field::ck_Lemniscate).run();
  EXPECT_EQ(dial.linesOf("analemma").size(), 365u);
  dial.expectAnalemma(dial.linesOf("analemma"));
}

// The outline of the shadow and the edge of the ball's own shade, for noon of the winter solstice
// or for the moment of txtAO and txtDelta.
TEST(BallVerticale, DemonstrationPlotsTheBallsShadow) {
  for (const bool free : {false, true}) {
    HalfBall dial;
    dial.set(Field::txtAO, "-25").set(Field::txtDelta, "12").check(Field::ckFunction, free).run();
    const sky::Vec sunwards = free ? sky::sun(dial.latitude, rad(-25), rad(12))
                                   : sky::sun(dial.latitude, 0, rad(-23.445));
    sky::expectOutlines(dial.gnomon, dial.plane, sunwards, dial.pointsIn(palette(10)),
                        dial.pointsIn(palette(4)));
    const CircleRecord end = dial.sheet.list().circles.back();
    sky::expectFarEnd(dial.gnomon, dial.plane, {end.x, -end.y}, sunwards);
    const LineRecord axis = dial.linesIn(palette(14)).back();
    EXPECT_LT(sky::distance({axis.x1, axis.y1}, {end.x, end.y}), 1e-9);
    EXPECT_LT(sky::distance({axis.x2, axis.y2}, {1.2 * end.x, 1.2 * end.y}), 1e-9);
  }
}

TEST(BallVerticale, StraightEquinoctialTouchesTheCurveAtTheSubstyle) {
  for (const Site& site : {Site{kLatitude, 20}, {kLatitude, -40}, {30, 0}}) {
    HalfBall dial(site);
    dial.check(Field::ck_Equinoziale).run();
    const std::vector<LineRecord> straight = dial.linesOf("equi");
    ASSERT_GT(straight.size(), 500u);
    // No sun of the equator draws its shadow's end below the line, and one draws it there.
    const double slope =
        (straight.back().y1 - straight[0].y1) / (straight.back().x1 - straight[0].x1);
    double lowest = -1;
    for (const LineRecord& line : dial.linesOf("eq")) {
      lowest = std::max(lowest, line.y1 - straight[0].y1 - slope * (line.x1 - straight[0].x1));
    }
    EXPECT_NEAR(lowest, 0, 1e-5);
  }
}

TEST(BallVerticale, DrawsInItsOrder) {
  HalfBall dial;
  dial.checkAll({Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Equinoziale,
                 Field::ckTemp, Field::ck_Italiche, Field::ck_babiloniche, Field::ck_Lemniscate,
                 Field::ck_Triangolo, Field::ckFunction});
  dial.set(Field::TxtFine, "23").run();
  EXPECT_EQ(dial.inks(),
            "ore 15|eq 9|-23.445° 8|23.445° 8|-20.1552° 13|20.1552° 13|-11.4746° 11|11.4746° 11|"
            "Ita 14|bab 13|Temp 8|analemma 13|equi 11|")
      << "and no line of txtLineofdeclination";
  const auto& circles = dial.sheet.list().circles;
  ASSERT_EQ(circles.size(), 6u);
  EXPECT_EQ(circles[1].radius, 0.2) << "the rim again";
  EXPECT_EQ(circles[2].colour, palette(14));
  EXPECT_DOUBLE_EQ(circles[3].startAngle, 3 * 3.141592654 / 2);
  EXPECT_DOUBLE_EQ(circles[3].endAngle, 3.141592654 / 2);

  const auto& texts = dial.sheet.list().texts;
  const sky::Vec sunwards = sky::sun(dial.latitude, rad(32.5), rad(23.45));
  const double h = std::asin(sky::dot(sunwards, dial.plane.normal));
  ASSERT_EQ(texts.size(), 11u);
  EXPECT_NEAR(std::stod(texts[1].text.substr(18)), deg(h), 1e-4);
  EXPECT_NEAR(std::stod(texts[2].text.substr(43)), 0.2 / std::cos(h), 1e-4);
  EXPECT_NE(dial.told().find("|declination 20 °|delta 23.45 °|hour angle 32.5 °|radius 0.2 °|"),
            std::string::npos);
}

TEST(BallVerticale, RefusesTheSouthAndTakesAnyInput) {
  expectRefusesSouth(Item::mnuBall_v, QuadranteBallVerticale);
  expectBounded(Item::mnuBall_v, QuadranteBallVerticale,
                {Field::ck_Italiche, Field::ck_Triangolo, Field::ckFunction},
                {Field::txtLAT, Field::txtDecl, Field::TxtRadius, Field::TxtHour, Field::TxtFine,
                 Field::txtAO, Field::txtDelta, Field::txtLineofdeclination, Field::x1txt});
}

}  // namespace
}  // namespace dialwright
