// Tests of the stereographic chart: every point is taken back to the sphere.
#include "diagrams/stereographic.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "lettering/arabic.hpp"
#include "lettering/roman.hpp"
#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"
#include "support/sky.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;
using std::numbers::pi;

constexpr double kR = 0.4;
constexpr double kSolstice = 23.445;
constexpr std::size_t kNumerals = 23;
constexpr double kSignDays[] = {-kSolstice, kSolstice, 0};
// Radians and metres: the circle constant's error, grown with the radius of a plane's circle.
constexpr double kNear = 5e-8;

// The sphere of a site. A chart's point is seen from the South pole of the unit sphere: the ray
// through it meets the sphere once more.
struct Sphere {
  double latitude;

  // Towards the point of the chart, in the frame East, North, Up.
  sky::Vec direction(sky::Spot spot) const {
    const double a = spot.x / kR, b = spot.y / kR;  // West and South, on the equator
    const double t = 2 / (1 + a * a + b * b);
    const double west = t * a, south = t * b, north = t - 1;
    return {-west, north * std::cos(rad(latitude)) - south * std::sin(rad(latitude)),
            north * std::sin(rad(latitude)) + south * std::cos(rad(latitude))};
  }
  double altitude(sky::Spot s) const {
    const sky::Vec d = direction(s);
    return std::atan2(d.z, std::hypot(d.x, d.y));
  }
  double hourAngle(sky::Spot s) const { return sky::hourAngleOf(rad(latitude), direction(s)); }
  double declination(sky::Spot s) const { return sky::declinationOf(rad(latitude), direction(s)); }
};

sky::Spot onCircle(const CircleRecord& c, double angle) {
  return {c.x + c.radius * std::cos(angle), -c.y + c.radius * std::sin(angle)};
}
// A point of an arc, from 0 at its start to 1 at its end, counter-clockwise.
sky::Spot onArc(const CircleRecord& c, double part) {
  double sweep = c.endAngle - c.startAngle;
  if (sweep < 0) sweep += 2 * pi;
  return onCircle(c, c.startAngle + part * sweep);
}

// A chart that was run, with characters too small to see.
class Chart : public DialCase {
 public:
  explicit Chart(double latitude = 45.7438, double declination = -14.57, double reclination = 0,
                 bool onlyTrue = false)
      : DialCase(Item::mnuDia, DiagrammaStereografico), sphere{latitude} {
    set(Field::txtLAT, textOf(latitude)).set(Field::txtDecl, textOf(declination));
    set(Field::txtReclinZ, textOf(90 - reclination));
    for (const Field size : {Field::txtNumbersize, Field::txtArabi, Field::txtZodiacsize})
      set(size, "1e-9");
    panel.setState(Field::ckTrue, onlyTrue);
    run();
  }

  std::vector<CircleRecord> circlesIn(int ink) const {
    std::vector<CircleRecord> chosen;
    for (const CircleRecord& c : sheet.list().circles)
      if (c.colour == palette(ink)) chosen.push_back(c);
    return chosen;
  }
  // The places of the tiny characters, in their order.
  std::vector<sky::Spot> characters() const {
    std::vector<sky::Spot> places;
    for (const LineRecord& l : sheet.list().lines) {
      if (std::hypot(l.x1 - l.x2, l.y1 - l.y2) > 1e-7) continue;
      if (places.empty() || sky::distance(places.back(), {l.x1, -l.y1}) > 1e-7)
        places.push_back({l.x1, -l.y1});
    }
    return places;
  }

  const Sphere sphere;
};

TEST(StereographicChart, ThePlanesPointsLieInThePlane) {
  for (const double latitude : {45.7438, 62.0, 12.0}) {
    for (const double declination : {-14.57, 0.0, 35.0, 120.0, -170.0, 180.0}) {
      for (const double reclination : {0.0, 25.0, -20.0, 70.0, -70.0}) {
        if (declination == 0 && reclination < -latitude) continue;  // see ADialAtMidnight
        SCOPED_TRACE(testing::Message() << latitude << ' ' << declination << ' ' << reclination);
        Chart chart(latitude, declination, reclination);
        const sky::Plane plane = sky::Plane::facing(declination, reclination);
        const auto off = [&](sky::Spot s) {
          return sky::dot(plane.normal, chart.sphere.direction(s));
        };
        const auto arcs = chart.circlesIn(14);
        ASSERT_EQ(arcs.size(), 1u);
        for (double part = 0; part <= 1; part += 0.0625) {
          EXPECT_NEAR(off(onArc(arcs[0], part)), 0, kNear);
          EXPECT_GT(chart.sphere.altitude(onArc(arcs[0], part)), -kNear);
        }
        EXPECT_NEAR(chart.sphere.altitude(onArc(arcs[0], 0)), 0, kNear);
        EXPECT_NEAR(chart.sphere.altitude(onArc(arcs[0], 1)), 0, kNear);
        // The first point is the circle's centre.
        const auto points = chart.pointsIn(palette(14));
        for (std::size_t i = 1; i < points.size(); i += 17)
          ASSERT_NEAR(off({points[i].x, -points[i].y}), 0, kNear) << i;
        // The normal's hour angle is the substyle's, its declination the style's.
        const double latitudeOfPlane = sky::declinationOf(rad(latitude), plane.normal);
        EXPECT_NEAR(arcs[0].radius, kR / std::abs(std::sin(latitudeOfPlane)), 1e-6);
        const LineRecord substyle = chart.linesIn(palette(14)).at(0);
        const double Ha = sky::hourAngleOf(rad(latitude), plane.normal);
        EXPECT_NEAR(substyle.x2 * std::cos(Ha) + substyle.y2 * std::sin(Ha), 0, kNear);
      }
    }
  }
}

