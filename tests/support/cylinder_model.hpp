// The shadow of a tip on upright walls that are not flat, from first principles: the sun's ray
// through the tip meets the surface, and the surface is unrolled by the measured length of its
// section.
#pragma once

#include <algorithm>
#include <cmath>
#include <optional>

#include "support/sky.hpp"

namespace dialwright::sky {

// The length of the curve point(u) from u0 to u1, negative when u1 lies below u0: the sum of
// chords, carried to its limit.
template <class Curve>
double arcLength(Curve point, double u0, double u1) {
  const auto chords = [&](int count) {
    double sum = 0;
    Spot last = point(u0);
    for (int i = 1; i <= count; ++i) {
      const Spot next = point(u0 + (u1 - u0) * i / count);
      sum += distance(last, next);
      last = next;
    }
    return sum;
  };
  const double coarse = chords(64), middle = chords(128), fine = chords(256);
  const double better = (4 * middle - coarse) / 3, best = (4 * fine - middle) / 3;
  return std::copysign((16 * best - better) / 15, u1 - u0);
}

// An upright wall whose section is a curve through the foot of the style, which stands at the
// origin at right angles to the wall. `Section` gives, in the horizontal plane with the x axis to
// the viewer's right and the y axis away from the wall, along the style: point(u), the curve;
// foot(), the u of the style's foot; and meet(from, to), the u of the first point where the ray
// from one spot through another meets the curve.
template <class Section>
struct CurvedWall {
  Section section;
  Plane tangent;
  double style;

  // The tip's shadow on the development; nothing when the sun is down or the ray misses.
  std::optional<Spot> shadow(Vec sunwards) const {
    if (sunwards.z <= 0) return {};
    const Spot ray{-dot(sunwards, tangent.right), -dot(sunwards, tangent.normal)};
    const std::optional<double> u = section.meet({0, style}, ray);
    if (!u) return {};
    const Spot hit = section.point(*u);
    const double way = distance({0, style}, hit) / std::hypot(ray.x, ray.y);
    return Spot{arc(*u), -way * sunwards.z};
  }

  // Towards the sun that casts the tip's shadow on a spot of the development.
  Vec sunOf(Spot spot) const {
    const Spot hit = section.point(unroll(spot.x));
    const Vec ray = (style - hit.y) * tangent.normal - hit.x * tangent.right - Vec{0, 0, spot.y};
    return (1 / std::sqrt(dot(ray, ray))) * ray;
  }

  double arc(double u) const {
    return arcLength([this](double v) { return section.point(v); }, section.foot(), u);
  }

  // The u of an arc, by Newton's method.
  double unroll(double x) const {
    double u = section.foot() + x / section.speed(section.foot());
    for (int i = 0; i < 30; ++i) {
      const double miss = arc(u) - x;
      u -= miss / section.speed(u);
      if (std::abs(miss) < 1e-13) break;
    }
    return u;
  }
};

// A circle of a radius, its centre behind the wall (side +1, convex) or before it (-1, concave); u
// is the central angle.
struct CircleSection {
  double radius, side;

  Spot point(double u) const { return {radius * std::sin(u), side * radius * (std::cos(u) - 1)}; }
  double foot() const { return 0; }
  double speed(double) const { return radius; }
  std::optional<double> meet(Spot from, Spot ray) const {
    const Spot centre{0, -side * radius};
    const Spot d{from.x - centre.x, from.y - centre.y};
    const double a = ray.x * ray.x + ray.y * ray.y;
    const double b = d.x * ray.x + d.y * ray.y;
    const double square = b * b - a * (d.x * d.x + d.y * d.y - radius * radius);
    if (square < 0) return {};
    // From outside the near point, from inside the only one ahead.
    const double way = (-b - side * std::sqrt(square)) / a;
    if (way < 0) return {};
    return std::atan2(d.x + way * ray.x, side * (d.y + way * ray.y));
  }
};

// A parabola of a parameter with its axis in the meridian, bulging to the South (side +1) or to the
// North (-1); its tangent in the foot has the declination. u is the abscissa from the foot, to the
// East.
struct ParabolaSection {
  double parameter, side, declination;  // radians

  Spot point(double u) const {
    const double north = side * u * u / (2 * parameter) - u * std::tan(declination);
    const double c = std::cos(declination), s = std::sin(declination);
    return {u * c - north * s, -u * s - north * c};
  }
  double foot() const { return 0; }
  double speed(double u) const {
    return std::hypot(1, side * u / parameter - std::tan(declination));
  }
  std::optional<double> meet(Spot from, Spot ray) const {
    const double c = std::cos(declination), s = std::sin(declination);
    const double east = from.x * c - from.y * s, north = -from.x * s - from.y * c;
    const double toEast = ray.x * c - ray.y * s, toNorth = -ray.x * s - ray.y * c;
    // north + w * toNorth = side * E^2 / (2 * parameter) - E * tan(declination), where E = east + w
    // * toEast.
    const double k = side / (2 * parameter), t = std::tan(declination);
    const double a2 = k * toEast * toEast;
    const double a1 = 2 * k * east * toEast - t * toEast - toNorth;
    const double a0 = k * east * east - t * east - north;
    std::optional<double> first;
    const auto offer = [&](double way) {
      if (way > 0 && (!first || way < *first)) first = way;
    };
    if (std::abs(a2) < 1e-14) {
      offer(-a0 / a1);
    } else if (const double square = a1 * a1 - 4 * a2 * a0; square >= 0) {
      const double big = -(a1 + std::copysign(std::sqrt(square), a1)) / 2;
      offer(big / a2);
      offer(a0 / big);
    }
    if (!first) return {};
    return east + *first * toEast;
  }
};

inline CurvedWall<CircleSection> cylinder(double radius, double style, double declination,
                                          bool convex) {
  return {{radius, convex ? 1.0 : -1.0}, Plane::facing(declination, 0), style};
}
inline CurvedWall<ParabolaSection> parabolicWall(double parameter, double style, double declination,
                                                 bool convex) {
  return {{parameter, convex ? 1.0 : -1.0, rad(declination)}, Plane::facing(declination, 0), style};
}

}  // namespace dialwright::sky
