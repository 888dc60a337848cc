// Places against a sky of their own: a place's image is the tip's shadow while the sun stands at
// its zenith.
#include "shell/places.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "numerics/numbers.hpp"
#include "shell/cities.hpp"
#include "support/dial_case.hpp"
#include "support/sky.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;

constexpr double kStyle = 0.2;

// A driver that leaves a style behind and draws one of the maps.
template <void (*draw)(Run&)>
void withStyle(Run& run) {
  run.params.Stilo = kStyle;
  draw(run);
}

constexpr const char* kTwoRuns =
    "# a comment\nItaly1;45;7\nItaly1;45.5;7.2\nItaly1;46;7.4\nItaly2;41;12\r\nFrance1;48;2\nFrance1;48.2;2.1\nFrance1;48;2\n";

void drawTwoRuns(Run& run) { DisegnaMondo(run, readWorld(kTwoRuns, run.number(Field::txtLON))); }

constexpr Driver drawWorld = withStyle<drawTwoRuns>;
constexpr Driver drawCities = withStyle<MappaCitta>;
constexpr Driver drawPoint = withStyle<PuntoOpzionale>;

// A dial of the site 45 N, 10 E on a plane that is 40 degrees off the level, window wide open.
DialCase dialOf(Driver driver, const char* inclination = "40") {
  DialCase dial(Item::mnuUni, driver);
  dial.set(Field::txtLAT, "45").set(Field::txtLON, "-10").set(Field::txtDecl, "15");
  dial.set(Field::txtReclinZ, inclination).check(Field::OptHorizontal).check(Field::ckAssi);
  for (const auto& [field, text] : {std::pair{Field::x1txt, "-9"},
                                    {Field::x2txt, "9"},
                                    {Field::y1txt, "9"},
                                    {Field::y2txt, "-9"}}) {
    dial.set(field, text);
  }
  return dial;
}

TEST(World, ReadsRunsAndCountries) {
  const WorldTable world = readWorld(kTwoRuns, -10);
  ASSERT_EQ(world.rows.size(), 7u);
  EXPECT_EQ(world.countries, (std::vector<std::string>{"Italy", "France"}));
  EXPECT_EQ(world.rows[0].AngoloOrario, 3)
      << "minus the longitude East, less the panel's longitude West";
  EXPECT_EQ(world.rows[0].Declinazione, -45);
  EXPECT_EQ(world.rows[2].Tratto, world.rows[0].Tratto);
  EXPECT_NE(world.rows[3].Tratto, world.rows[0].Tratto);
  EXPECT_EQ(world.rows[3].Paese, world.rows[0].Paese);
  EXPECT_TRUE(readWorld("", 0).rows.empty());
  EXPECT_TRUE(readWorld(std::string(1000000, ';'), 0).countries.size() <= 1);
}

TEST(World, DrawsSegmentsWithinRunsUnderTheZenithSun) {
  DialCase dial = dialOf(drawWorld);
  dial.panel[Field::cmbStati].text = kWholeWorld;
  dial.run();
  // Three runs of 3, 1 and 3 points.
  EXPECT_EQ(dial.linesIn(palette(11)).size(), 4u);
  EXPECT_EQ(dial.entities(), 4u);
  const LineRecord line = dial.linesIn(palette(11)).front();
  // The second Italian point is joined to the first.
  for (const auto& [x, y, latitude, east] :
       {std::tuple{line.x1, line.y1, 45.5, 7.2}, {line.x2, line.y2, 45.0, 7.0}}) {
    const sky::Spot expected = sky::Plane::facing(15, 50).tipShadow(
        kStyle, sky::sun(rad(45), rad(10 - east), rad(latitude)));
    EXPECT_LT(sky::distance({x, -y}, expected), 1e-8);
  }
  dial.panel[Field::cmbStati].text = "Italy";
  dial.run();
  EXPECT_EQ(dial.linesIn(palette(12)).size(), 2u);
  dial.set(Field::Filtertxt, "0").run();
  EXPECT_EQ(dial.entities(), 6u) << "no distance is below 0";
}

