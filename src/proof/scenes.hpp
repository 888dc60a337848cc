// The scene of each dial: how the proof sees a panel.
#pragma once

#include <optional>

#include "proof/scene.hpp"
#include "shell/panel.hpp"

namespace dialwright::proof {

// The scene of the chosen dial as its fields have it; nothing for a dial without a shadow, or with
// fields that make none.
std::optional<Scene> sceneOf(const Panel& panel);

// True for a dial that has a scene where its fields make sense.
bool hasScenes(Item dial);

// The same of a dial that a body throws its shadow on: nothing for a chart, which is a map of the
// sky.
std::optional<Scene> shadowSceneOf(const Panel& panel);

// The number of a field, 0 when it is too large.
double numberIn(const Panel& panel, Field field);

}  // namespace dialwright::proof
