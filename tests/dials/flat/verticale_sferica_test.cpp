// Program 6 against a wall in the sun: every family is where the tip's shadow falls, and order,
// inks, layers and texts are those of the dial.
#include "dials/flat/verticale_sferica.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "support/flat_wall.hpp"
#include "support/mean_sun.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

using sky::rad;
using sky::Spot;

constexpr FlatSite kDefault{45.7438, -14.57};
const std::vector<FlatSite> kSites = {kDefault,  {45.7438, 37}, {45.7438, -75}, {62, 0.5},
                                      {28, -50}, {45, 130},     {35, 90},       {65, 180}};
constexpr double kLongitude = 7.3562;  // degrees East of the site, where the zone's meridian is

class Wall : public FlatWall {
 public:
  explicit Wall(const FlatSite& where = kDefault)
      : FlatWall(Item::mnuVertSph, DisegnaVerticale, where) {}

  std::set<std::string> texts() const {
    std::set<std::string> all;
    for (const TextRecord& text : sheet.list().texts) all.insert(text.text);
    return all;
  }
};

// Runs a dial of each site with a box checked, and looks at both ends of the lines of a colour.
template <class Look>
void eachEnd(Field box, Rgb colour, Look look) {
  for (const FlatSite& site : kSites) {
    Wall wall(site);
    wall.check(box).run();
    SCOPED_TRACE(textOf(site.latitude) + ' ' + textOf(site.declination));
    std::size_t count = 0;
    for (const LineRecord& line : wall.linesIn(colour)) {
      if (line.layer == wall.sheet.layer("ortostilo")) continue;
      EXPECT_LT(sky::distance({line.x1, line.y1}, {line.x2, line.y2}), 0.015);
      for (const Spot end : {Spot{line.x1, line.y1}, {line.x2, line.y2}}) look(wall, end);
      ++count;
    }
    EXPECT_GT(count, 10u);
  }
}

TEST(VerticaleSferica, HourLinesLieInTheirHourPlanes) {
  for (const auto& [colour, hour] : {std::pair{7, -1.0}, {9, 90.0}, {12, 0.0}}) {
    for (const FlatSite& site : kSites) {
      Wall wall(site);
      wall.check(Field::chkOreAstronomiche).run();
      for (const LineRecord& line : wall.linesOf("oreastro")) {
        if (line.colour != palette(colour)) continue;
        // The opposite hour, twelve hours on, lies in the same plane.
        EXPECT_LT(wall.offHour(std::max(hour, 0.0), line.x1, line.y1, hour < 0 ? 7.5 : 180),
                  kAngleSlack);
        EXPECT_LE(std::abs(wall.declination(line.x1, line.y1)), 23.445 + kAngleSlack);
        EXPECT_GE(line.y1, 0) << "below the horizon";
        EXPECT_LT(sky::distance({line.x1, line.y1}, {line.x2, line.y2}), 0.01);
      }
    }
  }
  Wall zone;
  zone.check(Field::chkOreAstronomiche).check(Field::ck_Etna).run();
  for (const LineRecord& line : zone.linesOf("oreastro"))
    EXPECT_LT(zone.offHour(-kLongitude, line.x1, line.y1, 7.5), kAngleSlack);
}

TEST(VerticaleSferica, DayCurvesAreTheSunsDays) {
  for (const FlatSite& site : kSites) {
    Wall wall(site);
    wall.check(Field::Ck_DayLightCurves).check(Field::ck_Equinoziale);
    wall.set(Field::txtLineofdeclination, "-7").run();
    std::size_t count = 0;
    for (const auto& [layer, declination, colour] : {std::tuple{"23.445°", 23.445, palette(12)},
                                                     {"-23.445°", -23.445, palette(12)},
                                                     {"20.15°", 20.1552, palette(13)},
                                                     {"-20.15°", -20.1552, palette(13)},
                                                     {"11.47°", 11.47464, palette(11)},
                                                     {"-11.47°", -11.47464, palette(11)},
                                                     {"equinox", 0.0, palette(9)},
                                                     {"-7", -7.0, rgb(255, 127, 39)}}) {
      for (const LineRecord& line : wall.linesOf(layer)) {
        const double d = wall.declination(line.x1, line.y1);
        // A sun of the night behind the wall gives the day of its opposite; the extra line is only
        // that of its own side.
        const bool twin = declination != -7 && d * declination < 0;
        EXPECT_NEAR(d, twin ? -declination : declination, kAngleSlack);
        EXPECT_EQ(line.colour, colour);
        EXPECT_GE(line.y1, 0);
        ++count;
      }
    }
    EXPECT_GT(count, 500u);
  }
}

