// Program 12: an upright cylinder of circular cross-section by spherical trigonometry. Each sample
// is the shadow of the style's tip on the development of the surface.
#include "dials/cylindrical/sferico.hpp"

#include <array>
#include <cmath>
#include <span>

#include "dials/cylindrical/cylinder.hpp"
#include "dials/cylindrical/dotted.hpp"
#include "dials/drawing.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"
#include "lettering/arabic.hpp"
#include "lettering/roman.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

namespace {

constexpr double kStep = 0.05;     // degrees from sample to sample, whatever the definition
constexpr double kLastHour = 120;  // degrees either side of noon

// Upper bounds of the sun's declination: of the hours, and of those from sunrise and sunset.
constexpr double kLastDay = 23.45;
constexpr double kLastOldDay = 23.44;

// Longest segments, metres: of the hours, the substyle and the equinoctial; of the declination
// curves and the old hours; of the analemma.
constexpr double kHourGap = 0.01;
constexpr double kCurveGap = 0.012;
constexpr double kAnalemmaGap = 0.005;
// The analemma's for true shadows, in lengths of the style.
constexpr double kTrueAnalemmaGap = 0.1;

constexpr Rgb kFreeLine = rgb(255, 127, 39);

struct DayCurve {
  double declination;
  int colour;
  const char* layer;
};
constexpr std::array<DayCurve, 3> kCilDeclInverno = {
    {{-kSolstice, 12, "-23.445°"}, {-kTwentieth, 13, "-20.15°"}, {-kEleventh, 11, "-11.47°"}}};
constexpr std::array<DayCurve, 3> kCilDeclEstate = {
    {{kSolstice, 12, "23.445°"}, {kTwentieth, 13, "20.15°"}, {kEleventh, 11, "11.47°"}}};

// Hours counted from the horizon: the hour angle of hour k for a semi-diurnal arc a.
struct OldHours {
  Field box;
  double first, last;
  int colour;
  CurveFamily family;
  double (*hourAngle)(double PiGreco, double k, double a);
};
constexpr double italicHour(double pi, double k, double a) { return k * pi / 12 + a - 2 * pi; }
constexpr double babylonianHour(double pi, double k, double a) { return k * pi / 12 - a; }
constexpr double temporaryHour(double, double k, double a) { return a * (k / 6 - 1); }
constexpr OldHours kCilItaliche{Field::ck_Italiche, 5, 23, 12, CurveFamily::Italic, italicHour};
constexpr OldHours kCilBabiloniche{Field::ck_babiloniche, 1, 18, 13, CurveFamily::Babylonian,
                                   babylonianHour};
constexpr OldHours kCilTemporarie{Field::ckTemp, 1, 12, 6, CurveFamily::Temporary, temporaryHour};

// A curve routine's cylinder, shadow and pen.
class Curve {
 public:
  Curve(Run& run, double gap)
      : cylinder(run.params, run.params.SegnoCurva, run.trueShadows()),
        convex_(cylinder.side == 1),
        edge_(run.params.ArcoLimite),
        pen_(run.sheet, gap) {}

  void dip(const Ink& ink) { pen_.dip(ink); }

  // The sample of a sun; `best` is what becomes of it when the shadow falls on the surface.
  void visit(const Trig& hour, const SunDeclination& sun, Verdict best, bool zenith = false) {
    const bool meets = CilPuntoOmbra(cylinder, hour, sun, shadow, zenith);
    join(hour, sun, meets ? best : Verdict::Drop);
  }
  // The same of the shadow as it stands.
  void join(const Trig& hour, const SunDeclination& sun, Verdict best) {
    pen_.visit(shadow.point, best == Verdict::Draw && !visible() ? Verdict::Move : best,
               {hour.angle, sun.angle});
  }
  // With the sun up, and this side of the tangent generators of a convex surface.
  bool visible() const {
    return shadow.point.y <= 0 && (!convex_ || std::abs(shadow.point.x) < edge_);
  }

