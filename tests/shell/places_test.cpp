// Places against a sky of their own: a place's image is the tip's shadow while the sun stands at
// its zenith.
#include "shell/places.hpp"

#include <algorithm>

#include "shell/cities.hpp"
#include "shell/wall_case.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

using sky::rad;

constexpr double kStyle = WallCase::kStyle;
constexpr const char* kTwoRuns =
    "# a comment\nItaly1;45;7\nItaly1;45.5;7.2\nItaly1;46;7.4\nItaly2;41;12\r\nFrance1;48;2\nFrance1;48.2;2.1\nFrance1;48;2\n";

void drawWorld(Run& run) { DisegnaMondo(run, readWorld(kTwoRuns, run.number(Field::txtLON))); }

// A dial of the longitude 10 E after a run, its window wide open and the maps' own boxes checked.
struct MapDial : WallCase {
  MapDial(Driver driver, const Site& place, Item item = Item::mnuUni)
      : WallCase(item, driver, place) {
    params.Stilo = kStyle;
    set(Field::txtLON, "-10").set(Field::x1txt, "-9").set(Field::x2txt, "9");
    set(Field::y1txt, "9").set(Field::y2txt, "-9").set(Field::cmbStati, kWholeWorld);
    check(Field::OptHorizontal).check(Field::ckAssi);
  }
  // The shadow in sheet coordinates while the sun is at the zenith of a place.
  sky::Spot under(double placeLatitude, double east) const {
    const sky::Spot spot =
        plane.tipShadow(kStyle, sky::sun(latitude, rad(10 - east), rad(placeLatitude)));
    return {spot.x, -spot.y};
  }
};

constexpr Site kLeaning = {45, 15, 50};

TEST(World, DrawsSegmentsWithinRunsUnderTheZenithSun) {
  MapDial dial(drawWorld, kLeaning);
  dial.run();
  // Three runs of 3, 1 and 3 points.
  ASSERT_EQ(dial.linesIn(palette(11)).size(), 4u);
  EXPECT_EQ(dial.entities(), 4u);
  // The second Italian point is joined to the first.
  const LineRecord line = dial.linesIn(palette(11)).front();
  EXPECT_LT(sky::distance({line.x1, line.y1}, dial.under(45.5, 7.2)), 1e-8);
  EXPECT_LT(sky::distance({line.x2, line.y2}, dial.under(45, 7)), 1e-8);
  dial.set(Field::cmbStati, "Italy").run();
  EXPECT_EQ(dial.linesIn(palette(12)).size(), 2u);
  dial.set(Field::Filtertxt, "0").run();
  EXPECT_EQ(dial.entities(), 6u) << "no distance is below 0";
  EXPECT_EQ(readWorld(kTwoRuns, 0).countries, (std::vector<std::string>{"Italy", "France"}));
}

// A city is there, in the order of the list, when its hour angle lies between the limits and the
// sun at its zenith is before the plane; with true shadows the sun has to be up as well, whatever
// the plane. Without "Inv" the declinations count as stored, minus the latitude: the map is upside
// down, on purpose.
void expectCities(MapDial& dial, double limit, bool inverted, bool onlyTrue) {
  dial.set(Field::txt_R2, textOf(-limit)).set(Field::TxtRadius, textOf(limit));
  dial.check(Field::ckAssi, inverted).check(Field::ckTrue, onlyTrue).run();
  const auto& texts = dial.sheet.list().texts;
  const auto& dots = dial.sheet.list().circles;
  std::size_t drawn = 0;
  for (const City& city : cities()) {
    const double stored = inverted ? -city.storedDeclination : city.storedDeclination;
    const double latitude = onlyTrue ? city.latitude() : stored, east = -city.longitudeTerm;
    const sky::Vec sun = sky::sun(dial.latitude, rad(10 - east), rad(latitude));
    if (std::abs(10 - east) >= limit || (onlyTrue && sun.z <= 0) ||
        dot(sun, dial.plane.normal) <= 0)
      continue;
    ASSERT_LT(drawn, std::min(texts.size(), dots.size())) << city.name;
    const sky::Spot spot = dial.under(latitude, east), dot{dots[drawn].x, dots[drawn].y};
    EXPECT_LT(sky::distance(dot, spot), 1e-6 * std::max(1.0, sky::distance(spot, {}) / kStyle));
    EXPECT_EQ(texts[drawn].text, city.name);
    EXPECT_LT(sky::distance({texts[drawn].x, texts[drawn].y}, {dot.x, dot.y + 0.02}), 1e-9);
    ++drawn;
  }
  EXPECT_GT(drawn, 0u);
  // The list is read one row past its last city: hour angle 0 and declination 0, without a name.
  EXPECT_EQ(texts.size(), onlyTrue ? drawn : drawn + 1);
  EXPECT_EQ(dots.size(), texts.size());
}

