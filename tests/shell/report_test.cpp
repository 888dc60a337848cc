// The report against the sky: its figures on planes of all kinds, its tables by the rays that they
// stand for.
#include "shell/report.hpp"

#include <algorithm>
#include <array>

#include "shell/report_text.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;
using sky::Spot;
using sky::Vec;

constexpr double kStyle = WallCase::kStyle;
// A figure cut to five decimals, with the circle constant's share.
constexpr double kCutTo5 = 1.1e-5;

const std::vector<Site> kWalls = {{45.7438, -14.57},  {45.7438, 35, 20}, {45.7438, -60, -25},
                                  {10, 75, 40},       {60, 130},         {60, -150, 15},
                                  {23, 0, 30},        {52, 180},         {30, 100, -10},
                                  {-45.7438, 35, 20}, {45.7438, 25, 90}};

Vec sunAt(double latitude, double hourAngle, double declination) {
  return sky::sun(rad(latitude), rad(hourAngle), rad(declination));
}

TEST(Report, StyleSubstyleAndTheirHours) {
  for (const Site& wall : kWalls) {
    SCOPED_TRACE(&wall - kWalls.data());
    const ReportText text(Item::mnuUni, wall);
    // The elevation is that of the pole which stands over the horizon.
    const double elevation = deg(std::asin(dot(text.pole(), text.plane.normal)));
    EXPECT_NEAR(text.number("Style elevation  "), wall.latitude < 0 ? -elevation : elevation,
                kCutTo5);
    const Spot centre = text.centre();
    const auto figures = ReportText::figures(text.after("Center coordinates  : "));
    EXPECT_LT(distance({figures.at(0), figures.at(1)}, centre), 1.5 * kCutTo5);
    const double H = deg(sky::hourAngleOf(text.latitude, text.plane.normal));
    EXPECT_NEAR(std::remainder(text.number("substyle hour angle : ") - H, 360), 0, kCutTo5);
    if (wall.reclination == 90) continue;
    const double S = rad(text.number("Substyle distance  : ")), reach = distance(centre, {});
    EXPECT_LT(distance(centre, {-reach * std::sin(S), reach * std::cos(S)}), 1e-6);
    EXPECT_NEAR(text.number("horizon ordinate:    "), kStyle * std::tan(rad(wall.reclination)),
                1e-5);
    // The line of greatest slope lies in the plane of the vertical hour.
    const double vertical = 15 * (text.number("vertical hour:    ") - 12);
    const Vec slope = cross(text.pole(), text.plane.up);
    EXPECT_NEAR(dot(slope, sunAt(wall.latitude, vertical, 0)), 0, 1e-5);
  }
}

TEST(Report, EquivalentWallIsTheSamePlaneElsewhere) {
  for (const Site& wall : kWalls) {
    if (wall.latitude < 0) continue;
    const ReportText text(Item::mnuUni, wall);
    ASSERT_EQ(text.count("Vertical equivalent dial :"), wall.reclination == 0 ? 0 : 1);
    if (wall.reclination == 0 || wall.reclination == 90) continue;
    const double f1 = text.number("latitude f1 =  "), lambda = text.number("longitude lambda =  ");
    const sky::Plane there = sky::Plane::facing(text.number("declination d1 =  "), 0);
    for (const double H : {-63, 11, 80}) {
      for (const double delta : {-23, 6, 17}) {
        const Spot a = text.plane.tipShadow(kStyle, sunAt(wall.latitude, H, delta));
        const Spot b = there.tipShadow(kStyle, sunAt(f1, H - lambda, delta));
        // The angles are rounded to 5e-6 degrees; far shadows magnify that.
        EXPECT_LT(distance(a, b), 2e-6 * (1 + (a.x * a.x + a.y * a.y) / (kStyle * kStyle)));
      }
    }
  }
}

// The stretches of the day in which the sun shines on a wall, in hours.
std::vector<std::pair<double, double>> litStretches(const WallCase& wall, double declination) {
  std::vector<std::pair<double, double>> stretches;
  bool before = false;
  for (double hour = 0; hour < 24; hour += 0.001) {
    const bool lit = wall.plane.lit(sunAt(wall.site.latitude, (hour - 12) * 15, declination));
    if (lit && !before) stretches.emplace_back(hour, hour);
    if (lit) stretches.back().second = hour;
    before = lit;
  }
  return stretches;
}

