// Tests of program 40: its construction, horizon, numerals and order.
#include "dials/conical/scafe.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"
#include "support/odd_input.hpp"
#include "support/sky.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;
using std::numbers::pi;

constexpr double kStyle = 0.2;
constexpr double kSolstice = 23.445;

// A cone about the earth's axis, in the frame East, North, Up with the style's tip as origin. Its
// vertex is where the level style, laid from the tip to the North, ends on the cone.
struct HollowCone {
  double latitude, semiAngle;  // degrees
  sky::Vec axis, vertex;       // away from the pole; in space

  HollowCone(double latitude_, double semiAngle_) : latitude(latitude_), semiAngle(semiAngle_) {
    axis = {0, -std::cos(rad(latitude)), -std::sin(rad(latitude))};
    double near = 0, far = 100;
    for (int i = 0; i < 200; ++i) {
      const double middle = (near + far) / 2;
      (angleAt(-middle * axis, {0, kStyle, 0}) > rad(semiAngle) ? near : far) = middle;
    }
    vertex = -near * axis;
  }

  // The angle between the axis and the line from a vertex to a point.
  double angleAt(sky::Vec from, sky::Vec to) const {
    const sky::Vec way = to - from;
    const sky::Vec across = sky::cross(axis, way);
    return std::atan2(std::sqrt(sky::dot(across, across)), sky::dot(axis, way));
  }

  // The point of the cone that a point of the development is rolled to; the noon generator is the
  // development's x axis, and the afternoon lies above it.
  sky::Vec roll(sky::Spot spot) const {
    const double rho = std::hypot(spot.x, spot.y);
    const double turn = std::atan2(spot.y, spot.x) / std::sin(rad(semiAngle));
    const sky::Vec north{0, std::sin(rad(latitude)), -std::cos(rad(latitude))};
    const sky::Vec east{1, 0, 0};
    const sky::Vec across = std::cos(turn) * north + std::sin(turn) * east;
    return vertex + rho * (std::cos(rad(semiAngle)) * axis + std::sin(rad(semiAngle)) * across);
  }

  // Hour angle and declination of the sun whose ray through the tip falls on a point.
  std::pair<double, double> sunOf(sky::Spot spot) const {
    const sky::Vec point = roll(spot);
    EXPECT_NEAR(angleAt(vertex, point), rad(semiAngle), 1e-9);
    const sky::Vec sun = (-1 / std::sqrt(sky::dot(point, point))) * point;
    return {sky::hourAngleOf(rad(latitude), sun), sky::declinationOf(rad(latitude), sun)};
  }
};

class Scafe : public DialCase {
 public:
  explicit Scafe(std::initializer_list<Field> boxes = {}, double latitude = 45.7438,
                 double semiAngle = 30)
      : DialCase(Item::mnuConoAntico, DisegnaScafe), cone(latitude, semiAngle) {
    clearBoxes();
    for (const Field box : boxes) panel.setState(box, true);
    set(Field::txtLAT, textOf(latitude)).set(Field::txtSemi, textOf(semiAngle));
    set(Field::TxtHour, "1");
  }

  double semiArc(double d) const { return sky::semiArc(rad(cone.latitude), d); }
  sky::Spot letter(char which) const {
    for (const TextRecord& t : sheet.list().texts)
      if (t.text == std::string(1, which)) return {t.x, -t.y};
    ADD_FAILURE() << which;
    return {};
  }
  double tabled(const std::string& label) const {
    const std::string all = told();
    const std::size_t at = all.find("|" + label);
    EXPECT_NE(at, std::string::npos) << label;
    return numberOf(all.substr(at + 1 + label.size()));
  }

  const HollowCone cone;
};

const std::pair<double, double> kCones[] = {{45.7438, 30}, {62, 20}, {30, 30},
                                            {35, 50},      {12, 45}, {0, 30}};

