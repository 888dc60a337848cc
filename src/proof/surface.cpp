// The developments of the surfaces.
#include "proof/surface.hpp"

namespace dialwright::proof {

Plane Plane::facing(double declination, double reclination) {
  const double sinD = std::sin(declination), cosD = std::cos(declination);
  const double level = std::cos(reclination);
  return {{}, {-sinD * level, -cosD * level, std::sin(reclination)}, {cosD, -sinD, 0}};
}

std::optional<Punto> Plane::shadow(Vec point, Vec sunwards) const {
  const double depth = dot(normal_, sunwards);
  const Vec above = point - origin_;
  const double height = dot(normal_, above);
  if (!(depth > 0) || height < 0) return std::nullopt;
  const Vec hit = above - (height / depth) * sunwards;
  return Punto{dot(hit, right_), dot(hit, up_)};
}

}  // namespace dialwright::proof
