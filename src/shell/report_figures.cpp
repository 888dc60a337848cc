// Working out the report's figures.
#include "shell/report_figures.hpp"

#include <cmath>

#include "numerics/numbers.hpp"
#include "shell/style_triangle.hpp"

namespace dialwright {

namespace {

// The site and the plane, from the record and the fields.
void readPlane(Run& run, ReportFigures& f) {
  DialParams& p = run.params;
  assign(f.longitudeCorrection, -(run.number(Field::TxtFuso) * 15 - run.number(Field::txtLON)) * 4);
  p.LatRad = std::abs(p.LatRad);
  assign(p.Stilo, run.number(Field::TxtStilo));
  assign(p.DeclGradi, run.number(Field::txtDecl));
  assign(p.DeclRad, p.radians(p.DeclGradi));
  if (run.panel[Field::txtReclinZ].visible) {
    f.ReclinGradi = p.ReclinGradi;
  } else {
    p.InclinGradi = 90 * p.SegnoEmisfero;
  }
  assign(p.ReclinRad, p.radians(f.ReclinGradi) * p.SegnoEmisfero);
  f.level = std::abs(f.ReclinGradi) == 90;
}

// True where the style lies in the plane, which the circle constant leaves a little off.
bool styleInPlane(const Run& run) {
  const DialParams& p = run.params;
  const bool faceOfSide = std::abs(p.DeclGradi) == 90;
  const bool pole = std::abs(run.number(Field::txtLAT)) == 90;
  return (p.ReclinRad == 0 && (faceOfSide || pole)) || (p.LatRad == 0 && faceOfSide);
}

void setStyle(Run& run, ReportFigures& f) {
  DialParams& p = run.params;
  StylePlane plane(p);
  assign(f.elevationSine, plane.elevationSine());
  if (f.level) {
    p.DeclRad = plane.DeclRad = 0;
    if (p.LatRad == 0) f.elevationSine = 0;
  } else if (styleInPlane(run)) {
    f.elevationSine = 0;
  }
  const PolarStyle style = polarStyle(p, plane, f.elevationSine);
  assign(p.ElevStilo, p.ArcSin(f.elevationSine));
  f.centre = {style.centre.x * p.SegnoEmisfero, style.centre.y};
  p.SustilareReport = style.substyle * p.SegnoEmisfero;
  if (f.level) f.centre.x = p.SustilareReport = 0;
}

void setSubstyleHour(DialParams& p, const ReportFigures& f, bool onEquatorToo) {
  if (f.level) {
    p.OrarioSustilare = 0;
    return;
  }
  const double sinD = std::sin(p.DeclRad);
  const double towardsNoon =
      std::tan(p.ReclinRad) * std::cos(p.LatRad) + std::cos(p.DeclRad) * std::sin(p.LatRad);
  // An upright plane on the equator has its substyle a quarter turn from noon, or none.
  if (onEquatorToo && towardsNoon == 0) {
    p.OrarioSustilare = Sgn(sinD) * p.PiGreco / 2;
    return;
  }
  assign(p.OrarioSustilare, arctan(over(sinD, towardsNoon)));
  if (Sgn(std::sin(p.OrarioSustilare)) != Sgn(sinD)) p.OrarioSustilare += Sgn(sinD) * p.PiGreco;
}

void setVerticalHour(const DialParams& p, ReportFigures& f) {
  if (p.ReclinRad == 0) return;
  const double D = p.DeclRad * p.SegnoEmisfero;
  const double R = p.ReclinRad * p.SegnoEmisfero;
  const double latitude = p.LatRad * p.SegnoEmisfero;
  const double part = std::cos(D) * std::sin(latitude) - over(std::cos(latitude), std::tan(R));
  assign(f.verticalHour, clockHour(p, arctan(over(std::sin(D), part))));
}

}  // namespace

ReportFigures prepareReport(Run& run) {
  DialParams& p = run.params;
  ReportFigures f;
  readPlane(run, f);
  setStyle(run, f);
  setSubstyleHour(p, f, run.trueShadows());
  setVerticalHour(p, f);
  if (!f.hasCentre()) return f;
  const double slope = arctan(std::tan(p.DeclRad) * std::sin(p.ReclinRad));
  assign(f.slopeToNoon, truncated(p.degrees(slope) * p.SegnoEmisfero, 4));
  return f;
}

double clockHour(const Angles& angles, double hourAngle) {
  return 12 + over(hourAngle * 12, angles.PiGreco);
}

}  // namespace dialwright
