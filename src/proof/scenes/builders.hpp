// The makers of the scenes, one a kind of dial.
#pragma once

#include "proof/scenes.hpp"

namespace dialwright::proof {

using SceneMaker = std::optional<Scene> (*)(const Panel&);

std::optional<Scene> universalDial(const Panel& panel);
std::optional<Scene> scaphe(const Panel& panel);
std::optional<Scene> cylindricalCornice(const Panel& panel);
std::optional<Scene> conicalCornice(const Panel& panel);
std::optional<Scene> outerDisc(const Panel& panel);
std::optional<Scene> innerDisc(const Panel& panel);
std::optional<Scene> skyChart(const Panel& panel);

}  // namespace dialwright::proof
