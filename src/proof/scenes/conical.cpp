// The Graeco-Roman dial: the tip of a level style on the axis of a hollow cone, which is the
// earth's.
#include "proof/scenes/builders.hpp"
#include "proof/surfaces/cone.hpp"

namespace dialwright::proof {

std::optional<Scene> scaphe(const Panel& panel) {
  const double style = numberIn(panel, Field::TxtStilo);
  const double semiAngle = radians(numberIn(panel, Field::txtSemi));
  const double latitude = radians(numberIn(panel, Field::txtLAT));
  const double sine = std::sin(semiAngle);
  if (!(style > 0) || !(semiAngle > 0 && semiAngle < kPi / 2)) return std::nullopt;
  Scene scene;
  scene.sky = Sky(latitude);
  // The tip is the origin; the style leads from it level to the North, where it meets the
  // generator of noon. By the law of sines the vertex lies so far along the axis.
  const double vertex = style * std::sin(latitude + semiAngle) / sine;
  const Vec pole = scene.sky.pole();
  const Vec noon = scene.sky.towards({0, 0}), six = scene.sky.towards({kPi / 2, 0});
  const double side = panel.on(Field::ckFunction) ? -1 : 1;
  scene.surface = std::make_shared<Cone>(Cone::Stand{vertex * pole, -pole, -noon, -six, semiAngle},
                                         Cone::Sector{{0, 0}, {side, 0}, {0, 1}});
  scene.casters = {{CurveFamily::None, {std::make_shared<Tip>(Vec{}, Vec{0, style, 0})}}};
  return scene;
}

}  // namespace dialwright::proof
