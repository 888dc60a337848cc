// Program 6 beside its shadows: numerals and labels, the latitude's conic, and the drawing's order,
// inks, layers and texts.
#include "dials/flat/verticale_sferica.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "support/flat_wall.hpp"

namespace dialwright {
namespace {

using sky::rad;
using sky::Spot;

constexpr FlatSite kDefault{45.7438, -14.57};
const std::vector<FlatSite> kSites = {kDefault,  {45.7438, 37}, {45.7438, -75}, {62, 0.5},
                                      {28, -50}, {45, 130},     {35, 90},       {65, 180}};

class Wall : public FlatWall {
 public:
  explicit Wall(const FlatSite& where = kDefault)
      : FlatWall(Item::mnuVertSph, DisegnaVerticale, where) {}
};

TEST(VerticaleSferica, LabelsStandOnTheirHoursAtTheSummerSolstice) {
  // The hour as the sun has it: a day's fraction of the angle, from an hour on.
  const struct {
    Field box;
    Rgb colour;
    double (*hour)(double H, double arc);
    bool ahead;
  } rows[] = {
      {Field::ck_Italiche, 255, [](double H, double arc) { return (H - arc) / 15 + 24; }, false},
      {Field::ck_Italiche, 255, [](double H, double arc) { return (H - arc) / 15 + 23.5; }, true},
      {Field::ck_babiloniche, palette(13), [](double H, double a) { return (H + a) / 15; }, false},
      {Field::ckTemp, palette(6), [](double H, double arc) { return (H / arc + 1) * 6; }, false}};
  for (const auto& row : rows) {
    Wall wall;
    wall.check(row.box).check(Field::ckFunction, row.ahead).run();
    const double arc = sky::deg(sky::semiArc(wall.latitude, rad(23.445)));
    const std::vector<TextRecord>& texts = wall.sheet.list().texts;
    ASSERT_GE(texts.size(), 6u + 2) << "and the two foci";
    for (std::size_t i = 0; i + 2 < texts.size(); ++i) {
      const double n = std::stod(texts[i].text);
      EXPECT_NEAR(row.hour(wall.hourAngle(texts[i].x, texts[i].y), arc), n, 1e-4);
      EXPECT_NEAR(wall.declination(texts[i].x, texts[i].y), 23.445, kAngleSlack);
      EXPECT_EQ(texts[i].shownColour, row.colour);
      EXPECT_EQ(texts[i].text, row.box == Field::ckTemp ? textOf(n) : ' ' + textOf(n) + ' ');
    }
  }
  const auto labels = [](std::initializer_list<Field> boxes) {
    Wall wall;
    for (const Field box : boxes) wall.check(box);
    wall.run();
    return wall.sheet.list().texts.size() - 2;
  };
  EXPECT_EQ(labels({Field::ckTemp, Field::ckRomani}), 0u);
  EXPECT_EQ(labels({Field::ck_Italiche, Field::ck_babiloniche, Field::ckRomani}), 0u);
  EXPECT_EQ(labels({Field::ckTemp, Field::ck_Italiche}), labels({Field::ck_Italiche}));
}

TEST(VerticaleSferica, HalfAnAnalemma) {
  const auto half = [](bool concave) {
    Wall part;
    part.check(Field::ck_Lemniscate).check(Field::Ck_Section);
    part.panel.setState(Field::Optconcave, concave);
    part.run();
    return part.linesOf("Lemniscate");
  };
  // The shadow's upper end is winter: with the days to summer it comes down.
  const std::vector<LineRecord> rising = half(true), falling = half(false);
  EXPECT_EQ(std::pair(rising.size(), falling.size()),
            (std::pair<std::size_t, std::size_t>(182, 181)));
  EXPECT_LT(rising.front().y1, rising.back().y1);
  EXPECT_GT(falling.front().y1, falling.back().y1);
}

TEST(VerticaleSferica, ConicIsTheConeOfTheLatitude) {
  for (const FlatSite& site : kSites) {
    Wall wall(site);
    wall.check(Field::CkConic).run();
    const double sine = std::cos(wall.latitude) * std::cos(rad(site.declination));
    const double eccentricity = std::sqrt(1 - sine * sine) / std::cos(wall.latitude);
    const std::vector<PointRecord> points = wall.pointsIn(palette(eccentricity > 1 ? 1 : 10));
    EXPECT_GT(points.size(), 100u);
    for (const PointRecord& point : points)
      EXPECT_NEAR(std::abs(wall.declination(point.x, point.y)), 90 - site.latitude, kAngleSlack);
    EXPECT_TRUE(wall.told().find("|ecc. " + textOf(rounded(eccentricity, 4)) + "|") !=
                std::string::npos);
  }
}

TEST(VerticaleSferica, ConicIsConstructedFromTheLaidTip) {
  Wall wall;
  wall.check(Field::CkConic).run();
  const auto& lines = wall.sheet.list().lines;
  ASSERT_EQ(lines.size(), 5u) << "the upright style, then tip to centre, to its foot, to vertices";
  EXPECT_EQ(lines[1].colour, palette(9));
  EXPECT_NEAR(sky::distance({lines[1].x2, -lines[1].y2}, wall.centre()), 0, 1e-9);
  EXPECT_NEAR(std::hypot(lines[1].x1, lines[1].y1), Wall::kStyle, 1e-12);
  EXPECT_EQ(std::tuple(lines[2].colour, lines[2].x2, lines[2].y2),
            std::tuple(palette(2), lines[1].x2, 0));
  // Of the two vertices on the substyle the lower one is the first, and on a hyperbola the line
  // runs through it to twice its depth.
  const LineRecord &first = lines[3], &second = lines[4];
  const double y = first.y2 / 2;
  const double x = first.x1 + (first.x2 - first.x1) * (y - first.y1) / (first.y2 - first.y1);
  EXPECT_EQ(std::pair(first.colour, second.colour), std::pair(palette(10), palette(12)));
  EXPECT_NEAR(std::abs(wall.declination(x, y)), 90 - 45.7438, kAngleSlack);
  EXPECT_NEAR(std::abs(wall.declination(second.x2, second.y2)), 90 - 45.7438, kAngleSlack);
  EXPECT_GT(y, second.y2);
}

TEST(VerticaleSferica, FociAreThoseOfTheSolstices) {
  for (const FlatSite& site : kSites) {
    Wall wall(site);
    wall.check(Field::Ck_DayLightCurves).run();
    const auto& texts = wall.sheet.list().texts;
    EXPECT_EQ(wall.told(), "F1|F2|");
    const Spot f1{texts.front().x, texts.front().y}, f2{texts.back().x, texts.back().y};
    const PointRecord last = wall.sheet.list().points.back();
    EXPECT_EQ(std::pair(last.x, last.y), std::pair(f2.x, f2.y));
    double axis = 0;
    for (const char* layer : {"23.445°", "-23.445°"}) {
      for (const LineRecord& line : wall.linesOf(layer)) {
        // A hyperbola on these walls: the distances differ by its axis.
        const Spot p{line.x1, line.y1};
        const double difference = std::abs(sky::distance(p, f1) - sky::distance(p, f2));
        if (axis == 0) axis = difference;
        ASSERT_NEAR(difference, axis, 1e-7) << site.latitude << ' ' << site.declination;
      }
    }
  }
}

TEST(VerticaleSferica, NumeralsStandOnTheLineOfDeclination) {
  Wall hidden;
  hidden.check(Field::ckRomani).check(Field::ckArabi).run();
  EXPECT_EQ(hidden.sheet.list().lines.size(), 1u) << "numerals come with the hour lines only";

  Wall arabic, roman;
  arabic.check(Field::chkOreAstronomiche).check(Field::ckArabi).run();
  roman.check(Field::chkOreAstronomiche).check(Field::ckRomani).run();
  EXPECT_FALSE(roman.linesOf("0").empty());
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
  EXPECT_EQ(list.lines[list.lines.size() - 2].colour, palette(2)) << "the horizon";
  EXPECT_EQ(dial.inks(),
            "oreastro 7|23.445° 12|20.15° 13|11.47° 11|-23.445° 12|-20.15° 13|-11.47° 11|23.445 " +
                std::to_string(rgb(255, 127, 39)) + "|equinox 9|ortostilo 13|");
  ASSERT_EQ(list.points.size(), 3u);
  EXPECT_EQ(list.points[0].colour, palette(12)) << "the centre, then the foci";
  EXPECT_EQ(dial.params.ModoDati, 1);
  EXPECT_FALSE(dial.busy);

  const Wall wall;
  const auto step = [&](const LineRecord& line) {
    return wall.hourAngle(line.x1, line.y1) - wall.hourAngle(line.x2, line.y2);
  };
  EXPECT_NEAR(step(dial.linesOf("23.445°").at(0)), 0.1, 1e-6);
  EXPECT_NEAR(step(dial.linesOf("-23.445°").at(0)), 0.05, 1e-6) << "the first of winter is finer";

  dial.sheet.Clear();
  dial.check(Field::ckZodiaco).check(Field::ck_Triangolo).check(Field::ckFunction).run();
  EXPECT_TRUE(dial.linesOf("assostilo").empty()) << "the function box leaves the triangle out";
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

TEST(VerticaleSferica, DrawsTheEquator) {
  Wall equator({0, 30});
  equator.check(Field::CkConic).check(Field::ck_Equinoziale).check(Field::ck_Sustilare).run();
  EXPECT_TRUE(equator.told().starts_with("|ecc. 0|")) << "no conic, and none before";
  EXPECT_TRUE(equator.pointsIn(palette(10)).empty());
  for (const LineRecord& line : equator.linesOf("equinox"))
    EXPECT_NEAR(equator.declination(line.x1, line.y1), 0, kAngleSlack);
  equator.set(Field::txtLAT, "45.7438").run().set(Field::txtLAT, "0").run();
  EXPECT_TRUE(equator.told().ends_with("|ecc. " + textOf(rounded(equator.params.Eccentricita, 4)) +
                                       "|F1|F2|"))
      << "the one before stays";
}

}  // namespace
}  // namespace dialwright