// A sun that doesn't set keeps the arc of the last day that has one; one that doesn't rise counts
// as up for twelve hours.
TEST(ConicalDial, TheHorizonIsSunriseAndSunset) {
  for (const auto& [latitude, semiAngle] : {std::pair{45.7438, 30.0}, {12.0, 45.0}, {75.0, 30.0}}) {
    Scafe dial({Field::ck_Orizzonte}, latitude, semiAngle);
    dial.run();
    for (const auto& [layer, evening] : {std::pair{"Horizon2", 1}, {"Horizon", -1}}) {
      const auto lines = dial.linesOf(layer);
      EXPECT_GT(lines.size(), 1000u);
      for (std::size_t i = 0; i < lines.size(); i += 13) {
        const auto [H, d] = dial.cone.sunOf({lines[i].x1, -lines[i].y1});
        if (std::abs(latitude + std::abs(deg(d)) - 90) < 0.02) continue;
        if (latitude + std::abs(deg(d)) < 90)
          ASSERT_NEAR(evening * H, dial.semiArc(d), 1e-7) << deg(d);
        else
          ASSERT_NEAR(evening * H, d < 0 ? pi / 2 : pi, d < 0 ? 1e-7 : rad(3)) << deg(d);
      }
    }
  }
}

// The days' arcs always stand about half a turn: on a dial that isn't mirrored, on the other side
// of the vertex than their hours.
TEST(ConicalDial, DayArcsRunFromSunriseToSunset) {
  for (const bool mirrored : {false, true}) {
    Scafe dial({Field::Ck_DayLightCurves, Field::ck_Equinoziale, Field::ck_Orizzonte});
    dial.panel.setState(Field::ckFunction, mirrored);
    dial.run();
    const auto& circles = dial.sheet.list().circles;
    // The foot of the style lies level to the North of the tip.
    const double side = mirrored ? -1 : 1;
    const sky::Vec foot = dial.cone.roll({side * circles[0].x, -circles[0].y});
    EXPECT_NEAR(foot.y, kStyle, 1e-9);
    EXPECT_NEAR(std::hypot(foot.x, foot.z), 0, 1e-9);
    EXPECT_EQ(circles[0].radius, kStyle / 100);
    const double days[] = {kSolstice, -kSolstice, 0};
    for (std::size_t i = 0; i < 3; ++i) {
      const CircleRecord& c = circles[1 + i];
      EXPECT_NEAR(c.startAngle + c.endAngle, 2 * pi, 1e-9);
      for (const auto& [angle, evening] : {std::pair{c.startAngle, -1}, {c.endAngle, 1}}) {
        const auto [H, d] =
            dial.cone.sunOf({-c.radius * std::cos(angle), -c.radius * std::sin(angle)});
        EXPECT_NEAR(deg(d), days[i], 1e-6);
        EXPECT_NEAR(H, evening * dial.semiArc(d), 1e-7);
      }
    }
  }
}

// Mirroring turns the numerals' places by half a turn.
TEST(ConicalDial, NumeralsAreTemporaryHoursBeyondTheSummer) {
  for (const auto& [semiAngle, declination] : {std::pair{30.0, 30.0}, {50.0, 25.0}}) {
    for (const bool mirrored : {false, true}) {
      Scafe dial({Field::ckArabi, Field::ckTemp}, 45.7438, semiAngle);
      dial.panel.setState(Field::ckFunction, mirrored);
      dial.set(Field::txtArabi, "1e-9").run();
      std::vector<sky::Spot> places;
      std::vector<std::size_t> strokes;
      for (const LineRecord& l : dial.sheet.list().lines) {
        if (std::hypot(l.x1 - l.x2, l.y1 - l.y2) > 1e-7) continue;
        const sky::Spot at{mirrored ? -l.x1 : l.x1, mirrored ? l.y1 : -l.y1};
        if (places.empty() || sky::distance(places.back(), at) > 1e-6) {
          places.push_back(at);
          strokes.push_back(0);
        }
        ++strokes.back();
      }
      ASSERT_GE(places.size(), 12u);
      for (int hour = 12; hour >= 1; --hour) {
        const auto [H, d] = dial.cone.sunOf(places[static_cast<std::size_t>(12 - hour)]);
        EXPECT_NEAR(deg(d), declination, 1e-5);
        EXPECT_NEAR(6 * H / dial.semiArc(d), hour - 6, 1e-5);
      }
      // Twelve has its first digit only: it looks like one.
      EXPECT_EQ(strokes[0], strokes[11]);
      EXPECT_GT(strokes[1], strokes[11]);
    }
  }
}

