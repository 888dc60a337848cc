// Throwing the casters' outlines onto the surface.
#include "proof/shade.hpp"

#include <algorithm>

namespace dialwright::proof {

namespace {

constexpr int kPieces = 48;  // of a straight piece: its shadow on a bent surface is bent
// A jump of the shadow over a seam or around a corner is no line, metres a piece.
constexpr double kJump = 0.5;

}  // namespace

std::vector<Polyline> shadowOf(const Scene& scene, const Sun& sun) {
  std::vector<Polyline> lines;
  const Vec sunwards = scene.sky.towards(sun);
  if (!(sunwards.z > 0)) return lines;
  Polyline line;
  const auto finish = [&] {
    if (line.size() > 1) lines.push_back(line);
    line.clear();
  };
  const auto visit = [&](Vec point) {
    const auto spot = scene.surface->shadow(point, sunwards);
    const auto place = spot ? scene.surface->place(*spot) : std::nullopt;
    const bool lit = place && dot(place->normal, sunwards) > 0;
    const bool jumps = lit && !line.empty() &&
                       std::hypot(spot->x - line.back().x, spot->y - line.back().y) > kJump;
    if (!lit || jumps) finish();
    if (lit) line.push_back(*spot);
  };
  std::vector<const Caster*> seen;
  for (const Casters& of : scene.casters) {
    for (const auto& caster : of.all) {
      if (std::find(seen.begin(), seen.end(), caster.get()) != seen.end()) continue;
      seen.push_back(caster.get());
      for (const std::vector<Vec>& outline : caster->outline(sunwards)) {
        for (std::size_t i = 0; i + 1 < outline.size(); ++i) {
          const int pieces = outline.size() > 2 ? 1 : kPieces;
          for (int k = i == 0 ? 0 : 1; k <= pieces; ++k)
            visit(outline[i] + (static_cast<double>(k) / pieces) * (outline[i + 1] - outline[i]));
        }
        finish();
      }
    }
  }
  return lines;
}

}  // namespace dialwright::proof
