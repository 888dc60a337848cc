// The shadows of a ball and of a level rim on a plane, from rays: where they end, and the sun of
// that end.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "support/sky.hpp"

namespace dialwright::sky {

inline Vec unit(Vec a) { return (1 / std::sqrt(dot(a, a))) * a; }
inline Vec onPlane(const Plane& plane, Spot spot) {
  return spot.x * plane.right + spot.y * plane.up;
}

// A level floor drawn with the South above: x to the West, y to the South.
inline Plane floorFromTheNorth() { return Plane::facing(180, 90); }

// How far the centre of a ball lies from the ray that leaves a spot towards the sun.
inline double missOf(const Plane& plane, double height, Spot spot, Vec sunwards) {
  const Vec toCentre = height * plane.normal - onPlane(plane, spot);
  const Vec aside = cross(toCentre, sunwards);
  return std::sqrt(dot(aside, aside));
}

// A ball whose centre stands at a height over the plane's origin.
struct Ball {
  double radius, height;

  bool shades(const Plane& plane, Spot spot, Vec sunwards) const {
    return missOf(plane, height, spot, sunwards) < radius;
  }
  // The sun whose shadow ends at a spot: it touches the ball from above, in the upright plane of
  // the spot.
  Vec sunAt(const Plane& plane, Spot end) const {
    const double reach = std::hypot(end.x, end.y);
    const double up = std::atan2(height, reach) + std::asin(radius / std::hypot(reach, height));
    return std::sin(up) * plane.normal - (std::cos(up) / reach) * onPlane(plane, end);
  }
};

// A disc parallel to the plane at a height.
struct Rim {
  double radius, height;

  bool shades(const Plane& plane, Spot spot, Vec sunwards) const {
    const Vec from = onPlane(plane, spot);
    const Vec hit = from + (height / dot(plane.normal, sunwards)) * sunwards;
    return std::hypot(dot(hit, plane.right), dot(hit, plane.up)) < radius;
  }
  Vec sunAt(const Plane& plane, Spot end) const {
    const Vec foot = onPlane(plane, end);
    const double reach = std::hypot(end.x, end.y);
    return unit((radius / reach) * foot + height * plane.normal - foot);
  }
};

// The spot is the shadow's far end from the origin: shade ends there, and there is none aside at
// the same distance.
template <class Gnomon>
void expectFarEnd(const Gnomon& gnomon, const Plane& plane, Spot end, Vec sunwards) {
  const auto turned = [&](double scale, double angle) {
    return Spot{scale * (end.x * std::cos(angle) - end.y * std::sin(angle)),
                scale * (end.x * std::sin(angle) + end.y * std::cos(angle))};
  };
  EXPECT_TRUE(gnomon.shades(plane, turned(1 - 1e-6, 0), sunwards)) << end.x << ' ' << end.y;
  EXPECT_FALSE(gnomon.shades(plane, turned(1 + 1e-6, 0), sunwards)) << end.x << ' ' << end.y;
  for (const double angle : {-0.01, 0.01}) {
    EXPECT_FALSE(gnomon.shades(plane, turned(1, angle), sunwards)) << end.x << ' ' << end.y;
  }
}

// Points of a list of records on the outline of a ball's shadow, and on the edge of the shade on
// the ball as it is seen from above the plane.
template <class Points>
void expectOutlines(const Ball& ball, const Plane& plane, Vec sunwards, const Points& outline,
                    const Points& shade) {
  EXPECT_GT(outline.size(), 2000u);
  for (const auto& p : outline)
    EXPECT_NEAR(missOf(plane, ball.height, {p.x, -p.y}, sunwards), ball.radius, 1e-7);
  EXPECT_GT(shade.size(), 1000u);
  for (const auto& p : shade) {
    const Vec flat = onPlane(plane, {p.x, -p.y});
    const double out = std::sqrt(std::max(0.0, ball.radius * ball.radius - dot(flat, flat)));
    // Near the rim the height is the root of a small difference.
    EXPECT_NEAR(dot(flat + out * plane.normal, sunwards), 0, out > 0.01 ? 1e-7 : 1e-4);
  }
  // One half comes after the other.
  const Vec left = cross(plane.normal, sunwards);
  const auto side = [&](const auto& p) { return dot(left, onPlane(plane, {p.x, -p.y})); };
  EXPECT_LT(side(outline[outline.size() / 4]) * side(outline[3 * outline.size() / 4]), 0);
}

// The semi-diurnal arc in degrees, half a turn where the sun neither rises nor sets.
inline double arcOrHalfTurn(double latitude, double declination) {
  const double arc = deg(semiArc(latitude, declination));
  return std::isnan(arc) ? 180 : arc;
}

inline double offGrid(double value, double step) { return std::abs(std::remainder(value, step)); }

}  // namespace dialwright::sky