// A wall that looks North has the sun in the morning and in the evening, which is told with true
// shadows alone.
void expectSunOnTheDial(const ReportText& text, bool onlyTrue) {
  const auto expectTime = [](double told, double truth) {
    // Hours are rounded to 0.01, then cut to whole minutes.
    EXPECT_LT(told, truth + 0.0063);
    EXPECT_GT(told, truth - 0.0063 - 1.0 / 60);
  };
  int told = 0;
  for (int day = 0; day < text.count("Sun's declination = "); ++day) {
    const double declination = text.number("Sun's declination = ", day);
    const double arc = deg(sky::semiArc(text.latitude, rad(declination))) / 15;
    expectTime(text.hours("Sunrise at ", day), 12 - arc);
    expectTime(text.hours("Sunset at ", day), 12 + arc);
    if (day < 2) {
      EXPECT_NEAR(text.hours(day == 0 ? "Longest day:" : "Shortest day:"), 2 * arc, 1.1 / 3600);
    }
    auto expected = litStretches(text, declination);
    if (!onlyTrue && expected.size() > 1) expected.resize(1);
    for (const auto& [on, off] : expected) {
      expectTime(text.hours("Sun on dial at ", told), on);
      expectTime(text.hours("Sun off dial at ", told++), off);
    }
  }
  EXPECT_EQ(text.count("Sun on dial at "), told);
  EXPECT_GT(told, 0);
}

TEST(Report, SunOnTheDial) {
  for (const Site& wall : {Site{45.7438, -14.57}, Site{45.7438, 35, 20}, Site{10, 75, 40},
                           Site{60, -80}, Site{45.7438, 180}}) {
    SCOPED_TRACE(wall.declination);
    expectSunOnTheDial(ReportText(Item::mnuUni, wall), false);
    expectSunOnTheDial(ReportText(Item::mnuUni, wall, {Field::ckTrue}), true);
  }
}

TEST(Report, CriticalDeclinations) {
  const ReportText text(Item::M_Light, {45.7438, -14.57});
  const auto sunrise = [&](double declination) {
    return sky::sun(text.latitude, -sky::semiArc(text.latitude, rad(declination)),
                    rad(declination));
  };
  // At the sun's critical declination it rises in the wall's own line.
  const double critical = text.number("critical declination of the sun = ±");
  EXPECT_NEAR(dot(sunrise(critical), text.plane.normal), 0, 1e-4);
  // A wall in the line of the sunrise at the solstice.
  const Vec solstice = sunrise(23.445);
  EXPECT_NEAR(deg(std::atan2(solstice.y, solstice.x)),
              text.number("critical declination of the dial = ±"), 0.006);
}

TEST(Report, LimitPlanesOfCylinders) {
  const auto expectPlanes = [](const ReportText& text, double left, double right) {
    EXPECT_NEAR(text.number("Declination of the left limit plane:  "), left, 0.006);
    EXPECT_NEAR(text.number("Declination of the right limit plane:  "), right, 0.006);
    EXPECT_EQ(text.count("Reclination") + text.count("Sun's declination"), 0);
  };
  // A tangent from the tip leaves the axis as far as its normal stands from the style.
  const double half = deg(std::acos(0.4 / 0.6));
  expectPlanes(ReportText(Item::mnuCCs, {45, 20}, {}, {{Field::TxtRadius, "0.4"}}), 20 + half,
               20 - half);
  // The tangent from (0, -0.2) to y = x^2/0.8 touches it at x^2 = 0.16.
  expectPlanes(ReportText(Item::M_Parabolico, {45, 0}, {}, {{Field::TxtRadius, "0.4"}}), 45, -45);
}

// --- Tables of an upright wall's coordinates

// The clock is that of the meridian 15 degrees East, but of its zone with true shadows.
struct Clock {
  Site wall;
  const char* zone = "-1";
  bool onlyTrue = false;
};

