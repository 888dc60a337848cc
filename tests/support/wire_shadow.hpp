// Two wires before a wall, from rays: the sun whose shadows of both cross at a spot.
#pragma once

#include "support/ball_shadow.hpp"

namespace dialwright::sky {

// An upright wire before the origin at the distance d2, and at d1 a chain with its vertex at the
// depth sag, of that scale.
struct WireAndChain {
  double d1, d2, sag, scale;

  double chainAt(double x) const { return scale * (std::cosh(x / scale) - 1) - sag; }
  // How the ray from the spot moves on the wall for each metre that it leaves it.
  Vec sunAt(const Plane& wall, Spot spot) const {
    const double aside = -spot.x / d2;
    const double rise = (chainAt(spot.x + d1 * aside) - spot.y) / d1;
    return unit(onPlane(wall, {aside, rise}) + wall.normal);
  }
};

// A straight wire over the substyle at the distance a, and one across it over the origin at b.
struct CrossedWires {
  double a, b, latitude;

  // Along the wall as the axis of the world lies over it.
  Vec substyle(const Plane& wall) const {
    const Vec pole{0, std::cos(latitude), std::sin(latitude)};
    return unit(pole - dot(pole, wall.normal) * wall.normal);
  }
  Vec sunAt(const Plane& wall, Spot spot) const {
    const Vec at = onPlane(wall, spot), along = substyle(wall), across = cross(along, wall.normal);
    return unit((-dot(at, across) / a) * across + (-dot(at, along) / b) * along + wall.normal);
  }
};

}  // namespace dialwright::sky
