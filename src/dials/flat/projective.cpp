// The common part of the projective methods.
#include "dials/flat/projective.hpp"

#include <algorithm>
#include <cmath>

#include "dials/flat/sky_curves.hpp"
#include "dials/site.hpp"

namespace dialwright {

bool acceptsProjection(Run& run, bool sideWalls) {
  const double latitude = run.number(Field::txtLAT);
  const char* why = nullptr;
  if (latitude < 0) {
    why = kSouthernMessage;
  } else if (latitude == 0) {
    why = kEquatorMessage;
  } else if (!sideWalls && std::abs(run.number(Field::txtDecl)) == 90) {
    why = "Please use programme n° 4 ";
  } else if (std::abs(run.params.ReclinGradi) == 90) {
    why = kLevelPlaneMessage;
  }
  if (why != nullptr) run.refuse(run.T(why));
  return why == nullptr;
}

void readProjectivePlane(Run& run) {
  DialParams& p = run.params;
  LeggiParametriSito(run);
  assign(p.Stilo, run.number(Field::TxtStilo));
  assign(p.PassoCurva, run.number(Field::txt_Definition) / 100);
  p.ReclinRad = p.radians(p.ReclinGradi);
}

ProjectiveDrawing::ProjectiveDrawing(Run& run)
    : PanelDrawing(run),
      style_(run),
      suns_(sheet_, planeOf(p_)),
      cones_(declinationCones(p_, kSolsticeArcOnPlane)) {}

Punto StyleOfDial::tip() const { return laidTip(run_.params, style_.substyle); }

void StyleOfDial::triangleInCorner() const {
  const SheetPlot& sheet = run_.sheet;
  const double upright = std::abs(run_.params.Stilo);
  const double base = std::hypot(style_.centre.x, style_.centre.y);
  const double widest = (sheet.xMax() - sheet.xMin()) / 2;
  const double tallest = (sheet.yMax() - sheet.yMin()) / 2;
  double scale = 1;
  if (base > widest) scale = widest / base;
  if (upright * scale > tallest) scale = tallest / upright;
  const Punto foot{sheet.xMin(), -sheet.yMax()};
  const Punto top{foot.x, foot.y + upright * scale};
  const Punto end{foot.x + base * scale, foot.y};
  line(run_.sheet, foot, top, palette(13));
  line(run_.sheet, top, end, palette(9));
  line(run_.sheet, foot, end, palette(14));
}

}  // namespace dialwright
