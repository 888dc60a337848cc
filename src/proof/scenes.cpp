// The table of the scenes.
#include "proof/scenes.hpp"

#include <algorithm>

#include "proof/scenes/builders.hpp"

namespace dialwright::proof {

namespace {

struct SceneRow {
  Item dial;
  SceneMaker make;
};

constexpr SceneRow kScenes[] = {
    {Item::mnuUni, universalDial},      {Item::mnuCorncil, cylindricalCornice},
    {Item::mnuCorncon, conicalCornice}, {Item::mnuCorn_flat, outerDisc},
    {Item::mnuCorn_flat2, innerDisc},   {Item::mnuConoAntico, scaphe},
    {Item::mnuDia, skyChart},
};

}  // namespace

std::optional<Scene> sceneOf(const Panel& panel) {
  const Item dial = panel.chosen();
  for (const SceneRow& row : kScenes) {
    if (row.dial == dial) return row.make(panel);
  }
  return std::nullopt;
}

bool hasScenes(Item dial) {
  return std::ranges::any_of(kScenes, [=](const SceneRow& row) { return row.dial == dial; });
}

double numberIn(const Panel& panel, Field field) {
  const double value = panel.number(field);
  return std::isfinite(value) ? value : 0;
}

}  // namespace dialwright::proof
