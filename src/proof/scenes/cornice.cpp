// The cornice dials: the rim of a level plate, over a cylinder, a cone or a wall.
#include "proof/casters/level_rim.hpp"
#include "proof/scenes/builders.hpp"
#include "proof/surfaces/cone.hpp"
#include "proof/surfaces/curved_wall.hpp"

namespace dialwright::proof {

namespace {

// The lines may follow one half of the rim only, the shadow of a single moment goes round it.
std::vector<Casters> rimOf(Vec centre, double radius, LevelRim::Half half) {
  return {{CurveFamily::None, {std::make_shared<LevelRim>(centre, radius, half)}},
          {CurveFamily::Marks, {std::make_shared<LevelRim>(centre, radius)}}};
}

std::optional<Scene> discOverWall(const Panel& panel, LevelRim::Half half) {
  const double radius = numberIn(panel, Field::TxtRadius);
  const double declination = numberIn(panel, Field::txtDecl);
  if (!(radius > 0)) return std::nullopt;
  const Plane facing = Plane::facing(radians(declination), 0);
  Scene scene;
  scene.sky = Sky(radians(numberIn(panel, Field::txtLAT)));
  scene.surface =
      std::make_shared<Plane>(-radius * facing.normal(), facing.normal(), facing.right());
  scene.casters = rimOf(-numberIn(panel, Field::txt_R2) * kNorth, radius, half);
  return scene;
}

}  // namespace

// The plate lies on the cylinder's top and leaves a round hole.
std::optional<Scene> cylindricalCornice(const Panel& panel) {
  const double R = numberIn(panel, Field::TxtRadius);
  const double hole = std::fmin(numberIn(panel, Field::txt_R2), R);
  if (!(hole > 0)) return std::nullopt;
  Scene scene;
  scene.sky = Sky(radians(numberIn(panel, Field::txtLAT)));
  scene.surface = std::make_shared<RoundWall>(R, RoundWall::Side::Inside, 0);
  scene.casters = rimOf(-R * kNorth, hole, LevelRim::Half::ToSun);
  return scene;
}

// The same on a cone that narrows downwards. Its hour lines follow both edges of the light's spot.
std::optional<Scene> conicalCornice(const Panel& panel) {
  const double R = numberIn(panel, Field::TxtRadius), hole = numberIn(panel, Field::txt_R2);
  const double slope = (R - numberIn(panel, Field::TxtStilo)) / numberIn(panel, Field::txtD1);
  if (!(slope > 0) || !std::isfinite(slope) || !(hole > 0 && hole <= R)) return std::nullopt;
  const double semiAngle = std::atan(slope);
  Scene scene;
  scene.sky = Sky(radians(numberIn(panel, Field::txtLAT)));
  scene.surface =
      std::make_shared<Cone>(Cone::Stand{-(R / slope) * kUp, kUp, kNorth, kEast, semiAngle},
                             Cone::Sector{{0, -R / std::sin(semiAngle)}, {0, 1}, {1, 0}});
  scene.casters = rimOf({}, hole, LevelRim::Half::Both);
  return scene;
}

std::optional<Scene> outerDisc(const Panel& panel) {
  return discOverWall(panel, LevelRim::Half::FromSun);
}

std::optional<Scene> innerDisc(const Panel& panel) {
  return discOverWall(panel, LevelRim::Half::ToSun);
}

}  // namespace dialwright::proof
