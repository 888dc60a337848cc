// The report against the sky: its figures on planes of all kinds, its tables by the rays that they
// stand for.
#include "shell/report.hpp"

#include <algorithm>
#include <array>
#include <chrono>

#include "support/dial_case.hpp"
#include "support/report_text.hpp"
#include "support/sky.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;
using sky::Spot;
using sky::Vec;

constexpr double kStyle = 0.2;
constexpr double kCutTo5 =
    1.1e-5;  // a figure cut to five decimals, with the circle constant's share

// Fills the record as a dial's frame does, and draws nothing.
void recordOnly(Run& run) {
  DialParams& p = run.params;
  assign(p.LatGradi, run.number(Field::txtLAT));
  assign(p.LatRad, p.radians(p.LatGradi));
  assign(p.LonGradi, run.number(Field::txtLON));
  assign(p.CorrLon, p.radians(15 + p.LonGradi));
  assign(p.CorrFuso, p.radians(p.LonGradi - 15 * run.number(Field::TxtFuso)));
  assign(p.Raggio, run.number(Field::TxtRadius));
}

struct Wall {
  double latitude, declination, reclination;
};

// The report of a dial on a wall, whose reclination counts on the dials that have a field for it.
class Written : public DialCase {
 public:
  Written(Item item, Wall wall) : DialCase(item, recordOnly) {
    set(Field::txtLAT, textOf(wall.latitude));
    set(Field::txtDecl, textOf(wall.declination));
    set(Field::txtReclinZ, textOf(90 - wall.reclination));
  }
  Written& with(Field field, std::string_view text) {
    set(field, text);
    return *this;
  }
  Written& ticked(Field box) {
    check(box);
    return *this;
  }
  ReportText report() {
    run().press(cmdData_Click);
    return ReportText(sheet);
  }
};

Vec pole(double latitude) { return {0, std::cos(rad(latitude)), std::sin(rad(latitude))}; }

// Metres by which a ray from the spot to the style's tip misses the plane of that normal.
double missed(const sky::Plane& plane, Spot spot, Vec normal) {
  return std::abs(dot(normal, kStyle * plane.normal - (spot.x * plane.right + spot.y * plane.up)));
}

double turnOf(double degrees) { return std::remainder(degrees, 360); }

constexpr std::array<Wall, 9> kWalls = {{{45.7438, -14.57, 0},
                                         {45.7438, 35, 20},
                                         {45.7438, -60, -25},
                                         {10, 75, 40},
                                         {60, 130, 0},
                                         {60, -150, 15},
                                         {23, 0, 30},
                                         {52, 180, 0},
                                         {30, 100, -10}}};

TEST(Report, StyleSubstyleAndCentre) {
  for (const Wall& wall : kWalls) {
    SCOPED_TRACE(testing::Message()
                 << wall.latitude << ' ' << wall.declination << ' ' << wall.reclination);
    const ReportText text = Written(Item::mnuUni, wall).report();
    const double latitude = rad(wall.latitude);
    const sky::Plane plane = sky::Plane::facing(wall.declination, wall.reclination);
    const double sine = dot(pole(wall.latitude), plane.normal);
    EXPECT_NEAR(text.number("Style elevation  "), deg(std::asin(sine)), kCutTo5);
    EXPECT_NEAR(text.number("Style: hypotenuse "), kStyle / std::abs(sine), kCutTo5);

    const Spot centre = plane.tipShadow(kStyle, pole(wall.latitude));
    const std::string figures = text.after("Center coordinates  : ");
    const double reach = std::hypot(centre.x, centre.y);
    EXPECT_NEAR(numberOf(figures), centre.x, kCutTo5);
    EXPECT_NEAR(numberOf(figures.substr(figures.find("    "))), centre.y, kCutTo5);
    EXPECT_NEAR(text.number("Distance Foot Center: cathetus  "), reach, kCutTo5);
    const double S = rad(text.number("Substyle distance  : "));
    EXPECT_NEAR(-reach * std::sin(S), centre.x, 1e-6);
    EXPECT_NEAR(reach * std::cos(S), centre.y, 1e-6);

    const double H = deg(sky::hourAngleOf(latitude, plane.normal));
    EXPECT_NEAR(turnOf(text.number("substyle hour angle : ") - H), 0, kCutTo5);
    EXPECT_NEAR(turnOf(15 * (text.number("Substyle hour = ") - 12) - H), 0, 2e-4);
    EXPECT_NEAR(text.number("Latitude f0  "), deg(sky::declinationOf(latitude, plane.normal)),
                kCutTo5);
    EXPECT_NEAR(turnOf(text.number("Longitude ", 1) - H), 0, kCutTo5);
    EXPECT_NEAR(turnOf(15 * text.hours("Longitude ", 3) - H), 0, 0.009)
        << text.after("Longitude ", 3);
    EXPECT_NEAR(text.number("horizon ordinate:    "), kStyle * std::tan(rad(wall.reclination)),
                1e-5);
    // The line of greatest slope lies in the plane of the vertical hour.
    if (wall.reclination != 0) {
      const Vec vertical = cross(pole(wall.latitude), plane.up);
      const double hour = rad(15 * (text.number("vertical hour:    ") - 12));
      EXPECT_NEAR(dot(vertical, sky::sun(latitude, hour, 0)), 0, 1e-5);
    }
  }
}

