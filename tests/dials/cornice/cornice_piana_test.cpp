// Tests of programs 38 and 39: the cornice dials of a disc above a wall.
#include "dials/cornice/cornice_piana.hpp"

#include "border_model.hpp"

namespace dialwright {
namespace {

struct Disc : CorniceDial {
  explicit Disc(bool next, double declination = -14.57, std::initializer_list<Field> boxes = {},
                double latitude = 45.7438, double distance = 0)
      : CorniceDial(next ? Item::mnuCorn_flat2 : Item::mnuCorn_flat,
                    next ? DisegnaCornicePianaInt : DisegnaCornicePianaEst,
                    {latitude, 0.2, {0, -distance, 0}}, boxes),
        wall(sky::Plane::facing(declination, 0)) {
    set(Field::txtDecl, textOf(declination)).set(Field::txt_R2, textOf(distance));
  }
  // The wall touches the disc's circle at the distance 0.
  sky::Vec place(sky::Spot at) const override {
    return -0.2 * wall.normal + at.x * wall.right + at.y * wall.up;
  }
  const sky::Plane wall;
};

TEST(FlatCornice, HourAndDayLinesAreGrazingLight) {
  for (const bool next : {false, true}) {
    for (const auto& [latitude, declination, distance] : {std::tuple{45.7438, -14.57, 0.0},
                                                          {62.0, 30.0, 0.0},
                                                          {30.0, 0.0, 0.1},
                                                          {50.0, 70.0, 0.05}}) {
      Disc dial(next, declination, {Field::Ck_DayLightCurves}, latitude, distance);
      dial.set(Field::txtLineofdeclination, "-12").run();
      for (const char* layer : {"afternoon", "morning"})
        dial.expectGrazing(layer, wholeHours(0.01), 3000);
      // A sun that is down has the shadow of its opposite, of the opposite day.
      const auto eitherDay = [](Moment sun) {
        return Moment{sun.hour, sun.day < 0 ? -12.0 : 12.0};
      };
      std::size_t lines = 0;
      for (const char* layer : {"daylight1", "daylight2"}) {
        dial.expectGrazing(layer, eitherDay, 0);
        lines += dial.linesOf(layer).size();
      }
      EXPECT_GT(lines, 1000u);
    }
  }
}

// A sun that is down behind the wall draws as well: the line of the hour twelve hours away.
TEST(FlatCornice, SunsThatAreDownDrawTheHoursTwelveHoursAway) {
  using Hours = std::set<int>;
  for (const auto& [next, declination, hours] :
       {std::tuple{false, 0.0, Hours{-75, -15, 0, 15, 30, 45, 60, 75}},
        {true, 0.0, Hours{0, 15, 30, 45, 60, 75}},
        {true, -14.57, Hours{-90, 0, 15, 30, 45, 60, 75}}}) {
    Disc dial(next, declination);
    dial.set(Field::x1txt, "-5").set(Field::x2txt, "5").set(Field::y2txt, "-5").run();
    EXPECT_EQ(dial.examine(dial.linesOf("afternoon"), wholeHours(0.01)).hours, hours);
  }
}

TEST(FlatCornice, BordersShadowIsARowOfDotsWithItsChord) {
  for (const bool next : {false, true}) {
    Disc dial(next, 25, {Field::ckFunction});
    dial.set(Field::txtLineofdeclination, "10").run();
    const auto dots = dial.pointsIn(palette(11));
    ASSERT_EQ(dots.size(), 629u);
    for (const PointRecord& at : dots) dial.expectShadow(at.x, at.y, {32.5, 10});
    EXPECT_EQ(dial.linesIn(palette(5))[0].x1, dots[0].x);
  }
}

TEST(FlatCornice, NumeralsStandAtTheirHours) {
  for (const bool next : {false, true}) {
    for (const double distance : {0.0, 0.2})
      Disc(next, 20, {}, 45.7438, distance).expectNumerals(-5, distance < 0.2);
  }
}

TEST(FlatCornice, TangentPointsHourIsThatOfTheBordersPointOnTheWall) {
  for (const double declination : {-14.57, 40.0, -90.0}) {
    Disc dial(true, declination);
    const std::string told = dial.run().told(), label = "hour angle of the tangent point ";
    const double H = std::stod(told.substr(told.find(label) + label.size()));
    const sky::Vec off = dial.border.touch(sky::rad(H), H < 0 ? 1 : -1) - dial.place({});
    EXPECT_LT(std::hypot(off.x, off.y), 1e-6);
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
  Disc apart(true, -14.57, {}, 45.7438, 0.03);
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
