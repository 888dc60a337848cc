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

// clang-format off: a row a line
constexpr SceneRow kScenes[] = {
    {Item::M_Light, wallDial},
    {Item::M_Inclinati, reclinedDial},
    {Item::M_Proiettivo, reclinedDial},
    {Item::M_nProiettivo, reclinedDial},
    {Item::M_Frinter, wallDial},
    {Item::mnuVertSph, wallDial},
    {Item::mnuUni, universalDial},
    {Item::M_Param, dottedCylinder},
    {Item::M_CILINDRICI, dottedCylinder},
    {Item::M_Parabolico, parabolicCylinder},
    {Item::mnuCircp, dottedCylinder},
    {Item::mnuCCs, sphericalCylinder},
    {Item::mnuChapeau, filteringHat},
    {Item::mnuFontana_H3, fountain},
    {Item::mnuBifvert, equiangularDial},
    {Item::mnucatenaria, wireAndChain},
    {Item::mnuBall, levelBall},
    {Item::mnuBall_v, uprightBall},
    {Item::mnuCorncil, cylindricalCornice},
    {Item::mnuCorncon, conicalCornice},
    {Item::mnuCorn_flat, outerDisc},
    {Item::mnuCorn_flat2, innerDisc},
    {Item::mnuConoAntico, scaphe},
    {Item::mnuDia, skyChart},
};
// clang-format on

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

std::optional<Scene> shadowSceneOf(const Panel& panel) {
  if (panel.chosen() == Item::mnuDia) return std::nullopt;
  return sceneOf(panel);
}

double numberIn(const Panel& panel, Field field) {
  const double value = panel.number(field);
  return std::isfinite(value) ? value : 0;
}

}  // namespace dialwright::proof