TEST(Cities, StandBetweenTheHourLimitsWithTheirNames) {
  DialCase dial = dialOf(drawCities);
  dial.set(Field::txt_R2, "-8").set(Field::TxtRadius, "8").run();
  const auto& texts = dial.sheet.list().texts;
  ASSERT_GT(texts.size(), 5u);
  EXPECT_EQ(texts.back().text, "")
      << "the row past the last city, at hour angle 0 and declination 0";
  EXPECT_EQ(texts.size(), dial.sheet.list().circles.size());
  const auto plane = sky::Plane::facing(15, 50);
  for (std::size_t i = 0; i + 1 < texts.size(); ++i) {
    const CircleRecord& dot = dial.sheet.list().circles[i];
    const sky::Vec sun = plane.sunOf(kStyle, {dot.x, -dot.y});
    EXPECT_LT(std::abs(deg(sky::hourAngleOf(rad(45), sun))), 8);
    EXPECT_NEAR(texts[i].y, dot.y + 0.02, 1e-12);
  }
}

TEST(Cities, StandUnderTheZenithSunOrWithoutInvUnderItsOpposite) {
  const auto plane = sky::Plane::facing(15, 50);
  for (const bool inverted : {true, false}) {
    // Without "Inv" the declinations count as stored, minus the latitude: the map is upside down,
    // on purpose.
    const std::string_view name = inverted ? "Roma" : "Capetown";
    DialCase dial = dialOf(drawCities);
    dial.check(Field::ckAssi, inverted).run();
    const auto& texts = dial.sheet.list().texts;
    const auto city = std::ranges::find(texts, name, &TextRecord::text);
    ASSERT_NE(city, texts.end());
    const sky::Vec sun = plane.sunOf(kStyle, {city->x, -(city->y - 0.02)});
    EXPECT_NEAR(deg(sky::declinationOf(rad(45), sun)), inverted ? 41.9 : 33.92, 0.05);
    EXPECT_NEAR(deg(sky::hourAngleOf(rad(45), sun)), 10 - (inverted ? 12.5 : 18.42), 0.1);
  }
}

TEST(Cities, OfNoonItselfCountAsInTheSouth) {
  // The list's last row lies on the meridian. South of the equator its sun stands in the North,
  // behind a wall that looks South, and yet it is drawn, on purpose.
  for (const char* latitude : {"30", "-30"}) {
    DialCase dial = dialOf(drawCities, "90");
    dial.set(Field::txtLAT, latitude).set(Field::txtDecl, "0");
    dial.set(Field::txt_R2, "-0.001").set(Field::TxtRadius, "0.001").run();
    ASSERT_EQ(dial.sheet.list().texts.size(), 1u) << latitude;
    EXPECT_EQ(dial.sheet.list().texts[0].text, "");
  }
}

TEST(OptionalPoint, IsAStarAtTheShadow) {
  DialCase dial = dialOf(drawPoint);
  dial.set(Field::txtLON, "0").set(Field::txtAO, "20").set(Field::txtDelta, "10").run();
  const auto plane = sky::Plane::facing(15, 50);
  const sky::Spot expected = plane.tipShadow(kStyle, sky::sun(rad(45), rad(20), rad(10)));
  ASSERT_EQ(dial.sheet.list().circles.size(), 1u);
  const CircleRecord spot = dial.sheet.list().circles[0];
  EXPECT_LT(sky::distance({spot.x, -spot.y}, expected), 1e-8);
  const auto& star = dial.sheet.list().lines;
  ASSERT_EQ(star.size(), 10u);
  for (std::size_t i = 0; i < 10; ++i) {
    const LineRecord& next = star[(i + 1) % 10];
    EXPECT_NEAR(star[i].x2, next.x1, 1e-12);
    EXPECT_NEAR(star[i].y2, next.y1, 1e-12);
    const double radius = std::hypot(star[i].x1 - expected.x, star[i].y1 + expected.y);
    EXPECT_NEAR(radius, kStyle / 20 * (i % 2 == 0 ? 1 : 0.381966), 1e-8);
  }
}

