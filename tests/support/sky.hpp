// The sky of the shadow models: the sun as a vector and shadows as rays, from first principles and
// full-precision constants. It shares no formula with the program.
#pragma once

#include <cmath>
#include <numbers>

namespace dialwright::sky {

inline double rad(double degrees) { return degrees * std::numbers::pi / 180; }
inline double deg(double radians) { return radians * 180 / std::numbers::pi; }

struct Vec {
  double x = 0, y = 0, z = 0;

  friend Vec operator+(Vec a, Vec b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
  friend Vec operator-(Vec a, Vec b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
  friend Vec operator*(double k, Vec a) { return {k * a.x, k * a.y, k * a.z}; }
};

inline double dot(Vec a, Vec b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Vec cross(Vec a, Vec b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// Towards the sun, in the local frame East, North, Up. All in radians; the hour angle is positive
// after noon.
inline Vec sun(double latitude, double hourAngle, double declination) {
  // On the equator's frame: towards the meridian, towards the East, towards the pole.
  const Vec equatorial{std::cos(declination) * std::cos(hourAngle),
                       -std::cos(declination) * std::sin(hourAngle), std::sin(declination)};
  return {equatorial.y, equatorial.z * std::cos(latitude) - equatorial.x * std::sin(latitude),
          equatorial.z * std::sin(latitude) + equatorial.x * std::cos(latitude)};
}

struct Spot {
  double x = 0, y = 0;
};
inline double distance(Spot a, Spot b) { return std::hypot(a.x - b.x, a.y - b.y); }

// A plane through the origin with its normal towards the light, and its axes to the right and
// upwards as its viewer sees them.
struct Plane {
  Vec normal, right, up;

  // Declination of the normal from the South (West positive) and reclination from the vertical, in
  // degrees.
  static Plane facing(double declination, double reclination) {
    const double D = rad(declination), R = rad(reclination);
    const Vec normal{-std::sin(D) * std::cos(R), -std::cos(D) * std::cos(R), std::sin(R)};
    const Vec right{std::cos(D), -std::sin(D), 0};
    return {normal, right, cross(normal, right)};
  }

  bool lit(Vec sunwards) const { return sunwards.z > 0 && dot(normal, sunwards) > 0; }

  // Where the shadow of a point (in space, metres) falls.
  Spot shadow(Vec point, Vec sunwards) const {
    const Vec hit = point - (dot(normal, point) / dot(normal, sunwards)) * sunwards;
    return {dot(hit, right), dot(hit, up)};
  }

  // The shadow of the tip of a style that stands upright on the origin.
  Spot tipShadow(double style, Vec sunwards) const { return shadow(style * normal, sunwards); }

  // Towards the sun whose tip shadow is that spot.
  Vec sunOf(double style, Spot spot) const {
    const Vec ray = style * normal - (spot.x * right + spot.y * up);
    return (1 / std::sqrt(dot(ray, ray))) * ray;
  }
};

// The sun's declination (radians) of a direction in the local frame.
inline double declinationOf(double latitude, Vec sunwards) {
  return std::asin(sunwards.y * std::cos(latitude) + sunwards.z * std::sin(latitude));
}

// The hour angle (radians, positive after noon, -pi to pi) of a direction in the local frame.
inline double hourAngleOf(double latitude, Vec sunwards) {
  return std::atan2(-sunwards.x, sunwards.z * std::cos(latitude) - sunwards.y * std::sin(latitude));
}

// The semi-diurnal arc, radians; NaN where the sun neither rises nor sets.
inline double semiArc(double latitude, double declination) {
  return std::acos(-std::tan(latitude) * std::tan(declination));
}

}  // namespace dialwright::sky
