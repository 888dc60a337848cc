// The construction of a vertical dial on its wall.
#include "dials/flat/gnomonic_scheme.hpp"

#include "dials/flat/upright_wall.hpp"
#include "dials/pen.hpp"

namespace dialwright {

namespace {

void letters(Run& run, Punto centre, Punto N, Punto N2, Punto P, Punto C2) {
  SheetPlot& sheet = run.sheet;
  sheet.Dati("  N", N.x, -N.y - 0.02);
  if (hasCentre(run.params)) {
    sheet.Dati("  C", C2.x, -C2.y - 0.02);
    line(sheet, C2, {0, 0}, palette(14));
    line(sheet, {centre.x, 0}, N, palette(2));
    line(sheet, N, C2, kEquinoctialBlue);
  }
  sheet.Dati(" N", N2.x, -N2.y - 0.01);
  sheet.Dati("P", P.x, -P.y);
  sheet.Dati(" R", centre.x, -0.02);
  sheet.Dati("M   ", centre.x - 0.02, -noonOnEquinoctial(run.params).y - 0.03);
  sheet.Dati("  G", 0, -0.02);
}

void legend(Run& run) {
  run.sheet.ForeColor = palette(7);
  run.sheet.Dati("  ", 0, -0.8);
  for (const char* row :
       {"  C center of the dial", "  G origin of coordinates, foot", "  N gnomonic point",
        "  CM noon line", "  P intersection of the substyle hour with the equinoctial line",
        "  CNR : Latitude (angle)", "  GCN : elevation (angle) of the style",
        "  RNG : declination (angle) of the dial", "  MCP : substyle angle",
        "  MNP : substyle hour angle"}) {
    run.sheet.Dati(run.T(row));
  }
  run.sheet.Dati("  ");
}

}  // namespace

double elevationByPosition(const DialParams& p) {
  return -p.ArcSin(-std::cos(p.LatRad) * std::cos(p.DeclRad));
}

Punto gnomonicCentre(const DialParams& p) {
  const double E2 = elevationByPosition(p);
  const double B = uprightSubstyle(p);
  const double reach = p.Stilo * (std::tan(E2) + over(1, std::cos(E2)));
  Punto N2;
  assign(N2, {reach * std::sin(B), -reach * std::cos(B)});
  return N2;
}

Punto noonOnEquinoctial(const DialParams& p) {
  const double x = -p.Stilo * std::tan(p.DeclRad);
  Punto M;
  assign(M, {x, std::tan(p.Sustilare) * x - over(p.DistPiedeCentro, std::cos(p.Sustilare))});
  return M;
}

void SchemaGnomonico(Run& run, Punto& centre) {
  DialParams& p = run.params;
  SheetPlot& sheet = run.sheet;
  if (p.LatGradi == 0) {
    p.Sustilare = p.SegnoDecl * p.PiGreco / 2;
    assign(centre, {-p.Stilo * std::tan(p.DeclRad), 0});
  }
  if (hasCentre(p)) line(sheet, centre, {0, 0}, palette(14));
  const double B = uprightSubstyle(p);
  const Punto C2 = uprightCentre(p);
  const Punto N{p.Stilo * std::cos(B) * p.SegnoDecl, p.Stilo * std::sin(B) * p.SegnoDecl};
  const Punto N2 = gnomonicCentre(p);
  line(sheet, N, {0, 0}, palette(13));
  circle(sheet, C2, p.Stilo / 100, palette(12));
  assign(p.DistPiedeCentro, p.Stilo * std::tan(elevationByPosition(p)));
  const Punto P{p.DistPiedeCentro * std::sin(p.Sustilare),
                -p.DistPiedeCentro * std::cos(p.Sustilare)};
  line(sheet, N, P, palette(10));
  line(sheet, N2, P, palette(10));
  circle(sheet, N, 0.01, palette(12));
  if (!run.on(Field::ckFunction)) letters(run, centre, N, N2, P, C2);
  legend(run);
}

}  // namespace dialwright
