// The Graeco-Roman dial beside its shadows: its construction on the cone, horizon, days and
// numerals.
#include <gtest/gtest.h>

#include "dials/shadow_model.hpp"
#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"

namespace dialwright {
namespace {

using namespace sky;
using std::numbers::pi;

constexpr double kStyle = 0.2, kSolstice = 23.445;

struct Scaphe : DialCase {
  explicit Scaphe(std::string_view settings = {}, double degrees = 45.7438, double semiAngle = 30)
      : DialCase(40, settings),
        latitude(rad(degrees)),
        cone(hollowAboutAxis(degrees, semiAngle, kStyle)) {
    set(Field::txtLAT, textOf(degrees)).set(Field::txtSemi, textOf(semiAngle));
    set(Field::TxtHour, "1").run();
  }

  // Hour angle and declination (degrees) of the sun whose ray through the tip falls on a spot.
  std::pair<double, double> sunOf(double x, double y) const {
    const Vec s = -1 * unit(cone.roll(std::hypot(x, y), std::atan2(y, x)));
    return {deg(hourAngleOf(latitude, s)), deg(declinationOf(latitude, s))};
  }
  double arc(double d) const { return deg(semiArc(latitude, rad(d))); }
  // Off the cone, on either half of it.
  double off(Vec p) const {
    const double behind = cone.behind(p);
    return std::min(std::abs(behind), std::abs(behind + 2 * cone.semiAngle - pi));
  }
  Spot letter(char which) const {
    for (const TextRecord& t : sheet.list().texts)
      if (t.text == std::string(1, which)) return {t.x, -t.y};
    ADD_FAILURE() << which;
    return {};
  }
  // Of the section, x to the North and y up, with the tip as origin.
  Vec inSpace(char which) const {
    return {0, letter(which).x - letter('Q').x, letter(which).y - letter('Q').y};
  }
  double tabled(const std::string& label) const {
    const std::string all = told();
    return numberOf(all.substr(all.find("|" + label) + 1 + label.size()));
  }