  const Cilindro cylinder;
  Ombra shadow;

 private:
  bool convex_;
  double edge_;
  Pen pen_;
};

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run) : PanelDrawing(run) {}

  void all();

 private:
  double declinationOfFreeLine() const;

  void CilOre();
  void CilNumeri();
  bool numeralIsLit(const Cilindro& cylinder, const Trig& hour, const SunDeclination& sun,
                    Ombra& shadow) const;
  void numeral(Punto at, int hour);
  void CilDeclinazioni(std::span<const DayCurve> curves);
  void CilAnalemma();
  void CilEquinoziale();
  bool equinoctialShadow(const Cilindro& cylinder, const Trig& hour, const SunDeclination& sun,
                         Ombra& shadow) const;
  void CilLineaDecl();
  void CilSustilare();
  void oldHours(const OldHours& family);
};

void Drawing::all() {
  CilGeneratriceCentro(run_);
  if (p_.SegnoCilindro == 1 || run_.trueShadows()) CilLimiti(run_);
  if (on(Field::chkOreAstronomiche)) CilOre();
  if (on(Field::ckArabi) || on(Field::ckRomani)) CilNumeri();
  if (on(Field::Ck_DayLightCurves)) {
    CilDeclinazioni(kCilDeclInverno);
    CilDeclinazioni(kCilDeclEstate);
  }
  if (on(Field::ck_Lemniscate)) CilAnalemma();
  if (on(Field::ck_Equinoziale)) CilEquinoziale();
  if (!on(Field::ckRomani) && !on(Field::ckArabi)) CilLineaDecl();
  CilGeneratriceMezzodi(run_);
  if (on(Field::ck_Orizzonte)) CilOrizzonte(run_);
  if (std::abs(p_.DeclGradi) != 90 && on(Field::ck_Triangolo)) CilTriangolo(run_);
  if (on(Field::ck_Sustilare)) CilSustilare();
  CilPiede(run_);
  for (const OldHours& family : {kCilItaliche, kCilBabiloniche, kCilTemporarie}) {
    if (on(family.box)) oldHours(family);
  }
  if (on(Field::Ck_Section)) CilSezione(run_);
}

// Radians; 0 when the field's number is out of range.
double Drawing::declinationOfFreeLine() const {
  double declination = 0;
  assign(declination, p_.radians(run_.number(Field::txtLineofdeclination)));
  return declination;
}

// --- Hours

void Drawing::CilOre() {
  readUsaLongitudine(run_);
  CilLimiti(run_);
  sheet_.ForeColor = palette(11);
  sheet_.Dati("O", 0.04, -0.04);
  sheet_.Dati("x", 0.8, -0.04);
  sheet_.Dati("y", 0.04, -0.6);
  Curve curve(run_, kHourGap);
  for (const double t : run_.sweep(-kLastHour, kLastHour, p_.PassoOre, {.step = Field::TxtHour})) {
    curve.dip({.colour = palette(hourInk(t)), .family = CurveFamily::Hours});
    const Trig hour(p_.radians(t) - p_.CorrFuso * p_.UsaLongitudine);
    for (const double declination : run_.sweep(-kSolstice, kLastDay, kStep)) {
      p_.DeclSole = declination;
      const Verdict best = declination > -kSolstice ? Verdict::Draw : Verdict::Drop;
      curve.visit(hour, SunDeclination(p_.radians(declination)), best, true);
    }
  }
}

// It works with the sign that the routine before it left, as the analemma does.
void Drawing::CilNumeri() {
  readUsaLongitudine(run_);
  setLimits(p_);
  const SunDeclination sun(declinationOfFreeLine());
  Curve curve(run_, Pen::kNoLimit);
  for (const double t : run_.sweep(-kLastHour, kLastHour, 15)) {
    const Trig hour(p_.radians(t) - p_.CorrFuso * p_.UsaLongitudine);
    const bool lit = curve.cylinder.everywhere
                         ? CilPuntoOmbra(curve.cylinder, hour, sun, curve.shadow) && curve.visible()
                         : numeralIsLit(curve.cylinder, hour, sun, curve.shadow);
    if (lit) numeral(curve.shadow.point, static_cast<int>(12 + t / 15));
  }
}

