// A dial on a plane wall: the panel set for the site, and the sky's model of the plane.
#pragma once

#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"
#include "support/sky.hpp"

namespace dialwright {

// Degrees.
struct Site {
  double latitude, declination, reclination = 0;
};

class WallCase : public DialCase {
 public:
  static constexpr double kStyle = 0.2;

  WallCase(Item item, Driver driver, const Site& site_)
      : DialCase(item, driver),
        site(site_),
        latitude(sky::rad(site_.latitude)),
        plane(sky::Plane::facing(site_.declination, site_.reclination)) {
    set(Field::txtLAT, textOf(site.latitude)).set(Field::txtDecl, textOf(site.declination));
    set(Field::txtReclinZ, textOf(90 - site.reclination));
  }

  sky::Vec pole() const { return {0, std::cos(latitude), std::sin(latitude)}; }
  // Where the polar style meets the plane.
  sky::Spot centre() const { return plane.tipShadow(kStyle, pole()); }

  Site site;
  double latitude;
  sky::Plane plane;
};

}  // namespace dialwright