// Hours since sunset, since sunrise, and of the day's twelfths.
double italic(double H, double arc) { return (H - arc) / 15 + 24; }
double babylonian(double H, double arc) { return (H + arc) / 15; }
double temporary(double H, double arc) { return (H / arc + 1) * 6; }

using Count = double (*)(double, double);

double hourOf(const Wall& wall, Count count, Spot sheet) {
  const double d = rad(wall.declination(sheet.x, sheet.y));
  return count(wall.hourAngle(sheet.x, sheet.y), sky::deg(sky::semiArc(wall.latitude, d)));
}

TEST(VerticaleSferica, DayLongHoursAreCountedFromSunriseAndSunset) {
  const struct {
    Field box;
    Count count;
    int colour;
    double first, last;
  } systems[] = {{Field::ck_Italiche, italic, 12, 6, 24},
                 {Field::ck_babiloniche, babylonian, 13, 0, 18},
                 {Field::ckTemp, temporary, 6, 1, 12}};
  for (const auto& system : systems) {
    std::set<double> drawn;
    eachEnd(system.box, palette(system.colour), [&](const Wall& wall, Spot end) {
      const double hour = hourOf(wall, system.count, end);
      ASSERT_NEAR(hour, std::round(hour), 1e-4);
      drawn.insert(std::round(hour));
      EXPECT_LE(std::abs(wall.declination(end.x, end.y)), 23.445 + kAngleSlack);
    });
    // An hour at either end may be the horizon itself.
    EXPECT_GE(*drawn.begin(), system.first);
    EXPECT_LE(*drawn.begin(), system.first + 1);
    EXPECT_GE(*drawn.rbegin(), system.last - 1);
    EXPECT_LE(*drawn.rbegin(), system.last);
  }
}

TEST(VerticaleSferica, LabelsStandOnTheirHoursAtTheSummerSolstice) {
  for (const auto& [box, count, colour, least, ahead] :
       {std::tuple{Field::ck_Italiche, &italic, rgb(255, 0, 0), 6u, 0.0},
        {Field::ck_Italiche, &italic, rgb(255, 0, 0), 6u, 0.5},
        {Field::ck_babiloniche, &babylonian, palette(13), 6u, 0.0},
        {Field::ckTemp, &temporary, palette(6), 6u, 0.0}}) {
    Wall wall;
    wall.check(box).check(Field::ckFunction, ahead > 0).run();
    const std::vector<TextRecord>& texts = wall.sheet.list().texts;
    ASSERT_GE(texts.size(), least + 2) << "and the two foci";
    for (std::size_t i = 0; i + 2 < texts.size(); ++i) {
      const double n = std::stod(texts[i].text);
      EXPECT_NEAR(hourOf(wall, count, {texts[i].x, texts[i].y}), n + ahead, 1e-4);
      EXPECT_NEAR(wall.declination(texts[i].x, texts[i].y), 23.445, kAngleSlack);
      EXPECT_EQ(texts[i].shownColour, colour);
      EXPECT_EQ(texts[i].text, box == Field::ckTemp ? textOf(n) : ' ' + textOf(n) + ' ');
    }
  }
}

TEST(VerticaleSferica, LabelsGiveWayToRomansAndToOtherHours) {
  const auto labels = [](std::initializer_list<Field> boxes) {
    Wall wall;
    for (const Field box : boxes) wall.check(box);
    wall.run();
    return wall.sheet.list().texts.size() - 2;
  };
  EXPECT_GT(labels({Field::ckTemp}), 0u);
  EXPECT_EQ(labels({Field::ckTemp, Field::ckRomani}), 0u);
  EXPECT_EQ(labels({Field::ck_Italiche, Field::ck_babiloniche, Field::ckRomani}), 0u);
  EXPECT_EQ(labels({Field::ckTemp, Field::ck_Italiche}), labels({Field::ck_Italiche}));
}

