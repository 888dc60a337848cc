// Checks the zodiac signs: their strokes and colours, their frame, and their places on a dial.
#include "lettering/zodiac.hpp"

#include <gtest/gtest.h>

#include "lettering_support.hpp"
#include "numerics/projection.hpp"

namespace dialwright {
namespace {

struct Row {
  SegnoZodiaco* draw;
  std::map<int, int> inks;
};

const Row kRows[] = {
    {SegnoZodiaco1, {{15, 46}, {11, 33}, {14, 1}, {13, 1}}},
    {SegnoZodiaco2, {{12, 8}, {11, 4}}},
    {SegnoZodiaco3, {{11, 12}, {12, 4}}},
    {SegnoZodiaco4, {{12, 20}, {3, 2}, {6, 1}}},
    {SegnoZodiaco5, {{11, 55}}},
    {SegnoZodiaco6, {{12, 10}, {11, 2}, {3, 2}}},
    {SegnoZodiaco7, {{11, 3}, {12, 2}}},
    {SegnoZodiaco8, {{3, 24}, {9, 12}, {12, 4}, {11, 3}}},
    {SegnoZodiaco9, {{12, 8}, {3, 4}}},
    {SegnoZodiaco10, {{3, 36}, {15, 6}, {5, 6}, {2, 1}}},
    {SegnoZodiaco11, {{12, 98}, {13, 2}}},
    {SegnoZodiaco12, {{15, 24}}},
};

struct Signs : Slate {
  Signs() { panel.setText(Field::txtZodiacsize, "0.56"); }  // a grid unit is 0.01
};

TEST(Zodiac, EachSignHasItsStrokesAndColoursWithinItsFrameAndTurnsRigidly) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(&row - kRows + 1);
    Signs slate;
    row.draw(slate.run, 0, 0, 90, 1);
    EXPECT_EQ(slate.inks(), row.inks);
    const Bounds box = slate.bounds();
    EXPECT_TRUE(box.left >= -0.281 && box.right <= 0.281);
    EXPECT_TRUE(box.bottom >= -0.281 && box.top <= 0.281);
    EXPECT_GT(box.top - box.bottom, 0.3) << "too small to be read";
    for (const double degrees : {40.0, -140.0}) {
      Signs turned;
      row.draw(turned.run, 3, -1, 90 + degrees, 1);
      expectTurned(slate, turned, degrees, 3, -1);
    }
  }
}

// A plane at 45 degrees of latitude, by its declination and hemisphere, with tiny signs in a window
// that holds them all.
struct Dial : Slate {
  explicit Dial(double declination = 0, double hemisphere = 1, const char* lowerEdge = "-5") {
    panel.setText(Field::txtZodiacsize, "0.001");
    params.LatRad = params.radians(45);
    params.Stilo = 0.2;
    params.DeclRad = declination;
    params.SegnoEmisfero = hemisphere;
    params.LonOrario = 0.1;
    panel.setText(Field::x1txt, "-5");
    panel.setText(Field::x2txt, "5");
    panel.setText(Field::y1txt, "5");
    panel.setText(Field::y2txt, lowerEdge);
    DisegnaSegniZodiaco(run);
  }
  // Whether a sign stands so many degrees from the base hour, at that declination.
  bool stands(double degrees, double declination) const {
    const Piano plane{0.2, params.LatRad, params.DeclRad, params.PiGreco / 2};
    const Punto place = ProiezioneSferica(plane, params.LonOrario + params.radians(degrees),
                                          params.radians(declination));
    return std::ranges::any_of(spots(), [&](const InkSpot& ink) {
      return std::hypot(ink.x - place.x, ink.y - place.y) < 0.001;
    });
  }
};

TEST(Zodiac, TheSignsStandAtTheirDeclinationsOnBothSidesOfTheBase) {
  const Dial dial;
  const std::pair<double, double> kPlaces[] = {
      {0, 26},          {28 * 0.25 * 0.75, 20}, {30.3 * 0.25, 11.4746},
      {14.7 * 0.25, 0}, {-14.5 * 0.25, 0},      {0, -28}};
  for (const auto& [degrees, declination] : kPlaces)
    EXPECT_TRUE(dial.stands(degrees, declination)) << degrees << ' ' << declination;
  EXPECT_FALSE(dial.stands(10, 26));
}

TEST(Zodiac, APlaneThatDeclinesWestMovesTheUppermostSignsApartInTheNorth) {
  EXPECT_TRUE(Dial(0.2, 1).stands(5, 26));
  EXPECT_TRUE(Dial(0.2, 1).stands(28 * 0.25, 20));
  EXPECT_TRUE(Dial(0.2, -1).stands(0, 26));
}

TEST(Zodiac, OnlySignsWithinTheWindowAreDrawn) {
  // Above the equinoctial: the winter half only.
  EXPECT_EQ(Dial(0, 1, "-0.2").sheet.list().size(), 43u + 12 + 49 + 100 + 24);
}

TEST(Zodiac, TheCardinalArrowPointsAlongItsAngle) {
  Signs arrow, turned;
  MarcaCardinale(arrow.run, 0, 0, 90);
  MarcaCardinale(turned.run, 1, 1, 215);
  EXPECT_NEAR(arrow.bounds().top, 0.42, 1e-8);
  EXPECT_EQ(arrow.inks(), (std::map<int, int>{{12, 2}, {11, 3}}));
  expectTurned(arrow, turned, 125, 1, 1);
}

}  // namespace
}  // namespace dialwright