// With the azimuth turned in a way of its own. On a convex surface the shadow's side counts, and
// not whether the sun is up.
bool Drawing::numeralIsLit(const Cilindro& cylinder, const Trig& hour, const SunDeclination& sun,
                           Ombra& shadow) const {
  assign(shadow.A, azimuthByTangent(cylinder.latitude, hour, sun));
  if (onOtherSide(hour, shadow.A)) shadow.A += shadow.A > 0 ? -p_.PiGreco : p_.PiGreco;
  if (!meetSurface(cylinder, shadow)) return false;
  assign(shadow.h, arcsineByTangent(sineOfAltitude(cylinder.latitude, hour, sun)));
  dropShadow(cylinder, hour, sun, shadow);
  return cylinder.side == 1 ? p_.AzLimiteOvest < shadow.A && shadow.A < p_.AzLimiteEst
                            : shadow.point.y < 0;
}

void Drawing::numeral(Punto at, int hour) {
  if (hour > 12) hour -= 12;
  if (on(Field::ckRomani)) {
    DisegnaNumeroRomano(run_, at.x, at.y, p_.PiGreco / 2, hour, 1);
  } else {
    DisegnaNumeroArabo(run_, at.x, at.y, 90, hour, hour >= 10 ? 2 : 1);
  }
}

void Drawing::oldHours(const OldHours& family) {
  leggiSegnoCurva(run_);
  Curve curve(run_, kCurveGap);
  curve.dip({.colour = palette(family.colour), .family = family.family});
  const double slope = -std::tan(p_.LatRad);
  double semiArc = 0;
  for (const double k : run_.sweep(family.first, family.last, 1)) {
    for (const double declination : run_.sweep(-kSolstice, kLastOldDay, kStep)) {
      p_.DeclSole = declination;
      const SunDeclination sun(p_.radians(declination));
      const double v = slope * sun.tangent;
      if (std::abs(v) > 1) continue;
      assign(semiArc, p_.PiGreco / 2 - arcsineByTangent(v));
      const Trig hour(family.hourAngle(p_.PiGreco, k, semiArc));
      curve.visit(hour, sun, declination > -kSolstice ? Verdict::Draw : Verdict::Drop);
    }
  }
}

// --- The lines of a day

void Drawing::CilDeclinazioni(std::span<const DayCurve> curves) {
  leggiSegnoCurva(run_);
  Curve curve(run_, kCurveGap);
  for (const DayCurve& day : curves) {
    p_.DeclSole = day.declination;
    const SunDeclination sun(p_.radians(day.declination));
    curve.dip({.colour = palette(day.colour),
               .layer = sheet_.layer(day.layer),
               .family = CurveFamily::Declinations});
    const Sweep hours = run_.sweep(-kLastHour, kLastHour, kStep);
    for (const double t : hours) curve.visit(Trig(p_.radians(t)), sun, drawIf(t > hours.first()));
  }
}

void Drawing::CilEquinoziale() {
  leggiSegnoCurva(run_);
  Curve curve(run_, kHourGap);
  curve.dip({.colour = palette(9), .family = CurveFamily::Equinoctial});
  const SunDeclination sun(0);
  const Sweep hours = run_.sweep(-90, 90, kStep);
  for (const double t : hours) {
    const Trig hour(p_.radians(t));
    const bool meets = curve.cylinder.everywhere
                           ? CilPuntoOmbra(curve.cylinder, hour, sun, curve.shadow)
                           : equinoctialShadow(curve.cylinder, hour, sun, curve.shadow);
    curve.join(hour, sun, meets ? drawIf(t > hours.first()) : Verdict::Drop);
  }
}