TEST(VerticaleSferica, SubstyleIsThePolesProjection) {
  for (const FlatSite& site : kSites) {
    Wall wall(site);
    wall.check(Field::ck_Sustilare).run();
    const double right = sky::dot(wall.pole(), wall.plane.right);
    const double up = sky::dot(wall.pole(), wall.plane.up);
    const std::vector<LineRecord> substyle = wall.linesOf("sustilare");
    ASSERT_FALSE(substyle.empty());
    for (const LineRecord& line : substyle) EXPECT_NEAR(line.x1 * up + line.y1 * right, 0, 1e-8);
  }
}

// Suns of the night behind the wall draw the equinox's other end again, from six in the evening on.
TEST(VerticaleSferica, EquinoxStartsAtSixInTheMorning) {
  Wall wall({45.7438, 0});
  wall.check(Field::ck_Equinoziale).set(Field::x1txt, "-2").set(Field::x2txt, "2").run();
  int morning = 0, afternoon = 0;
  for (const LineRecord& line : wall.linesOf("equinox")) {
    const double H = wall.hourAngle(line.x1, line.y1);
    morning += H > -72 && H < -65;
    afternoon += H < 72 && H > 65;
  }
  EXPECT_EQ(afternoon, 70);
  EXPECT_EQ(morning, 140);
}

TEST(VerticaleSferica, AnalemmaIsTheYearsMeanHours) {
  Wall wall;
  wall.check(Field::ck_Lemniscate).check(Field::CheckL).set(Field::TxtHour, "1").run();
  double highest = 0;
  for (const LineRecord& line : wall.linesOf("Lemniscate")) {
    highest = std::max(highest, wall.declination(line.x1, line.y1));
    const double mean = std::remainder(wall.hourAngle(line.x1, line.y1) + kLongitude, 15);
    EXPECT_LT(sky::secondsFromEquationOfTime(rad(mean), rad(wall.declination(line.x1, line.y1))),
              30);
  }
  EXPECT_NEAR(highest, 23.4445, 0.0006) << "an obliquity of 23 degrees 26 minutes 42 seconds";
  const auto year = [](bool section, bool concave) {
    Wall half;
    half.check(Field::ck_Lemniscate).check(Field::Ck_Section, section);
    half.panel.setState(Field::Optconcave, concave);
    half.run();
    return half.linesOf("Lemniscate");
  };
  EXPECT_EQ(year(false, false).size(), 365u);
  const std::vector<LineRecord> rising = year(true, true), falling = year(true, false);
  EXPECT_EQ(rising.size(), 182u);
  EXPECT_EQ(falling.size(), 181u);
  // The shadow's upper end is winter: with the days to summer it comes down.
  EXPECT_LT(rising.front().y1, rising.back().y1);
  EXPECT_GT(falling.front().y1, falling.back().y1);
}

// Where the wall loses the sun for part of the year, the analemma is closed by a chord.
TEST(VerticaleSferica, AnalemmaBridgesTheDaysWithoutSun) {
  Wall wall({45.7438, 40});
  wall.check(Field::ck_Lemniscate).check(Field::CheckL).set(Field::x1txt, "-30");
  wall.set(Field::y2txt, "-30").run();
  double longest = 0;
  for (const LineRecord& line : wall.linesOf("Lemniscate")) {
    longest = std::max(longest, sky::distance({line.x1, line.y1}, {line.x2, line.y2}));
  }
  EXPECT_GT(longest, 1);
}

TEST(VerticaleSferica, ConicIsTheConeOfTheLatitude) {
  for (const FlatSite& site : kSites) {
    Wall wall(site);
    wall.check(Field::CkConic).run();
    const double sine = std::cos(wall.latitude) * std::cos(rad(site.declination));
    const double eccentricity = std::sqrt(1 - sine * sine) / std::cos(wall.latitude);
    std::size_t count = 0;
    for (const PointRecord& point : wall.pointsIn(palette(eccentricity > 1 ? 1 : 10))) {
      EXPECT_NEAR(std::abs(wall.declination(point.x, point.y)), 90 - site.latitude, kAngleSlack);
      ++count;
    }
    EXPECT_GT(count, 100u);
    EXPECT_TRUE(wall.texts().contains("ecc. " + textOf(rounded(eccentricity, 4))));
  }
}