TEST(Report, EquivalentWallIsTheSamePlaneElsewhere) {
  for (const Wall& wall : kWalls) {
    const ReportText text = Written(Item::mnuUni, wall).report();
    ASSERT_EQ(text.count("Vertical equivalent dial :"), wall.reclination == 0 ? 0 : 1);
    if (wall.reclination == 0) continue;
    const sky::Plane here = sky::Plane::facing(wall.declination, wall.reclination);
    const sky::Plane there = sky::Plane::facing(text.number("declination d1 =  "), 0);
    const double f1 = rad(text.number("latitude f1 =  "));
    const double lambda = rad(text.number("longitude lambda =  "));
    for (const double H : {-1.1, 0.2, 1.4}) {
      for (const double delta : {-0.4, 0.1, 0.3}) {
        const Spot a = here.tipShadow(kStyle, sky::sun(rad(wall.latitude), H, delta));
        const Spot b = there.tipShadow(kStyle, sky::sun(f1, H - lambda, delta));
        // The angles are rounded to 5e-6 degrees; far shadows magnify that.
        EXPECT_LT(distance(a, b), 2e-6 * (1 + (a.x * a.x + a.y * a.y) / (kStyle * kStyle)));
      }
    }
  }
}

TEST(Report, DayLengths) {
  for (const double latitude : {0.0, 45.7438, 66.0, -30.0}) {
    const ReportText text = Written(Item::M_Frinter, {latitude, 10, 0}).report();
    const double shortest = deg(sky::semiArc(rad(std::abs(latitude)), rad(-23.445))) * 2 / 15;
    EXPECT_NEAR(text.hours("Shortest day:    "), shortest, 1.1 / 3600);
    EXPECT_NEAR(text.hours("Longest day:    "), 24 - shortest, 1.1 / 3600);
  }
  for (const double latitude : {67.0, 90.0}) {
    const ReportText text = Written(Item::M_Frinter, {latitude, 10, 0}).report();
    EXPECT_EQ(text.count("Shortest day:   0 h "), 1);
    EXPECT_EQ(text.count("Longest day:   24 h "), 1);
  }
}

// The first and the last hour up to a given one at which the sun lights a plane.
std::pair<double, double> litHours(const Wall& wall, double declination, double until = 24) {
  const sky::Plane plane = sky::Plane::facing(wall.declination, wall.reclination);
  std::pair<double, double> hours{24, 0};
  for (double hour = 0; hour <= until; hour += 0.001) {
    if (!plane.lit(sky::sun(rad(wall.latitude), rad((hour - 12) * 15), rad(declination)))) continue;
    hours.first = std::min(hours.first, hour);
    hours.second = hour;
  }
  return hours;
}

