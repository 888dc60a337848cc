// Program 11: an upright cylinder of circular cross-section by projection. The curves are those of
// the plane dial that touches it in the foot of the style; each of their points goes along the line
// from the style's tip to the surface, as a dot.
#include "dials/cylindrical/proiettivo.hpp"

#include <cmath>

#include "dials/cylindrical/cylinder.hpp"
#include "dials/cylindrical/dotted.hpp"
#include "dials/drawing.hpp"
#include "dials/flat/substyle_frame.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"

namespace dialwright {

namespace {

constexpr double kPlaneReach = 5;  // radii either side of the foot
constexpr double kLastHour = 88;   // degrees
constexpr double kHourStep = 7.5;  // whatever TxtHour says

// Hours counted from the horizon: the side of their tangents, and how many radii either side of the
// foot their conic is drawn.
struct OldHours {
  double side, reach;
  CurveFamily family;
};
constexpr OldHours kProiettivoItaliche{-1, 1, CurveFamily::Italic};
constexpr OldHours kProiettivoBabiloniche{1, kPlaneReach, CurveFamily::Babylonian};

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run) : PanelDrawing(run) {}

  void all();

 private:
  // The loop over the plane, so many radii either side of the foot.
  Sweep radii(double count) const { return dots(run_, -count * p_.Raggio, count * p_.Raggio); }
  // The sun behind the tip as a point of the plane sees it.
  Sun behindTip(Punto plane) const {
    return sunBehindTip(Trig(p_.LatRad), levelWay(Trig(p_.DeclRad), plane.x, p_.Stilo), plane.y);
  }
  void project(Punto plane, const Ink& ink, const Sun& sun);
  // Both branches of the cone of a declination, radians.
  void conic(Declination which, double declination, double reach, int colour);
  void oldHours(const OldHours& family);

  void ProiettivoPiano();
  void ProiettivoOre();
  void ProiettivoDeclinazioni();
  void ProiettivoEquinoziale();
  void ProiettivoSustilare();
  void ProiettivoMezzodi() { CilGeneratriceMezzodi(run_, palette(4)); }
  void ProiettivoAnalemma();
};

void Drawing::all() {
  CilGeneratriceCentro(run_);
  ProiettivoPiano();
  if (on(Field::chkOreAstronomiche)) ProiettivoOre();
  if (on(Field::Ck_DayLightCurves)) ProiettivoDeclinazioni();
  if (on(Field::ck_Equinoziale)) ProiettivoEquinoziale();
  if (on(Field::ck_Sustilare)) ProiettivoSustilare();
  ProiettivoMezzodi();
  if (on(Field::ck_Orizzonte)) CilOrizzonte(run_);
  if (std::abs(p_.DeclRad) != p_.PiGreco / 2 && on(Field::ck_Triangolo)) CilTriangolo(run_);
  footCircle(run_);
  if (on(Field::ck_Italiche)) oldHours(kProiettivoItaliche);
  if (on(Field::ck_babiloniche)) oldHours(kProiettivoBabiloniche);
  if (on(Field::ck_Lemniscate)) ProiettivoAnalemma();
  if (on(Field::Ck_Section)) CilSezione(run_);
}

void Drawing::ProiettivoPiano() {
  const double sine = std::cos(p_.LatRad) * std::cos(p_.DeclRad);
  // Near the equator the square of the sine leaves too few digits for a style square to the wall.
  const double cosine = run_.trueShadows() ? std::hypot(std::sin(p_.DeclRad),
                                                        std::sin(p_.LatRad) * std::cos(p_.DeclRad))
                                           : root(1 - sine * sine);
  assign(p_.ElevStilo, arctan(over(sine, cosine)));
  assign(p_.Sustilare, arctan(over(std::sin(p_.DeclRad), std::tan(p_.LatRad))));
  assign(p_.OrarioSustilare, -arctan(over(std::tan(p_.DeclRad), std::sin(p_.LatRad))));
  assign(p_.DistPiedeCentro, p_.Stilo * std::tan(p_.ElevStilo));
  setConics(p_);
}

// Along the ray through the tip onto the surface; nowhere when the ray misses it.
void Drawing::project(Punto plane, const Ink& ink, const Sun& sun) {
  const double u = plane.x, s = p_.Stilo, r = p_.Raggio, c = p_.SegnoCilindro;
  if (!sound(plane.x) || !sound(plane.y)) return;
  const double a = u * u + s * s;
  const double b = -2 * u * (s * s + c * r * s);
  const double c0 = u * u * s * s + 2 * c * r * s * u * u;
  const double square = b * b - 4 * a * c0;
  if (square < 0) return;
  const double X = over(-b - c * Sgn(u) * std::sqrt(square), 2 * a);
  const double way = u == 0 ? 1 : X / u;  // from the tip, in ways to the plane
  // The central angle by the abscissa alone folds what lies beyond the axis.
  const double angle =
      run_.trueShadows() ? std::atan2(X, r - c * s * (way - 1)) : p_.ArcSin(over(X, r));
  const Punto point{r * angle, u == 0 ? plane.y : plane.y / u * X};
  if (sound(point.x) && sound(point.y)) dot(sheet_, point, ink, sun);
}

