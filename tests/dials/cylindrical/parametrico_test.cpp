// Tests of program 8: the cylinder of circular cross-section by its tangent planes.
#include "dials/cylindrical/parametrico.hpp"

#include "support/dotted_dial.hpp"

namespace dialwright {
namespace {

struct Dial : DottedCylinder {
  explicit Dial(const DottedWall& wall = kDottedWalls[0])
      : DottedCylinder(Item::M_Param, QuadranteCilindricoParam, wall) {
    set(Field::TxtHour, "1");
  }
};

TEST(TangentCylinder, DotsOfTheHoursLieInTheirPlanesAllRoundTheSection) {
  for (const DottedWall& wall : kDottedWalls) {
    Dial dial(wall);
    dial.panel.setState(Field::ck_Etna, true);  // of no weight here
    const auto spots = dial.dots({Field::chkOreAstronomiche}, 7);
    dial.expectInPlanes(spots, hoursButNoon(wall.latitude, 15), 3);
    dial.expectInPlanes(dial.dots({}, 9), {hourPlane(wall.latitude, 90)}, 0);
    const auto [left, right] =
        std::minmax_element(spots.begin(), spots.end(),
                            [](const sky::Spot& a, const sky::Spot& b) { return a.x < b.x; });
    const double round = std::min(2 * std::numbers::pi * wall.radius, 1.9);
    EXPECT_GT(right->x - left->x, 0.5 * round) << name(wall);
  }
}

TEST(TangentCylinder, DotsOfADayShowItsDeclination) {
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

// And their conic's dots show the sun that touches the horizon.
TEST(TangentCylinder, DotsOfItalicAndBabylonianHoursLieInTurnedHorizons) {
  for (const DottedWall& wall : kDottedWalls) {
    Dial italic(wall), babylonian(wall);
    italic.expectInPlanes(italic.dots({Field::ck_Italiche}, 14),
                          planes(turnedHorizon, wall.latitude, -180, 0, 15), 3);
    italic.expectDay(italic.dots({}, 11), 90 - wall.latitude);
    babylonian.expectInPlanes(babylonian.dots({Field::ck_babiloniche}, 11),
                              planes(turnedHorizon, wall.latitude, 0, 180, 15), 3);
  }
}

TEST(TangentCylinder, TheSubstyleIsTheHourOfTheWallsNormal) {
  for (const DottedWall& wall : kDottedWalls) {
    if (wall.declination == 0) continue;  // it is the noon generator then
    Dial dial(wall);
    const double H = sky::deg(sky::hourAngleOf(sky::rad(wall.latitude), dial.model.tangent.normal));
    dial.expectInPlanes(dial.dots({Field::ck_Sustilare}, 9), {hourPlane(wall.latitude, H)}, 0);
  }
}

TEST(TangentCylinder, ARunDrawsItsFamiliesInOrder) {
  Dial dial;
  for (const Field box :
       {Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Equinoziale,
        Field::ck_Italiche, Field::ck_babiloniche, Field::ck_Orizzonte, Field::ck_Triangolo,
        Field::ck_Sustilare, Field::Ck_Section})
    dial.panel.setState(box, true);
  dial.run();
  EXPECT_EQ(dial.sheet.caption(),
            "Cylindrical sundial of circular cross-section as a set of points : parametric method");
  EXPECT_EQ(dial.messages,
            std::vector<std::string>{"Modify the definition if the graph is not well visible"});
  const auto& points = dial.sheet.list().points;
  std::vector<Rgb> firsts, lines;
  for (const PointRecord& p : points)
    if (std::find(firsts.begin(), firsts.end(), p.colour) == firsts.end())
      firsts.push_back(p.colour);
  for (const LineRecord& l : dial.sheet.list().lines)
    if (lines.empty() || lines.back() != l.colour) lines.push_back(l.colour);
  std::vector<Rgb> expectedFirsts, expectedLines;
  for (const int c : {9, 7, 12, 13, 11, 14}) expectedFirsts.push_back(palette(c));
  for (const int c : {15, 9, 2, 9, 11, 13, 15, 8, 6, 11, 13}) expectedLines.push_back(palette(c));
  EXPECT_EQ(firsts, expectedFirsts);
  EXPECT_EQ(lines, expectedLines);
  // The noon generator, and the foot at the end of all.
  EXPECT_NEAR(dial.linesIn(palette(9))[0].x1,
              dial.model.shadow(sky::sun(sky::rad(45.7438), 0, 0))->x, 1e-9);
  ASSERT_GT(points.size(), 403u);
  EXPECT_EQ(points.back().colour, palette(12));
  EXPECT_EQ(points.back().x, 0);
  EXPECT_EQ(points[points.size() - 402].x, -0.01);
  EXPECT_EQ(points[points.size() - 404].colour, palette(12)) << "the foot's mark of the section";
}

TEST(TangentCylinder, TheSouthAndTheEquatorAreRefused) {
  for (const auto& [latitude, text] :
       {std::pair{"-0.1", "Sorry, unable to work in the Southern hemisphere "},
        std::pair{"0", "Sorry, unable to work at the equator "}}) {
    Dial dial;
    dial.set(Field::txtLAT, latitude).run();
    EXPECT_TRUE(dial.refused);
    EXPECT_EQ(dial.messages, std::vector<std::string>{text});
    EXPECT_EQ(dial.entities(), 0u);
  }
}

TEST(TangentCylinder, OddInputGivesAMessageOrADrawing) {
  expectBoundedOnOddInput(Item::M_Param, QuadranteCilindricoParam);
}

}  // namespace
}  // namespace dialwright
