// The set-up and the lines that several flat dials share.
#include "dials/flat/flat_setup.hpp"

#include <cmath>

#include "dials/flat/substyle_frame.hpp"

namespace dialwright {

bool latitudeIsMissing(const Run& run) {
  return run.panel.text(Field::txtLAT).find_first_not_of(' ') == std::string::npos;
}

std::array<DeclinationCone, 3> declinationCones(DialParams& p, double solsticeArc) {
  const double t = std::tan(solsticeArc / 180);
  p.KSolstizio = 1 / (t * t);
  p.K20 = coneOf(p, kTwentieth);
  p.K11 = coneOf(p, kEleventh);
  const std::array<double, 3> K = {p.KSolstizio, p.K20, p.K11};
  std::array<DeclinationCone, 3> cones{};
  for (std::size_t i = 0; i < cones.size(); ++i)
    cones[i] = {K[i], palette(kDeclinationPairs[i].colour), std::atan(1 / std::sqrt(K[i]))};
  return cones;
}

Punto laidTip(const DialParams& p, double substyle) {
  const double reach = -p.Stilo * p.SegnoDecl;
  return {reach * std::cos(substyle), reach * std::sin(substyle)};
}

void steepestLine(SheetPlot& sheet, double x) {
  line(sheet, {x, sheet.ShiftY()}, {x, -2 * sheet.ShiftY()}, palette(8));
}

void horizonAcross(Run& run) {
  DialParams& p = run.params;
  if (p.ReclinRad == 0) return;
  assign(p.LimiteOrizzonte, p.Stilo * std::tan(p.ReclinRad));
  const double side = run.sheet.ShiftX();
  line(run.sheet, {-side, p.LimiteOrizzonte}, {side, p.LimiteOrizzonte}, palette(2));
}

void SistemaSustilare(DialParams& p) {
  p.SegnoDecl = signOrOne(p.DeclRad);
  if (p.ElevStilo < 0) p.Sustilare = (p.PiGreco - std::abs(p.Sustilare)) * p.SegnoDecl;
}

}  // namespace dialwright