// --- The construction

// Every letter is the point of the cone that its place in the section says: x to the North, y up.
TEST(ConicalDial, TheSectionsLettersArePointsOfTheCone) {
  for (const auto& [latitude, semiAngle] : kCones) {
    SCOPED_TRACE(testing::Message() << latitude << ' ' << semiAngle);
    Scafe dial({}, latitude, semiAngle);
    dial.run();
    const sky::Spot tip = dial.letter('Q');
    const auto inSpace = [&](char which) {
      const sky::Spot s = dial.letter(which);
      return sky::Vec{0, s.x - tip.x, s.y - tip.y};
    };
    const auto isAt = [&](char which, sky::Vec v) {
      EXPECT_NEAR(inSpace(which).y, v.y, 1e-8) << which;
      EXPECT_NEAR(inSpace(which).z, v.z, 1e-8) << which;
    };
    isAt('O', dial.cone.vertex);
    isAt('B', {0, kStyle, 0});
    const std::tuple<double, char, char, char> days[] = {
        {-kSolstice, 'C', 'U', 'L'}, {0, 'P', 'Q', 'M'}, {kSolstice, 'D', 'J', 'N'}};
    for (const auto& [declination, noon, centre, opposite] : days) {
      const sky::Vec n = inSpace(noon), c = inSpace(centre), o = inSpace(opposite);
      // On the cone, with the noon sun behind the tip.
      EXPECT_NEAR(dial.cone.angleAt(dial.cone.vertex, n), rad(semiAngle), 1e-8);
      EXPECT_NEAR(dial.cone.angleAt(dial.cone.vertex, o), rad(semiAngle), 1e-8);
      const double reach = std::sqrt(sky::dot(n, n));
      const sky::Vec sun = sky::sun(rad(latitude), 0, rad(declination));
      EXPECT_NEAR(std::abs(sky::dot(n, sun)), reach, 1e-8);
      // The circle's centre is the middle, on the axis.
      EXPECT_NEAR((n.y + o.y) / 2, c.y, 1e-8);
      EXPECT_NEAR((n.z + o.z) / 2, c.z, 1e-8);
      EXPECT_NEAR(c.z * std::cos(rad(latitude)) - c.y * std::sin(rad(latitude)), 0, 1e-8);
    }
    // H is level with the tip, in the plane of the summer's circle.
    EXPECT_NEAR(inSpace('H').z, 0, 1e-8);
    EXPECT_NEAR(sky::dot(inSpace('H') - inSpace('J'), dial.cone.axis), 0, 1e-8);
  }
}

