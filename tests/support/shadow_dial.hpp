// A dial of a site whose lines are the paths of a gnomon's shadow, and the walk over the suns of
// all their ends.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/ball_shadow.hpp"
#include "support/dial_case.hpp"
#include "support/mean_sun.hpp"

namespace dialwright {

inline constexpr double kAngle = 2e-5;  // degrees; the circle constant is short by 4e-10
inline constexpr double kLatitude = 45.7438;

struct Site {
  double latitude, declination;
};

inline bool onYear(double d) {
  return sky::offGrid(d + 23.445, 0.05) < kAngle && std::abs(d) < 23.4451;
}

// It draws no family and, with both kinds asked for, no numerals. A gnomon gives the sun of a spot
// by sunAt(plane, spot); one that also `shades` spots must have its shadow's far end there.
template <class Gnomon>
class ShadowDial : public DialCase {
 public:
  ShadowDial(Item item, Driver driver, const Gnomon& model, const Site& site)
      : DialCase(item, driver),
        gnomon(model),
        latitude(sky::rad(site.latitude)),
        plane(sky::Plane::facing(site.declination, 0)) {
    set(Field::txtLAT, std::to_string(site.latitude));
    set(Field::txtDecl, std::to_string(site.declination));
    clearBoxes();
    for (const Field both : {Field::ckRomani, Field::ckArabi}) panel.setState(both, true);
  }
  void checkAll(std::initializer_list<Field> boxes) {
    for (const Field box : boxes) check(box);
  }

  sky::Vec sun(double x, double sheetY) const { return gnomon.sunAt(plane, {x, -sheetY}); }
  double hourAngle(sky::Vec s) const { return sky::deg(sky::hourAngleOf(latitude, s)); }
  double declination(sky::Vec s) const { return sky::deg(sky::declinationOf(latitude, s)); }
  double arc(double d) const { return sky::arcOrHalfTurn(latitude, sky::rad(d)); }
  // Where the arc runs to half a turn, a steep root loses half of the digits.
  bool steep(double d) const {
    return std::abs(std::tan(latitude) * std::tan(sky::rad(d))) > 0.999;
  }

  // `fits` knows the hour angle and the declination (degrees) of a spot's sun. Of a dial that draws
  // `bothWays`, that may be the sun opposite: it tells no night and no back of the wall.
  template <class Fits>
  bool sunFits(double x, double sheetY, Fits fits) {
    const sky::Vec sunwards = sun(x, sheetY);
    if (fits(hourAngle(sunwards), declination(sunwards))) return true;
    ++opposite;
    return bothWays && fits(hourAngle(-1 * sunwards), declination(-1 * sunwards));
  }
  // Both ends of every chord of a layer; gives how many chords there are. Where the dial `joins`
  // its families, a line whose first sample is dropped begins at another's end: counted in
  // `joints`.
  template <class Fits>
  std::size_t everySun(std::string_view layer, Fits fits) {
    const std::vector<LineRecord> lines = linesOf(layer);
    for (const LineRecord& line : lines) {
      EXPECT_LT(sky::distance({line.x1, line.y1}, {line.x2, line.y2}), 0.02);
      expectPlace({line.x1, -line.y1});
      expectPlace({line.x2, -line.y2});
      EXPECT_TRUE(sunFits(line.x1, line.y1, fits));
      const bool joint = !sunFits(line.x2, line.y2, fits);
      joints += joint;
      EXPECT_TRUE(joins || !joint);
      if (!::testing::Test::HasFailure()) continue;
      ADD_FAILURE() << layer << ' ' << line.x1 << ' ' << line.y1 << " at " << sky::deg(latitude)
                    << " on " << panel.text(Field::txtDecl);
      return 0;
    }
    return lines.size();
  }
  // The same for a curve of one declination, within so many degrees of noon.
  std::size_t everyDay(std::string_view layer, double day, double latest = 181) {
    return everySun(layer, [=](double H, double d) {
      return std::abs(d - day) < kAngle && std::abs(H) < latest;
    });
  }
  // For lines from sunset, from sunrise and in twelfths of the day.
  std::size_t everyOtherHour(std::string_view italian, std::string_view babylonian,
                             std::string_view temporary) {
    const double step = 1 / panel.number(Field::TxtHour);
    std::size_t count = 0;
    for (const auto& [layer, sense] : {std::pair{italian, -1}, {babylonian, 1}}) {
      count += everySun(layer, [&](double H, double d) {
        return steep(d) || sky::offGrid((H + sense * arc(d)) / 15, step) < kAngle;
      });
    }
    return count + everySun(temporary, [&](double H, double d) {
             return steep(d) || sky::offGrid(H / arc(d) * 6, step) < 10 * kAngle;
           });
  }
  // The zone's mean noons of a year; `turned` for a figure that stands upside down.
  template <class Records>
  void expectAnalemma(const Records& records, bool turned = false) {
    double northern = 0, southern = 0;
    for (const auto& record : records) {
      sky::Spot at;
      if constexpr (requires { record.x1; }) {
        at = {record.x1, record.y1};
      } else {
        at = {record.x, record.y};
      }
      ASSERT_TRUE(sunFits(at.x, at.y, [&](double H, double d) {
        northern = std::max(northern, d);
        southern = std::min(southern, d);
        return sky::secondsFromEquationOfTime(sky::rad(H) + params.CorrFuso,
                                              sky::rad(turned ? -d : d)) < 30;
      }));
    }
    EXPECT_NEAR(northern, 23.446, 0.001);
    EXPECT_NEAR(southern, -23.446, 0.001);
    EXPECT_EQ(params.LonAbs, params.CorrFuso);
  }

  Gnomon gnomon;
  double latitude;
  sky::Plane plane;
  bool bothWays = false, joins = false;
  std::size_t opposite = 0, joints = 0;

 private:
  void expectPlace(sky::Spot at) const {
    EXPECT_TRUE(at.x > panel.number(Field::x1txt) && at.x < panel.number(Field::x2txt));
    EXPECT_TRUE(at.y > panel.number(Field::y2txt) && at.y < panel.number(Field::y1txt));
    const sky::Vec sunwards = gnomon.sunAt(plane, at);
    if constexpr (requires { gnomon.shades(plane, at, sunwards); }) {
      EXPECT_TRUE(plane.lit(sunwards));
      if (sky::dot(sunwards, plane.normal) < 0.9999) {
        sky::expectFarEnd(gnomon, plane, at, sunwards);
      }
    }
  }
};

}  // namespace dialwright
