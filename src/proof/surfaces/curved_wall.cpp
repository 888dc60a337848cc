// The developments of the bent walls.
#include "proof/surfaces/curved_wall.hpp"

#include <algorithm>
#include <numbers>

namespace dialwright::proof {

namespace {

// A point on the wall is its own shadow, up to the last digits: metres of the way to the wall.
constexpr double kOnWall = -1e-12;

// The real roots of a w^2 + 2 b w + c.
std::array<std::optional<double>, 2> rootsOf(double a, double b, double c) {
  const double square = b * b - a * c;
  if (!(square >= 0)) return {};
  const double big = -(b + std::copysign(std::sqrt(square), b));
  std::array<std::optional<double>, 2> roots;
  if (std::abs(a) > 1e-15 * std::abs(big)) roots[0] = big / a;
  if (big != 0) roots[1] = c / big;
  return roots;
}

}  // namespace

std::optional<Place> CurvedWall::place(Punto spot) const {
  const std::optional<double> u = unroll(spot.x);
  if (!u) return std::nullopt;
  Place place = section(*u);
  place.at.z = spot.y;
  return place;
}

std::optional<Punto> CurvedWall::shadow(Vec point, Vec sunwards) const {
  const Vec level{sunwards.x, sunwards.y, 0};
  const double square = dot(level, level);
  if (!(square > 0)) return std::nullopt;
  std::optional<Punto> first;
  double least = HUGE_VAL;
  for (const std::optional<double>& u : crossings(point, level)) {
    if (!u) continue;
    const Place hit = section(*u);
    const double way = dot(point - hit.at, level) / square;
    if (way < kOnWall || way >= least || !(dot(hit.normal, sunwards) >= 0)) continue;
    least = way;
    first = Punto{arc(*u), point.z - way * sunwards.z};
  }
  return first;
}

// --- The cylinder

RoundWall::RoundWall(double radius, Side side, double declination)
    : radius_(radius),
      side_(side == Side::Outside ? 1 : -1),
      normal_{-std::sin(declination), -std::cos(declination), 0},
      right_{std::cos(declination), -std::sin(declination), 0},
      centre_(-side_ * radius * normal_) {}

Place RoundWall::section(double u) const {
  const Vec normal = std::cos(u) * normal_ + side_ * std::sin(u) * right_;
  return {centre_ + side_ * radius_ * normal, normal};
}

std::optional<double> RoundWall::unroll(double arc) const {
  constexpr double kHalfTurn = std::numbers::pi * (1 + 1e-9);
  const double u = arc / radius_;
  return std::abs(u) <= kHalfTurn ? std::optional(u) : std::nullopt;
}

Punto RoundWall::imageNear(Punto spot, Punto image) const {
  return {spot.x + std::remainder(image.x - spot.x, 2 * std::numbers::pi * radius_), image.y};
}

CurvedWall::Crossings RoundWall::crossings(Vec through, Vec along) const {
  Vec from = through - centre_;
  from.z = 0;
  Crossings found =
      rootsOf(dot(along, along), dot(from, along), dot(from, from) - radius_ * radius_);
  for (std::optional<double>& w : found) {
    if (!w) continue;
    const Vec hit = from + *w * along;
    w = std::atan2(dot(hit, right_), side_ * dot(hit, normal_));
  }
  return found;
}

// --- The parabola

Place ParabolicWall::section(double u) const {
  return {{u, northOf(u), 0}, unit(Vec{slopeAt(u), -1, 0})};
}

// By Gauss's rule of five points over pieces of the slope.
double ParabolicWall::arc(double u) const {
  constexpr double kNodes[] = {0, 0.5384693101056831, 0.9061798459386640};
  constexpr double kWeights[] = {0.5688888888888889, 0.4786286704993665, 0.2369268850561891};
  const auto speed = [this](double at) { return std::hypot(1, slopeAt(at)); };
  const double count = std::clamp(std::ceil(std::abs(u / parameter_) / 0.5), 1.0, 1000.0);
  const double half = u / count / 2;
  double sum = 0;
  for (int i = 0; i < count; ++i) {
    const double middle = (2 * i + 1) * half;
    sum += kWeights[0] * speed(middle);
    for (const int k : {1, 2}) {
      const double aside = kNodes[k] * half;
      sum += kWeights[k] * (speed(middle - aside) + speed(middle + aside));
    }
  }
  return sum * half;
}

// Newton's way, kept to where the u can be: no arc is shorter than its chord.
std::optional<double> ParabolicWall::unroll(double arcLength) const {
  const double reach = std::abs(arcLength);
  double u = std::clamp(arcLength / std::hypot(1, slope_), -reach, reach);
  for (int i = 0; i < 60; ++i) {
    const double miss = arc(u) - arcLength;
    u = std::clamp(u - miss / std::hypot(1, slopeAt(u)), -reach, reach);
    if (std::abs(miss) < 1e-13 * (1 + reach)) return u;
  }
  return std::nullopt;
}

CurvedWall::Crossings ParabolicWall::crossings(Vec through, Vec along) const {
  Crossings found = rootsOf(along.x * along.x / (2 * parameter_),
                            (along.x * (slope_ + through.x / parameter_) - along.y) / 2,
                            northOf(through.x) - through.y);
  for (std::optional<double>& w : found) {
    if (w) w = through.x + *w * along.x;
  }
  return found;
}

}  // namespace dialwright::proof