// With forms of its own on the equator and with the sun straight in front.
bool Drawing::equinoctialShadow(const Cilindro& cylinder, const Trig& hour,
                                const SunDeclination& sun, Ombra& shadow) const {
  const bool equator = p_.LatRad == 0;
  assign(shadow.A, equator ? p_.PiGreco / 2 : azimuthByTangent(cylinder.latitude, hour, sun));
  turnAzimuth(cylinder, hour, shadow);
  if (!meetSurface(cylinder, shadow)) return false;
  assign(shadow.h, equator ? p_.PiGreco / 2 - std::abs(hour.angle)
                           : arcsineByTangent(sineOfAltitude(cylinder.latitude, hour, sun)));
  dropShadow(cylinder, hour, sun, shadow);
  // Straight in front the general form has no value: any positive ordinate leaves the sample out.
  const bool noon = cylinder.facesSouth && hour.angle == 0;
  if (!noon && shadow.A - cylinder.declination == 0) shadow.point.y = p_.PiGreco / 2;
  return true;
}

// The line of one more declination, inside the window only and however far its points lie apart.
void Drawing::CilLineaDecl() {
  leggiSegnoCurva(run_);
  const Window window(run_);
  const SunDeclination sun(declinationOfFreeLine());
  Curve curve(run_, Pen::kNoLimit);
  curve.dip({.colour = kFreeLine,
             .layer = sheet_.layer(textOf(run_.number(Field::txtLineofdeclination))),
             .family = CurveFamily::Declinations});
  const Sweep hours = run_.sweep(-kLastHour, kLastHour, kStep);
  for (const double t : hours) {
    const Trig hour(p_.radians(t));
    const bool meets = CilPuntoOmbra(curve.cylinder, hour, sun, curve.shadow);
    const bool draws = t > hours.first() && window.holds(curve.shadow.point);
    curve.join(hour, sun, meets ? drawIf(draws) : Verdict::Drop);
  }
}

// --- Lines across the days

void Drawing::CilSustilare() {
  if (p_.LatRad == 0) return;
  leggiSegnoCurva(run_);
  Curve curve(run_, kHourGap);
  curve.dip({.colour = palette(4), .family = CurveFamily::Hours});
  double H = 0;
  assign(H, hourOfSubstyle(p_));
  const Trig hour(H);
  for (const double declination : run_.sweep(-kSolstice, kLastDay, kStep)) {
    p_.DeclSole = declination;
    const Verdict best = declination > -kSolstice ? Verdict::Draw : Verdict::Drop;
    curve.visit(hour, SunDeclination(p_.radians(declination)), best, true);
  }
}

void Drawing::CilAnalemma() {
  p_.LonAbs = p_.CorrFuso;  // for the rest of the run
  Curve curve(run_, run_.trueShadows() ? kTrueAnalemmaGap * p_.Stilo : kAnalemmaGap);
  curve.dip({.colour = kWhite,
             .layer = sheet_.layer(curve.cylinder.side == 1 ? "Analemmaconvex" : "Analemmaconcave"),
             .family = CurveFamily::Analemma});
  const double tilt = p_.radians(obliquity(47));
  const Sweep longitudes = run_.sweep(-80, 360, 360 / kDaysOfYear);
  for (const double L : longitudes) {
    const SunOfDay sun = sunAtMeanLongitude(p_, p_.radians(L), tilt);
    curve.visit(Trig(sun.equationOfTime - p_.LonAbs), SunDeclination(sun.declination),
                drawIf(L > longitudes.first()));
  }
}

}  // namespace

void QuadranteCilindricoSferico(Run& run) {
  if (run.number(Field::txtLAT) < 0) {
    run.refuse(kSouthernMessage);
    return;
  }
  run.hourglass(true);
  run.sheet.Messaggio(
      run.T("Cylindrical sundial of circular cross-section : Spherical trigonometric method"));
  LeggiSitoCilindro(run);
  Drawing(run).all();
  run.hourglass(false);
}

}  // namespace dialwright