TEST(Report, SunOnTheDial) {
  // Hours are rounded to 0.01, then cut to whole minutes.
  constexpr double kEarly = 0.0053 + 0.001, kLate = 1.0 / 60 + 0.0053 + 0.001;
  const auto expectTime = [](double told, double truth) {
    EXPECT_LT(told, truth + kEarly);
    EXPECT_GT(told, truth - kLate);
  };
  for (const Wall& wall :
       {Wall{45.7438, -14.57, 0}, Wall{45.7438, 35, 20}, Wall{10, 75, 40}, Wall{60, -80, 0}}) {
    SCOPED_TRACE(testing::Message() << wall.latitude << ' ' << wall.declination);
    const ReportText text = Written(Item::mnuUni, wall).report();
    const std::array<double, 2> days = {23.445, -23.445};
    for (int i = 0; i < 2; ++i) {
      const double arc =
          deg(sky::semiArc(rad(wall.latitude), rad(days[static_cast<std::size_t>(i)]))) / 15;
      const auto lit = litHours(wall, days[static_cast<std::size_t>(i)]);
      expectTime(text.hours("Sunrise at ", i), 12 - arc);
      expectTime(text.hours("Sunset at ", i), 12 + arc);
      expectTime(text.hours("Sun on dial at ", i), lit.first);
      expectTime(text.hours("Sun off dial at ", i), lit.second);
    }
  }
}

TEST(Report, CriticalDeclinations) {
  const ReportText text = Written(Item::M_Light, {45.7438, -14.57, 0}).report();
  // At the sun's critical declination it rises in the wall's own line.
  const double critical = text.number("critical declination of the sun = ±");
  const double arc = sky::semiArc(rad(45.7438), rad(critical));
  const Vec rise = sky::sun(rad(45.7438), -arc, rad(critical));
  EXPECT_NEAR(dot(rise, sky::Plane::facing(-14.57, 0).normal), 0, 1e-4);
  EXPECT_EQ(text.count("Sun's declination = "), 4);
  EXPECT_EQ(text.after("Sun's declination = ", 3), "-10.111°");
  // A wall in the line of the sunrise at the solstice.
  const double wall = text.number("critical declination of the dial = ±");
  const Vec solstice =
      sky::sun(rad(45.7438), -sky::semiArc(rad(45.7438), rad(23.445)), rad(23.445));
  EXPECT_NEAR(std::abs(deg(std::atan2(solstice.y, solstice.x))), wall, 0.006);
  EXPECT_EQ(
      Written(Item::M_Light, {45.7438, 60, 0}).report().count("critical declination of the sun"),
      0);
}

TEST(Report, NorthWallTellsOneOfTwoStretches) {
  const Wall north{45.7438, 180, 0};
  const ReportText text = Written(Item::M_Light, north).report();
  const auto morning = litHours(north, 23.445, 12);
  EXPECT_NEAR(text.hours("Sun on dial at "), morning.first, 0.025);
  EXPECT_NEAR(text.hours("Sun off dial at "), morning.second, 0.025);
  EXPECT_GT(litHours(north, 23.445).second, 19);  // the evening is not told
  EXPECT_EQ(text.count("Sun on dial at "), 1);
  EXPECT_EQ(text.count("Sun off dial all the day "), 3);
}

