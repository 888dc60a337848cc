// A flat dial of a test: the panel set for a site and a plane with no box checked, and the sky's
// model of that plane, which tells from a spot of the drawing the sun that throws the tip's shadow
// there.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <type_traits>

#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"
#include "support/sky.hpp"

namespace dialwright {

// Degrees.
struct FlatSite {
  double latitude;
  double declination;
  double reclination = 0;
};

// Angles that the tests of flat dials allow for, in degrees: the circle constant is short by 4e-10,
// which steep points magnify. On a sheet of 2 m it is less than 0.01 mm.
inline constexpr double kAngleSlack = 2e-5;

// The difference of two angles in degrees, on a circle of that many degrees.
inline double apart(double a, double b, double circle = 360) {
  return std::abs(std::remainder(a - b, circle));
}

// Spots of a line that lie on it wherever the sheet is.
inline std::vector<sky::Spot> spotsOf(const LineRecord& l) {
  std::vector<sky::Spot> spots;
  for (const double part : {0.1, 0.45, 0.8})
    spots.push_back({l.x1 + part * (l.x2 - l.x1), l.y1 + part * (l.y2 - l.y1)});
  return spots;
}

class FlatWall : public DialCase {
 public:
  static constexpr double kStyle = 0.2;

  FlatWall(Item item, Driver driver, const FlatSite& site_)
      : DialCase(item, driver),
        site(site_),
        latitude(sky::rad(site_.latitude)),
        plane(sky::Plane::facing(site_.declination, site_.reclination)) {
    set(Field::txtLAT, textOf(site.latitude)).set(Field::txtDecl, textOf(site.declination));
    set(Field::txtReclinZ, textOf(90 - site.reclination));
    clearBoxes();
  }

  FlatWall& checkEveryBox() {
    for (std::size_t i = 0; i < kFieldCount; ++i) {
      if (rowOf(fieldAt(i)).kind == FieldKind::Check) panel.setState(fieldAt(i), true);
    }
    return *this;
  }

  sky::Vec sun(double x, double sheetY) const { return plane.sunOf(kStyle, {x, -sheetY}); }
  double declination(double x, double sheetY) const {
    return sky::deg(sky::declinationOf(latitude, sun(x, sheetY)));
  }
  double hourAngle(double x, double sheetY) const {
    return sky::deg(sky::hourAngleOf(latitude, sun(x, sheetY)));
  }

  // How far a spot's sun is from the plane of an hour, in degrees; with a circle, from the nearest
  // of the hours that follow each other by so much.
  double offHour(double hour, double x, double sheetY, double circle = 180) const {
    const sky::Vec s = sun(x, sheetY);
    const double meridian = s.z * std::cos(latitude) - s.y * std::sin(latitude);
    return apart(hourAngle(x, sheetY), hour, circle) * std::hypot(s.x, meridian);
  }

  // The order of the drawing: each kind of entity (L or P) with its palette number, where it first
  // comes.
  std::string order() const {
    std::string all;
    const auto note = [&all](char kind, Rgb colour) {
      int number = 0;
      while (number < 15 && palette(number) != colour) ++number;
      const std::string entry = kind + std::to_string(number) + ' ';
      if ((' ' + all).find(' ' + entry) == std::string::npos) all += entry;
    };
    sheet.list().visit([&note](const auto& record) {
      using Record = std::decay_t<decltype(record)>;
      if constexpr (std::is_same_v<Record, LineRecord>) note('L', record.colour);
      if constexpr (std::is_same_v<Record, PointRecord>) note('P', record.colour);
    });
    return all;
  }

  // What a box adds to the drawing in a colour, in sheet coordinates: points, and of lines some
  // spots that are not far out.
  std::vector<sky::Spot> addedBy(Field box, int colour) {
    sheet.Clear();
    check(box, false).run();
    const std::size_t points = pointsIn(palette(colour)).size();
    const std::size_t lines = linesIn(palette(colour)).size();
    sheet.Clear();
    check(box).run();
    std::vector<sky::Spot> spots;
    std::size_t seen = 0;
    for (const PointRecord& p : pointsIn(palette(colour))) {
      if (seen++ >= points) spots.push_back({p.x, p.y});
    }
    seen = 0;
    for (const LineRecord& l : linesIn(palette(colour))) {
      if (seen++ < lines) continue;
      for (const sky::Spot s : spotsOf(l)) {
        if (std::hypot(s.x, s.y) < 50) spots.push_back(s);
      }
    }
    return spots;
  }

  sky::Vec pole() const { return {0, std::cos(latitude), std::sin(latitude)}; }
  // Where the polar style meets the plane.
  sky::Spot centre() const { return plane.shadow(kStyle * plane.normal, pole()); }

  FlatSite site;
  double latitude;
  sky::Plane plane;
};

}  // namespace dialwright