class Tables : public testing::TestWithParam<Clock> {
 protected:
  // Towards the sun of a table's hour.
  Vec sun(double hour, double declination) const {
    const double meridian = GetParam().onlyTrue ? -15 * numberOf(GetParam().zone) : 15;
    return sunAt(text.site.latitude, (hour - 12) * 15 - (meridian - 7.6438), declination);
  }
  // A ray from the spot to the style's tip lies in the plane of that normal.
  void expectInPlane(Spot spot, Vec normal, double slack) {
    const auto& [out, right, up] = text.plane;
    const double beside = dot(normal, kStyle * out - (spot.x * right + spot.y * up));
    if (std::isfinite(beside)) {
      EXPECT_NEAR(beside, 0, slack + 1e-7 * std::hypot(spot.x, spot.y));
    } else {
      ++nowhere;
    }
  }

  int nowhere = 0;  // spots at infinity
  const ReportText text{
      Item::M_Light,
      GetParam().wall,
      {Field::ckFunction, Field::ck_Etna, GetParam().onlyTrue ? Field::ckTrue : Field::ckFunction},
      {{Field::txtLON, "-7.6438"}, {Field::TxtFuso, GetParam().zone}}};
};

TEST_P(Tables, LinesCrossTheWindowsEdgesInTheirPlanes) {
  constexpr const char* kDayHours[] = {"h            x1          y         y1           x ",
                                       "h            x2          y         y2           x "};
  const double latitude = text.site.latitude;
  for (const int corner : {0, 1}) {
    const auto expectRows = [&](const auto& rows, std::size_t count, double slack, auto normal) {
      ASSERT_EQ(rows.size(), count);
      for (const auto& row : rows) {
        EXPECT_EQ(row.at(1), corner == 0 ? -0.5 : 0.5);
        EXPECT_EQ(row.at(3), corner == 0 ? 0.2 : -1);
        expectInPlane({row[1], row[2]}, normal(row[0]), slack);
        expectInPlane({row.at(4), row[3]}, normal(row[0]), slack);
      }
    };
    expectRows(text.table(" h             x            y           y            x  ", corner), 33,
               1.1e-4, [&](double hour) { return cross(text.pole(), sun(hour, 0)); });
    // Italic and Babylonian hours: the horizon, carried on by the hours since sunset or sunrise.
    for (const int system : {0, 1}) {
      const auto rows = text.table(kDayHours[corner], system);
      expectRows(rows, 24, 6e-4, [&](double hour) { return sunAt(latitude, 15 * hour, latitude); });
      EXPECT_EQ(rows[0][0], system == 0 ? 12 : 0);
    }
  }
  // The equinoctial lies in the equator's plane, the substyle in that of the style.
  for (const int line : {0, 1}) {
    const Vec normal = line == 0 ? text.pole() : cross(text.pole(), text.plane.normal);
    const auto ends = text.table("  x             y            x            y", line).at(0);
    expectInPlane({ends.at(0), ends.at(1)}, normal, 1.1e-4);
    expectInPlane({ends.at(2), ends.at(3)}, normal, 1.1e-4);
  }
  EXPECT_LE(nowhere, 8) << "lines along an edge, of 328";
}

TEST_P(Tables, DistancesAreThoseOfTheShadows) {
  // From the centre to the shadows of summer, winter and the equinox, and between them.
  constexpr std::pair<std::size_t, std::size_t> kSpans[] = {{0, 1}, {0, 2}, {1, 2},
                                                            {0, 3}, {1, 3}, {2, 3}};
  const auto rows =
      text.table("  h         c-ss      c-ws         ss-ws       c-e       ss-e      ws-e");
  ASSERT_EQ(rows.size(), 33U);
  for (const auto& row : rows) {
    std::array<Spot, 4> at{text.centre()};
    std::array<bool, 4> falls{true};
    for (const std::size_t i : {1U, 2U, 3U}) {
      const Vec towards = sun(row[0], std::array{0.0, 23.445, -23.445, 0.0}[i]);
      falls[i] = dot(text.plane.normal, towards) > 0;
      at[i] = text.plane.tipShadow(kStyle, towards);
    }
    for (std::size_t column = 1; column <= 6; ++column) {
      const auto& [from, to] = kSpans[column - 1];
      ASSERT_EQ(std::isfinite(row.at(column)), falls[from] && falls[to]) << row[0] << ' ' << column;
      if (!falls[from] || !falls[to]) continue;
      const double span = distance(at[from], at[to]);
      EXPECT_NEAR(row[column], span, 1.1e-4 + 1e-6 * span);
    }
  }
}