TEST(Report, WithTrueShadowsBothStretchesTheSixesAndTheSheetsEdge) {
  const Wall north{45.7438, 180, 0};
  Written dial(Item::M_Light, north);
  const ReportText text = dial.ticked(Field::ckTrue).report();
  EXPECT_NEAR(text.hours("Sun off dial at ", 0), litHours(north, 23.445, 12).second, 0.025);
  EXPECT_NEAR(text.hours("Sun off dial at ", 1), litHours(north, 23.445).second, 0.025);
  EXPECT_NEAR(text.hours("Sun on dial at ", 1), 24 - text.hours("Sun off dial at ", 0), 0.025);
  EXPECT_EQ(text.count("Sun on dial at "), 2);
  EXPECT_EQ(dial.sheet.list().texts.front().x, -dial.sheet.ShiftX());
  const auto told = [](Wall wall, std::string_view label) {
    return Written(Item::mnuUni, wall).ticked(Field::ckTrue).report().after(label);
  };
  EXPECT_EQ(told({45, 0, 0}, "horizontal hour:    "), "6    18");
  EXPECT_EQ(told({45, 180, 0}, "horizontal hour:    "), "6    18");
  EXPECT_EQ(told({45, -14.57, 0}, "horizontal hour:    ").substr(0, 5), "17.30");
  // On the equator the style lies level: the substyle is the line of six.
  EXPECT_EQ(told({0, 30, 0}, "Substyle hour = "), "18 h");
  EXPECT_EQ(told({0, -30, 0}, "Substyle hour = "), "6 h");
  EXPECT_EQ(told({0, 30, 0}, "horizontal hour:    "), "6    18");
}

TEST(Report, TablesKeepTheZonesTimeWithTrueShadows) {
  const auto hours = [](const char* zone, bool onlyTrue) {
    Written dial(Item::M_Light, {45.7438, 10, 0});
    dial.with(Field::TxtFuso, zone).with(Field::txtLON, "-37").ticked(Field::ckFunction);
    if (onlyTrue) dial.ticked(Field::ckTrue);
    return dial.ticked(Field::ck_Etna).report().table("HA-AO-AH          h       eq-x", 3);
  };
  // Noon of the zone two hours ahead is 10 of the other one; a row is half an hour.
  const auto near = hours("-1", true), far = hours("-3", true);
  ASSERT_EQ(near.size(), far.size());
  for (std::size_t i = 0; i + 4 < near.size(); ++i) {
    if (!std::isfinite(far[i + 4][2])) continue;
    EXPECT_NEAR(near[i][2], far[i + 4][2], 0.011);
  }
  EXPECT_EQ(hours("-3", false), hours("-1", false)) << "the zone counts with true shadows alone";
}

// --- Tables

class Tables : public testing::TestWithParam<Wall> {
 protected:
  Tables()
      : latitude(rad(GetParam().latitude)),
        plane(sky::Plane::facing(GetParam().declination, 0)),
        text(written()) {}

  static ReportText written() {
    Written dial(Item::M_Light, GetParam());
    dial.with(Field::txtLON, "-7.6438");
    return dial.ticked(Field::ckFunction).ticked(Field::ck_Etna).report();
  }
  // The hour angle of a table's hour in the time of the zone's meridian.
  double hourAngle(double hour) const { return rad((hour - 12) * 15 - (15 - 7.6438)); }

  double latitude;
  sky::Plane plane;
  ReportText text;
};

TEST_P(Tables, EdgesLieInTheHoursPlanes) {
  for (int corner = 0; corner < 2; ++corner) {
    const auto rows =
        text.table(" h             x            y           y            x  ", 5, corner);
    ASSERT_EQ(rows.size(), 33U);
    for (const auto& row : rows) {
      const Vec normal = cross(pole(GetParam().latitude), sky::sun(latitude, hourAngle(row[0]), 0));
      EXPECT_EQ(row[1], corner == 0 ? -0.5 : 0.5);
      EXPECT_EQ(row[3], corner == 0 ? 0.2 : -1);
      if (std::isfinite(row[2])) {
        EXPECT_LT(missed(plane, {row[1], row[2]}, normal), 1.1e-4);
      }
      if (std::isfinite(row[4])) {
        EXPECT_LT(missed(plane, {row[4], row[3]}, normal), 1.1e-4);
      }
    }
  }
}

