// The developments of the surfaces.
#include "proof/surface.hpp"

namespace dialwright::proof {

namespace {

// How far behind a surface a point may seem to lie that lies on it, metres.
constexpr double kOnSurface = 1e-12;

}  // namespace

Plane Plane::facing(double declination, double reclination) {
  const double sinD = std::sin(declination), cosD = std::cos(declination);
  const double level = std::cos(reclination);
  return {{}, {-sinD * level, -cosD * level, std::sin(reclination)}, {cosD, -sinD, 0}};
}

std::optional<Punto> Plane::shadow(Vec point, Vec sunwards) const {
  const double depth = dot(normal_, sunwards);
  const Vec above = point - origin_;
  const double height = dot(normal_, above);
  if (!(depth > 0) || height < -kOnSurface) return std::nullopt;
  const Vec hit = above - (height / depth) * sunwards;
  return Punto{dot(hit, right_), dot(hit, up_)};
}

}  // namespace dialwright::proof
