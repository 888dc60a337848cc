// Program 26 on a wall in the sun: every line is the path of the far end of the half ball's shadow,
// and the drawing's order, inks and texts are those of the dial.
#include "dials/bifilar/ball_verticale.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "support/ball_shadow.hpp"
#include "support/dial_case.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::offGrid;
using sky::rad;

constexpr double kAngle = 2e-5;  // degrees; the circle constant is short by 4e-10

struct Site {
  double latitude;
  double declination;
};
const std::vector<Site> kSites = {{45.7438, 0}, {45.7438, 37}, {62, -20},
                                  {30, -75},    {5, 10},       {45, 90}};

// A dial of a site that draws no family and, with both kinds asked for, no numerals.
class Wall : public DialCase {
 public:
  explicit Wall(const Site& site = {45.7438, 20})
      : DialCase(Item::mnuBall_v, QuadranteBallVerticale),
        latitude(rad(site.latitude)),
        plane(sky::Plane::facing(site.declination, 0)) {
    set(Field::txtLAT, std::to_string(site.latitude));
    set(Field::txtDecl, std::to_string(site.declination));
    clearBoxes();
    for (const Field both : {Field::ckRomani, Field::ckArabi}) panel.setState(both, true);
  }

  // Both ends of each line of a layer are the far end of a shadow, and `fits` knows the hour angle
  // and the declination of their suns. A sun below the horizon behind the wall draws the point of
  // the sun opposite to it: those are counted in `night`.
  template <class Fits>
  std::size_t everySun(std::string_view layer, Fits fits) {
    const std::vector<LineRecord> lines = linesOf(layer);
    for (const LineRecord& line : lines) {
      EXPECT_LT(sky::distance({line.x1, line.y1}, {line.x2, line.y2}), 0.02);
      for (const sky::Spot end : {sky::Spot{line.x1, -line.y1}, {line.x2, -line.y2}}) {
        EXPECT_TRUE(end.y < 0 && end.y > -1 && std::abs(end.x) < 0.5);
        const sky::Vec sunwards = ball.sunAt(plane, end);
        EXPECT_TRUE(plane.lit(sunwards));
        if (sky::dot(sunwards, plane.normal) < 0.9999) {
          sky::expectFarEnd(ball, plane, end, sunwards);
        }
        const double H = deg(sky::hourAngleOf(latitude, sunwards));
        const double d = deg(sky::declinationOf(latitude, sunwards));
        if (!fits(H, d)) {
          ++night;
          EXPECT_TRUE(fits(H > 0 ? H - 180 : H + 180, -d)) << layer << ' ' << H << ' ' << d;
        }
        if (::testing::Test::HasFailure()) return 0;
      }
    }
    return lines.size();
  }

  std::size_t night = 0;
  sky::Ball ball{0.2, 0};
  double latitude;
  sky::Plane plane;
};

TEST(BallVerticale, LinesAreThePathsOfTheShadowsFarEnd) {
  std::size_t night = 0;
  for (const Site& site : kSites) {
    SCOPED_TRACE(testing::Message() << site.latitude << ' ' << site.declination);
    Wall wall(site);
    wall.set(Field::TxtHour, "2").check(Field::chkOreAstronomiche).run();
    const std::size_t count = wall.everySun("ore", [](double H, double d) {
      return offGrid(H, 7.5) < kAngle && offGrid(d + 23.445, 0.05) < kAngle &&
             std::abs(d) < 23.4451;
    });
    EXPECT_GT(count, 1000u);
    EXPECT_LT(wall.night, count) << "of twice as many ends";
    night += wall.night;
  }
  EXPECT_GT(night, 100u) << "before sunrise and after sunset";
}

