// A bifilar dial of a test that draws what is asked for alone, and the shade of a ball from rays.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "support/dial_case.hpp"
#include "support/sky.hpp"

namespace dialwright {

inline constexpr double kLatitude = 45.7438;

// It draws no family and, with both kinds asked for, no numerals.
struct BifilarCase : DialCase {
  BifilarCase(Item item, Driver driver, double degrees, double declination)
      : DialCase(item, driver),
        latitude(sky::rad(degrees)),
        plane(sky::Plane::facing(declination, 0)) {
    set(Field::txtLAT, std::to_string(degrees)).set(Field::txtDecl, std::to_string(declination));
    clearBoxes();
    for (const Field both : {Field::ckRomani, Field::ckArabi}) panel.setState(both, true);
  }
  void checkAll(std::initializer_list<Field> boxes) {
    for (const Field box : boxes) check(box);
  }

  double latitude;
  sky::Plane plane;
};

// Points of a list of records on the outline of the shadow of a ball over the origin, and on the
// edge of the shade on the ball as it is seen from above the plane.
template <class Points>
void expectOutlines(double radius, double height, const sky::Plane& plane, sky::Vec sunwards,
                    const Points& outline, const Points& shade) {
  const auto onPlane = [&](const auto& p) { return p.x * plane.right + (-p.y) * plane.up; };
  EXPECT_GT(outline.size(), 2000u);
  for (const auto& p : outline) {
    const sky::Vec aside = cross(height * plane.normal - onPlane(p), sunwards);
    EXPECT_NEAR(std::sqrt(dot(aside, aside)), radius, 1e-7) << "a ray that grazes the ball";
  }
  EXPECT_GT(shade.size(), 1000u);
  for (const auto& p : shade) {
    const double out = std::sqrt(std::max(0.0, radius * radius - dot(onPlane(p), onPlane(p))));
    // Near the rim the height is the root of a small difference.
    EXPECT_NEAR(dot(onPlane(p) + out * plane.normal, sunwards), 0, out > 0.01 ? 1e-7 : 1e-4);
  }
  // One half comes after the other.
  const sky::Vec left = cross(plane.normal, sunwards);
  const auto side = [&](const auto& p) { return dot(left, onPlane(p)); };
  EXPECT_LT(side(outline[outline.size() / 4]) * side(outline[3 * outline.size() / 4]), 0);
}

}  // namespace dialwright