TEST_P(Tables, DistancesAreThoseOfTheShadows) {
  const auto rows =
      text.table("  h         c-ss      c-ws         ss-ws       c-e       ss-e      ws-e", 7);
  ASSERT_EQ(rows.size(), 33U);
  const Spot centre = plane.tipShadow(kStyle, pole(GetParam().latitude));
  int fallen = 0;
  for (const auto& row : rows) {
    std::array<Spot, 3> at;
    std::array<bool, 3> falls{};
    for (std::size_t i = 0; i < 3; ++i) {
      const Vec sun =
          sky::sun(latitude, hourAngle(row[0]), rad(std::array{23.445, -23.445, 0.0}[i]));
      falls[i] = dot(plane.normal, sun) > 0;
      at[i] = plane.tipShadow(kStyle, sun);
    }
    const auto expectSpan = [&](std::size_t column, bool both, Spot a, Spot b) {
      ASSERT_EQ(std::isfinite(row[column]), both) << row[0] << ' ' << column;
      if (both) {
        EXPECT_NEAR(row[column], distance(a, b), 1.1e-4 + 1e-6 * distance(a, b));
      }
      fallen += both;
    };
    expectSpan(1, falls[0], centre, at[0]);
    expectSpan(2, falls[1], centre, at[1]);
    expectSpan(3, falls[0] && falls[1], at[0], at[1]);
    expectSpan(4, falls[2], centre, at[2]);
    expectSpan(5, falls[0] && falls[2], at[0], at[2]);
    expectSpan(6, falls[1] && falls[2], at[1], at[2]);
  }
  EXPECT_GT(fallen, 50);
}

TEST_P(Tables, HoursStandOnTheEquinoctial) {
  const Spot foot{text.number(" px = "), text.number(" py = ")};
  const Spot centre = plane.tipShadow(kStyle, pole(GetParam().latitude));
  EXPECT_NEAR(text.number(" CP = "), distance(foot, centre), 2e-4);
  const double length = std::hypot(foot.x, foot.y);
  const auto rows = text.table("HA-AO-AH          h       eq-x", 3);
  ASSERT_EQ(rows.size(), 33U);
  for (const auto& row : rows) {
    const Spot shadow = plane.tipShadow(kStyle, sky::sun(latitude, hourAngle(row[1]), 0));
    EXPECT_NEAR(row[0], (row[1] - 12) * 15, 0.08);  // the hour has two decimals
    if (std::abs(row[2]) > 20) continue;
    // To the right of a viewer who has the centre above.
    const double side = centre.y > 0 ? 1 : -1;
    const double along =
        side * ((shadow.x - foot.x) * -foot.y + (shadow.y - foot.y) * foot.x) / length;
    EXPECT_NEAR(row[2], along, 0.0051 + 1e-3 * std::abs(along)) << row[1];
  }
  const auto ends = text.table("  x             y            x            y", 4);
  ASSERT_EQ(ends.size(), 1U);
  EXPECT_LT(missed(plane, {ends[0][0], ends[0][1]}, pole(GetParam().latitude)), 1.1e-4);
  EXPECT_LT(missed(plane, {ends[0][2], ends[0][3]}, pole(GetParam().latitude)), 1.1e-4);
}

TEST_P(Tables, ItalicAndBabylonianHours) {
  int crossings = 0;
  for (const int system : {0, 1}) {
    for (const int corner : {0, 1}) {
      const auto rows =
          text.table(corner == 0 ? "h            x1          y         y1           x "
                                 : "h            x2          y         y2           x ",
                     5, system);
      ASSERT_EQ(rows.size(), 24U);
      EXPECT_EQ(rows[0][0], system == 0 ? 12 : 0);
      for (const auto& row : rows) {
        // The horizon, carried on by the hours since sunset or sunrise.
        const Vec normal = sky::sun(latitude, rad(15 * row[0]), latitude);
        for (const Spot spot : {Spot{row[1], row[2]}, Spot{row[4], row[3]}}) {
          if (!std::isfinite(spot.x) || !std::isfinite(spot.y)) continue;
          ++crossings;
          EXPECT_LT(missed(plane, spot, normal), 6e-4 + 1e-7 * std::hypot(spot.x, spot.y))
              << system << ' ' << row[0];
        }
      }
    }
  }
  EXPECT_GT(crossings, 180);
}

