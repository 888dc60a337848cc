// The stereographic chart: each of its points stands for a direction of the sky.
#include "proof/surfaces/chart.hpp"
#include "proof/scenes/builders.hpp"

namespace dialwright::proof {

std::optional<Scene> skyChart(const Panel& panel) {
  const double radius = numberIn(panel, Field::TxtRadius);
  if (!(radius > 0)) return std::nullopt;
  Scene scene;
  scene.sky = Sky(radians(numberIn(panel, Field::txtLAT)));
  scene.surface = std::make_shared<Chart>(scene.sky, radius);
  scene.casters = {{CurveFamily::None, {std::make_shared<Tip>(Vec{})}}};
  return scene;
}

}  // namespace dialwright::proof
