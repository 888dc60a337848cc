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
    for (const CircleRecord& circle : slate.circles()) {
      EXPECT_EQ(circle.fill, kNoFill);
      EXPECT_EQ(circle.aspect, 1);
    }
  }
}

TEST(Zodiac, TheFirstSignBeginsWithItsTwoSweeps) {
  Signs slate;
  SegnoZodiaco1(slate.run, 0, 0, 90, 1);
  const auto expectPoint = [](double x, double y, double p, double q, double r, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    EXPECT_NEAR(x, (p + r * std::cos(angle)) / 100, 1e-9);
    EXPECT_NEAR(-y, (-q + r * std::sin(angle)) / 100, 1e-9);
  };
  const auto& lines = slate.lines();
  expectPoint(lines[0].x1, lines[0].y1, 28, 5, 36, 129.64505);
  expectPoint(lines[5].x2, lines[5].y2, 28, 5, 36, 129.64505 + 45.921755);
  expectPoint(lines[6].x1, lines[6].y1, 9, 5, 17, 270 - 89.58553);
  expectPoint(lines[11].x2, lines[11].y2, 9, 5, 17, 270);
  for (std::size_t i = 0; i < 12; ++i) EXPECT_EQ(lines[i].colour, palette(15));
}

TEST(Zodiac, RotationIsRigidForLinesAndArcs) {
  const double turn = 40 * std::numbers::pi / 180;
  for (const Row& row : kRows) {
    Signs upright, turned;
    row.draw(upright.run, 0, 0, 90, 1);
    row.draw(turned.run, 3, -1, 90 + 40, 1);
    const auto expectTurned = [&](double x, double y, double turnedX, double turnedY) {
      EXPECT_NEAR(turnedX, 3 + x * std::cos(turn) + y * std::sin(turn), 1e-8);
      EXPECT_NEAR(-turnedY, -1 + x * std::sin(turn) - y * std::cos(turn), 1e-8);
    };
    for (std::size_t i = 0; i < upright.lines().size(); ++i) {
      const LineRecord &from = upright.lines()[i], &to = turned.lines()[i];
      expectTurned(from.x2, from.y2, to.x2, to.y2);
    }
    for (std::size_t i = 0; i < upright.circles().size(); ++i) {
      const CircleRecord &from = upright.circles()[i], &to = turned.circles()[i];
      expectTurned(from.x, from.y, to.x, to.y);
      if (from.endAngle == 0) {
        EXPECT_EQ(to.endAngle, 0);
        continue;
      }
      EXPECT_NEAR(std::cos(to.startAngle), std::cos(from.startAngle + turn), 1e-8);
      EXPECT_NEAR(std::sin(to.endAngle), std::sin(from.endAngle + turn), 1e-8);
      EXPECT_GE(to.startAngle, 0);
      EXPECT_LE(to.endAngle, 2 * std::numbers::pi + 1e-8);
    }
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

  // The first stroke of the seventh sign, which is of circles alone: 14.5 minutes before the base.
  const Piano plane{0.2, dial.params.LatRad, 0, dial.params.PiGreco / 2};
  const auto at = [&](double degrees, double declination) {
    return ProiezioneSferica(plane, 0.1 + dial.params.radians(degrees),
                             dial.params.radians(declination));
  };
  const auto nearest = [&](Punto place) {
    double distance = 1;
    for (const LineRecord& line : dial.lines()) {
      distance = std::min(distance, std::hypot(line.x1 - place.x, -line.y1 - place.y));
    }
    for (const CircleRecord& circle : dial.circles()) {
      distance = std::min(distance, std::hypot(circle.x - place.x, -circle.y - place.y));
    }
    return distance;
  };
  const double size = 0.001;
  EXPECT_LT(nearest(at(0, 26)), size);
  EXPECT_LT(nearest(at(28 * 0.25 * 0.75, 20)), size);
  EXPECT_LT(nearest(at(-22 * 0.25 * 0.75, 20)), size);
  EXPECT_LT(nearest(at(30.3 * 0.25, 11.4746)), size);
  EXPECT_LT(nearest(at(14.7 * 0.25, 0)), size);
  EXPECT_LT(nearest(at(-14.5 * 0.25, 0)), size);
  EXPECT_LT(nearest(at(0, -28)), size);
  EXPECT_GT(nearest(at(10, 26)), size);
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
    double reach = 0, tipX = 0, tipY = 0;
    for (const LineRecord& line : slate.lines()) {
      const double length = std::hypot(line.x2 - 1, -line.y2 - 1);
      if (length > reach) reach = length, tipX = line.x2 - 1, tipY = -line.y2 - 1;
    }
    const double angle = degrees * std::numbers::pi / 180;
    EXPECT_NEAR(tipX, 0.42 * std::cos(angle), 1e-8);
    EXPECT_NEAR(tipY, 0.42 * std::sin(angle), 1e-8);
    EXPECT_EQ(slate.inks(), (std::map<int, int>{{12, 2}, {11, 3}}));
  }
}

}  // namespace
}  // namespace dialwright