TEST_P(Tables, SolsticesMeetTheHorizon) {
  const auto rows = text.table("Abscissas of the solstices-horizon intersections", 2);
  ASSERT_EQ(rows.size(), 1U);
  const double arc = sky::semiArc(latitude, rad(-23.439033));
  for (const std::size_t side : {0U, 1U}) {
    const Spot spot =
        plane.tipShadow(kStyle, sky::sun(latitude, side == 0 ? -arc : arc, rad(-23.439033)));
    EXPECT_NEAR(spot.y, 0, 1e-12);
    EXPECT_NEAR(rows[0][side], spot.x, 1.1e-6 + 2e-9 * (1 + spot.x * spot.x));
  }
}

INSTANTIATE_TEST_SUITE_P(Walls, Tables,
                         testing::Values(Wall{45.7438, -14.57, 0}, Wall{45.7438, 35, 0},
                                         Wall{38, 72, 0}, Wall{60, 140, 0}, Wall{45, 0, 0},
                                         Wall{52, 0, 0}));

// --- Order, special cases and bad input

TEST(Report, OrderOfTheLines) {
  Written dial(Item::M_Light, {45.7438, -14.57, 0});
  dial.report();
  const std::string_view expected =
      "DATA: |Latitude 45.7438°|Longitude -7.6438°|Declination -14.57°|Reclination 0°|"
      "Inclination 90°|T R I A N G L E |Style: hypotenuse 0.2961|"
      "Perpendicular style: cathetus 0.2|Distance Foot Center: cathetus  0.21835||"
      "Style elevation  -42.48719°|Substyle distance  : -13.7725°|"
      "Center coordinates  : 0.05198    0.21208|Angle between max slope line and noon  : 0°|"
      "substyle hour angle : -19.94604°|Substyle hour = 10.67026 h|"
      "Corrected in longitude Substyle hour = 11.16067 h|horizontal hour:    17.29695|"
      "vertical hour:    12|longitude correction:    29.4248 m|substyle longitude = -29.4248|"
      "horizon ordinate:    0 m||Equivalent horizontal dial : |Latitude f0  -42.48718°|"
      "Longitude -19.94604°|Longitude -1.32974 h|Longitude -1h 19' 47 ''||"
      "Shortest day:    8h 28' 34 ''|Longest day:    15h 31' 25 ''|Sun's declination = 23.445°|"
      "Sunrise at 4h 14' |Sunset at 19h 45' |Sun on dial at 6h 13' |Sun off dial at 15h 6' |";
  EXPECT_EQ(dial.told().substr(0, expected.size()), expected);
}

// A figure of four decimals is not cut again to five, which would take it for 16.01279.
TEST(Report, FiguresAreCutOnce) {
  const ReportText text = Written(Item::mnuUni, {45.7438, 40, 20}).report();
  EXPECT_EQ(text.after("Angle between max slope line and noon  : "), "16.0128°");
}

TEST(Report, PlacesAndColours) {
  Written dial(Item::M_Light, {45.7438, -14.57, 0});
  dial.ticked(Field::ckFunction).report();
  const auto& texts = dial.sheet.list().texts;
  EXPECT_DOUBLE_EQ(texts[0].x, 10 - 0.995);
  EXPECT_DOUBLE_EQ(texts[0].y, -dial.sheet.ShiftY());
  const auto colourOf = [&](std::string_view start) {
    const auto found = std::find_if(texts.begin(), texts.end(),
                                    [&](const TextRecord& t) { return t.text.starts_with(start); });
    return found == texts.end() ? kNoFill : found->shownColour;
  };
  EXPECT_EQ(colourOf("Style: hypotenuse"), palette(9));
  EXPECT_EQ(colourOf("Perpendicular style"), palette(13));
  EXPECT_EQ(colourOf("Style elevation"), palette(7));
  EXPECT_EQ(colourOf("Sun's declination"), palette(11));
  EXPECT_EQ(colourOf("critical"), palette(7));
  EXPECT_EQ(colourOf("  delta"), palette(14));
  // The letters stand on the drawing, and the list goes on where it was.
  for (std::size_t i = 1; i < texts.size(); ++i) {
    if (texts[i].text == "C") {
      EXPECT_NEAR(texts[i].x, 0.05198 * 10 / 9, 1e-4);
    }
    if (texts[i].text == "P" || texts[i].text == "C") {
      EXPECT_EQ(texts[i].shownColour, palette(12));
    }
  }
  EXPECT_DOUBLE_EQ(texts[2].y - texts[1].y, kTextLine);
  EXPECT_DOUBLE_EQ(texts.back().y - texts[1].y, kTextLine * static_cast<double>(texts.size() - 4));
}

