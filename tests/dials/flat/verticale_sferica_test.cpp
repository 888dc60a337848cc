// Program 6 beside its shadows: labels, numerals, and the conics.
#include <gtest/gtest.h>

#include "dials/flat/flat_wall.hpp"
#include "dials/ledger.hpp"

namespace dialwright {
namespace {

using sky::rad;
using sky::Spot;

const std::vector<FlatSite> kSites = {{},        {45.7438, 37}, {45.7438, -75}, {62, 0.5},
                                      {28, -50}, {45, 130},     {35, 90},       {65, 180}};

TEST(VerticaleSferica, LabelsStandOnTheirHoursAtTheSummerSolstice) {
  const double arc = sky::deg(sky::semiArc(rad(45.7438), rad(23.445)));
  // The number of an hour as the sun has it.
  const struct {
    const char* boxes;
    Rgb colour;
    double (*hour)(double H, double arc);
  } rows[] = {
      {"ck_Italiche", 255, [](double H, double a) { return (H - a) / 15 + 24; }},
      {"ck_Italiche ckFunction", 255, [](double H, double a) { return (H - a) / 15 + 23.5; }},
      {"ck_babiloniche", palette(13), [](double H, double a) { return (H + a) / 15; }},
      {"ckTemp", palette(6), [](double H, double a) { return (H / a + 1) * 6; }}};
  for (const auto& row : rows) {
    FlatWall wall(6, {}, row.boxes);
    std::vector<TextRecord> texts = wall.run().sheet.list().texts;
    ASSERT_GE(texts.size(), 6u + 2);
    texts.resize(texts.size() - 2);  // the two foci
    for (const TextRecord& text : texts) {
      const double n = std::stod(text.text);
      EXPECT_NEAR(row.hour(wall.hourAngle(text.x, text.y), arc), n, 1e-4);
      EXPECT_NEAR(wall.declination(text.x, text.y), 23.445, kAngleSlack);
      EXPECT_EQ(text.shownColour, row.colour);
      EXPECT_EQ(text.text, row.colour == palette(6) ? textOf(n) : ' ' + textOf(n) + ' ');
    }
  }
}

TEST(VerticaleSferica, ConicIsTheConeOfTheLatitude) {
  for (const FlatSite& site : kSites) {
    FlatWall wall(6, site, "CkConic");
    wall.run();
    const double sine = std::cos(wall.latitude) * std::cos(rad(site.declination));
    const double eccentricity = std::sqrt(1 - sine * sine) / std::cos(wall.latitude);
    const std::vector<PointRecord> points = wall.pointsIn(palette(eccentricity > 1 ? 1 : 10));
    EXPECT_GT(points.size(), 100u);
    for (const PointRecord& point : points)
      EXPECT_NEAR(std::abs(wall.declination(point.x, point.y)), 90 - site.latitude, kAngleSlack);
    EXPECT_NE(wall.told().find("|ecc. " + textOf(rounded(eccentricity, 4)) + "|"),
              std::string::npos);
  }
}

// The solstices' hyperbola on these walls: the distances differ by its axis.
TEST(VerticaleSferica, FociAreThoseOfTheSolstices) {
  for (const FlatSite& site : kSites) {
    FlatWall wall(6, site, "Ck_DayLightCurves");
    wall.run();
    EXPECT_EQ(wall.told(), "F1|F2|");
    const auto& texts = wall.sheet.list().texts;
    const Spot f1{texts.front().x, texts.front().y}, f2{texts.back().x, texts.back().y};
    double least = 9, most = 0;
    for (const char* layer : {"23.445°", "-23.445°"}) {
      for (const LineRecord& line : wall.linesOf(layer)) {
        const Spot p{line.x1, line.y1};
        const double difference = std::abs(sky::distance(p, f1) - sky::distance(p, f2));
        least = std::min(least, difference);
        most = std::max(most, difference);
      }
    }
    EXPECT_NEAR(least, most, 1e-7) << site.latitude << ' ' << site.declination;
  }
}

TEST(VerticaleSferica, NumeralsStandOnTheLineOfDeclination) {
  FlatWall wall(6, {}, "chkOreAstronomiche ckArabi txtArabi=1e-9");
  const std::vector<LineRecord> strokes = wall.run().linesIn(palette(15));
  for (const double H : {-30, -15, 15}) {
    const Spot at = wall.plane.tipShadow(wall.kStyle, sky::sun(wall.latitude, rad(H), rad(23.445)));
    EXPECT_TRUE(std::ranges::any_of(strokes, [&](const LineRecord& l) {
      return sky::distance({l.x1, -l.y1}, at) < 1e-7;
    })) << H;
  }
}

TEST(VerticaleSferica, TheHiddenReclinationIsLeftAlone) {
  constexpr const char* kBoxes = "ckAlt ckAz ckAsr CkQibla";
  FlatWall wall(6, {}, kBoxes), leaning(6, {45.7438, -14.57, 60}, kBoxes);
  EXPECT_EQ(Ledger(wall.run().sheet.list()).told(), Ledger(leaning.run().sheet.list()).told());
}

TEST(VerticaleSferica, OnTheEquatorTheConicStaysTheOneBefore) {
  FlatWall equator(6, {0, 30}, "CkConic");
  EXPECT_TRUE(equator.run().told().starts_with("|ecc. 0|")) << "none before";
  EXPECT_TRUE(equator.pointsIn(palette(10)).empty());
  equator.set(Field::txtLAT, "45.7438").run().set(Field::txtLAT, "0").run();
  const std::string before = textOf(rounded(equator.params.Eccentricita, 4));
  EXPECT_TRUE(equator.told().ends_with("|ecc. " + before + "|F1|F2|"));
}

}  // namespace
}  // namespace dialwright