TEST(Cities, StandWhereTheirZenithSunThrowsTheShadow) {
  for (const double reclination : {180, 130, 90, 50, 0, -50}) {
    for (const double declination : {15, -100, 180}) {
      for (const bool inverted : {true, false}) {
        SCOPED_TRACE(testing::Message() << reclination << ' ' << declination << ' ' << inverted);
        MapDial dial(MappaCitta, {45, reclination == 90 ? 0 : declination, reclination});
        expectCities(dial, 180, inverted, true);
      }
    }
  }
  for (const Site& site : {kLeaning, Site{45, 15}, Site{45, 0, 90}, Site{45, 130, 50}}) {
    for (const bool inverted : {true, false}) {
      SCOPED_TRACE(testing::Message() << site.declination << ' ' << inverted);
      MapDial dial(MappaCitta, site);
      expectCities(dial, 9, inverted, false);
    }
  }
}

TEST(Cities, OfNoonItselfCountAsInTheSouth) {
  // The list's last row lies on the meridian. South of the equator its sun stands in the North,
  // behind a wall that looks South, and yet it is drawn, on purpose.
  for (const double latitude : {30, -30}) {
    MapDial dial(MappaCitta, {latitude, 0});
    dial.set(Field::txt_R2, "-0.001").set(Field::TxtRadius, "0.001").run();
    EXPECT_EQ(dial.told(), "|") << latitude;
  }
}

// A star about the shadow of the hour angle and the declination of the panel, which with true
// shadows is there when the sun shines on it.
TEST(OptionalPoint, IsAStarAtTheShadow) {
  const struct {
    Item item;
    Site site;
    const char* inclination;
    double hourAngle;
    bool onlyTrue;
    std::size_t vertices;
  } kCases[] = {{Item::mnuUni, kLeaning, "40", 20, false, 10},
                {Item::mnuUni, kLeaning, "40", 20, true, 10},
                {Item::mnuUni, kLeaning, "40", 170, true, 0},
                // Other dials' clicks leave a level plane in the field that this one hides.
                {Item::mnuVertSph, {45, 15}, "0", 20, false, 10}};
  for (const auto& row : kCases) {
    MapDial dial(PuntoOpzionale, row.site, row.item);
    dial.set(Field::txtReclinZ, row.inclination).set(Field::txtLON, "0").set(Field::txtDelta, "10");
    dial.set(Field::txtAO, textOf(row.hourAngle)).check(Field::ckTrue, row.onlyTrue).run();
    const sky::Spot expected = dial.under(10, 10 - row.hourAngle);
    const auto& star = dial.sheet.list().lines;
    ASSERT_EQ(star.size(), row.vertices);
    for (std::size_t i = 0; i < star.size(); ++i) {
      EXPECT_NEAR(sky::distance({star[i].x1, star[i].y1}, expected),
                  kStyle / 20 * (i % 2 == 0 ? 1 : 0.381966), 1e-8);
    }
    const auto& dots = dial.sheet.list().circles;
    ASSERT_EQ(dots.size(), row.vertices / 10);
    for (const CircleRecord& dot : dots) EXPECT_LT(sky::distance({dot.x, dot.y}, expected), 1e-8);
  }
}

TEST(Places, TakeAnyInput) {
  const Driver drawAll = [](auto& run) {
    run.params.Stilo = kStyle;
    run.panel.setText(Field::cmbStati, kWholeWorld);
    for (const Driver draw : {drawWorld, MappaCitta, PuntoOpzionale}) draw(run);
  };
  for (const Field field : {Field::txtLAT, Field::txtLON, Field::txtDecl, Field::txtReclinZ,
                            Field::txtAO, Field::Filtertxt}) {
    for (const char* text : kOddTexts) {
      SCOPED_TRACE(testing::Message() << rowOf(field).name << '=' << text);
      DialCase dial(Item::mnuUni, drawAll);
      expectBounded(dial.check(Field::ckAssi).set(field, text).run());
    }
  }
}

}  // namespace
}  // namespace dialwright