TEST(ConicalDial, TheTablesLengthsAreThoseOfTheDrawing) {
  Scafe dial;
  dial.run();
  for (const char* pair :
       {"AQ", "AB", "BC", "BE", "DE", "CD", "EF", "FK", "KA", "RG", "OU", "OJ"}) {
    EXPECT_NEAR(dial.tabled(std::string(pair) + " "),
                sky::distance(dial.letter(pair[0]), dial.letter(pair[1])), 5.1e-5)
        << pair;
  }
  const auto radius = [&](char noon, char centre) {
    return sky::distance(dial.letter(noon), dial.letter(centre));
  };
  EXPECT_NEAR(dial.tabled("deltacd "), radius('D', 'J') - radius('C', 'U'), 5.1e-5);
  EXPECT_NEAR(dial.tabled("ro "), sky::distance(dial.letter('O'), dial.letter('D')), 5.1e-5);
  EXPECT_NEAR(dial.tabled("xsin "), dial.letter('G').x, 5.1e-6);
  EXPECT_NEAR(dial.tabled("focus 1   "), dial.letter('T').x, 5.1e-6);
  // Each of the two blocks starts at its place.
  for (const auto& [label, y] : {std::pair{"deltacd ", 0.6}, {"x0 ", 0.0}}) {
    bool found = false;
    for (const TextRecord& t : dial.sheet.list().texts) {
      if (!t.text.starts_with(label)) continue;
      found = t.x == 0.9 && t.y == y;
    }
    EXPECT_TRUE(found) << label;
  }
  // TxtDate makes the cone longer.
  Scafe longer;
  longer.set(Field::TxtDate, "4").run();
  EXPECT_NEAR(longer.tabled("DE ") - dial.tabled("DE "), 0.03, 1e-9);
}

// The curve is the cone's section by the style's level, whose points are level with the tip and
// stand as far from the meridian and from the style's foot as they do on the plan. An ellipse has
// the edge's shape only: its axis is shorter.
TEST(ConicalDial, TheConicIsTheDialsEdge) {
  for (const auto& [latitude, semiAngle, x0] : {std::tuple{45.7438, 30.0, 9 * kStyle},
                                                {30.0, 30.0, 10 * kStyle},
                                                {35.0, 50.0, 12 * kStyle},
                                                {62.0, 20.0, 9 * kStyle}}) {
    SCOPED_TRACE(testing::Message() << latitude << ' ' << semiAngle);
    Scafe dial({}, latitude, semiAngle);
    dial.run();
    EXPECT_NEAR(dial.tabled("x0 "), x0, 1e-9);
    const sky::Spot foot = dial.letter('R');
    const double f = rad(latitude), s = rad(semiAngle);
    double scale = 1;
    if (latitude > semiAngle) {
      const double a = kStyle / 2 * (std::sin(f + s) / std::cos(s) + 1);
      EXPECT_NEAR(dial.tabled("a "), a, 5.1e-6);
      scale = kStyle / 2 * (std::sin(f + s) / std::sin(f - s) + 1) / a;
    }
    const auto inSpace = [&](double x, double y) {
      return sky::Vec{scale * y, scale * (x - foot.x) + kStyle, 0};
    };
    std::size_t count = 0;
    for (const LineRecord& l : dial.linesIn(palette(10))) {
      if (l.layer == dial.sheet.layer("Equinox")) continue;
      ++count;
      if (std::abs(l.x1) + std::abs(l.y1) > 50) continue;
      const double angle = dial.cone.angleAt(dial.cone.vertex, inSpace(l.x1, l.y1));
      // The other branch of a hyperbola lies on the other half of the cone.
      ASSERT_NEAR(std::min(angle, pi - angle), rad(semiAngle), 1e-6) << l.x1 << ' ' << l.y1;
    }
    EXPECT_EQ(count, semiAngle > latitude ? 4186u : 4188u);
    // The front crosses the edge where the summer's circle does, and may miss a short ellipse.
    const auto front = dial.linesOf("Front");
    if (scale == 1) {
      const double radius = sky::distance(dial.letter('D'), dial.letter('J'));
      const double below = sky::distance(dial.letter('H'), dial.letter('J'));
      EXPECT_NEAR(std::abs(front.at(0).y1), std::sqrt(radius * radius - below * below), 1e-7);
      EXPECT_EQ(front[0].x1, dial.letter('G').x);
    } else {
      EXPECT_EQ(front.empty(), foot.x - dial.letter('G').x > 2 * dial.tabled("a "));
    }
    const LineRecord style = dial.linesOf("STILO").at(0);
    EXPECT_EQ(style.width, 4);
    EXPECT_NEAR(style.x1 - style.x2, kStyle, 1e-12);
    EXPECT_EQ(style.x1, foot.x);
  }
}

// --- What a run draws

