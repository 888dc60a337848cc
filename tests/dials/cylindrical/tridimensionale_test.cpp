// Tests of program 9: the cylinder of circular cross-section by geometry in space.
#include "dials/cylindrical/tridimensionale.hpp"

#include "support/dotted_dial.hpp"
#include "support/mean_sun.hpp"

namespace dialwright {
namespace {

struct Dial : DottedCylinder {
  explicit Dial(const DottedWall& wall = kDottedWalls[0])
      : DottedCylinder(Item::M_CILINDRICI, QuadranteCilindrico3D, wall) {}
};

TEST(SpaceCylinder, DotsOfTheHoursLieInTheirPlanes) {
  for (const DottedWall& wall : kDottedWalls) {
    const double latitude = wall.latitude;
    for (const bool zone : {false, true}) {
      Dial dial(wall);
      dial.set(Field::TxtFuso, "-1").set(Field::TxtHour, "1");
      dial.panel.setState(Field::ck_Etna, zone);
      const double shift = zone ? 7.6438 - 15 : 0;
      dial.expectInPlanes(dial.dots({Field::chkOreAstronomiche}, 7),
                          planes(hourPlane, latitude, -75 + shift, 90 + shift, 15), 3);
      // The blue line is that of six in the morning.
      dial.expectInPlanes(dial.dots({}, 9), {hourPlane(latitude, -90 + shift)}, 0);
      if (zone) dial.expectInPlanes(dial.dots({}, 12), {hourPlane(latitude, shift)}, 1);
    }
  }
}

TEST(SpaceCylinder, DotsOfItalicAndBabylonianHoursLieInTurnedHorizons) {
  for (const DottedWall& wall : kDottedWalls) {
    Dial italic(wall), babylonian(wall);
    italic.expectInPlanes(italic.dots({Field::ck_Italiche}, 8),
                          planes(turnedHorizon, wall.latitude, -180, 0, 15), 3);
    babylonian.expectInPlanes(babylonian.dots({Field::ck_babiloniche}, 3),
                              planes(turnedHorizon, wall.latitude, 0, 180, 15), 3);
  }
}

TEST(SpaceCylinder, DotsOfADayShowItsDeclination) {
  for (const DottedWall& wall : kDottedWalls) {
    Dial dial(wall);
    dial.expectDay(dial.dots({Field::Ck_DayLightCurves}, 12), 23.445);
    dial.expectDay(dial.dots({}, 13), 20.1552);
    dial.expectDay(dial.dots({}, 11), 11.4746);
    Dial equinox(wall);
    const auto spots = equinox.dots({Field::ck_Equinoziale}, 9);
    EXPECT_GT(spots.size(), 30u);
    for (const sky::Spot spot : spots)
      ASSERT_NEAR(sky::declinationOf(sky::rad(wall.latitude), equinox.sunOf(spot)), 0, 1e-8);
  }
}

TEST(SpaceCylinder, TheSubstyleIsTheHourOfTheWallsNormal) {
  for (const DottedWall& wall : kDottedWalls) {
    Dial dial(wall);
    const double H = sky::deg(sky::hourAngleOf(sky::rad(wall.latitude), dial.model.tangent.normal));
    dial.expectInPlanes(dial.dots({Field::ck_Sustilare}, 9), {hourPlane(wall.latitude, H)}, 0);
  }
}

TEST(SpaceCylinder, TheAnalemmasAreTheWholeHoursOfTheZone) {
  for (const DottedWall& wall : {kDottedWalls[0], kDottedWalls[1]}) {
    Dial dial(wall);
    dial.set(Field::TxtFuso, "-1");
    const auto spots = dial.dots({Field::ck_Lemniscate}, 2);
    EXPECT_GT(spots.size(), 1500u);
    const double latitude = sky::rad(wall.latitude);
    for (const sky::Spot spot : spots) {
      const sky::Vec sun = dial.sunOf(spot);
      const double zone = sky::hourAngleOf(latitude, sun) + sky::rad(15 - 7.6438);
      double least = 1e9;
      for (int hour = 6; hour <= 18; ++hour)
        least = std::min(
            least, sky::secondsFromEquationOfTime(
                       std::remainder(zone - sky::rad(15.0 * (hour - 12)), 2 * std::numbers::pi),
                       sky::declinationOf(latitude, sun)));
      ASSERT_LT(least, 25) << spot.x << ' ' << spot.y;
      if (spot.y < 0) {
        const auto shadow = dial.model.shadow(sun);
        ASSERT_TRUE(shadow);
        ASSERT_NEAR(shadow->x, spot.x, 1e-9) << "not behind the surface";
      }
    }
  }
}

TEST(SpaceCylinder, ARunDrawsItsFamiliesInOrder) {
  Dial dial;
  dial.set(Field::TxtHour, "1");
  for (const Field box : {Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Lemniscate,
                          Field::ck_Equinoziale, Field::ck_Italiche, Field::ck_babiloniche,
                          Field::ck_Orizzonte, Field::ck_Triangolo, Field::Ck_Section})
    dial.panel.setState(box, true);
  dial.run();
  EXPECT_EQ(dial.messages,
            std::vector<std::string>{"Modify the definition if the graph is not well visible"});
  EXPECT_EQ(dial.sheet.caption(), "Cylindrical sundial of circular cross-section : 3D method");
  EXPECT_FALSE(dial.busy);
  std::vector<Rgb> points, lines;
  for (const PointRecord& p : dial.sheet.list().points)
    if (points.empty() || points.back() != p.colour) points.push_back(p.colour);
  for (const LineRecord& l : dial.sheet.list().lines)
    if (lines.empty() || lines.back() != l.colour) lines.push_back(l.colour);
  std::vector<Rgb> expectedPoints, expectedLines;
  for (const int c : {7, 12, 7, 9, 12, 13, 11, 2, 9, 12, 8, 3, 12})
    expectedPoints.push_back(palette(c));
  for (const int c : {15, 4, 2, 9, 11, 13, 15, 8, 6, 11, 13}) expectedLines.push_back(palette(c));
  EXPECT_EQ(points, expectedPoints);
  EXPECT_EQ(lines, expectedLines);
  ASSERT_GE(dial.sheet.list().circles.size(), 1u);
  EXPECT_EQ(dial.sheet.list().circles[0].colour, palette(13));
  // The noon generator.
  const auto noon = dial.linesIn(palette(4));
  ASSERT_EQ(noon.size(), 1u);
  EXPECT_NEAR(noon[0].x1, dial.model.shadow(sky::sun(sky::rad(45.7438), 0, 0))->x, 1e-9);
}

// At noon the ordinate has no value and keeps that of the dot before: the red dots are a level row,
// and the noon line is the generator of colour 4.
TEST(SpaceCylinder, NoonsOwnDotsAreALevelRow) {
  Dial dial;
  dial.set(Field::TxtHour, "1");
  const auto row = dial.dots({Field::chkOreAstronomiche}, 12);
  EXPECT_EQ(row.size(), 80u);
  const auto before = dial.dots({}, 7);
  for (const sky::Spot spot : row) {
    EXPECT_EQ(spot.y, row[0].y);
    EXPECT_NEAR(spot.y, -1, 1);
  }
  EXPECT_TRUE(std::any_of(before.begin(), before.end(),
                          [&](sky::Spot spot) { return spot.y == row[0].y; }));
}

TEST(SpaceCylinder, ASouthernLatitudeIsRefusedAfterTheNotice) {
  Dial dial;
  dial.set(Field::txtLAT, "-0.1").run();
  EXPECT_TRUE(dial.refused);
  EXPECT_EQ(dial.messages,
            (std::vector<std::string>{"Modify the definition if the graph is not well visible",
                                      "Sorry, unable to work in the Southern hemisphere "}));
  EXPECT_EQ(dial.entities(), 0u);
}

TEST(SpaceCylinder, OddInputGivesAMessageOrADrawing) {
  expectBoundedOnOddInput(Item::M_CILINDRICI, QuadranteCilindrico3D);
}

}  // namespace
}  // namespace dialwright