  double latitude;
  Hollow cone;
};

// --- The construction

// Every letter is the point of the cone that its place in the section says.
TEST(Scaphe, TheSectionsLettersArePointsOfTheCone) {
  for (const auto& [latitude, semiAngle] :
       {std::pair{45.7438, 30.0}, {62, 20}, {30, 30}, {35, 50}, {0, 30}}) {
    SCOPED_TRACE(testing::Message() << latitude << ' ' << semiAngle);
    const Scaphe dial({}, latitude, semiAngle);
    EXPECT_LT(length(dial.inSpace('O') - dial.cone.vertex), 1e-8);
    EXPECT_LT(length(dial.inSpace('B') - kStyle * kNorth), 1e-8);
    for (const auto& [declination, noon, centre, opposite] : {std::tuple{-kSolstice, 'C', 'U', 'L'},
                                                              {0.0, 'P', 'Q', 'M'},
                                                              {kSolstice, 'D', 'J', 'N'}}) {
      const Vec n = dial.inSpace(noon), c = dial.inSpace(centre), o = dial.inSpace(opposite);
      // On the cone, with the noon sun behind the tip; the circle's centre is on the axis.
      EXPECT_LT(dial.off(n) + dial.off(o), 2e-8);
      EXPECT_LT(length(cross(n, sun(dial.latitude, 0, rad(declination)))), 1e-8);
      EXPECT_LT(length(0.5 * (n + o) - c), 1e-8);
      EXPECT_LT(length(cross(c, dial.cone.axis)), 1e-8);
    }
    // H is level with the tip, in the plane of the summer's circle.
    EXPECT_NEAR(dial.inSpace('H').z, 0, 1e-8);
    EXPECT_NEAR(dot(dial.inSpace('H') - dial.inSpace('J'), dial.cone.axis), 0, 1e-8);
  }
}

// The curve is the cone's section by the style's level, whose points stand as far from the meridian
// and from the style's foot as they do on the plan. An ellipse has the edge's shape only: its axis
// is shorter.
TEST(Scaphe, TheConicIsTheDialsEdge) {
  for (const auto& [latitude, semiAngle, x0] : {std::tuple{45.7438, 30.0, 9 * kStyle},
                                                {30.0, 30.0, 10 * kStyle},
                                                {35.0, 50.0, 12 * kStyle},
                                                {62.0, 20.0, 9 * kStyle}}) {
    SCOPED_TRACE(testing::Message() << latitude << ' ' << semiAngle);
    Scaphe dial({}, latitude, semiAngle);
    EXPECT_NEAR(dial.tabled("x0 "), x0, 1e-9);
    const double f = rad(latitude), s = rad(semiAngle), foot = dial.letter('R').x;
    double scale = 1;
    if (latitude > semiAngle) {
      const double a = kStyle / 2 * (std::sin(f + s) / std::cos(s) + 1);
      EXPECT_NEAR(dial.tabled("a "), a, 5.1e-6);
      scale = kStyle / 2 * (std::sin(f + s) / std::sin(f - s) + 1) / a;
    }
    for (const LineRecord& l : dial.linesIn(palette(10))) {
      if (l.layer == dial.sheet.layer("Equinox")) continue;
      if (std::abs(l.x1) + std::abs(l.y1) > 50) continue;
      ASSERT_LT(dial.off({scale * l.y1, scale * (l.x1 - foot) + kStyle, 0}), 1e-6);
    }
  }
}

// --- The dial

// A sun that doesn't set keeps the arc of the last day that has one; one that doesn't rise counts
// as up for twelve hours.
TEST(Scaphe, TheHorizonIsSunriseAndSunset) {
  for (const auto& [latitude, semiAngle] : {std::pair{45.7438, 30.0}, {12.0, 45.0}, {75.0, 30.0}}) {
    Scaphe dial("ck_Orizzonte", latitude, semiAngle);
    for (const auto& [layer, evening] : {std::pair{"Horizon2", 1}, {"Horizon", -1}}) {
      const auto lines = dial.linesOf(layer);
      EXPECT_GT(lines.size(), 1000u);
      for (std::size_t i = 0; i < lines.size(); i += 13) {
        const auto [H, d] = dial.sunOf(lines[i].x1, -lines[i].y1);
        const double polar = latitude + std::abs(d) - 90;
        if (std::abs(polar) < 0.02) continue;
        const double arc = polar < 0 ? dial.arc(d) : d < 0 ? 90 : 180;
        ASSERT_NEAR(evening * H, arc, arc == 180 ? 3 : 1e-5) << d;
      }
    }
  }
}

// The foot of the style, which lies level to the North of the tip, but not the days' arcs.
TEST(Scaphe, TheFootIsMirroredAlone) {
  const auto plain = Scaphe("Ck_DayLightCurves ck_Orizzonte").sheet.list().circles;
  Scaphe dial("Ck_DayLightCurves ck_Orizzonte ckFunction");
  const auto& mirrored = dial.sheet.list().circles;
  EXPECT_LT(length(dial.cone.roll(-mirrored.at(0).x, 0) - kStyle * kNorth), 1e-9);
  EXPECT_EQ(plain.at(0).x, -mirrored[0].x);
  EXPECT_EQ(plain.at(1).startAngle, mirrored.at(1).startAngle);
}

// Mirroring turns the numerals' places by half a turn.
TEST(Scaphe, NumeralsAreTemporaryHoursBeyondTheSummer) {
  for (const auto& [semiAngle, declination] : {std::pair{30.0, 30.0}, {50.0, 25.0}}) {
    for (const double side : {1, -1}) {
      Scaphe dial(
          side < 0 ? "ckArabi ckTemp txtArabi=1e-9 ckFunction" : "ckArabi ckTemp txtArabi=1e-9",
          45.7438, semiAngle);
      std::vector<Spot> places;
      for (const LineRecord& l : dial.sheet.list().lines) {
        const Spot at{side * l.x1, -side * l.y1};
        if (std::hypot(l.x1 - l.x2, l.y1 - l.y2) < 1e-7 &&
            (places.empty() || distance(places.back(), at) > 1e-6))
          places.push_back(at);
      }
      ASSERT_GE(places.size(), 12u);
      for (std::size_t i = 0; i < 12; ++i) {
        const auto [H, d] = dial.sunOf(places[i].x, places[i].y);
        EXPECT_NEAR(d, declination, 1e-5);
        EXPECT_NEAR(6 * H / dial.arc(d), 6 - static_cast<double>(i), 1e-5);
      }
    }
  }
}

}  // namespace
}  // namespace dialwright