TEST_P(Tables, HoursStandOnTheEquinoctial) {
  // From P, where the substyle crosses it, to the right of a viewer who has the centre above.
  const Spot P{text.number(" px = "), text.number(" py = ")}, centre = text.centre();
  const double side = (centre.y > 0 ? 1 : -1) / distance(P, {});
  EXPECT_NEAR(text.number(" CP = "), distance(P, centre), 2e-4);
  expectInPlane(P, text.pole(), 1e-4);
  const auto rows = text.table("HA-AO-AH          h       eq-x");
  ASSERT_EQ(rows.size(), 33U);
  for (const auto& row : rows) {
    EXPECT_NEAR(row[0], (row.at(1) - 12) * 15, 0.08);  // the hour has two decimals
    const double x = row.at(2) * side;
    expectInPlane({P.x - P.y * x, P.y + P.x * x}, cross(text.pole(), sun(row[1], 0)),
                  0.0051 + 1e-3 * std::abs(row[2]));
  }
  EXPECT_LE(nowhere, 1);
}

TEST_P(Tables, SolsticesMeetTheHorizon) {
  const auto row = text.table("Abscissas of the solstices-horizon intersections").at(0);
  for (const std::size_t side : {0U, 1U}) {
    // The line of the winter's sunrise is that of the summer's sunset, and the other way round.
    const Vec sun = text.plane.sunOf(kStyle, {row.at(side), 0});
    EXPECT_NEAR(std::abs(deg(sky::declinationOf(text.latitude, sun))), 23.439033, 3e-4);
    EXPECT_EQ(sun.x * sun.y > 0, side == 1);
  }
}

INSTANTIATE_TEST_SUITE_P(Walls, Tables,
                         testing::Values(Clock{{45.7438, -14.57}}, Clock{{45.7438, 35}},
                                         Clock{{38, 72}}, Clock{{60, 140}, "-3"}, Clock{{45, 0}},
                                         Clock{{52, 10}, "-3", true}));

// --- Order, special cases and bad input

TEST(Report, OrderOfTheLines) {
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
  const ReportText text(Item::M_Light, {45.7438, -14.57});
  EXPECT_EQ(text.told().substr(0, expected.size()), expected);
}

TEST(Report, PlacesAndColours) {
  ReportText text(Item::M_Light, {45.7438, -14.57}, {Field::ckFunction});
  const auto& texts = text.sheet.list().texts;
  std::string inks = " ";
  for (const TextRecord& t : texts) {
    const auto number = std::ranges::find(kPalette, t.shownColour) - kPalette.begin();
    const std::string ink = std::to_string(number) + ' ';
    if (!inks.ends_with(' ' + ink)) inks += ink;
  }
  EXPECT_EQ(inks, " 15 9 13 7 11 7 11 7 11 7 11 7 14 12 ");
  EXPECT_DOUBLE_EQ(texts[0].x, 10 - 0.995);
  EXPECT_DOUBLE_EQ(texts[0].y, -text.sheet.ShiftY());
  // The letters stand on the drawing, and the list goes on where it was.
  const auto letter = std::ranges::find(texts, "C", &TextRecord::text);
  EXPECT_NEAR(letter->x, 0.05198 * 10 / 9, 1e-4);
  EXPECT_DOUBLE_EQ(texts.back().x, texts[1].x);
  EXPECT_DOUBLE_EQ(texts.back().y - texts[1].y, kTextLine * static_cast<double>(texts.size() - 4));
  ReportText onSheet(Item::M_Light, {45.7438, -14.57}, {Field::ckTrue});
  EXPECT_EQ(onSheet.sheet.list().texts[0].x, -onSheet.sheet.ShiftX());
}

