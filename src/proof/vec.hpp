// Vectors of the proof's space: x to the East, y to the North, z upwards, metres.
#pragma once

#include <cmath>

namespace dialwright::proof {

struct Vec {
  double x = 0, y = 0, z = 0;

  friend Vec operator+(Vec a, Vec b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
  friend Vec operator-(Vec a, Vec b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
  friend Vec operator-(Vec a) { return {-a.x, -a.y, -a.z}; }
  friend Vec operator*(double k, Vec a) { return {k * a.x, k * a.y, k * a.z}; }
};

inline constexpr Vec kEast{1, 0, 0}, kNorth{0, 1, 0}, kUp{0, 0, 1};

inline double dot(Vec a, Vec b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Vec cross(Vec a, Vec b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double length(Vec a) { return std::sqrt(dot(a, a)); }
inline Vec unit(Vec a) { return (1 / length(a)) * a; }
// A direction of length 1 square to another one.
inline Vec square(Vec a) {
  return unit(std::abs(a.z) < 0.9 * length(a) ? cross(a, {0, 0, 1}) : cross(a, {1, 0, 0}));
}
// The angle between two directions, radians; also a small one keeps its digits.
inline double angle(Vec a, Vec b) { return std::atan2(length(cross(a, b)), dot(a, b)); }

}  // namespace dialwright::proof
