// The cylindrical dials: the tip of a style on a bent upright wall, and the hat.
#include "proof/casters/brim.hpp"
#include "proof/scenes/builders.hpp"
#include "proof/surfaces/curved_wall.hpp"

namespace dialwright::proof {

namespace {

template <class Wall>
Scene tipOnWall(const Panel& panel, const Wall& wall) {
  Scene scene;
  scene.sky = Sky(radians(numberIn(panel, Field::txtLAT)));
  scene.surface = std::make_shared<Wall>(wall);
  const Vec tip = numberIn(panel, Field::TxtStilo) * wall.normal();
  scene.casters = {{CurveFamily::None, {std::make_shared<Tip>(tip)}}};
  return scene;
}

std::optional<Scene> tipOnCylinder(const Panel& panel, bool outside) {
  const double radius = numberIn(panel, Field::TxtRadius);
  if (!(radius > 0)) return std::nullopt;
  return tipOnWall(panel,
                   RoundWall(radius, outside ? RoundWall::Side::Outside : RoundWall::Side::Inside,
                             radians(numberIn(panel, Field::txtDecl))));
}

}  // namespace

std::optional<Scene> dottedCylinder(const Panel& panel) {
  return tipOnCylinder(panel, panel.on(Field::OptConvex));
}

// Where neither side is chosen, this dial's curves take the outside.
std::optional<Scene> sphericalCylinder(const Panel& panel) {
  return tipOnCylinder(panel, !panel.on(Field::Optconcave));
}

std::optional<Scene> parabolicCylinder(const Panel& panel) {
  const double parameter = numberIn(panel, Field::TxtRadius);
  const double declination = numberIn(panel, Field::txtDecl);
  if (!(parameter > 0) || !(std::abs(declination) < 90)) return std::nullopt;
  return tipOnWall(
      panel, ParabolicWall(parameter, panel.on(Field::OptConvex) ? 1 : -1, radians(declination)));
}

// The origin is the southern generator on the level of the brim.
std::optional<Scene> filteringHat(const Panel& panel) {
  const double radius = numberIn(panel, Field::TxtRadius);
  if (!(radius > 0)) return std::nullopt;
  Scene scene;
  scene.sky = Sky(radians(numberIn(panel, Field::txtLAT)));
  scene.surface = std::make_shared<RoundWall>(radius, RoundWall::Side::Outside, 0);
  scene.casters = {{CurveFamily::None,
                    {std::make_shared<Brim>(Vec{0, radius, 0}, numberIn(panel, Field::txt_R2))}}};
  return scene;
}

}  // namespace dialwright::proof