// The circle of a plane that holds the polar axis has a radius that only the circle constant's
// error keeps finite; it is no straight line. Its arc ends on the horizon all the same; bearings of
// half a turn are taken with that constant.
TEST(StereographicChart, APolarPlaneIsAnImmenseCircle) {
  for (const double declination : {-90.0, 90.0}) {
    Chart chart(45.7438, declination);
    ASSERT_EQ(chart.circlesIn(14).size(), 1u);
    const CircleRecord c = chart.circlesIn(14)[0];
    EXPECT_GT(c.radius, 1e9);
    EXPECT_LT(c.radius, 1e10);
    const double beyond = declination > 0 ? chart.params.PiGreco - pi : 0;
    for (const double angle : {c.startAngle, c.endAngle}) {
      const sky::Spot end = onCircle(c, angle - beyond);
      EXPECT_NEAR(end.x, 0, 5e-6);
      EXPECT_NEAR(chart.sphere.altitude(end), 0, 5e-6);
    }
  }
}

// A dial whose normal stands at midnight has its substyle and its circle at noon where it doesn't
// decline: they are those of the dial's mirror image. A level plane that looks up has the horizon
// only where it doesn't decline, and its mirror image elsewhere.
TEST(StereographicChart, ADialAtMidnight) {
  for (const auto& [declination, reclination, side] :
       {std::tuple{0.0, -70.0, -1}, {0.0, 90.0, 1}, {30.0, 90.0, -1}, {-30.0, 90.0, -1}}) {
    SCOPED_TRACE(testing::Message() << declination << ' ' << reclination);
    Chart chart(45.7438, declination, reclination);
    const sky::Plane plane = sky::Plane::facing(declination, reclination);
    const CircleRecord whole = chart.circlesIn(8).at(0);
    for (double a = 0; a < 6; a += 0.5) {
      const sky::Spot s = onCircle(whole, a);
      EXPECT_NEAR(sky::dot(plane.normal, chart.sphere.direction({s.x, side * s.y})), 0, kNear);
    }
  }
}

TEST(StereographicChart, TheHorizonIsACircleOrARowOfPoints) {
  for (const double latitude : {0.0, 0.001, 5.9, 6.0, 45.7438, 66.5}) {
    SCOPED_TRACE(latitude);
    Chart chart(latitude);
    const auto circles = chart.circlesIn(10);
    const auto points = chart.pointsIn(palette(10));
    // Points from -2 to 2 radii of the winter solstice, but for what is off the sheet.
    ASSERT_EQ(circles.size() + points.size(), latitude < 6 ? 398u : 1u);
    for (const PointRecord& p : points) ASSERT_NEAR(chart.sphere.altitude({p.x, -p.y}), 0, 1e-7);
    for (double a = 0; latitude >= 6 && a < 6; a += 0.5)
      EXPECT_NEAR(chart.sphere.altitude(onCircle(circles.at(0), a)), 0, kNear);
  }
}

// The arc of the lit side runs from the South to the hour of the plane's normal, with its arrow
// half way.
TEST(StereographicChart, TheArrowShowsTheSideOfThePlane) {
  for (const double declination : {-60.0, 40.0}) {
    Chart chart(45.7438, declination, 10);
    const double Ha = sky::hourAngleOf(rad(45.7438), sky::Plane::facing(declination, 10).normal);
    const auto points = chart.pointsIn(palette(11));
    ASSERT_GT(points.size(), 100u);
    for (const PointRecord& p : points) {
      const sky::Spot s{p.x, -p.y};
      EXPECT_NEAR(deg(chart.sphere.declination(s)), -30, kNear * 100);
      const double part = chart.sphere.hourAngle(s) / Ha;
      EXPECT_TRUE(part > -1e-6 && part < 1 + 1e-6) << part;
    }
    EXPECT_NEAR(chart.sphere.hourAngle(chart.characters().back()), Ha / 2, 1e-6);
  }
}

