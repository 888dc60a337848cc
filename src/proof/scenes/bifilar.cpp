// The bifilar and the ball dials: two wires whose shadows cross, or the far end of the shadow of a
// rim or a ball.
#include "proof/casters/far_end.hpp"
#include "proof/scenes/builders.hpp"

namespace dialwright::proof {

namespace {

// A level floor, drawn as it is seen from the North: x to the West, y to the South.
Plane levelFloor() { return {{}, kUp, {-1, 0, 0}}; }

Plane uprightWall(const Panel& panel) {
  return Plane::facing(radians(numberIn(panel, Field::txtDecl)), 0);
}

Scene sceneOn(const Panel& panel, const Plane& plane,
              std::vector<std::shared_ptr<const Caster>> casters) {
  Scene scene;
  scene.sky = Sky(radians(numberIn(panel, Field::txtLAT)));
  scene.surface = std::make_shared<Plane>(plane);
  scene.casters = {{CurveFamily::None, std::move(casters)}};
  return scene;
}

// The scale of the chain that hangs between two level points and sags by so much, both lengths
// above 0: (cosh a - 1)/a grows with a = halfSpan/scale.
double scaleOfChain(double halfSpan, double sag) {
  double low = 0, high = 700;
  for (int i = 0; i < 200 && low < high; ++i) {
    const double a = (low + high) / 2;
    (std::cosh(a) - 1 < a * sag / halfSpan ? low : high) = a;
  }
  return halfSpan / high;
}

}  // namespace

std::optional<Scene> fountain(const Panel& panel) {
  const Vec centre = numberIn(panel, Field::TxtStilo) * kUp;
  return sceneOn(panel, levelFloor(),
                 {std::make_shared<RimsFarEnd>(centre, numberIn(panel, Field::TxtRadius), kUp)});
}

std::optional<Scene> levelBall(const Panel& panel) {
  const Vec centre = numberIn(panel, Field::txtD1) * kUp;
  return sceneOn(panel, levelFloor(),
                 {std::make_shared<BallsFarEnd>(centre, numberIn(panel, Field::TxtRadius), kUp)});
}

// Half a ball, its middle in the wall.
std::optional<Scene> uprightBall(const Panel& panel) {
  const Plane wall = uprightWall(panel);
  return sceneOn(
      panel, wall,
      {std::make_shared<BallsFarEnd>(Vec{}, numberIn(panel, Field::TxtRadius), wall.normal())});
}

// One straight wire runs before the substyle; the other across it, nearer by the sine of the pole's
// height over the wall.
std::optional<Scene> equiangularDial(const Panel& panel) {
  const Plane wall = uprightWall(panel);
  const double latitude = radians(numberIn(panel, Field::txtLAT));
  const Vec pole = Sky(latitude).pole();
  const double height = dot(pole, wall.normal());
  const double a = numberIn(panel, Field::TxtStilo), b = a * std::abs(height);
  const Vec shadow = pole - height * wall.normal();  // of the world's axis
  const Vec along = length(shadow) > 1e-9 ? unit(shadow) : wall.up();
  const auto wire = [&](double distance, Vec direction) {
    const Vec middle = distance * wall.normal();
    return std::make_shared<StraightEdge>(middle - a * direction, middle + a * direction);
  };
  return sceneOn(panel, wall, {wire(a, along), wire(b, cross(along, wall.normal()))});
}

// An upright wire before the middle, and a chain in a plane parallel to the wall, hung from two
// points at the height of the drawing's origin. The chain's shadow ends at those points.
std::optional<Scene> wireAndChain(const Panel& panel) {
  const Plane wall = uprightWall(panel);
  const double halfSpan = numberIn(panel, Field::TxtRadius);
  const double sag = std::abs(numberIn(panel, Field::txtV1));
  if (!(halfSpan > 0)) return std::nullopt;
  const Vec wireFoot = numberIn(panel, Field::TxtStilo) * wall.normal();
  const Vec middle = numberIn(panel, Field::txtD1) * wall.normal();
  const double scale = sag > 0 ? scaleOfChain(halfSpan, sag) : 0;
  const auto chain = [=](double u) {
    const double x = (2 * u - 1) * halfSpan;
    const double rise = scale > 0 ? scale * (std::cosh(x / scale) - 1) : 0;
    return middle + x * wall.right() + (rise - sag) * wall.up();
  };
  return sceneOn(panel, wall,
                 {std::make_shared<StraightEdge>(wireFoot - kUp, wireFoot + kUp),
                  std::make_shared<CurvedEdge>(chain, false, 24)});
}

}  // namespace dialwright::proof