TEST(VerticaleSferica, ConicIsConstructedFromTheLaidTip) {
  Wall wall;
  wall.check(Field::CkConic).run();
  const auto& lines = wall.sheet.list().lines;
  ASSERT_EQ(lines.size(), 5u) << "the upright style, then tip to centre, to its foot, to vertices";
  const LineRecord &toCentre = lines[1], &toFoot = lines[2], &toFirst = lines[3],
                   &toSecond = lines[4];
  EXPECT_EQ(toCentre.colour, palette(9));
  EXPECT_NEAR(sky::distance({toCentre.x2, -toCentre.y2}, wall.centre()), 0, 1e-9);
  EXPECT_EQ(toFoot.colour, palette(2));
  EXPECT_EQ(toFoot.x2, toCentre.x2);
  EXPECT_EQ(toFoot.y2, 0);
  EXPECT_NEAR(std::hypot(toCentre.x1, toCentre.y1), Wall::kStyle, 1e-12);
  // Of the two vertices on the substyle the lower one is the first, and on a hyperbola the line
  // runs through it to twice its depth.
  EXPECT_EQ(toFirst.colour, palette(10));
  const Spot vertex{(toFirst.x1 + (toFirst.x2 - toFirst.x1) * (toFirst.y2 / 2 - toFirst.y1) /
                                      (toFirst.y2 - toFirst.y1)),
                    toFirst.y2 / 2};
  EXPECT_NEAR(std::abs(wall.declination(vertex.x, vertex.y)), 90 - 45.7438, kAngleSlack);
  EXPECT_EQ(toSecond.colour, palette(12));
  EXPECT_NEAR(std::abs(wall.declination(toSecond.x2, toSecond.y2)), 90 - 45.7438, kAngleSlack);
  EXPECT_GT(vertex.y, toSecond.y2);
}

TEST(VerticaleSferica, FociAreThoseOfTheSolstices) {
  for (const FlatSite& site : kSites) {
    Wall wall(site);
    wall.check(Field::Ck_DayLightCurves).run();
    const auto& points = wall.sheet.list().points;
    ASSERT_GE(points.size(), 2u);
    const Spot f1{points[points.size() - 2].x, points[points.size() - 2].y};
    const Spot f2{points.back().x, points.back().y};
    double axis = 0;
    for (const char* layer : {"23.445°", "-23.445°"}) {
      for (const LineRecord& line : wall.linesOf(layer)) {
        const Spot p{line.x1, line.y1};
        // A hyperbola on these walls: the distances differ by its axis.
        const double difference = std::abs(sky::distance(p, f1) - sky::distance(p, f2));
        if (axis == 0) axis = difference;
        ASSERT_NEAR(difference, axis, 1e-7) << site.latitude << ' ' << site.declination;
      }
    }
    const auto& texts = wall.sheet.list().texts;
    EXPECT_EQ(texts.front().text, "F1");
    EXPECT_EQ(texts.back().text, "F2");
    EXPECT_EQ(texts.back().x, f2.x);
    EXPECT_EQ(texts.back().y, f2.y);
  }
}