// In summer, all but the solstice's first circle have the arc of a winter's day, unless true.
TEST(StereographicChart, DayCirclesAreThoseOfTheirDeclination) {
  for (const bool onlyTrue : {false, true}) {
    Chart chart(45.7438, -14.57, 0, onlyTrue);
    const auto expectDay = [&](const CircleRecord& c, double declination, double wholeArcOf) {
      for (const double part : {0.0, 0.3, 0.5, 1.0})
        EXPECT_NEAR(deg(chart.sphere.declination(onArc(c, part))), declination, 1e-6);
      EXPECT_NEAR(chart.sphere.hourAngle(onArc(c, 0.5)), 0, kNear);
      EXPECT_GE(c.startAngle, 0);
      EXPECT_NEAR(chart.sphere.hourAngle(onArc(c, 0)), sky::semiArc(rad(45.7438), rad(wholeArcOf)),
                  kNear);
    };
    const double side = onlyTrue ? 1 : -1;
    for (const CircleRecord& c : chart.circlesIn(9)) expectDay(c, -kSolstice, -kSolstice);
    const auto summer = chart.circlesIn(12), days = chart.circlesIn(8);
    ASSERT_EQ(chart.circlesIn(9).size() + summer.size(), 2 + 2u);
    expectDay(summer[0], kSolstice, kSolstice);
    expectDay(summer[1], kSolstice, side * kSolstice);
    ASSERT_EQ(days.size(), 1 + 22u);  // the first is the plane's whole circle
    for (std::size_t i = 1; i <= 11; ++i) {
      const double day = 2 * static_cast<double>(i);
      expectDay(days[i], -day, -day);
      expectDay(days[23 - i], day, side * day);
    }
  }
}

// The quarters are 1.57 degrees off the hours, unless true.
TEST(StereographicChart, HoursAndQuartersStandOnTheirRing) {
  for (const bool onlyTrue : {false, true}) {
    Chart chart(45.7438, -14.57, 0, onlyTrue);
    const double summer = kR * std::tan(rad(33.2775));
    const auto ticks = chart.linesIn(palette(5));
    ASSERT_EQ(ticks.size(), 1 + 25 + 96u + onlyTrue);
    for (std::size_t i = 1; i < ticks.size(); ++i) {
      const auto& [x1, y1, x2, y2, colour, width, layer] = ticks[i];
      const bool hour = i < 26;
      const double first = hour || onlyTrue ? 0 : pi / 2;
      EXPECT_NEAR(std::remainder(deg(std::atan2(-y1, x1)) - first, hour ? 15 : 3.75), 0, 1e-5);
      EXPECT_NEAR(std::hypot(x1, y1), (hour ? 0.72 : 0.81) * summer, kNear);
      EXPECT_NEAR(std::hypot(x2, y2), 0.855 * summer, kNear);
    }
  }
}

// Characters turn by a quarter turn less the ring's angle; six in the evening is in the West.
TEST(StereographicChart, NumeralsTurnAgainstTheRing) {
  const auto someNumerals = [](dialwright::Run& run) {
    const double r = 0.648 * kR * std::tan(rad(33.2775));
    for (const auto& [a, hour] : {std::pair{0, 6}, {75, 1}, {135, 9}, {345, 7}}) {
      const double x = r * std::cos(rad(a)), y = r * std::sin(rad(a));
      if (run.on(Field::ckRomani))
        DisegnaNumeroRomano(run, x, y, rad(90 - a), hour, 2);
      else
        DisegnaNumeroArabo(run, x, y, 90 - a, hour, 1);
    }
  };
  for (const char* boxes : {"ckRomani", "-ckRomani"}) {
    DialCase chart(Item::mnuDia, DiagrammaStereografico), numerals(Item::mnuDia, someNumerals);
    chart.with(boxes).set(Field::TxtRadius, textOf(kR)).run();
    ASSERT_GT(numerals.with(boxes).run().entities(), 10u);
    for (const LineRecord& w : numerals.sheet.list().lines) {
      EXPECT_TRUE(std::ranges::any_of(chart.sheet.list().lines, [&](const LineRecord& l) {
        return std::hypot(l.x1 - w.x1, l.y1 - w.y1, l.x2 - w.x2) + std::abs(l.y2 - w.y2) < 1e-9;
      })) << boxes;
    }
  }
}

