// Rolling and unrolling the cone.
#include "proof/surfaces/cone.hpp"

#include <numbers>

namespace dialwright::proof {

namespace {

constexpr double kTurn = 1 + 1e-8;  // half a one, with the last digits of its edge
constexpr double kBack = -1e-9;     // metres: a caster on the surface itself

}  // namespace

Cone::Polar Cone::polar(Punto spot) const {
  const double dx = spot.x - sector_.vertex.x, dy = spot.y - sector_.vertex.y;
  const double along = dx * sector_.start.x + dy * sector_.start.y;
  const double aside = dx * sector_.quarter.x + dy * sector_.quarter.y;
  return {std::hypot(along, aside), std::atan2(aside, along)};
}

Punto Cone::spotAt(const Polar& at) const {
  const double along = at.reach * std::cos(at.angle), aside = at.reach * std::sin(at.angle);
  return {sector_.vertex.x + along * sector_.start.x + aside * sector_.quarter.x,
          sector_.vertex.y + along * sector_.start.y + aside * sector_.quarter.y};
}

std::optional<Place> Cone::place(Punto spot) const {
  const auto [rho, angle] = polar(spot);
  const double round = angle / sine_;
  if (std::abs(round) > std::numbers::pi * kTurn) return std::nullopt;
  const Vec out = std::cos(round) * stand_.start + std::sin(round) * stand_.quarter;
  return Place{stand_.vertex + rho * (cosine_ * stand_.axis + sine_ * out),
               sine_ * stand_.axis - cosine_ * out};
}

Punto Cone::imageNear(Punto spot, Punto image) const {
  Polar at = polar(image);
  if (std::abs(at.angle) * kTurn < std::numbers::pi * sine_) return image;
  at.angle = std::copysign(at.angle, polar(spot).angle);
  return spotAt(at);
}

// On the cone the way from the vertex and its part along the axis keep the ratio of the cosine.
std::optional<Punto> Cone::shadow(Vec point, Vec sunwards) const {
  const Vec w = point - stand_.vertex;
  const double c2 = cosine_ * cosine_;
  const double wa = dot(w, stand_.axis), sa = dot(sunwards, stand_.axis);
  const double a = sa * sa - c2, b = wa * sa - c2 * dot(w, sunwards), c = wa * wa - c2 * dot(w, w);
  const double square = b * b - a * c;
  if (!(square >= 0)) return std::nullopt;
  std::optional<Punto> found;
  double longest = kBack;
  for (const double sign : {-1.0, 1.0}) {
    const double k = (b + sign * std::sqrt(square)) / a;
    const Vec at = w - k * sunwards;
    const double depth = dot(at, stand_.axis);
    if (!(k >= longest) || !(depth > 0)) continue;
    const double x = dot(at, stand_.start), y = dot(at, stand_.quarter);
    const double radius = std::hypot(x, y);
    const Vec out = (1 / radius) * (x * stand_.start + y * stand_.quarter);
    if (dot(sine_ * stand_.axis - cosine_ * out, sunwards) < 0) continue;  // from outside
    longest = k;
    found = spotAt({radius / sine_, std::atan2(y, x) * sine_});
  }
  return found;
}

}  // namespace dialwright::proof
