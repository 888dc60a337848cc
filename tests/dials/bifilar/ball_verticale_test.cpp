// Program 26: the demonstration of the half ball's shadow, the straight equinoctial, and the
// drawing's order, inks and texts.
#include "dials/bifilar/ball_verticale.hpp"

#include "dials/bifilar/bifilar_case.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;

struct HalfBall : BifilarCase {
  explicit HalfBall(double degrees = kLatitude, double declination = 20)
      : BifilarCase(Item::mnuBall_v, QuadranteBallVerticale, degrees, declination) {}
};

// The outline of the shadow and the edge of the ball's own shade, for noon of the winter solstice
// or for the moment of txtAO and txtDelta.
TEST(BallVerticale, DemonstrationPlotsTheBallsShadow) {
  for (const bool free : {false, true}) {
    HalfBall dial;
    dial.set(Field::txtAO, "-25").set(Field::txtDelta, "12").check(Field::ckFunction, free).run();
    const sky::Vec sunwards = free ? sky::sun(dial.latitude, rad(-25), rad(12))
                                   : sky::sun(dial.latitude, 0, rad(-23.445));
    expectOutlines(0.2, 0, dial.plane, sunwards, dial.pointsIn(palette(10)),
                   dial.pointsIn(palette(4)));
    const CircleRecord end = dial.sheet.list().circles.back();
    EXPECT_NEAR(std::hypot(end.x, end.y), 0.2 / sky::dot(sunwards, dial.plane.normal), 1e-9);
    const LineRecord axis = dial.linesIn(palette(14)).back();
    EXPECT_LT(sky::distance({axis.x1, axis.y1}, {end.x, end.y}), 1e-9);
    EXPECT_LT(sky::distance({axis.x2, axis.y2}, {1.2 * end.x, 1.2 * end.y}), 1e-9);
  }
}

TEST(BallVerticale, StraightEquinoctialTouchesTheCurveAtTheSubstyle) {
  for (const auto& [latitude, declination] :
       {std::pair{kLatitude, 20.0}, {kLatitude, -40.0}, {30.0, 0.0}}) {
    HalfBall dial(latitude, declination);
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