TEST(Report, SouthFacingAndSideWalls) {
  const ReportText south = Written(Item::M_Light, {45.7438, 0, 0}).report();
  EXPECT_EQ(south.number("Substyle distance  : "), 0);
  EXPECT_EQ(south.number("Center coordinates  : "), 0);
  EXPECT_EQ(south.after("horizontal hour:    "), "12") << "a wall without declination has none";
  const ReportText west = Written(Item::M_Light, {45.7438, 90, 0}).report();
  EXPECT_EQ(west.count("Style: hypotenuse = inf"), 1);
  EXPECT_EQ(west.count("Distance Foot Center: cathetus = inf"), 1);
  EXPECT_EQ(west.after("Center coordinates  : "), "inf    inf");
  EXPECT_EQ(west.number("Style elevation  "), 0);
  EXPECT_NEAR(west.number("Substyle hour = "), 18, 2e-5);
}

// The circle constant is a little more than pi: at a pole and on the equator, where a right angle
// stands in the formulas, the seasons change places. The hour of the substyle has no form for an
// upright wall on the equator: it keeps the older one, carried half a turn to its side.
TEST(Report, RightAnglesAtThePoleAndTheEquator) {
  const ReportText pole = Written(Item::M_Light, {90, 10, 0}).report();
  EXPECT_EQ(pole.count("Style: hypotenuse = inf"), 1);
  const auto first = std::find(pole.lines.begin(), pole.lines.end(), "Sun's declination = 23.445°");
  ASSERT_NE(first, pole.lines.end());
  EXPECT_EQ(*(first + 1), "Sun off dial all the day ");
  const ReportText equator = Written(Item::mnuUni, {0, 20, 0}).report();
  EXPECT_EQ(equator.number("Substyle distance  : "), 90);
  EXPECT_EQ(equator.number("Substyle hour = "), 24) << "18, were it true";
  EXPECT_EQ(equator.after("critical reclination of the dial = "), "90°");
}

TEST(Report, LevelPlane) {
  Written dial(Item::mnuUni, {45.7438, 25, 90});
  const ReportText text = dial.report();
  EXPECT_NEAR(text.number("Style elevation  "), 45.7438, kCutTo5);
  EXPECT_EQ(text.count("Declination 25"), 0);
  EXPECT_EQ(text.after("Center coordinates  : ").substr(0, 5), "0    ");
  EXPECT_NEAR(numberOf(text.after("Center coordinates  : ").substr(5)),
              -kStyle / std::tan(rad(45.7438)), kCutTo5);
  EXPECT_EQ(text.after("latitude f1 =  "), "44.2562°");
  EXPECT_EQ(text.after("declination d1 =  "), "180°");
  EXPECT_EQ(text.after("horizon ordinate:    "), "inf m");
  EXPECT_EQ(text.after("Sun on dial at "), text.after("Sunrise at "));
}

// The record is that of a southern dial, whose walls are counted from the North.
TEST(Report, SouthernSite) {
  Written dial(Item::mnuUni, {-45.7438, 35, 20});
  const ReportText text = dial.ticked(Field::ckFunction).report();
  const sky::Plane plane = sky::Plane::facing(180 - 35, 20);
  const Spot centre = plane.tipShadow(kStyle, pole(-45.7438));
  const std::string figures = text.after("Center coordinates  : ");
  EXPECT_NEAR(numberOf(figures), centre.x, kCutTo5);
  EXPECT_NEAR(numberOf(figures.substr(figures.find("    "))), centre.y, kCutTo5);
  EXPECT_NEAR(text.number("substyle hour angle : "),
              deg(sky::hourAngleOf(rad(-45.7438), plane.normal)), kCutTo5);
  EXPECT_EQ(text.count("Sun's declination"), 0);
  EXPECT_EQ(text.count("  delta"), 0);
}