TEST(VerticaleSferica, StyleIsLaidIntoTheWall) {
  for (const FlatSite& site : kSites) {
    Wall wall(site);
    wall.check(Field::ck_Triangolo).run();
    const LineRecord upright = wall.linesOf("ortostilo").at(0);
    EXPECT_NEAR(std::hypot(upright.x1, upright.y1), Wall::kStyle, 1e-12);
    const bool sideWall = std::abs(site.declination) == 90;
    EXPECT_EQ(wall.linesOf("12h").size(), !sideWall && std::abs(wall.centre().x) < 0.5 ? 1u : 0u);
    const std::vector<LineRecord> style = wall.linesOf("assostilo");
    ASSERT_EQ(style.size(), 1u);
    EXPECT_EQ(style[0].x2, upright.x1);
    if (sideWall) continue;
    // The centre lies on the laid style, as far from the tip as in space.
    const Spot centre = wall.centre(), tip{upright.x1, -upright.y1};
    EXPECT_NEAR(sky::distance(centre, tip),
                std::hypot(Wall::kStyle, std::hypot(centre.x, centre.y)), 1e-7);
    const Spot end{style[0].x1, -style[0].y1};
    const double length = sky::distance(end, tip);
    EXPECT_NEAR(
        ((end.x - tip.x) * (centre.y - tip.y) - (end.y - tip.y) * (centre.x - tip.x)) / length, 0,
        1e-7);
  }
  Wall wall;
  wall.check(Field::ck_Triangolo).check(Field::ckFunction).run();
  EXPECT_EQ(wall.sheet.list().lines.size(), 1u) << "the function box leaves the triangle out";
}

TEST(VerticaleSferica, NumeralsStandOnTheLineOfDeclination) {
  Wall hidden;
  hidden.check(Field::ckRomani).check(Field::ckArabi).run();
  EXPECT_EQ(hidden.sheet.list().lines.size(), 1u) << "numerals come with the hour lines only";

  Wall hours, arabic, roman;
  hours.check(Field::chkOreAstronomiche).run();
  arabic.check(Field::chkOreAstronomiche).check(Field::ckArabi).run();
  roman.check(Field::chkOreAstronomiche).check(Field::ckRomani).run();
  EXPECT_GT(roman.sheet.list().lines.size(), hours.sheet.list().lines.size());
  // The strokes of numerals of 0.03 m: how many, and from where to where.
  const double w = 0.03, unit = w / 27;
  const struct {
    double H;
    std::size_t strokes;
    double left, right;
  } numerals[] = {{-30, 8 + 24, -w / 2, w / 2},   // 10
                  {-15, 8 + 8, -w / 2, 0.3 * w},  // 11
                  {0, 8 + 22, -w / 2, w / 2},     // 12
                  {15, 8, 0, 0}};                 // 1
  for (const auto& numeral : numerals) {
    const Spot at = arabic.plane.tipShadow(Wall::kStyle,
                                           sky::sun(arabic.latitude, rad(numeral.H), rad(23.445)));
    std::size_t strokes = 0;
    double left = 1, right = -1;
    for (const LineRecord& line : arabic.linesIn(palette(15))) {
      if (std::abs(line.y1 + at.y) > 0.0151 || std::abs(line.x1 - at.x) > w) continue;
      ++strokes;
      left = std::min(left, line.x1 - at.x);
      right = std::max(right, line.x1 - at.x);
    }
    EXPECT_EQ(strokes, numeral.strokes) << numeral.H;
    EXPECT_NEAR(left, numeral.left + 2.84308 * unit, 1e-8);
    EXPECT_NEAR(right, numeral.right + 9 * unit, 1e-8);
  }
}

TEST(VerticaleSferica, DrawsInItsOrder) {
  DialCase dial(Item::mnuVertSph, DisegnaVerticale);
  dial.params.ModoDati = 0;
  dial.check(Field::ck_Orizzonte).run();
  const DisplayList& list = dial.sheet.list();
  EXPECT_EQ(dial.sheet.caption(), "Vertical dial by spherical trigonometry");
  EXPECT_EQ(list.circles.front().radius, 0.002) << "the foot of the style";
  EXPECT_EQ(list.lines.front().layer, dial.sheet.layer("oreastro"));
  EXPECT_EQ(list.lines.back().layer, dial.sheet.layer("ortostilo"));
  EXPECT_EQ(list.lines[list.lines.size() - 2].colour, palette(2)) << "the horizon";
  EXPECT_EQ(dial.inks(),
            "oreastro 7|23.445° 12|20.15° 13|11.47° 11|-23.445° 12|-20.15° 13|-11.47° 11|23.445 " +
                std::to_string(rgb(255, 127, 39)) + "|equinox 9|ortostilo 13|");
  ASSERT_EQ(list.points.size(), 3u);
  EXPECT_EQ(list.points[0].colour, palette(12)) << "the centre, then the foci";
  EXPECT_EQ(dial.params.ModoDati, 1);
  EXPECT_FALSE(dial.busy);

  const auto step = [&](const LineRecord& line) {
    const sky::Plane wall = sky::Plane::facing(-14.57, 0);
    const auto hour = [&](double x, double y) {
      return sky::hourAngleOf(rad(45.7438), wall.sunOf(0.2, {x, -y}));
    };
    return sky::deg(hour(line.x1, line.y1) - hour(line.x2, line.y2));
  };
  EXPECT_NEAR(step(dial.linesOf("23.445°").at(0)), 0.1, 1e-6);
  EXPECT_NEAR(step(dial.linesOf("-20.15°").at(0)), 0.1, 1e-6);
  EXPECT_NEAR(step(dial.linesOf("-23.445°").at(0)), 0.05, 1e-6) << "the first of winter is finer";

  dial.sheet.Clear();
  dial.check(Field::ckZodiaco).run();
  for (const char* layer : {"20.15°", "-20.15°", "11.47°", "-11.47°"})
    EXPECT_TRUE(dial.linesOf(layer).empty());
  EXPECT_FALSE(dial.linesOf("-23.445°").empty());
}