// Signs stand at the height where their day meets a circle 0.1 m outside the horizon. Only those
// more than the root of 2 metres beside the meridian go there; the others keep the abscissa of the
// ring before, at first 0.
TEST(StereographicChart, SignsStandBesideTheHorizon) {
  for (const double radius : {kR, 2.0}) {
    Chart chart;
    chart.sheet.Clear();
    chart.sheet.QuadranteL(10);
    chart.sheet.ShiftX(5);
    chart.set(Field::TxtRadius, textOf(radius)).run();
    const double centre = radius / std::tan(rad(45.7438));
    const double q = radius / std::sin(rad(45.7438)) + 0.1;
    const auto places = chart.characters();
    const std::size_t each = radius > 1 ? 2 : 1;         // places of a day
    ASSERT_EQ(places.size(), kNumerals + 3 * each + 1);  // and the arrow
    double x = 0;
    for (std::size_t i = 0; i < 3; ++i) {
      const double r = radius * std::tan(rad((90 - kSignDays[i]) / 2));
      const sky::Spot right = places[kNumerals + i * each + each - 1];
      const double square = r * r - right.y * right.y;
      EXPECT_NEAR(square + (right.y - centre) * (right.y - centre), q * q, 1e-6);
      if (square > 2) x = std::sqrt(square);
      EXPECT_NEAR(right.x, x, 1e-7);
    }
  }
}

// True signs stand 0.1 m beyond the horizon's circle, where the sun of their day rises and sets.
TEST(StereographicChart, TrueSignsStandBeyondSunriseAndSunset) {
  for (const double latitude : {0.01, 45.7438, 66.0}) {
    const Chart chart(latitude, -14.57, 0, true);
    const auto places = chart.characters();
    ASSERT_EQ(places.size(), kNumerals + 6u + 1);
    const double centre = kR / std::tan(rad(latitude)), radius = kR / std::sin(rad(latitude));
    for (std::size_t i = 0; i < 6; ++i) {
      const sky::Spot sign = places[kNumerals + i];
      const double back = radius / (radius + 0.1);
      const sky::Spot end{back * sign.x, centre + back * (sign.y - centre)};
      EXPECT_NEAR(chart.sphere.altitude(end), 0, 1e-6);
      EXPECT_NEAR(deg(chart.sphere.declination(end)), kSignDays[i / 2], 1e-5);
      EXPECT_EQ(end.x > 0, i % 2 == 1);
    }
  }
}

TEST(StereographicChart, TellsItsFigures) {
  Chart chart;
  EXPECT_EQ(chart.sheet.caption(),
            "Stereographic diagram showing the operating limits of a dial wherever oriented");
  EXPECT_EQ(chart.told(),
            "||latitude  = 45.7438 °|Declination of the dial: -14.57 °|Reclination 0 °|"
            "substyle hour angle : -19.946 °|substyle hour 10 h 40.21 m|angle -42.4872 °|"
            "Horizontal equivalent dial|latitude  = -42.4872 °|Substyle distance  : -13.7725 °|"
            "Style elevation  42.4872 °|radius of the summer solstice =  0.2625|"
            "radius of the arc representing the dial plane  =  0.5922|pz =  -0.1687|"
            "first bearing =  57.225 °|second bearing =  143.8663 °|"
            "Sun on dial at 5 h 17.81 m|Sun off dial at 17 h 17.81 m||");
}

// The hours at which the sun passes the horizon's two points in the plane, which its reclination
// doesn't move. A wall due South has no tangent, nor has a site on the equator.
TEST(StereographicChart, TheHoursAreThoseOfTheHorizonsPoints) {
  const std::tuple<double, double, const char*> cases[] = {
      {45.7438, 14.57, "Sun on dial at 6 h 42.18 m|Sun off dial at 18 h 42.18 m|"},
      {45.7438, 160, "Sun on dial at 17 h 1.55 m|Sun off dial at 5 h 1.55 m|"},
      {45.7438, 0, "Sun on dial at 6 h 0 m|Sun off dial at 18 h 0 m|"},
      {0, 30, "Sun on dial at 6 h 0 m|Sun off dial at 18 h 0 m|"}};
  for (const auto& [latitude, declination, hours] : cases) {
    Chart chart(latitude, declination);
    EXPECT_NE(chart.told().find(hours), std::string::npos) << hours << chart.told();
  }
}

TEST(StereographicChart, TheSouthIsRefusedAndThePolarCircleLeftBlank) {
  DialCase south(Item::mnuDia, DiagrammaStereografico);
  south.set(Field::txtLAT, "-0.1").run();
  EXPECT_TRUE(south.refused && south.entities() == 0);
  EXPECT_EQ(south.messages,
            std::vector<std::string>{"Sorry, unable to work in the Southern hemisphere "});
  for (const double latitude : {66.556, 90.0}) {
    Chart polar(latitude);
    EXPECT_EQ(polar.entities() + polar.messages.size() + polar.busy, 0u);
  }
}

}  // namespace
}  // namespace dialwright