TEST(BallVerticale, DayCurvesLieBeyondTheEquator) {
  struct Curve {
    const char* layer;
    double declination;
    int colour;
    double latest;
  };
  for (const Site& site : kSites) {
    SCOPED_TRACE(testing::Message() << site.latitude << ' ' << site.declination);
    Wall wall(site);
    wall.check(Field::Ck_DayLightCurves).check(Field::ck_Equinoziale).run();
    std::size_t chords = 0;
    for (const Curve& c : {Curve{"eq", 0, 9, 120},
                           {"-23.445°", -23.445, 8, 120},
                           {"23.445°", 23.445, 8, 120},
                           {"-20.1552°", -20.1552, 13, 150},
                           {"20.1552°", 20.1552, 13, 120},
                           {"-11.4746°", -11.4746, 11, 120},
                           {"11.4746°", 11.4746, 11, 120}}) {
      chords += wall.everySun(c.layer, [&](double H, double d) {
        // The equator's sun of that hour lights the wall.
        const double lit = sky::dot(sky::sun(wall.latitude, rad(H), 0), wall.plane.normal);
        return std::abs(d - c.declination) < kAngle && std::abs(H) < c.latest && lit > -1e-8;
      });
      for (const LineRecord& line : wall.linesOf(c.layer))
        EXPECT_EQ(line.colour, palette(c.colour));
    }
    EXPECT_GT(chords, 500u);
  }
}

TEST(BallVerticale, OtherHoursAreCountedFromSunriseAndSunset) {
  for (const Site& site : kSites) {
    SCOPED_TRACE(testing::Message() << site.latitude << ' ' << site.declination);
    Wall wall(site);
    wall.check(Field::ck_Italiche).check(Field::ck_babiloniche).check(Field::ckTemp);
    wall.set(Field::TxtInizio, "1").set(Field::TxtFine, "23").set(Field::TxtHour, "1").run();
    const auto arc = [&](double d) { return sky::arcOrHalfTurn(wall.latitude, rad(d)); };
    std::size_t count = wall.everySun(
        "Ita", [&](double H, double d) { return offGrid((H - arc(d)) / 15, 1) < kAngle; });
    count += wall.everySun(
        "bab", [&](double H, double d) { return offGrid((H + arc(d)) / 15, 1) < kAngle; });
    count += wall.everySun(
        "Temp", [&](double H, double d) { return offGrid(H / arc(d) * 6, 1) < 10 * kAngle; });
    EXPECT_GT(count, 1000u);
  }
}

TEST(BallVerticale, AnalemmaIsTheYearsMeanNoon) {
  Wall wall;
  wall.check(Field::ck_Lemniscate).run();
  const std::size_t count = wall.everySun("analemma", [&](double H, double d) {
    return std::abs(H + deg(wall.params.CorrFuso)) < 17.0 / 4 && std::abs(d) < 23.447;
  });
  EXPECT_EQ(count, 365u);
}

// The outline of the shadow and the edge of the ball's own shade, for noon of the winter solstice
// or for the moment of txtAO and txtDelta.
TEST(BallVerticale, DemonstrationPlotsTheBallsShadow) {
  for (const bool free : {false, true}) {
    Wall wall;
    wall.set(Field::txtAO, "-25").set(Field::txtDelta, "12").check(Field::ckFunction, free).run();
    const sky::Vec sunwards = free ? sky::sun(wall.latitude, rad(-25), rad(12))
                                   : sky::sun(wall.latitude, 0, rad(-23.445));
    sky::expectOutlines(wall.ball, wall.plane, sunwards, wall.pointsIn(palette(10)),
                        wall.pointsIn(palette(4)));
    const CircleRecord end = wall.sheet.list().circles.back();
    EXPECT_EQ(end.colour, palette(14));
    sky::expectFarEnd(wall.ball, wall.plane, {end.x, -end.y}, sunwards);
    const LineRecord axis = wall.linesIn(palette(14)).back();
    EXPECT_LT(sky::distance({axis.x1, axis.y1}, {end.x, end.y}), 1e-9);
    EXPECT_LT(sky::distance({axis.x2, axis.y2}, {1.2 * end.x, 1.2 * end.y}), 1e-9);
  }
}

