// Tests of program 11: the cylinder of circular cross-section by projection of the plane dial.
#include "dials/cylindrical/proiettivo.hpp"

#include "support/dotted_dial.hpp"
#include "support/mean_sun.hpp"

namespace dialwright {
namespace {

struct Dial : DottedCylinder {
  explicit Dial(const DottedWall& wall = kDottedWalls[0])
      : DottedCylinder(Item::mnuCircp, QuadranteProiettivo, wall) {}
};

// Inside, a style longer than the radius is a case of its own.
std::vector<DottedWall> walls() {
  std::vector<DottedWall> all;
  for (const DottedWall& wall : kDottedWalls)
    if (wall.convex || wall.style < wall.radius) all.push_back(wall);
  return all;
}

TEST(ProjectedCylinder, DotsOfTheHoursLieInTheirPlanes) {
  for (const DottedWall& wall : walls()) {
    Dial dial(wall);
    dial.panel.setState(Field::ck_Etna, true);                // of no weight here,
    dial.set(Field::TxtHour, "1").set(Field::TxtFuso, "-1");  // nor these
    dial.expectInPlanes(dial.dots({Field::chkOreAstronomiche}, 7), hoursButNoon(wall.latitude, 7.5),
                        6);
    dial.expectInPlanes(dial.dots({}, 9), {hourPlane(wall.latitude, 90)}, 0);
    EXPECT_TRUE(dial.dots({}, 12).empty()) << "noon is the generator";
  }
}

TEST(ProjectedCylinder, DotsOfADayShowItsDeclination) {
  for (const DottedWall& wall : walls()) {
    Dial dial(wall);
    dial.expectDay(dial.dots({Field::Ck_DayLightCurves}, 12), 23.445);
    dial.expectDay(dial.dots({}, 13), 20.1552);
    dial.expectDay(dial.dots({}, 11), 11.4746);
    Dial equinox(wall);
    const auto spots = equinox.dots({Field::ck_Equinoziale}, 9);
    EXPECT_GT(spots.size(), 10u);
    for (const sky::Spot spot : spots)
      ASSERT_NEAR(sky::declinationOf(sky::rad(wall.latitude), equinox.sunOf(spot)), 0, 1e-8);
  }
}

// The dots of their conic, on which the sun touches the horizon, lie in none of them.
TEST(ProjectedCylinder, DotsOfItalicAndBabylonianHoursLieInTurnedHorizons) {
  for (const DottedWall& wall : walls()) {
    for (const auto& [box, first] :
         {std::pair{Field::ck_Italiche, -180.0}, std::pair{Field::ck_babiloniche, 0.0}}) {
      Dial dial(wall);
      std::vector<sky::Spot> lines, conic;
      for (const sky::Spot spot : dial.dots({box}, 13)) {
        const double d = sky::declinationOf(sky::rad(wall.latitude), dial.sunOf(spot));
        const bool grazing = std::abs(std::sin(d)) > std::cos(sky::rad(wall.latitude)) - 1e-8;
        (grazing ? conic : lines).push_back(spot);
      }
      dial.expectInPlanes(lines, planes(turnedHorizon, wall.latitude, first, first + 180, 15), 3);
      dial.expectDay(conic, 90 - wall.latitude);
    }
  }
}

TEST(ProjectedCylinder, TheSubstyleIsTheHourOfTheWallsNormal) {
  for (const DottedWall& wall : walls()) {
    Dial dial(wall);
    const auto spots = dial.dots({Field::ck_Sustilare}, 9);
    if (wall.declination == 0) {
      EXPECT_TRUE(spots.empty()) << "it is the noon generator";
      continue;
    }
    const double H = sky::deg(sky::hourAngleOf(sky::rad(wall.latitude), dial.model.tangent.normal));
    dial.expectInPlanes(spots, {hourPlane(wall.latitude, H)}, 0);
  }
}

TEST(ProjectedCylinder, TheAnalemmaIsTheZonesNoon) {
  for (const DottedWall& wall : {kDottedWalls[0], kDottedWalls[1]}) {
    Dial dial(wall);
    dial.set(Field::TxtFuso, "-1");
    const auto spots = dial.dots({Field::ck_Lemniscate}, 4);
    EXPECT_EQ(spots.size(), 366u);
    for (const sky::Spot spot : spots) {
      const double latitude = sky::rad(wall.latitude);
      const sky::Vec sun = dial.sunOf(spot);
      ASSERT_LT(
          sky::secondsFromEquationOfTime(sky::hourAngleOf(latitude, sun) + sky::rad(15 - 7.6438),
                                         sky::declinationOf(latitude, sun)),
          25);
      const auto shadow = dial.model.shadow(sun);
      ASSERT_TRUE(shadow);
      ASSERT_NEAR(shadow->x, spot.x, 1e-9);
      ASSERT_NEAR(shadow->y, spot.y, 1e-9);
    }
  }
}

// Inside, from a tip beyond the axis, rays that meet the half of the cylinder behind the axis come
// out on the near half of the same abscissa.
TEST(ProjectedCylinder, ATipBeyondTheAxisThrowsTheFarHalfOnTheNearOne) {
  const DottedWall wall{45.7438, -14.57, 0.4, 0.6, false};
  Dial dial(wall);
  const auto hours = hoursButNoon(wall.latitude, 7.5);
  const auto miss = [&](sky::Spot spot) {
    const sky::Vec sun = dial.sunOf(spot);
    double least = 2;
    for (const sky::Vec& plane : hours) least = std::min(least, std::abs(sky::dot(plane, sun)));
    return least;
  };
  std::size_t far = 0;
  for (const sky::Spot spot : dial.dots({Field::chkOreAstronomiche}, 7)) {
    if (miss(spot) < Dial::kMiss) continue;
    ++far;
    const double round = std::copysign(std::numbers::pi * wall.radius, spot.x);
    ASSERT_LT(miss({round - spot.x, spot.y}), 1e-7);
  }
  EXPECT_GT(far, 100u);
}

TEST(ProjectedCylinder, ARunDrawsItsFamiliesInOrder) {
  Dial dial;
  for (const Field box :
       {Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Equinoziale,
        Field::ck_Italiche, Field::ck_Lemniscate, Field::ck_Orizzonte, Field::ck_Triangolo,
        Field::ck_Sustilare, Field::Ck_Section})
    dial.panel.setState(box, true);
  dial.run();
  EXPECT_EQ(dial.sheet.caption(),
            "Cylindrical sundial of circular cross-section : projective method");
  std::vector<Rgb> points, lines, expectedPoints, expectedLines;
  for (const PointRecord& p : dial.sheet.list().points)
    if (points.empty() || points.back() != p.colour) points.push_back(p.colour);
  for (const LineRecord& l : dial.sheet.list().lines)
    if (lines.empty() || lines.back() != l.colour) lines.push_back(l.colour);
  for (const int c : {9, 7, 12, 13, 11, 9, 12, 13, 4, 12}) expectedPoints.push_back(palette(c));
  for (const int c : {15, 4, 2, 9, 11, 13, 15, 8, 6, 11, 13}) expectedLines.push_back(palette(c));
  EXPECT_EQ(points, expectedPoints);
  EXPECT_EQ(lines, expectedLines);
  EXPECT_EQ(dial.sheet.list().circles[0].colour, palette(13));
}

TEST(ProjectedCylinder, ASouthernLatitudeIsRefusedAfterTheNotice) {
  Dial dial;
  dial.set(Field::txtLAT, "-0.1").run();
  EXPECT_TRUE(dial.refused);
  EXPECT_EQ(dial.messages,
            (std::vector<std::string>{"Modify the definition if the graph is not well visible",
                                      "Sorry, unable to work in the Southern hemisphere "}));
  EXPECT_EQ(dial.entities(), 0u);
}

TEST(ProjectedCylinder, OddInputGivesAMessageOrADrawing) {
  expectBoundedOnOddInput(Item::mnuCircp, QuadranteProiettivo);
}

}  // namespace
}  // namespace dialwright