// --- Hours

void Drawing::ProiettivoOre() {
  const double centre = over(p_.Stilo, std::tan(p_.ElevStilo));
  for (const double t : run_.sweep(-90, kLastHour, kHourStep)) {
    const double H = p_.radians(t);
    const Ink ink{.colour = palette(std::abs(t) == 90 ? 9 : hourInk(t)),
                  .family = CurveFamily::Hours};
    const bool level = p_.DeclRad == 0 && t == -90;  // through the centre, where noon starts
    const double T = arctan(std::sin(p_.ElevStilo) * std::tan(p_.OrarioSustilare + H));
    const HourLine line(p_, p_.Stilo, std::tan(T));
    for (const double u : radii(kPlaneReach))
      project({u, level ? centre : line.ordinate(u)}, ink, {H});
  }
}

// The conic that the lines touch, of the days without a sunset, and the lines.
void Drawing::oldHours(const OldHours& family) {
  constexpr int kColour = 13;
  const Ink ink{.colour = palette(kColour), .family = family.family};
  const SubstyleTurn frame(p_.Sustilare, p_.DistPiedeCentro);
  conic(Declination::Latitude, p_.PiGreco / 2 - p_.LatRad, family.reach, kColour);
  for (const double t : run_.sweep(-kLastOldHour, kLastOldHour, 15)) {
    const double H = p_.radians(t);
    const double turn = H + family.side * p_.PiGreco / 2;
    const OldHourLine line(p_.LatRad, p_.Stilo, p_.ElevStilo, p_.OrarioSustilare + H, family.side);
    for (const double u : radii(kPlaneReach)) {
      const Punto point = frame(u, line.at(u));
      project(point, ink, sunOfTurnedHorizon(p_, turn, -family.side, behindTip(point)));
    }
  }
}

// --- The lines of a day

void Drawing::conic(Declination which, double declination, double reach, int colour) {
  const SubstyleTurn frame(p_.Sustilare, p_.DistPiedeCentro);
  const Ink ink{.colour = palette(colour), .family = CurveFamily::Declinations};
  for (const double u : radii(reach)) {
    const Roots v = conicAt(p_.conic(which), u);
    for (const double each : {v.plus, v.minus}) {
      const Punto point = frame(u, each);
      project(point, ink, sunOfCone(declination, behindTip(point)));
    }
  }
}

void Drawing::ProiettivoDeclinazioni() {
  for (const DeclinationPair& day : kDeclinationPairs)
    conic(day.conic, p_.radians(day.declination), kPlaneReach, day.colour);
}

void Drawing::ProiettivoEquinoziale() {
  const double drop = over(p_.DistPiedeCentro, std::cos(p_.Sustilare));
  const Ink ink{.colour = palette(9), .family = CurveFamily::Equinoctial};
  for (const double u : radii(kPlaneReach))
    project({u, std::tan(p_.Sustilare) * u - drop}, ink, {Sun::kOpen, 0});
}

// --- Lines across the days

// On a wall that looks South it is upright and has no ordinate: it is the noon generator there.
void Drawing::ProiettivoSustilare() {
  const double slope = std::tan(p_.Sustilare);
  const Ink ink{.colour = palette(9), .family = CurveFamily::Hours};
  const Sun sun{hourOfSubstyle(p_)};
  for (const double u : radii(1)) project({u, over(-u, slope)}, ink, sun);
}

// The zone's noon of the mean sun, while the sun is before the plane.
void Drawing::ProiettivoAnalemma() {
  const Cilindro cylinder(p_, p_.SegnoCilindro, run_.trueShadows());
  const double tilt = p_.radians(obliquity(47));
  const Ink ink{.colour = palette(4), .family = CurveFamily::Analemma};
  Ombra shadow;
  for (const double L : run_.sweep(-80, 280, 360 / kDaysOfYear)) {
    const SunOfDay day = sunAtMeanLongitude(p_, p_.radians(L), tilt);
    const SunDeclination sun(day.declination);
    const Trig H(day.equationOfTime - p_.CorrFuso);
    if (cylinder.everywhere) {
      shadow.A = azimuth(cylinder.latitude, H, sun);
    } else {
      assign(shadow.A, azimuthByTangent(cylinder.latitude, H, sun));
      turnAzimuth(cylinder, H, shadow);
    }
    assign(shadow.h, arcsineByTangent(sineOfAltitude(cylinder.latitude, H, sun)));
    const double aside = shadow.A - p_.DeclRad;
    if (std::cos(aside) > 0)
      project({p_.Stilo * std::tan(aside), -p_.Stilo * std::tan(shadow.h) / std::cos(aside)}, ink,
              {H.angle, sun.angle});
  }
}

}  // namespace

void QuadranteProiettivo(Run& run) {
  drawDotted(run, "Cylindrical sundial of circular cross-section : projective method",
             [&run] { Drawing(run).all(); });
}

}  // namespace dialwright