TEST(BallVerticale, StraightEquinoctialTouchesTheCurveAtTheSubstyle) {
  for (const Site& site : {Site{45.7438, 20}, {45.7438, -40}, {30, 0}}) {
    Wall wall(site);
    wall.check(Field::ck_Equinoziale).run();
    const std::vector<LineRecord> straight = wall.linesOf("equi");
    ASSERT_GT(straight.size(), 500u);
    EXPECT_EQ(straight[0].colour, palette(11));
    // No sun of the equator draws its shadow's end below the line, and one draws it there.
    const double slope =
        (straight.back().y1 - straight[0].y1) / (straight.back().x1 - straight[0].x1);
    double lowest = -1;
    for (const LineRecord& line : wall.linesOf("eq")) {
      lowest = std::max(lowest, line.y1 - straight[0].y1 - slope * (line.x1 - straight[0].x1));
    }
    EXPECT_NEAR(lowest, 0, 1e-5);
  }
}

TEST(BallVerticale, DrawsInItsOrder) {
  Wall wall;
  for (const Field box :
       {Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Equinoziale, Field::ckTemp,
        Field::ck_Italiche, Field::ck_babiloniche, Field::ck_Lemniscate, Field::ck_Triangolo,
        Field::ckFunction}) {
    wall.check(box);
  }
  wall.set(Field::TxtFine, "23").run();
  EXPECT_EQ(wall.inks(),
            "ore 15|eq 9|-23.445° 8|23.445° 8|-20.1552° 13|20.1552° 13|-11.4746° 11|11.4746° 11|"
            "Ita 14|bab 13|Temp 8|analemma 13|equi 11|")
      << "and no line of txtLineofdeclination";
  const auto& circles = wall.sheet.list().circles;
  ASSERT_EQ(circles.size(), 6u);
  EXPECT_EQ(circles[0].radius, 0.2);
  EXPECT_EQ(circles[1].radius, 0.2) << "the rim again";
  const double pi = 3.141592654;
  EXPECT_DOUBLE_EQ(circles[3].startAngle, 3 * pi / 2);
  EXPECT_DOUBLE_EQ(circles[3].endAngle, pi / 2);
  EXPECT_EQ(circles[3].fill, palette(12));
  EXPECT_EQ(circles[5].fill, palette(15));
  EXPECT_EQ(wall.sheet.caption(), "Bifilar vertical semi - sphere dial by vectors");

  std::vector<std::string> texts;
  for (const TextRecord& text : wall.sheet.list().texts) texts.emplace_back(text.recorded());
  const sky::Vec sunwards = sky::sun(wall.latitude, rad(32.5), rad(23.45));
  const double h = std::asin(sky::dot(sunwards, wall.plane.normal));
  ASSERT_EQ(texts.size(), 11u);
  EXPECT_NEAR(std::stod(texts[1].substr(18)), deg(h), 1e-4);
  EXPECT_NEAR(std::stod(texts[2].substr(43)), 0.2 / std::cos(h), 1e-4);
  EXPECT_EQ(texts[4], "declination 20 °");
  EXPECT_EQ(texts[7], "radius 0.2 °");
  EXPECT_EQ(texts[9].substr(0, 27), "eccentricity of the shadow ");
  EXPECT_EQ(texts[10].substr(0, 6), "angle ");
}

TEST(BallVerticale, RefusesTheSouthAndTakesAnyInput) {
  DialCase south(Item::mnuBall_v, QuadranteBallVerticale);
  south.set(Field::txtLAT, "-1").run();
  EXPECT_TRUE(south.refused);
  EXPECT_EQ(south.entities(), 0u);
  expectBounded(Item::mnuBall_v, QuadranteBallVerticale,
                {Field::ck_Italiche, Field::ck_Triangolo, Field::ckFunction},
                {Field::txtLAT, Field::txtDecl, Field::TxtRadius, Field::TxtHour, Field::TxtFine,
                 Field::txtAO, Field::txtDelta, Field::txtLineofdeclination, Field::x1txt});
}

}  // namespace
}  // namespace dialwright