// Each city of a map of true shadows stands where its zenith sun throws the shadow, and all that
// have one are there.
TEST(Cities, WithTrueShadowsAreThoseBeforeThePlaneWhateverItsInclination) {
  for (const char* inclination : {"-90", "-40", "0", "40", "90", "140"}) {
    for (const char* declination : {"15", "-100", "180"}) {
      for (const bool inverted : {true, false}) {
        DialCase dial = dialOf(drawCities, inclination);
        dial.set(Field::txtDecl, declination).check(Field::ckAssi, inverted);
        dial.set(Field::txt_R2, "-180").set(Field::TxtRadius, "180").check(Field::ckTrue).run();
        const double off = numberOf(inclination);
        const auto plane = sky::Plane::facing(off == 0 ? 0 : numberOf(declination), 90 - off);
        std::string expected;
        for (const City& city : cities()) {
          const double hour = city.longitudeTerm + 10;
          const sky::Vec sun = sky::sun(rad(45), rad(hour), rad(city.latitude()));
          if (std::abs(hour) < 180 && sun.z > 0 && dot(sun, plane.normal) > 0)
            expected += std::string(city.name) + "|";
        }
        EXPECT_EQ(dial.told(), expected) << inclination << ' ' << declination;
        for (const TextRecord& text : dial.sheet.list().texts) {
          const auto city = std::ranges::find(cities(), text.text, &City::name);
          const sky::Vec sun =
              sky::sun(rad(45), rad(city->longitudeTerm + 10), rad(city->latitude()));
          const sky::Spot shadow = plane.tipShadow(kStyle, sun);
          EXPECT_LT(sky::distance({text.x, 0.02 - text.y}, shadow),
                    1e-6 * std::max(1.0, std::hypot(shadow.x, shadow.y) / kStyle))
              << text.text;
        }
      }
    }
  }
}

TEST(OptionalPoint, WithTrueShadowsIsThereWhenTheSunShinesOnIt) {
  for (const auto& [hourAngle, stars] : {std::pair{"20", 10u}, {"170", 0u}}) {
    DialCase dial = dialOf(drawPoint);
    dial.set(Field::txtLON, "0").set(Field::txtAO, hourAngle).set(Field::txtDelta, "10");
    EXPECT_EQ(dial.check(Field::ckTrue).run().sheet.list().lines.size(), stars);
  }
}

TEST(OptionalPoint, StandsOnAnUprightWallWhereTheDialHasNoFieldForAnother) {
  // Other dials' clicks leave a level plane in the hidden field.
  for (const char* left : {"0", "30"}) {
    DialCase dial(Item::mnuVertSph, drawPoint);
    dial.set(Field::txtLAT, "45").set(Field::txtDecl, "15").set(Field::txtReclinZ, left);
    dial.set(Field::txtLON, "0").set(Field::txtAO, "20").set(Field::txtDelta, "10").run();
    const sky::Spot expected =
        sky::Plane::facing(15, 0).tipShadow(kStyle, sky::sun(rad(45), rad(20), rad(10)));
    ASSERT_EQ(dial.sheet.list().circles.size(), 1u);
    const CircleRecord& spot = dial.sheet.list().circles[0];
    EXPECT_LT(sky::distance({spot.x, -spot.y}, expected), 1e-8) << left;
  }
}

TEST(Places, TakeLevelAndBackwardPlanesAndAnyInput) {
  DialCase level = dialOf(drawCities, "0");
  level.set(Field::txt_R2, "-8").set(Field::TxtRadius, "8").run();
  EXPECT_GT(level.sheet.list().circles.size(), 5u);
  for (const char* text : {"", "x", "0", "90", "-90", "180", "1e300", "1e999"}) {
    for (const Field field : {Field::txtLAT, Field::txtLON, Field::txtDecl, Field::txtReclinZ,
                              Field::txtAO, Field::Filtertxt}) {
      for (const Driver driver : {drawCities, drawPoint, drawWorld}) {
        DialCase dial = dialOf(driver);
        dial.panel[Field::cmbStati].text = kWholeWorld;
        dial.set(field, text).run();
        for (const CircleRecord& dot : dial.sheet.list().circles)
          ASSERT_TRUE(std::isfinite(dot.x) && std::isfinite(dot.y));
      }
    }
  }
}

}  // namespace
}  // namespace dialwright
