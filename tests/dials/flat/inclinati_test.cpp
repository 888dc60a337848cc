// Program 2 where its two variables differ from each other and from the other flat dials.
#include "dials/flat/inclinati.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "support/flat_wall.hpp"

namespace dialwright {
namespace {

FlatWall dialOf(const FlatSite& site, Field variable) {
  FlatWall wall(Item::M_Inclinati, DisegnaInclinati, site);
  wall.check(variable).set(Field::txt_Definition, "1");
  return wall;
}

// The noon line is always drawn, and the substyle's figures are always left in the record.
TEST(Inclinati, NoonLineAndFigures) {
  for (const FlatSite& site : {FlatSite{45.7438, -14.57, 30}, {45, 37, -25}, {35, -160, -40}}) {
    for (const Field variable : {Field::optX, Field::optY}) {
      FlatWall wall = dialOf(site, variable);
      wall.run();
      EXPECT_FALSE(wall.pointsIn(palette(4)).empty());
      for (const PointRecord& p : wall.pointsIn(palette(4)))
        ASSERT_LT(wall.offHour(0, p.x, p.y), kAngleSlack);
      const sky::Spot centre = wall.centre();
      EXPECT_NEAR(std::abs(std::tan(wall.params.Sustilare)), std::abs(centre.x / centre.y), 1e-6);
      EXPECT_NEAR(wall.params.IpotenusaStilo * std::sin(wall.params.ElevStilo), wall.kStyle, 1e-8);
      // By its sine: an arcsine knows no hour before six.
      const double H = sky::rad(wall.hourAngle(-centre.x / 2, centre.y / 2));
      EXPECT_NEAR(std::abs(std::sin(wall.params.OrarioSustilare)), std::abs(std::sin(H)), 1e-6);
    }
  }
}

// One figure in both variables, sample by sample.
TEST(Inclinati, TheAnalemmaOfBothVariables) {
  std::vector<PointRecord> drawn[2];
  for (const bool y : {false, true}) {
    FlatWall wall = dialOf({45.7438, -14.57, 30}, y ? Field::optY : Field::optX);
    wall.check(Field::ck_Lemniscate).run();
    drawn[y] = wall.pointsIn(palette(y ? 12 : 14));
    ASSERT_EQ(drawn[y].size(), 366u);
  }
  for (std::size_t i = 0; i < 366; ++i) {
    ASSERT_LT(sky::distance({drawn[0][i].x, drawn[0][i].y}, {drawn[1][i].x, drawn[1][i].y}), 1e-8);
  }
}

TEST(Inclinati, AStyleOutOfReachIsDrawnByItsSlopeUntilATriangleWasDrawn) {
  FlatWall wall = dialOf({45, 1, 44.8}, Field::optY);
  wall.check(Field::ck_Triangolo).run();
  EXPECT_FALSE(wall.pointsIn(palette(5)).empty());
  EXPECT_TRUE(wall.linesIn(palette(9)).empty());
  wall.set(Field::txtReclinZ, "90").run().sheet.Clear();
  wall.set(Field::txtReclinZ, "45.2").run();
  EXPECT_TRUE(wall.pointsIn(palette(5)).empty());
}

TEST(Inclinati, ThePolarPlaneHasUprightHours) {
  FlatWall wall = dialOf({45.7438, 0, 90 - 45.7438}, Field::optX);
  wall.set(Field::TxtHour, "4").check(Field::chkOreAstronomiche).run();
  const std::vector<LineRecord> hours = wall.linesIn(palette(15));
  ASSERT_EQ(hours.size(), 25u) << "every half hour, whatever the divisions";
  for (std::size_t i = 1; i < 24; ++i) {
    EXPECT_LT(apart(wall.hourAngle(hours[i].x1, 0.3), 90 - 7.5 * static_cast<double>(i)),
              kAngleSlack);
    EXPECT_EQ(hours[i].x1, hours[i].x2);
    EXPECT_DOUBLE_EQ(hours[i].y2, wall.sheet.ShiftY());
  }
}

TEST(Inclinati, RefusalsOfEachVariable) {
  FlatWall wall(Item::M_Inclinati, DisegnaInclinati, {45, 90, 0});
  wall.panel.setState(Field::ckFrame, true);
  const std::string modify = "Modify the definition if the graph is not well visible";
  const std::string incomplete = "Immettere Longitudine,latitudine,Declinazione e Ortostilo !!";
  const auto expect = [&](Field variable, const std::vector<std::string>& messages, int beeps,
                          std::size_t frames) {
    wall.check(variable).sheet.Clear();
    wall.messages.clear();
    wall.beeps = 0;
    wall.run();
    EXPECT_EQ(wall.messages, messages);
    EXPECT_EQ(wall.beeps, beeps);
    EXPECT_EQ(wall.entities(), frames);
    EXPECT_TRUE(wall.refused && !wall.busy);
  };
  expect(Field::optX, {modify, "Please use the other variable !!"}, 1, 1);
  wall.set(Field::txtDecl, "0");
  expect(Field::optY, {modify}, 1, 0);
  EXPECT_EQ(wall.sheet.caption(), "Horizontal dial, please use variable X");
  wall.set(Field::txtDecl, "10").set(Field::txtReclinZ, "0").sheet.Messaggio("");
  expect(Field::optY, {modify}, 1, 1);
  EXPECT_EQ(wall.sheet.caption(), "Horizontal dial, please use variable X");
  wall.set(Field::txtLAT, "  ");
  expect(Field::optX, {modify, incomplete}, 0, 1);
  expect(Field::optY, {incomplete}, 0, 0);
}

// Where a line can't be swept, its statement fails and its row stays at the last height: such rows
// are no shadows.
TEST(Inclinati, RowsWithoutAHeightStayWhereTheyWere) {
  for (const auto& [site, variable, colour] :
       {std::tuple{FlatSite{45, 0, 0}, Field::optX, 9}, {FlatSite{45, 30, 0}, Field::optY, 4}}) {
    FlatWall wall = dialOf(site, variable);
    wall.check(Field::ck_Sustilare, variable == Field::optX).run();
    ASSERT_FALSE(wall.pointsIn(palette(colour)).empty());
    for (const PointRecord& p : wall.pointsIn(palette(colour)))
      ASSERT_EQ(p.y, 0) << "level, where the substyle or noon is upright";
  }
}

}  // namespace
}  // namespace dialwright