TEST(Report, LineOfDeclination) {
  Written dial(Item::M_Light, {45.7438, -14.57, 0});
  const ReportText text =
      dial.ticked(Field::ckFunction).with(Field::txtLineofdeclination, "40").report();
  EXPECT_EQ(text.after("  delta = "), "±23.445");
  EXPECT_EQ(text.after("Sun's declination = "), "40°");
  const ReportText winter = Written(Item::M_Light, {45.7438, -14.57, 0})
                                .ticked(Field::ckFunction)
                                .with(Field::txtLineofdeclination, "-10")
                                .report();
  EXPECT_EQ(winter.after("  delta = "), "±10");
  EXPECT_EQ(winter.after("Sun's declination = "), "-10°");
}

TEST(Report, LimitPlanesOfCylinders) {
  Written dial(Item::mnuCCs, {45, 20, 0});
  const ReportText text = dial.with(Field::TxtRadius, "0.4").report();
  // A tangent from the tip leaves the axis as far as its normal stands from the style.
  const double half = deg(std::acos(0.4 / 0.6));
  EXPECT_NEAR(text.number("Declination of the left limit plane:  "), 20 + half, 0.006);
  EXPECT_NEAR(text.number("Declination of the right limit plane:  "), 20 - half, 0.006);
  EXPECT_EQ(text.count("Reclination"), 0);
  EXPECT_EQ(text.count("Sun's declination"), 0);

  Written parabola(Item::M_Parabolico, {45, 0, 0});
  const ReportText other = parabola.with(Field::TxtRadius, "0.4").report();
  // The tangent from (0, -0.2) to y = x^2/0.8 touches it at x^2 = 0.16.
  EXPECT_NEAR(other.number("Declination of the left limit plane:  "), deg(std::atan(2 * 0.4 / 0.8)),
              0.006);
  EXPECT_EQ(other.after("A_m : "), "");
}

TEST(Report, TablesOfNoEndAreLeftOut) {
  Written dial(Item::M_Light, {45.7438, -14.57, 0});
  const ReportText text = dial.ticked(Field::ckFunction).with(Field::TxtHour, "1001").report();
  EXPECT_EQ(text.count("  delta"), 0);
  ASSERT_EQ(dial.messages.size(), 1U);
  EXPECT_TRUE(dial.messages[0].ends_with("see the field TxtHour"));
}

TEST(Report, AnyInputEndsInSoundTexts) {
  const std::array<std::string_view, 8> kBad = {"0",       "-90",     "90",    "1e308",
                                                "-1e-308", "letters", "1e999", "12345678"};
  const std::array kFields = {
      Field::txtLAT,   Field::txtLON,  Field::txtDecl,  Field::txtReclinZ,
      Field::TxtStilo, Field::TxtFuso, Field::TxtHour,  Field::txtLineofdeclination,
      Field::x1txt,    Field::y2txt,   Field::TxtRadius};
  const auto start = std::chrono::steady_clock::now();
  for (const Item item : {Item::M_Light, Item::mnuUni, Item::mnuCCs, Item::M_Parabolico}) {
    for (const Field field : kFields) {
      for (const std::string_view bad : kBad) {
        Written dial(item, {45.7438, -14.57, 0});
        dial.with(field, bad).ticked(Field::ckFunction).report();
        const std::string told = dial.told();
        EXPECT_EQ(told.find("nan"), std::string::npos) << rowOf(field).name << bad;
        for (const TextRecord& text : dial.sheet.list().texts)
          EXPECT_TRUE(sound(text.x) && sound(text.y) && sound(text.shownX));
      }
    }
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

}  // namespace
}  // namespace dialwright