// Lines whose formula has no value, or that have a case of their own.
TEST(Report, SpecialCases) {
  const ReportText::Boxes none, onlyTrue = {Field::ckTrue}, tables = {Field::ckFunction};
  const Field line = Field::txtLineofdeclination;
  const struct {
    Site wall;
    ReportText::Boxes boxes;
    std::string told;
    ReportText::Texts typed{};
    bool leftOut = false;
  } kCases[] = {
      // A wall without declination has no level hour line but those of six.
      {{45.7438, 0}, none, "horizontal hour:    12"},
      {{45, 0}, onlyTrue, "horizontal hour:    6    18"},
      {{45, -14.57}, onlyTrue, "horizontal hour:    17.30"},
      // A style that lies in its plane has no centre.
      {{45.7438, 90}, none, "Style: hypotenuse = inf"},
      {{45.7438, 90}, none, "Distance Foot Center: cathetus = inf|Style elevation  0°"},
      {{45.7438, 90}, tables, " CP = inf"},
      // The circle constant is a little more than pi: at a pole, where a right angle stands in the
      // formulas, the seasons change places.
      {{90, 10}, none, "Shortest day:   0 h "},
      {{90, 10}, none, "Sun's declination = 23.445°|Sun off dial all the day "},
      {{-30, 10}, none, "Longest day:    13h 56'"},
      // On the equator an upright wall's substyle is the line of six, but its hour has no form: it
      // keeps the older one, carried half a turn to its side.
      {{0, 20}, none, "Substyle distance  : 90°"},
      {{0, 20}, none, "Substyle hour = 24 h"},
      {{0, -30}, onlyTrue, "Substyle hour = 6 h"},
      {{0, 20}, none, "critical reclination of the dial = 90°"},
      {{45.7438, 60}, none, "critical declination of the sun", {}, true},
      // A figure of four decimals is not cut again to five, which would take it for 16.01279.
      {{45.7438, 40, 20}, none, "Angle between max slope line and noon  : 16.0128°"},
      {{45.7438, 25, 90}, none, "latitude f1 =  44.2562°"},
      {{45.7438, 25, 90}, none, "horizon ordinate:    inf m"},
      {{45.7438, 25, 90}, none, "Declination ", {}, true},
      // The South has neither the sun's path nor the tables.
      {{-45.7438, 35}, tables, "Sun's declination", {}, true},
      {{-45.7438, 35}, tables, "  delta", {}, true},
      // The line of declination counts to the solstice in the tables, and as it is elsewhere.
      {{45, 10}, tables, "  delta = ±23.445", {{line, "40"}}},
      {{45, 10}, tables, "Sun's declination = 40°", {{line, "40"}}},
      {{45, 10}, tables, "  delta = ±10", {{line, "-10"}}},
      // Tables without end are left out.
      {{45, 10}, tables, "  delta", {{Field::TxtHour, "1001"}}, true}};
  for (const auto& row : kCases) {
    const ReportText text(Item::mnuUni, row.wall, row.boxes, row.typed);
    const std::size_t place = ('|' + text.told()).find('|' + row.told);
    EXPECT_EQ(place == std::string::npos, row.leftOut) << row.wall.latitude << ' ' << row.told;
    EXPECT_EQ(text.messages.empty(), text.panel.text(Field::TxtHour) != "1001");
  }
}

TEST(Report, AnyInputEndsInSoundTexts) {
  const Driver reportSoundly = [](auto& run) {
    recordOnly(run);
    cmdData_Click(run);
    for (const TextRecord& text : run.sheet.list().texts) {
      EXPECT_EQ(text.text.find("nan"), std::string::npos) << text.text;
      EXPECT_TRUE(sound(text.x) && sound(text.y) && sound(text.shownX));
    }
  };
  for (const Item item : {Item::M_Light, Item::mnuUni, Item::mnuCCs, Item::M_Parabolico}) {
    for (const Field field : {Field::txtLAT, Field::txtLON, Field::txtDecl, Field::txtReclinZ,
                              Field::TxtStilo, Field::TxtFuso, Field::TxtHour,
                              Field::txtLineofdeclination, Field::x1txt, Field::TxtRadius}) {
      for (const char* text : kOddTexts) {
        SCOPED_TRACE(testing::Message() << rowOf(field).name << '=' << text);
        DialCase dial(item, reportSoundly);
        expectBounded(dial.check(Field::ckFunction).set(field, text).run());
      }
    }
  }
}

}  // namespace
}  // namespace dialwright
