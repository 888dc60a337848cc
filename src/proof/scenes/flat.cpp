// The flat dials: the tip of a style that stands upright on a plane.
#include "proof/scenes/builders.hpp"

namespace dialwright::proof {

namespace {

// Degrees from the upright, as the panel's two options state it.
double reclinationOf(const Panel& panel) {
  const double typed = numberIn(panel, Field::txtReclinZ);
  if (!panel.on(Field::OptHorizontal)) return typed;
  return (90 - typed) * (numberIn(panel, Field::txtLAT) < 0 ? -1 : 1);
}

Scene tipOnPlane(double latitude, const Plane& plane, double style) {
  Scene scene;
  scene.sky = Sky(radians(latitude));
  scene.surface = std::make_shared<Plane>(plane);
  scene.casters = {{CurveFamily::None, {std::make_shared<Tip>(style * plane.normal())}}};
  return scene;
}

std::optional<Scene> dialOn(const Panel& panel, double latitude, double reclination) {
  const bool level = std::abs(reclination) == 90;
  const double declination = level ? 0 : numberIn(panel, Field::txtDecl);
  return tipOnPlane(latitude, Plane::facing(radians(declination), radians(reclination)),
                    numberIn(panel, Field::TxtStilo));
}

}  // namespace

std::optional<Scene> universalDial(const Panel& panel) {
  return dialOn(panel, numberIn(panel, Field::txtLAT), reclinationOf(panel));
}

// A southern latitude counts by its size.
std::optional<Scene> reclinedDial(const Panel& panel) {
  return dialOn(panel, std::abs(numberIn(panel, Field::txtLAT)), reclinationOf(panel));
}

std::optional<Scene> wallDial(const Panel& panel) {
  return dialOn(panel, numberIn(panel, Field::txtLAT), 0);
}

}  // namespace dialwright::proof
