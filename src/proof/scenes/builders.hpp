// The makers of the scenes, one a kind of dial.
#pragma once

#include "proof/scenes.hpp"

namespace dialwright::proof {

using SceneMaker = std::optional<Scene> (*)(const Panel&);

// The flat dials: upright walls, reclined planes, any plane.
std::optional<Scene> wallDial(const Panel& panel);
std::optional<Scene> reclinedDial(const Panel& panel);
std::optional<Scene> universalDial(const Panel& panel);
std::optional<Scene> fountain(const Panel& panel);
std::optional<Scene> equiangularDial(const Panel& panel);
std::optional<Scene> wireAndChain(const Panel& panel);
std::optional<Scene> levelBall(const Panel& panel);
std::optional<Scene> uprightBall(const Panel& panel);

std::optional<Scene> dottedCylinder(const Panel& panel);
std::optional<Scene> parabolicCylinder(const Panel& panel);
std::optional<Scene> sphericalCylinder(const Panel& panel);
std::optional<Scene> filteringHat(const Panel& panel);

std::optional<Scene> cylindricalCornice(const Panel& panel);
std::optional<Scene> conicalCornice(const Panel& panel);
std::optional<Scene> outerDisc(const Panel& panel);
std::optional<Scene> innerDisc(const Panel& panel);
std::optional<Scene> scaphe(const Panel& panel);
std::optional<Scene> skyChart(const Panel& panel);

}  // namespace dialwright::proof
