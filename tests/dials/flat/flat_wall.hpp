// A flat dial of a test at a site, and the model of its plane, which tells from a spot of the
// drawing the sun that throws the tip's shadow there.
#pragma once

#include <cmath>
#include <ranges>
#include <string>
#include <vector>

#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"
#include "support/sky.hpp"

namespace dialwright {

// Degrees.
struct FlatSite {
  double latitude = 45.7438, declination = -14.57, reclination = 0;
};

// Angles that the tests of flat dials allow for, in degrees: the circle constant is short by 4e-10,
// which steep points magnify. On a sheet of 2 m it is less than 0.01 mm.
inline constexpr double kAngleSlack = 2e-5;

struct FlatWall : DialCase {
  static constexpr double kStyle = 0.2;

  explicit FlatWall(int number, const FlatSite& at = {}, std::string_view settings = {})
      : DialCase(number),
        site(at),
        latitude(sky::rad(at.latitude)),
        plane(sky::Plane::facing(at.declination, at.reclination)) {
    set(Field::txtLAT, textOf(at.latitude)).set(Field::txtDecl, textOf(at.declination));
    set(Field::txtReclinZ, textOf(90 - at.reclination));
    with(settings);
  }

  sky::Vec sun(double x, double sheetY) const { return plane.sunOf(kStyle, {x, -sheetY}); }
  double declination(double x, double sheetY) const {
    return sky::deg(sky::declinationOf(latitude, sun(x, sheetY)));
  }
  double hourAngle(double x, double sheetY) const {
    return sky::deg(sky::hourAngleOf(latitude, sun(x, sheetY)));
  }
  sky::Vec pole() const { return {0, std::cos(latitude), std::sin(latitude)}; }
  // Where the polar style meets the plane.
  sky::Spot centre() const { return plane.shadow(kStyle * plane.normal, pole()); }

  // What a box adds to an ink: dots, and some spots of lines, wherever the sheet is; dial
  // coordinates.
  std::vector<sky::Spot> addedBy(std::string_view box, int ink) {
    run();
    const std::size_t dots = pointsIn(palette(ink)).size(), lines = linesIn(palette(ink)).size();
    sheet.Clear();
    with(box).run();
    std::vector<sky::Spot> spots;
    for (const PointRecord& p : pointsIn(palette(ink)) | std::views::drop(dots))
      spots.push_back({p.x, -p.y});
    for (const LineRecord& l : linesIn(palette(ink)) | std::views::drop(lines)) {
      for (const double part : {0.1, 0.45, 0.8})
        spots.push_back({l.x1 + part * (l.x2 - l.x1), -l.y1 - part * (l.y2 - l.y1)});
    }
    return spots;
  }

  FlatSite site;
  double latitude;
  sky::Plane plane;
};

}  // namespace dialwright
