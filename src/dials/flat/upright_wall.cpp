// The shared hours and the conic of an upright wall.
#include "dials/flat/upright_wall.hpp"

#include "dials/flat/sky_curves.hpp"
#include "dials/pen.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

namespace {

// The hour angle of the hour n, radians, for a semi-diurnal arc.
double hourAngleOf(HourSystem system, double n, double arc, double PiGreco) {
  switch (system) {
    case HourSystem::Italic: return n * PiGreco / 12 + arc - 2 * PiGreco;
    case HourSystem::Babylonian: return n * PiGreco / 12 - arc;
    case HourSystem::Temporary: return arc * (n / 6 - 1);
  }
  return kFault;
}

CurveFamily familyOf(HourSystem system) {
  switch (system) {
    case HourSystem::Italic: return CurveFamily::Italic;
    case HourSystem::Babylonian: return CurveFamily::Babylonian;
    case HourSystem::Temporary: return CurveFamily::Temporary;
  }
  return CurveFamily::None;
}

}  // namespace

bool castHour(UprightShadow& shadow, const Angles& angles, HourSystem system, double n,
              const SolarDay& day, double& H) {
  if (!sound(day.arc)) return false;
  H = hourAngleOf(system, n, day.arc, angles.PiGreco);
  shadow.aim(std::sin(H), std::cos(H), day);
  if (shadow.acrossNoon(H)) shadow.turnToWall();
  if (!shadow.beforeWall()) return false;
  shadow.cast();
  return true;
}

void drawSunHours(Run& run, const Sweep& hours, HourSystem system, Rgb colour) {
  DialParams& p = run.params;
  const Window window(run);
  Pen pen(run.sheet, kSkyGap);
  pen.dip({.colour = colour, .family = familyOf(system)});
  SolarDays days(p, p.LatRad);
  UprightShadow shadow(run);
  double H = 0;
  for (const double n : hours) {
    const Sweep declinations =
        run.sweep(-kSolstice, kSolstice, p.PassoCurva * 10, {.step = Field::txt_Definition});
    for (const SolarDay& day : days.of(declinations)) {
      p.DeclSole = day.degrees;
      if (!castHour(shadow, p, system, n, day, H)) continue;
      pen.visit(shadow.point,
                TracciaCurva(window, 0, shadow.point, day.degrees > declinations.first()),
                {H, day.radians});
    }
  }
}

Punto uprightCentre(const DialParams& p) {
  Punto centre;
  assign(centre,
         {-p.Stilo * std::tan(p.DeclRad), over(p.Stilo * std::tan(p.LatRad), std::cos(p.DeclRad))});
  return centre;
}

double uprightSubstyle(const DialParams& p) {
  return p.LatRad == 0 ? p.PiGreco / 2 : p.ArcTanPieno(std::sin(p.DeclRad), std::tan(p.LatRad));
}

// --- The conic of the latitude

namespace {

constexpr Rgb kYellow = 65535;

void dotConic(Run& run, const ConicSet& conic, const SubstyleTurn& turn, Rgb colour) {
  for (const double u : run.sweep(-1, 1, 0.002)) {
    const double R = radicand(conic, u);
    if (!(R > 0)) continue;
    const double half = std::sqrt(R);
    dot(run.sheet, turn(u, -conic.A1 / 2 + half), colour);
    dot(run.sheet, turn(u, -conic.A1 / 2 - half), colour);
  }
}

// From the style's laid tip to the centre, and to the vertices: on a hyperbola the line through the
// vertex of the wall's own side is produced to twice its height.
void constructConic(Run& run, const ConicSet& conic, const SubstyleTurn& turn, double firstVertex) {
  const DialParams& p = run.params;
  SheetPlot& sheet = run.sheet;
  const bool sideWall = std::abs(p.DeclGradi) == 90;
  const double side = signOrOne(p.LatRad);
  const double reach = p.SegnoDecl * p.Stilo * side;
  const Punto tip{reach * turn.cosine, reach * turn.sine};
  const Punto centre = uprightCentre(p);
  if (!sideWall || !run.trueShadows()) line(sheet, tip, centre, palette(9));
  if (!sideWall) line(sheet, tip, {centre.x, p.PuntoRiferimentoY}, palette(2));
  dot(sheet, {p.PuntoRiferimentoX, p.PuntoRiferimentoY * side}, palette(15));

  const double half = firstVertex * root(radicand(conic, 0));
  double v1 = 0, v2 = 0;
  assign(v1, -conic.A1 / 2 + half);
  assign(v2, -conic.A1 / 2 - half);
  const Punto first = turn(0, v1), second = turn(0, v2);
  const auto produced = [tip](Punto vertex) {
    Punto end{0, 2 * vertex.y};
    assign(end.x, tip.x + over((vertex.x - tip.x) * (end.y - tip.y), vertex.y - tip.y));
    return end;
  };
  const bool hyperbola = p.Eccentricita >= 1;
  const bool facesNorth = hyperbola && std::abs(p.DeclGradi) >= 90;
  line(sheet, tip, hyperbola && !facesNorth ? produced(first) : first, palette(10));
  line(sheet, tip, facesNorth ? produced(second) : second, palette(12));
}

}  // namespace

double uprightElevation(const DialParams& p) {
  const bool level = std::abs(p.DeclGradi) == 90 || std::abs(p.LatGradi) == 90;
  return -p.ArcSin(level ? 0 : -std::cos(p.LatRad) * std::cos(p.DeclRad));
}

void drawLatitudeConic(Run& run, ConicSet& conic, double elevation, const SubstyleTurn& turn,
                       const ConicLook& look) {
  DialParams& p = run.params;
  assign(p.Eccentricita, std::abs(over(std::cos(elevation), std::cos(p.LatRad))));
  const double t = std::tan(p.LatRad);
  setConic(conic, p.Stilo, elevation, t * t);
  dotConic(run, conic, turn, palette(p.Eccentricita > 1 ? look.hyperbola : 10));
  constructConic(run, conic, turn, look.firstVertex);
}

void writeEccentricity(Run& run) {
  run.sheet.ForeColor = kYellow;
  run.sheet.Dati("", 0, 0.5);
  run.sheet.Dati("ecc. " + textOf(rounded(run.params.Eccentricita, 4)));
}

}  // namespace dialwright