TEST(ConicalDial, ARunDrawsItsFamiliesInOrder) {
  Scafe dial({Field::chkOreAstronomiche, Field::ck_Italiche, Field::ck_babiloniche, Field::ckTemp,
              Field::ck_Orizzonte, Field::Ck_DayLightCurves, Field::ck_Equinoziale,
              Field::ckFrame});
  dial.run();
  EXPECT_EQ(dial.sheet.caption(),
            "SCAPHEN: greek and roman sundial. Please follow the instructions");
  EXPECT_FALSE(dial.busy);
  EXPECT_EQ(dial.sheet.list().boxes.size(), 1u);
  std::string order;
  std::string last;
  for (const LineRecord& l : dial.sheet.list().lines) {
    const std::string name = dial.sheet.list().name(l.layer);
    if (name != last) order += name + " ";
    last = name;
  }
  EXPECT_EQ(order,
            "ora ita bab Temp Horizon2 Horizon Section Cone Style Winter Equinox Summer 0 Front "
            "STILO 0 ");
  const std::tuple<const char*, int, int> inks[] = {
      {"ora", 12, 2},      {"ita", 2, 2},      {"bab", 3, 2},     {"Temp", 6, 1},
      {"Horizon2", 11, 2}, {"Horizon", 11, 2}, {"Summer", 12, 4}, {"STILO", 15, 4}};
  for (const auto& [layer, colour, width] : inks) {
    const LineRecord l = dial.linesOf(layer).at(0);
    EXPECT_EQ(l.colour, palette(colour)) << layer;
    EXPECT_EQ(l.width, width) << layer;
  }
  EXPECT_EQ(dial.linesOf("Temp").size(), 13 * 468u);
  EXPECT_EQ(dial.linesOf("Horizon").size(), 6769u);
  // The newer point comes first: the first line runs back to the winter solstice.
  const LineRecord first = dial.linesOf("Temp")[0];
  const auto declination = [&](double x, double y) { return deg(dial.cone.sunOf({x, -y}).second); };
  EXPECT_NEAR(declination(first.x2, first.y2), -kSolstice, 1e-6);
  EXPECT_NEAR(declination(first.x1, first.y1), -kSolstice + 0.1, 1e-6);
  // The ends of the useful sector are the cone's seam.
  const auto& lines = dial.sheet.list().lines;
  for (const LineRecord& seam : {lines[lines.size() - 1], lines[lines.size() - 2]})
    EXPECT_NEAR(std::abs(std::atan2(seam.y2, seam.x2)), pi * std::sin(rad(30)), 1e-8);
}

// --- Quirks

TEST(ConicalDial, NumeralsNeedTheTemporaryHours) {
  Scafe with({Field::ckArabi}), without;
  with.run();
  without.run();
  EXPECT_EQ(with.entities(), without.entities());
}

TEST(ConicalDial, OddInputIsBounded) {
  expectBounded(Item::mnuConoAntico, DisegnaScafe,
                {Field::chkOreAstronomiche, Field::ck_Italiche, Field::ckTemp, Field::ck_Orizzonte,
                 Field::Ck_DayLightCurves, Field::ckArabi},
                {Field::txtLAT, Field::txtSemi, Field::TxtStilo, Field::TxtDate});
  for (const char* step : {"-1", "1e9"}) {
    Scafe dial({Field::chkOreAstronomiche, Field::ckTemp});
    dial.set(Field::TxtHour, step).run();
    EXPECT_EQ(dial.messages.size(), 1u);
    EXPECT_TRUE(dial.linesOf("ora").empty());
    EXPECT_FALSE(dial.busy);
  }
  Scafe dial({Field::Ck_DayLightCurves});
  dial.set(Field::txtSemi, "90").run();
  for (const CircleRecord& c : dial.sheet.list().circles)
    EXPECT_TRUE(std::isfinite(c.x + c.radius + c.startAngle + c.endAngle));
}

}  // namespace
}  // namespace dialwright
