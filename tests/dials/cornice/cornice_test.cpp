// The cornice dials beside their shadows: outlines, the tangent point, and fields that don't fit.
#include <gtest/gtest.h>

#include <numbers>

#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"
#include "support/sky.hpp"

namespace dialwright {
namespace {

using std::numbers::pi;

TEST(CylindricalCornice, ABorderThatDoesNotFitIsWrittenBack) {
  DialCase dial(35, "txt_R2=0.7");
  dial.run();
  EXPECT_EQ(dial.panel.text(Field::txt_R2), "0.5");
  EXPECT_EQ(dial.panel.text(Field::x1txt), "1.570796327");
  EXPECT_EQ(dial.panel.text(Field::x2txt), "-1.570796327");
  EXPECT_EQ(dial.panel.text(Field::y1txt), "0");
}

// The angle goes round the cone, from the North over the East.
TEST(ConicalCornice, OutlineIsTheConesDevelopment) {
  const auto expectOn = [](double x, double sheetY, double radius, double round) {
    const double sine = std::sin(std::atan((0.5 - 0.3) / 0.8)), up = -sheetY + 0.5 / sine;
    EXPECT_NEAR(std::hypot(x, up) * sine, radius, 1e-9);
    EXPECT_NEAR(std::atan2(x, up) / sine, round, 0.005);
  };
  DialCase dial(36);
  dial.run();
  for (const auto& [layer, radius] : {std::pair{"basealta", 0.5}, {"basebassa", 0.3}}) {
    const auto lines = dial.linesOf(layer);
    ASSERT_GT(lines.size(), 1000u);
    const double side = lines.front().x2 < 0 ? -pi : pi;
    expectOn(lines.front().x2, lines.front().y2, radius, side);
    expectOn(lines.back().x1, lines.back().y1, radius, -side);
  }
}

// There the hour's plane, which holds the pole and the equator's sun, stands along the wall.
TEST(FlatCornice, TangentPointsHourIsThatOfTheBordersPointOnTheWall) {
  const auto toldOf = [](double declination) {
    DialCase dial(39, "txt_R2=0");
    return dial.set(Field::txtDecl, textOf(declination)).run().told();
  };
  for (const double declination : {-14.57, 40.0, -90.0}) {
    const std::string told = toldOf(declination), label = "hour angle of the tangent point ";
    const double H = std::stod(told.substr(told.find(label) + label.size()));
    const double phi = sky::rad(45.7438);
    const sky::Vec normal = cross({0, std::cos(phi), std::sin(phi)}, sky::sun(phi, sky::rad(H), 0));
    EXPECT_NEAR(dot(normal, sky::Plane::facing(declination, 0).right), 0, 1e-6);
  }
  EXPECT_NE(toldOf(0).find("point -90|hour of the tangent point 6|"), std::string::npos);
  EXPECT_NE(toldOf(90).find("point 0|hour of the tangent point 12|"), std::string::npos);
}

TEST(FlatCornice, DrawsTheDiscAndWarnsWhereItIsNotTangent) {
  DialCase outer(38, "txtDecl=0"), inner(39, "txtDecl=0"), apart(39, "txt_R2=0.03");
  EXPECT_EQ(outer.run().sheet.list().circles.at(0).endAngle, 3.141592654);
  EXPECT_EQ(inner.run().sheet.list().circles.at(0).endAngle, 0) << "the whole circle";
  EXPECT_EQ(apart.run().sheet.caption(), "THE WHOLE CIRCLE IS NOT TANGENT!!!!");
}

}  // namespace
}  // namespace dialwright
