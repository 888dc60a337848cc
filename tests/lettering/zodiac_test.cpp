// Checks the zodiac signs: their strokes and colours, their frame, and their places on a dial.
#include "lettering/zodiac.hpp"

#include <gtest/gtest.h>

#include <numbers>

#include "lettering_support.hpp"
#include "numerics/projection.hpp"

namespace dialwright {
namespace {

struct Row {
  SegnoZodiaco* draw;
  std::size_t lines, arcs;
  std::map<int, int> inks;
};

const Row kRows[] = {
    {SegnoZodiaco1, 81, 0, {{15, 46}, {11, 33}, {14, 1}, {13, 1}}},
    {SegnoZodiaco2, 12, 0, {{12, 8}, {11, 4}}},
    {SegnoZodiaco3, 4, 12, {{11, 12}, {12, 4}}},
    {SegnoZodiaco4, 15, 8, {{12, 20}, {3, 2}, {6, 1}}},
    {SegnoZodiaco5, 54, 1, {{11, 55}}},
    {SegnoZodiaco6, 12, 2, {{12, 10}, {11, 2}, {3, 2}}},
    {SegnoZodiaco7, 0, 5, {{11, 3}, {12, 2}}},
    {SegnoZodiaco8, 35, 8, {{3, 24}, {9, 12}, {12, 4}, {11, 3}}},
    {SegnoZodiaco9, 8, 4, {{12, 8}, {3, 4}}},
    {SegnoZodiaco10, 48, 1, {{3, 36}, {15, 6}, {5, 6}, {2, 1}}},
    {SegnoZodiaco11, 98, 2, {{12, 98}, {13, 2}}},
    {SegnoZodiaco12, 24, 0, {{15, 24}}},
};

struct Signs : Slate {
  Signs() { panel.setText(Field::txtZodiacsize, "0.56"); }  // a grid unit is 0.01
};

TEST(Zodiac, EachSignHasItsStrokesAndColoursWithinItsFrame) {
  int number = 1;
  for (const Row& row : kRows) {
    SCOPED_TRACE(number++);
    Signs slate;
    row.draw(slate.run, 0, 0, 90, 1);
    EXPECT_EQ(slate.lines().size(), row.lines);
    EXPECT_EQ(slate.circles().size(), row.arcs);
    EXPECT_EQ(slate.inks(), row.inks);
    const Box box = slate.bounds();
    EXPECT_GE(box.left, -0.281);
    EXPECT_LE(box.right, 0.281);
    EXPECT_GE(box.bottom, -0.281);
    EXPECT_LE(box.top, 0.281);
    EXPECT_GT(box.top - box.bottom, 0.3) << "too small to be read";
  }
}

TEST(Zodiac, RotationIsRigidForLinesAndArcs) {
  for (const Row& row : kRows) {
    Signs upright, turned;
    row.draw(upright.run, 0, 0, 90, 1);
    row.draw(turned.run, 3, -1, 90 + 40, 1);
    expectTurned(upright, turned, 40 * std::numbers::pi / 180, 3, -1);
  }
}

// A plane that faces south at 45 degrees of latitude, with a window that holds every sign.
struct Dial : Signs {
  Dial() {
    panel.setText(Field::txtZodiacsize, "0.001");
    params.LatRad = params.radians(45);
    params.Stilo = 0.2;
    params.SegnoEmisfero = 1;
    window("-5", "5", "5", "-5");
  }
  void window(const char* x1, const char* x2, const char* y1, const char* y2) {
    panel.setText(Field::x1txt, x1);
    panel.setText(Field::x2txt, x2);
    panel.setText(Field::y1txt, y1);
    panel.setText(Field::y2txt, y2);
  }
  std::size_t entities() const { return sheet.list().size(); }
};

TEST(Zodiac, TheSignsStandAtTheirDeclinationsOnBothSidesOfTheBase) {
  Dial dial;
  dial.params.LonOrario = 0.1;
  DisegnaSegniZodiaco(dial.run);
  std::size_t all = 0;
  for (const Row& row : kRows) all += row.lines + row.arcs;
  ASSERT_EQ(dial.entities(), all);

  const Piano plane{0.2, dial.params.LatRad, 0, dial.params.PiGreco / 2};
  const auto distanceTo = [&](double degrees, double declination) {
    const Punto place = ProiezioneSferica(plane, 0.1 + dial.params.radians(degrees),
                                          dial.params.radians(declination));
    double distance = 1;
    const auto look = [&](double x, double y) {
      distance = std::min(distance, std::hypot(x - place.x, -y - place.y));
    };
    for (const LineRecord& line : dial.lines()) look(line.x1, line.y1);
    for (const CircleRecord& circle : dial.circles()) look(circle.x, circle.y);
    return distance;
  };
  const std::pair<double, double> kPlaces[] = {{0, 26},
                                               {28 * 0.25 * 0.75, 20},
                                               {-22 * 0.25 * 0.75, 20},
                                               {30.3 * 0.25, 11.4746},
                                               {14.7 * 0.25, 0},
                                               {-14.5 * 0.25, 0},
                                               {0, -28}};
  for (const auto& [degrees, declination] : kPlaces) {
    EXPECT_LT(distanceTo(degrees, declination), 0.001) << degrees << ' ' << declination;
  }
  EXPECT_GT(distanceTo(10, 26), 0.001);
}

TEST(Zodiac, APlaneThatDeclinesWestMovesTheUppermostSignsApart) {
  for (const double hemisphere : {1.0, -1.0}) {
    Dial dial;
    dial.params.DeclRad = 0.2;
    dial.params.SegnoEmisfero = hemisphere;
    DisegnaSegniZodiaco(dial.run);
    const Piano plane{0.2, dial.params.LatRad, 0.2, dial.params.PiGreco / 2};
    const double offset = hemisphere == 1 ? dial.params.radians(5) : 0;
    const Punto place = ProiezioneSferica(plane, offset, dial.params.radians(26));
    EXPECT_NEAR(dial.lines()[0].x1, place.x, 0.001);
    EXPECT_NEAR(-dial.lines()[0].y1, place.y, 0.001);
  }
}

TEST(Zodiac, OnlySignsWithinTheWindowAreDrawn) {
  Dial high;
  high.window("-5", "5", "5", "-0.2");  // above the equinoctial: the winter half only
  DisegnaSegniZodiaco(high.run);
  EXPECT_EQ(high.entities(), 43u + 12 + 49 + 100 + 24);
  Dial none;
  none.window("5", "-5", "5", "-5");
  DisegnaSegniZodiaco(none.run);
  EXPECT_EQ(none.entities(), 0u);
}

TEST(Zodiac, TheCompassArrowPointsAlongItsAngle) {
  for (const double degrees : {90.0, 20.0, 215.0}) {
    Signs slate;
    MarcaCardinale(slate.run, 1, 1, degrees);
    const LineRecord tip = std::ranges::max(slate.lines(), {}, [](const LineRecord& line) {
      return std::hypot(line.x2 - 1, -line.y2 - 1);
    });
    const double angle = degrees * std::numbers::pi / 180;
    EXPECT_NEAR(tip.x2, 1 + 0.42 * std::cos(angle), 1e-8);
    EXPECT_NEAR(-tip.y2, 1 + 0.42 * std::sin(angle), 1e-8);
    EXPECT_EQ(slate.inks(), (std::map<int, int>{{12, 2}, {11, 3}}));
  }
}

}  // namespace
}  // namespace dialwright
