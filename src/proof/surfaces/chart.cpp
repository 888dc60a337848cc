// From the map to the sky and back. The line from the southern pole to a spot pierces the unit
// sphere where the sum of its parts' squares is 1. (Standard: J. P. Snyder, Map Projections, the
// polar stereographic projection of the sphere.)
#include "proof/surfaces/chart.hpp"

namespace dialwright::proof {

namespace {

constexpr Vec kWest{-1, 0, 0};

}  // namespace

std::optional<Place> Chart::place(Punto spot) const {
  const double west = spot.x / radius_, south = spot.y / radius_;
  const double way = 2 / (1 + west * west + south * south);  // of the line from the southern pole
  const Vec direction = way * west * kWest + way * south * south_ + (way - 1) * pole_;
  return Place{-direction, kUp};
}

std::optional<Punto> Chart::shadow(Vec, Vec sunwards) const {
  const double height = 1 + dot(sunwards, pole_);  // over the southern pole
  if (!(height > 0)) return std::nullopt;
  const double scale = radius_ / height;
  return Punto{scale * dot(sunwards, kWest), scale * dot(sunwards, south_)};
}

}  // namespace dialwright::proof
