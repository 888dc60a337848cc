// The shadow of a whole caster at a moment, as lines of the drawing.
#pragma once

#include <vector>

#include "proof/scene.hpp"

namespace dialwright::proof {

using Polyline = std::vector<Punto>;

// The shadow of everything that casts one, cut where it leaves the surface. Empty while the sun is
// down or behind the whole dial.
std::vector<Polyline> shadowOf(const Scene& scene, const Sun& sun);

}  // namespace dialwright::proof
