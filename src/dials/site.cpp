// Reading the site.
#include "dials/site.hpp"

#include <cmath>

namespace dialwright {

namespace {

// A wall that looks away from the noon sun gets its further copy of the style this much longer.
constexpr double kNorthWallFactor = 60;

}  // namespace

bool refusesSouth(Run& run) {
  const bool southern = run.number(Field::txtLAT) < 0;
  if (southern) run.refuse(run.T(kSouthernMessage));
  return southern;
}

void LeggiParametriSito(Run& run) {
  DialParams& p = run.params;
  p.PiGreco = Angles{}.PiGreco;
  assign(p.LatGradi, run.number(Field::txtLAT));
  assign(p.Colatitudine, p.PiGreco / 2 - p.radians(p.LatGradi));
  assign(p.LatRad, p.radians(p.LatGradi));
  assign(p.LonGradi, run.number(Field::txtLON));
  setLongitudeCorrections(run);
  assign(p.DeclGradi, run.number(Field::txtDecl));
  assign(p.DeclRad, p.radians(p.DeclGradi));
  assign(p.StiloBase,
         run.number(Field::TxtStilo) * (std::abs(p.DeclGradi) > 90 ? kNorthWallFactor : 1));
  assign(p.Raggio, run.number(Field::TxtRadius));
  assign(p.PassoOre, over(15, run.number(Field::TxtHour)));
  assign(p.PassoCurva, run.number(Field::txt_Definition) / 500);
}

void setLongitudeCorrections(Run& run) {
  DialParams& p = run.params;
  p.LonAbs = std::abs(p.LonGradi);
  assign(p.CorrLon, p.radians(15 - p.SegnoLon * p.LonAbs));
  assign(p.CorrFuso, p.radians(-15 * run.number(Field::TxtFuso) - p.SegnoLon * p.LonAbs));
}

void wrapDeclination(DialParams& p) {
  if (p.LatRad < 0) p.DeclGradi = -(180 + p.DeclGradi);
  if (std::abs(p.DeclGradi) > 180) p.DeclGradi -= 360 * Sgn(p.DeclGradi);
  p.DeclRad = p.radians(p.DeclGradi);
}

void readUsaLongitudine(Run& run) { run.params.UsaLongitudine = run.on(Field::ck_Etna) ? 1 : 0; }

}  // namespace dialwright
