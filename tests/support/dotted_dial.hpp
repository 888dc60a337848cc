// A dial of dots on a curved wall, and the suns that its dots must show. A dot may show the sun
// that stands opposite too: the dials know planes and cones through the style's tip.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "numerics/numbers.hpp"
#include "support/cylinder_model.hpp"
#include "support/dial_case.hpp"

namespace dialwright {

struct DottedWall {
  double latitude, declination, radius, style;
  bool convex;
};

// Turned either way and to the North, flat and sharp, in the tropics and near the pole.
inline constexpr DottedWall kDottedWalls[] = {
    {45.7438, -14.57, 0.4, 0.2, true}, {45.7438, -14.57, 0.4, 0.2, false},
    {45.7438, 0, 0.4, 0.2, true},      {45, 0, 0.4, 0.15, false},
    {60, 55, 0.3, 0.25, true},         {60, 55, 0.3, 0.1, false},
    {12, 20, 0.2, 0.05, true},         {12, 20, 0.25, 0.3, false},
    {38, 69, 0.5, 0.1, true},          {82, -35, 0.5, 0.2, false},
    {30, -100, 0.5, 0.1, true},        {38, 170, 0.5, 0.2, false}};

inline std::string name(const DottedWall& wall) {
  return std::to_string(wall.latitude) + " " + std::to_string(wall.declination) +
         (wall.convex ? " convex" : " concave");
}

// Planes through the tip by the directions of their normals: of the hours t (degrees), and of the
// horizon turned by the hour angles t.
inline sky::Vec hourPlane(double latitude, double t) {
  return sky::sun(sky::rad(latitude), sky::rad(t + 90), 0);
}
inline sky::Vec turnedHorizon(double latitude, double t) {
  return sky::sun(sky::rad(latitude), sky::rad(t), sky::rad(latitude));
}

template <class Section>
class DottedDial : public DialCase {
 public:
  DottedDial(Item item, Driver driver, const DottedWall& wall, sky::CurvedWall<Section> model_)
      : DialCase(item, driver), model(std::move(model_)), wall_(wall) {
    clearBoxes();
    set(Field::txtLAT, textOf(wall.latitude)).set(Field::txtDecl, textOf(wall.declination));
    set(Field::TxtRadius, textOf(wall.radius)).set(Field::TxtStilo, textOf(wall.style));
    panel.setState(wall.convex ? Field::OptConvex : Field::Optconcave, true);
  }

  // The dots of the checked families in a colour, but those of the foot, in their order.
  std::vector<sky::Spot> dots(std::initializer_list<Field> boxes, int colour) {
    for (const Field box : boxes) panel.setState(box, true);
    sheet.Clear();
    run();
    std::vector<sky::Spot> spots;
    for (const PointRecord& p : pointsIn(palette(colour))) {
      if (std::abs(p.x) > 0.0101 || std::abs(p.y) > 0.000101) spots.push_back({p.x, -p.y});
    }
    return spots;
  }

  sky::Vec sunOf(sky::Spot spot) const { return model.sunOf(spot); }

  // Every dot lies in one of the planes, and every plane has its dots, but for so many, whose lines
  // leave the sheet.
  void expectInPlanes(const std::vector<sky::Spot>& spots, const std::vector<sky::Vec>& planes,
                      std::size_t without) const {
    std::vector<std::size_t> found(planes.size());
    for (const sky::Spot spot : spots) {
      const sky::Vec sun = sunOf(spot);
      double least = 2;
      for (std::size_t i = 0; i < planes.size(); ++i) {
        const double miss = std::abs(sky::dot(planes[i], sun));
        least = std::min(least, miss);
        found[i] += miss < kMiss;
      }
      ASSERT_LT(least, kMiss) << "(" << spot.x << ", " << spot.y << ") in " << name(wall_);
    }
    EXPECT_LE(static_cast<std::size_t>(std::count(found.begin(), found.end(), 0u)), without)
        << name(wall_);
  }

  // Every dot shows the declination (degrees) or its opposite.
  void expectDay(const std::vector<sky::Spot>& spots, double day) const {
    EXPECT_GT(spots.size(), 5u) << name(wall_) << " of " << day;
    for (const sky::Spot spot : spots) {
      const double d = sky::declinationOf(sky::rad(wall_.latitude), sunOf(spot));
      ASSERT_NEAR(std::abs(std::sin(d)), std::sin(sky::rad(day)), kMiss)
          << "(" << spot.x << ", " << spot.y << ") in " << name(wall_);
    }
  }

  static constexpr double kMiss = 1e-8;  // radians
  const sky::CurvedWall<Section> model;

 protected:
  const DottedWall wall_;
};

// On a circular section.
class DottedCylinder : public DottedDial<sky::CircleSection> {
 public:
  DottedCylinder(Item item, Driver driver, const DottedWall& wall = kDottedWalls[0])
      : DottedDial(item, driver, wall,
                   sky::cylinder(wall.radius, wall.style, wall.declination, wall.convex)) {}
};

// Planes of a family from first to last by step, degrees.
inline std::vector<sky::Vec> planes(sky::Vec (*plane)(double, double), double latitude,
                                    double first, double last, double step) {
  std::vector<sky::Vec> all;
  for (double t = first; t < last + step / 2; t += step) all.push_back(plane(latitude, t));
  return all;
}

// The colours of records in their order, each run of one colour once.
template <class Record>
std::vector<Rgb> inks(const std::vector<Record>& records) {
  std::vector<Rgb> all;
  for (const Record& r : records)
    if (all.empty() || all.back() != r.colour) all.push_back(r.colour);
  return all;
}
inline std::vector<Rgb> palettes(std::initializer_list<int> numbers) {
  std::vector<Rgb> all;
  for (const int number : numbers) all.push_back(palette(number));
  return all;
}

}  // namespace dialwright
