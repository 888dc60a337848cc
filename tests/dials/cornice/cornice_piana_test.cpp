// Tests of programs 38 and 39: the cornice dials of a disc above a wall, but for their shadows.
#include "dials/cornice/cornice_piana.hpp"

#include <gtest/gtest.h>

#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"
#include "support/sky.hpp"

namespace dialwright {
namespace {

struct Disc : DialCase {
  explicit Disc(bool next, double declination = -14.57, std::initializer_list<Field> boxes = {})
      : DialCase(next ? Item::mnuCorn_flat2 : Item::mnuCorn_flat,
                 next ? DisegnaCornicePianaInt : DisegnaCornicePianaEst) {
    clearBoxes();
    for (const Field box : boxes) panel.setState(box, true);
    set(Field::txtDecl, textOf(declination)).set(Field::txt_R2, "0");
  }
};

TEST(FlatCornice, BordersShadowIsARowOfDotsWithItsChord) {
  for (const bool next : {false, true}) {
    Disc dial(next, 25, {Field::ckFunction});
    dial.set(Field::txtLineofdeclination, "10").run();
    const auto dots = dial.pointsIn(palette(11));
    ASSERT_EQ(dots.size(), 629u);
    EXPECT_EQ(dial.linesIn(palette(5))[0].x1, dots[0].x);
  }
}

TEST(FlatCornice, TangentPointsHourIsThatOfTheBordersPointOnTheWall) {
  for (const double declination : {-14.57, 40.0, -90.0}) {
    Disc dial(true, declination);
    const std::string told = dial.run().told(), label = "hour angle of the tangent point ";
    const double H = std::stod(told.substr(told.find(label) + label.size()));
    // There the hour's plane, which holds the pole and the equator's sun, stands along the wall.
    const double phi = sky::rad(45.7438);
    const sky::Vec normal = cross({0, std::cos(phi), std::sin(phi)}, sky::sun(phi, sky::rad(H), 0));
    EXPECT_NEAR(dot(normal, sky::Plane::facing(declination, 0).right), 0, 1e-6);
  }
  EXPECT_NE(Disc(true, 0).run().told().find("point -90|hour of the tangent point 6|"),
            std::string::npos);
}

TEST(FlatCornice, DrawsAndTellsTheDisc) {
  Disc east(false, 0, {Field::ckFunction});
  east.run();
  EXPECT_EQ(east.sheet.caption(), "Vertical plane, Horizontal disc");
  EXPECT_EQ(east.sheet.list().circles[0].endAngle, 3.141592654);
  EXPECT_EQ(east.told(),
            "|FLAT VERTICAL DAM DIAL |latitude 45.7438 °|r2 0|radius of border 0.2|"
            "circumference 1.2566|useful arc 180 °|lenght of the useful arc 0.6283|"
            "Optional line of declination (red line)23.445 °|"
            "Optional shade of the border (cyan line): delta 23.445 °  H 32.5 °|");
  EXPECT_EQ(Disc(true, 0).run().sheet.list().circles[0].endAngle, 0);  // the whole circle
  Disc apart(true, -14.57);
  apart.set(Field::txt_R2, "0.03");
  apart.params.ReclinRad = 1;
  apart.run();
  EXPECT_EQ(apart.params.ReclinRad, 0);
  EXPECT_EQ(apart.sheet.caption(), "THE WHOLE CIRCLE IS NOT TANGENT!!!!");
  EXPECT_NE(apart.told().find("declination -14.57|projection 0.41329|"), std::string::npos);
  EXPECT_NE(apart.told().find("circumference 1.25664|"), std::string::npos);

  Disc edgeOn(true, 90, {Field::Ck_DayLightCurves, Field::ckFunction, Field::ckArabi});
  edgeOn.run();
  EXPECT_EQ(edgeOn.inks(), "");  // no curve; numerals and dots stay on the origin
  ASSERT_EQ(edgeOn.pointsIn(palette(11)).size(), 629u);
  EXPECT_EQ(edgeOn.pointsIn(palette(11))[300].x, 0);
  EXPECT_EQ(edgeOn.pointsIn(palette(4)).size(), 8u);
  EXPECT_NE(edgeOn.told().find("point 0|hour of the tangent point 12|"), std::string::npos);
}

}  // namespace
}  // namespace dialwright