TEST(VerticaleSferica, TheHiddenReclinationIsLeftAlone) {
  Wall wall, leaning({kDefault.latitude, kDefault.declination, 60});
  for (Wall* each : {&wall, &leaning})
    each->check(Field::ckAlt).check(Field::ckAz).check(Field::ckAsr).check(Field::CkQibla).run();
  EXPECT_EQ(wall.entities(), leaning.entities());
}

TEST(VerticaleSferica, RefusesTheSouthAndDrawsTheEquator) {
  Wall south;
  south.set(Field::txtLAT, "-10").run();
  EXPECT_TRUE(south.refused);
  EXPECT_EQ(south.entities(), 0u);
  EXPECT_EQ(
      south.messages,
      std::vector<std::string>{
          "For sundials in the Southern hemisphere please use programme 7) and read the rules"});

  Wall equator({0, 30});
  equator.check(Field::CkConic).check(Field::ck_Equinoziale).check(Field::ck_Sustilare).run();
  EXPECT_TRUE(equator.texts().contains("ecc. 0")) << "no conic, and none before";
  EXPECT_TRUE(equator.pointsIn(palette(10)).empty());
  for (const LineRecord& line : equator.linesOf("equinox"))
    EXPECT_NEAR(equator.declination(line.x1, line.y1), 0, kAngleSlack);
  equator.set(Field::txtLAT, "45.7438").run().set(Field::txtLAT, "0").run();
  EXPECT_FALSE(equator.texts().contains("ecc. "));
  EXPECT_EQ(equator.sheet.list().texts.at(equator.sheet.list().texts.size() - 3).text,
            "ecc. " + textOf(rounded(equator.params.Eccentricita, 4)))
      << "the one before stays";
}

// Between the tropics the noon line alone takes a sun North of the zenith for one in the South.
TEST(VerticaleSferica, NoonIsAlwaysSouth) {
  Wall north({10, 180});
  north.check(Field::chkOreAstronomiche).run();
  std::set<double> hours;
  for (const LineRecord& line : north.linesOf("oreastro")) {
    hours.insert(7.5 * std::round(north.hourAngle(line.x1, line.y1) / 7.5));
    EXPECT_NE(line.colour, palette(12)) << "noon";
  }
  EXPECT_TRUE(hours.contains(7.5) && hours.contains(-7.5));
}

TEST(VerticaleSferica, TakesAnyInput) {
  expectBounded(Item::mnuVertSph, DisegnaVerticale,
                {Field::ckArabi, Field::ck_Italiche, Field::ckTemp, Field::ck_Lemniscate,
                 Field::ck_Sustilare, Field::ck_Triangolo, Field::CkConic, Field::CkQibla,
                 Field::ckAlt, Field::ckAz, Field::ckAsr},
                {Field::txtLAT, Field::txtLON, Field::txtDecl, Field::TxtStilo, Field::TxtHour,
                 Field::txt_Definition, Field::x1txt, Field::y2txt, Field::txtArabi,
                 Field::txtLineofdeclination, Field::txtQlat});
}

}  // namespace
}  // namespace dialwright
