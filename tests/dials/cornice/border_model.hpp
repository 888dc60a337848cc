// The border of a cornice dial and the suns whose light grazes it, from first principles: the plane
// of an hour holds the pole and the hour's suns, and at that hour the border's shadow touches the
// hour's line where this plane touches the border and has all of it on one side.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <vector>

#include "lettering/roman.hpp"
#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"
#include "support/sky.hpp"

namespace dialwright {

// Hour angle and declination of a sun, degrees.
struct Moment {
  double hour = 0, day = 0;
};

struct Border {
  double latitude;  // degrees
  double radius;
  sky::Vec centre{};  // on the level 0

  // The border's point where the plane of an hour touches it, on one of two sides.
  sky::Vec touch(double H, double side) const {
    const sky::Vec n = normal(H);
    const double k = side * radius / std::hypot(n.x, n.y);
    return centre + sky::Vec{k * n.x, k * n.y, 0};
  }

  // The suns above the horizon whose ray to a spot touches the border in this way.
  std::vector<Moment> grazing(sky::Vec spot) const {
    std::vector<Moment> suns;
    for (const double side : {-1.0, 1.0}) {
      const auto off = [&](double H) { return dot(normal(H), touch(H, side) - spot); };
      for (double t = -90.137; t < 90; t += 0.5) {
        double low = sky::rad(t), high = sky::rad(t + 0.5);
        if (off(low) * off(high) > 0) continue;
        for (int i = 0; i < 60; ++i) {
          const double middle = (low + high) / 2;
          (off(low) * off(middle) > 0 ? low : high) = middle;
        }
        const sky::Vec ray = touch(low, side) - spot;
        const sky::Vec sun = (1 / std::sqrt(dot(ray, ray))) * ray;
        const double phi = sky::rad(latitude);
        suns.push_back(
            {sky::deg(sky::hourAngleOf(phi, sun)), sky::deg(sky::declinationOf(phi, sun))});
      }
    }
    return suns;
  }

  // How far (metres) a spot lies from the ray of a sun through the border's point of its hour.
  double miss(sky::Vec spot, Moment moment) const {
    const auto from = [&](double side) {
      const sky::Vec off = cross(sun(moment), spot - touch(sky::rad(moment.hour), side));
      return std::sqrt(dot(off, off));
    };
    return std::min(from(-1), from(1));
  }

  // How far the ray from a spot towards a sun passes the border, on its level.
  double passes(sky::Vec spot, Moment moment) const {
    const sky::Vec ray = sun(moment);
    const sky::Vec at = spot - (spot.z / ray.z) * ray - centre;
    return std::hypot(at.x, at.y) - radius;
  }

 private:
  sky::Vec sun(Moment moment) const {
    return sky::sun(sky::rad(latitude), sky::rad(moment.hour), sky::rad(moment.day));
  }
  // Of the hour's plane, a unit vector.
  sky::Vec normal(double H) const {
    const double phi = sky::rad(latitude);
    return cross({0, std::cos(phi), std::sin(phi)}, sky::sun(phi, H, 0));
  }
};

// The moments that a family of lines is drawn for: each brings a sun to the nearest of them.
inline auto wholeHours(double step) {
  return [step](Moment sun) {
    return Moment{15 * std::round(sun.hour / 15),
                  -23.445 + step * std::round((sun.day + 23.445) / step)};
  };
}
inline auto oneDay(double day) {
  return [day](Moment sun) { return Moment{sun.hour, day}; };
}

// What the lines of a family were found to be.
struct Found {
  double worst = 0;     // greatest miss, metres
  std::set<int> hours;  // the hour angles met, degrees (rounded)
  std::size_t lines = 0;
};

// A cornice dial that draws the families of some boxes only.
class CorniceDial : public DialCase {
 public:
  CorniceDial(Item item, Driver driver, const Border& edge, std::initializer_list<Field> boxes)
      : DialCase(item, driver), border(edge) {
    clearBoxes();
    for (const Field box : boxes) panel.setState(box, true);
    set(Field::txtLAT, textOf(edge.latitude));
  }
  virtual ~CorniceDial() = default;

  // Carries a sheet's point, upwards positive, back to the surface.
  virtual sky::Vec place(sky::Spot at) const = 0;

  // Looks at the ends of every nth line.
  template <class Nominal>
  Found examine(const std::vector<LineRecord>& lines, Nominal nominal, std::size_t stride = 61) {
    Found found;
    found.lines = lines.size();
    for (std::size_t i = 0; i < lines.size(); i += stride) {
      for (const sky::Spot at :
           {sky::Spot{lines[i].x1, -lines[i].y1}, sky::Spot{lines[i].x2, -lines[i].y2}}) {
        if (at.y > -2e-3) continue;  // next to the border all hours meet
        double best = std::numeric_limits<double>::infinity();
        Moment moment;
        for (const Moment sun : border.grazing(place(at))) {
          const double miss = border.miss(place(at), nominal(sun));
          if (miss < best) best = miss, moment = nominal(sun);
        }
        found.worst = std::max(found.worst, best);
        found.hours.insert(static_cast<int>(std::lround(moment.hour)));
      }
    }
    return found;
  }
  // All lines of a layer are grazing light, and there are more than so many; gives their hours.
  template <class Nominal>
  std::set<int> expectGrazing(const char* layer, Nominal nominal, std::size_t least) {
    const Found found = examine(linesOf(layer), nominal);
    EXPECT_LT(found.worst, 2e-9) << layer << " at " << border.latitude;
    EXPECT_GT(found.lines, least) << layer;
    return found.hours.empty() ? std::set{0} : found.hours;
  }

  // A point of the border's shadow at a moment.
  void expectShadow(double x, double sheetY, Moment moment) const {
    EXPECT_NEAR(border.passes(place({x, -sheetY}), moment), 0, 1e-8);
  }

  // Runs with numerals so small that they are points: they run from 5 to 12 and from 12 to 7, with
  // noon twice or not at all, each where the border's point of its hour throws its shadow.
  void expectNumerals(double day, bool noon) {
    sheet.QuadranteH(15);
    sheet.QuadranteL(15);
    sheet.ShiftX(7.5);
    sheet.ShiftY(7.5);
    set(Field::txtNumbersize, "1e-9").set(Field::txtLineofdeclination, textOf(day));
    check(Field::ckRomani).run();
    std::vector<LineRecord> drawn = linesIn(palette(7));
    std::erase_if(drawn, [](const LineRecord& line) {
      return std::hypot(line.x2 - line.x1, line.y2 - line.y1) >= 1e-7;
    });

    std::size_t next = 0;
    for (int k = 0; k < 16; ++k) {
      const double t = 15 * (k < 8 ? k - 7 : k - 8);
      if (t == 0 && !noon) continue;
      Ports ports;
      SheetPlot other;
      Run run(panel, params, other, ports);
      DisegnaNumeroRomano(run, 0, 0, 0, k < 8 ? k + 5 : k > 8 ? k - 8 : 12, 1);
      for (std::size_t i = 0; i < other.list().lines.size(); ++i, ++next) {
        ASSERT_LT(next, drawn.size());
        EXPECT_LT(border.miss(place({drawn[next].x1, -drawn[next].y1}), {t, day}), 5e-9) << t;
      }
    }
    EXPECT_EQ(next, drawn.size());
    EXPECT_EQ(pointsIn(palette(4)).size(), noon ? 8u : 7u);
  }

  const Border border;
};

}  // namespace dialwright
