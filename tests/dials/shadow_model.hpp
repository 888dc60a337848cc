// The shadows that the dials must draw, from first principles: a sun is a vector, its ray leaves a
// point of what throws the shadow, and is followed until it is behind the surface.
#pragma once

#include <functional>
#include <vector>

#include "support/sky.hpp"

namespace dialwright::sky {

inline double length(Vec v) { return std::sqrt(dot(v, v)); }
inline Vec unit(Vec v) { return (1 / length(v)) * v; }

inline constexpr Vec kEast{1, 0, 0}, kNorth{0, 1, 0}, kUp{0, 0, 1};

// --- Surfaces, with the drawing's x to the right and its y upwards

struct Surface {
  std::function<double(Vec)> behind;  // negative on the side of the light
  std::function<Spot(Vec)> unroll;
};

inline Surface flat(const Plane& plane, Vec origin = {}) {
  return {[=](Vec p) { return -dot(p - origin, plane.normal); },
          [=](Vec p) {
            return Spot{dot(p - origin, plane.right), dot(p - origin, plane.up)};
          }};
}

// An upright cylinder that looks to a declination (degrees) in the origin, seen from outside (+1)
// or from inside (-1).
inline Surface round(double radius, double side, double declination) {
  const Plane there = Plane::facing(declination, 0);
  const auto fromAxis = [=](Vec p) { return p + side * radius * there.normal; };
  return {[=](Vec p) {
            const Vec v = fromAxis(p);
            return side * (radius - std::hypot(v.x, v.y));
          },
          [=](Vec p) {
            const Vec v = fromAxis(p);
            const double turn = std::atan2(dot(v, there.right), side * dot(v, there.normal));
            return Spot{radius * turn, p.z};
          }};
}

// An upright wall on a parabola with its axis in the meridian and its vertex in the South (+1) or
// in the North (-1), which looks to a declination (degrees) in the origin.
inline Surface parabolic(double parameter, double side, double declination) {
  const auto slope = [=](double east) {
    return side * east / parameter - std::tan(rad(declination));
  };
  return {[=](Vec p) { return p.y - p.x * slope(p.x / 2); },
          [=](Vec p) {
            double arc = 0;
            constexpr int kPieces = 2000;
            for (int i = 0; i < kPieces; ++i)
              arc += p.x / kPieces * std::hypot(1, slope(p.x * (i + 0.5) / kPieces));
            return Spot{arc, p.z};
          }};
}

// The inside of a cone about a vertex, unrolled about it: the generator that leads to `start` from
// the axis stays, the next ones turn to that of `quarter`.
struct Hollow {
  Vec vertex, axis, start, quarter;
  double semiAngle;  // radians

  double reach(Vec p) const { return length(p - vertex); }
  double behind(Vec p) const {
    return std::atan2(length(cross(axis, p - vertex)), dot(axis, p - vertex)) - semiAngle;
  }
  double turn(Vec p) const {
    return std::sin(semiAngle) * std::atan2(dot(p - vertex, quarter), dot(p - vertex, start));
  }
  Vec roll(double rho, double angle) const {
    const double round = angle / std::sin(semiAngle);
    const Vec out = std::cos(round) * start + std::sin(round) * quarter;
    return vertex + rho * (std::cos(semiAngle) * axis + std::sin(semiAngle) * out);
  }
};

// About the earth's axis, with the tip of a level style as origin, at a latitude and of a
// semi-angle in degrees: the vertex is where the style, laid from its tip to the North, ends on the
// cone.
inline Hollow hollowAboutAxis(double latitude, double semiAngle, double style) {
  const Vec pole{0, std::cos(rad(latitude)), std::sin(rad(latitude))};
  Hollow cone{{}, -1 * pole, {0, pole.z, -pole.y}, kEast, rad(semiAngle)};
  double near = 0, far = 100;
  for (int i = 0; i < 200; ++i) {
    const double middle = (near + far) / 2;
    cone.vertex = middle * pole;
    (cone.behind(style * kNorth) > 0 ? near : far) = middle;
  }
  return cone;
}

// --- What throws the shadow

// The points, for a sun, whose shadows are the dial's.
using Nodus = std::function<std::vector<Vec>(Vec sunwards)>;

inline Nodus tip(Vec at) {
  return [=](Vec) { return std::vector{at}; };
}
// Of a level ring, the point under the sun (+1) or opposite to it (-1).
inline Nodus ringsPoint(Vec centre, double radius, double side) {
  return [=](Vec s) { return std::vector{centre + side * radius * unit({s.x, s.y, 0})}; };
}
// Of a ball over a plane, the point where the light grazes its upper side.
inline Nodus ballsPoint(Vec centre, double radius, Vec normal) {
  return [=](Vec s) { return std::vector{centre + radius * unit(normal - dot(normal, s) * s)}; };
}
// Of a level ring, the points that the plane of the hour touches, which holds the pole and the sun:
// on the half towards the sun (+1), away from it (-1) or on both (0).
inline Nodus ringsTangent(Vec pole, Vec centre, double radius, double half) {
  return [=](Vec s) {
    const Vec normal = cross(pole, s);
    const Vec out = radius * unit({normal.x, normal.y, 0});
    std::vector<Vec> points;
    for (const double side : {1.0, -1.0}) {
      if (half * side * dot(out, s) >= 0) points.push_back(centre + side * out);
    }
    return points;
  };
}

// --- Dials

// Where the shadows of a sun fall.
using Shadows = std::function<std::vector<Spot>(Vec sunwards)>;

inline Shadows shadowsOf(const Nodus& nodus, const Surface& surface) {
  return [=](Vec s) {
    std::vector<Spot> spots;
    for (const Vec& from : nodus(s)) {
      const auto behind = [&](double way) { return surface.behind(from - way * s) >= 0; };
      double near = 1e-6, far = 0.01;
      if (behind(near)) continue;
      while (far < 20 && !behind(far)) near = far, far += 0.01;
      if (far >= 20) continue;
      for (int i = 0; i < 50; ++i) {
        const double middle = (near + far) / 2;
        (behind(middle) ? far : near) = middle;
      }
      spots.push_back(surface.unroll(from - far * s));
    }
    return spots;
  };
}

// The crossing of the shadows of two straight wires parallel to a plane: one along a direction, the
// other one across it, each at its distance.
inline Shadows crossedWires(const Plane& plane, Vec along, double distance, double distanceAcross) {
  return [=](Vec s) {
    if (!plane.lit(s)) return std::vector<Spot>{};
    const Spot a = plane.tipShadow(distance, s), b = plane.tipShadow(distanceAcross, s);
    const Spot u{dot(along, plane.right), dot(along, plane.up)};
    const double way = (b.x - a.x) * u.x + (b.y - a.y) * u.y;
    return std::vector{Spot{a.x + way * u.x, a.y + way * u.y}};
  };
}

// A catenary's scale by bisection of the sag of a half span.
inline double scaleOfChain(double halfSpan, double sag) {
  double low = 1e-3, high = 1e6;
  for (int i = 0; i < 200; ++i) {
    const double f = std::sqrt(low * high);
    (f * (std::cosh(halfSpan / f) - 1) > sag ? low : high) = f;
  }
  return low;
}

// The crossing of the shadows of an upright wire and of a chain parallel to the plane, which hangs
// from points on the level of the origin.
inline Shadows wireAndChain(const Plane& plane, double wire, double chain, double halfSpan,
                            double sag) {
  const double scale = scaleOfChain(halfSpan, sag);
  return [=](Vec s) {
    if (!plane.lit(s)) return std::vector<Spot>{};
    const Spot a = plane.tipShadow(wire, s), b = plane.tipShadow(chain, s);
    const double x = a.x - b.x;
    if (std::abs(x) > halfSpan) return std::vector<Spot>{};
    return std::vector{Spot{a.x, b.y + scale * (std::cosh(x / scale) - 1) - sag}};
  };
}

}  // namespace dialwright::sky
