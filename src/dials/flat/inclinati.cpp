// Program 2: a declining, reclining dial by analytic geometry in space. Every curve is where the
// plane meets a plane of hours or a cone of declination, worked out at values of one coordinate, X
// or Y; each variable draws what the other can't.
#include "dials/flat/inclinati.hpp"

#include <array>
#include <cmath>

#include "dials/drawing.hpp"
#include "dials/flat/flat_setup.hpp"
#include "dials/flat/inclined_space.hpp"
#include "dials/flat/plane_suns.hpp"
#include "dials/flat/sky_curves.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"
#include "numerics/quadratic.hpp"
#include "shell/dispatch.hpp"

namespace dialwright {

namespace {

using namespace inclined;

constexpr double kReach = 1;         // metres swept on both sides of the origin
constexpr double kFineStep = 0.001;  // of what does not follow the definition, metres
constexpr double kNoon = 1e-8;       // tangent of an hour angle that is noon's
constexpr Sun kEquinox{Sun::kOpen, 0};
constexpr double kProbe = 0.1;  // where the substyle's angle is taken, metres
constexpr double kLongestStyle =
    100;  // in perpendicular styles: a longer one has its centre out of reach

enum class Variable { X, Y };

// The last good point of a routine: a statement that fails leaves it where it was.
struct Trace {
  Place at{0, 0};
  Punto point;
};

class Drawing : PanelDrawing {
 public:
  Drawing(Run& run, Variable variable);

  void all();

 private:
  bool isX() const { return variable_ == Variable::X; }
  Sweep swept() {
    return run_.sweep(-kReach, kReach, p_.PassoCurva / 5, {.step = Field::txt_Definition});
  }
  // A dot, with the sun that its point stands for.
  template <class SunAt>
  void mark(Trace& trace, const Place& at, const Ink& ink, SunAt sunAt);
  template <class Height, class SunAt>
  void row(Trace& trace, const Sweep& sweep, const Ink& ink, Height height, SunAt sunAt);
  void noonRow(Trace& trace, const Ink& ink);

  void Ore();
  void hoursOfPolarPlane();
  void Orizzonte();
  void Piede();
  void Sustilare();
  double substyleTangent(double at) const;
  void Angoli();
  void Triangolo();
  void styleByItsSlope(Punto tip, double angle, double elevation);
  void Equinoziale();
  void Curve();
  void hoursFromHorizon(double first, double last, double step, const Ink& ink);
  void Analemma();

  Variable variable_;
  const Formulas& formulas_;
  Space space_;
  PlaneSuns suns_;
  std::array<DeclinationCone, 3> cones_;
};

// The latitude counts by its size; a level plane has no declination.
void ImpostaInclinati(Run& run) {
  DialParams& p = run.params;
  LeggiParametriSito(run);
  p.LatGradi = std::abs(p.LatGradi);
  p.LatRad = p.radians(p.LatGradi);
  assign(p.Stilo, run.number(Field::TxtStilo));
  assign(p.PassoCurva, run.number(Field::txt_Definition) / 100);
  p.ReclinRad = p.radians(p.ReclinGradi);
  if (std::abs(p.ReclinGradi) == 90) p.DeclRad = 0;
}

Drawing::Drawing(Run& run, Variable variable)
    : PanelDrawing(run),
      variable_(variable),
      formulas_(variable == Variable::X ? kAlongX : kAlongY),
      space_(run.params),
      suns_(run.sheet, planeOf(run.params)),
      cones_(declinationCones(run.params, kSolsticeArcInSpace)) {}

void Drawing::all() {
  if (on(Field::chkOreAstronomiche)) Ore();
  if (p_.ReclinGradi != 90) {
    if (on(Field::ck_Orizzonte)) Orizzonte();
    Piede();
    if (on(Field::ck_Sustilare)) Sustilare();
    Angoli();
  }
  if (isX() && on(Field::ck_Triangolo)) Triangolo();
  if (on(Field::ck_Equinoziale)) Equinoziale();
  if (!isX() && on(Field::ck_Triangolo)) Triangolo();
  if (on(Field::Ck_DayLightCurves)) Curve();
  const double step = p_.PassoCurva / 5;
  // The horizon has 24 turns by hours.
  const double turns = run_.trueShadows() ? 345 : 180;
  if (on(Field::ck_Italiche)) {
    hoursFromHorizon(0, turns, isX() ? step : kFineStep,
                     {.colour = palette(isX() ? 9 : 11), .family = CurveFamily::Italic});
  }
  if (on(Field::ck_babiloniche)) {
    hoursFromHorizon(-turns, 0, step, {.colour = palette(10), .family = CurveFamily::Babylonian});
  }
  if (on(Field::ck_Lemniscate)) Analemma();
  SistemaSustilare(p_);
  if (on(Field::CkQibla)) CurvaQibla(run_);
}

template <class SunAt>
void Drawing::mark(Trace& trace, const Place& at, const Ink& ink, SunAt sunAt) {
  assign(trace.at.swept, at.swept);
  assign(trace.at.w, at.w);
  assign(trace.point, formulas_.toPlane(space_, trace.at));
  dot(sheet_, trace.point, ink, sunAt(trace.point));
}

template <class Height, class SunAt>
void Drawing::row(Trace& trace, const Sweep& sweep, const Ink& ink, Height height, SunAt sunAt) {
  for (const double s : sweep) mark(trace, {s, height(s)}, ink, sunAt);
}

// What noSun tells no shadow follows.
constexpr auto noSun = [](Punto) { return Sun{}; };

// The hours are counted before noon, so that 90 is six in the morning. Where a plane of hours holds
// the swept direction (noon, along X) it has no height to give: that row stays at the height of the
// line before it.
void Drawing::Ore() {
  readUsaLongitudine(run_);
  if (isX() && p_.ReclinGradi == 90 - p_.LatGradi && p_.DeclRad == 0) {
    hoursOfPolarPlane();
    return;
  }
  Trace trace;
  for (const double t : run_.sweep(-90, 90, p_.PassoOre, {.step = Field::TxtHour})) {
    const double H = p_.radians(t) + p_.CorrFuso * p_.UsaLongitudine;
    const double tanH = std::tan(H);
    const Ink ink{.colour = palette(hourInk(t)), .family = CurveFamily::Hours};
    if (run_.trueShadows() && std::abs(tanH) < kNoon) {
      noonRow(trace, ink);
      continue;
    }
    row(
        trace, swept(), ink, [&](double s) { return formulas_.hour(space_, s, tanH); },
        [&](Punto at) { return suns_.ofHourPlane(-H, at); });
  }
}

// The line below the tip, swept along its height; along Y a plane that leans has it swept as the
// other lines.
void Drawing::noonRow(Trace& trace, const Ink& ink) {
  const bool byHeight = isX() || (run_.trueShadows() && p_.ReclinRad == 0);
  const Formulas& formulas = byHeight ? kAlongX : formulas_;
  for (const double s : swept()) {
    const Place at = formulas.foot(space_, s);
    assign(trace.at.swept, at.swept);
    assign(trace.at.w, at.w);
    assign(trace.point, formulas.toPlane(space_, trace.at));
    dot(sheet_, trace.point, ink, suns_.ofHourPlane(0, trace.point));
  }
}

// On a plane parallel to the axis the hours are upright lines, and stand every half hour in any
// case.
void Drawing::hoursOfPolarPlane() {
  double x = 0;
  for (const double t : run_.sweep(-90, 90, 7.5)) {
    const double H = p_.radians(t) + p_.CorrFuso * p_.UsaLongitudine;
    assign(x, space_.x0 + (space_.y0 * space_.sinF - space_.z0 * space_.cosF) * std::tan(H));
    litLine(sheet_, {x, sheet_.ShiftY()}, {x, -sheet_.ShiftY()},
            {.colour = palette(15), .family = CurveFamily::Hours},
            [&](Punto at) { return suns_.ofHourPlane(-H, at); });
  }
}

// The swept value is the abscissa as it stands: a level line has all of them.
void Drawing::Orizzonte() {
  double v = 0;
  assign(v, over(space_.z0, space_.cosR));
  for (const double s : swept()) dot(sheet_, {s, v}, palette(2));
}

// The noon line below the tip.
void Drawing::Piede() {
  Trace trace;
  noonRow(trace, {.colour = palette(4), .family = CurveFamily::Hours});
}

// Along X the substyle of a plane without declination has no slope; for true shadows it is drawn
// upright.
void Drawing::Sustilare() {
  if (isX() && p_.DeclRad == 0 && run_.trueShadows()) {
    for (const double s : swept()) dot(sheet_, {0, s}, palette(9));
    return;
  }
  Trace trace;
  row(
      trace, swept(), {palette(9)}, [&](double s) { return formulas_.substyle(space_, s); }, noSun);
}

// Tangent of the substyle's angle from the upright, taken at a point of it; a fault where it can't
// be worked out.
double Drawing::substyleTangent(double at) const {
  Place place{at, 0};
  assign(place.w, formulas_.substyle(space_, at));
  const Punto point = formulas_.toPlane(space_, place);
  return over(-point.x, point.y);
}

void Drawing::Angoli() {
  assign(p_.Sustilare, arctan(substyleTangent(kProbe)));
  assign(p_.ElevStilo,
         p_.ArcSin(-space_.cosF * space_.cosR * (space_.tanR * space_.tanF - space_.cosD)));
  if (p_.ElevStilo == 0) return;
  assign(p_.OrarioSustilare, -p_.ArcSin(over(space_.sinD * space_.cosR, std::cos(p_.ElevStilo))));
  assign(p_.IpotenusaStilo, over(p_.Stilo, std::sin(p_.ElevStilo)));
}

void Drawing::Triangolo() {
  const Space& k = space_;
  double m = 0;
  if (!isX() || std::abs(p_.ReclinGradi) != 90) assign(m, substyleTangent(kReach));
  const double a = std::atan(m);
  const Punto tip{p_.Stilo * std::cos(a), p_.Stilo * std::sin(a)};

  const double den = k.tanR * k.tanF - k.cosD;
  const double G = k.x0 * k.sinD + k.y0 * k.cosD - k.z0 * k.tanR;
  Place centreInSpace{k.x0, 0};
  if (!isX()) assign(centreInSpace.swept, over(G, den) + k.y0);
  assign(centreInSpace.w, over(G * k.tanF, den) + k.z0);
  Punto centre;
  assign(centre, formulas_.toPlane(k, centreInSpace));

  const double elevationSine = k.sinF * k.sinR - k.cosF * k.cosR * k.cosD;
  assign(p_.IpotenusaStilo, over(p_.Stilo, elevationSine));

  line(sheet_, {0, 0}, tip, palette(13));
  if (isX()) {
    line(sheet_, centre, tip, palette(9));
    line(sheet_, centre, {0, 0}, palette(14));
  } else {
    if (std::abs(p_.IpotenusaStilo) < kLongestStyle * p_.Stilo) {
      p_.TriangoloDisegnato = true;
      line(sheet_, centre, tip, palette(9));
      line(sheet_, {0, 0}, centre, palette(14));
    }
    if (!p_.TriangoloDisegnato) styleByItsSlope(tip, a, p_.ArcSin(elevationSine));
  }
  steepestLine(sheet_, centre.x);
}

// The style's line from its tip and its slope, for a centre out of reach. The program draws it only
// until it has drawn a whole triangle once.
void Drawing::styleByItsSlope(Punto tip, double angle, double elevation) {
  Punto point;
  const double slope = std::tan(elevation + angle);
  for (const double x : run_.sweep(-kReach, kReach, kFineStep)) {
    assign(point, {x, over(-(x - tip.x), slope) + tip.y});
    dot(sheet_, point, palette(5));
  }
}

// On the equator it stands over the tip's Y; along Y that is for true shadows only.
void Drawing::Equinoziale() {
  Trace trace;
  if (!isX() && p_.LatRad == 0 && run_.trueShadows()) {
    const Ink ink{.colour = palette(9), .family = CurveFamily::Equinoctial};
    for (const double w : swept()) mark(trace, {space_.y0, w}, ink, [](Punto) { return kEquinox; });
    return;
  }
  row(
      trace, swept(), {.colour = palette(9), .family = CurveFamily::Equinoctial},
      [&](double s) { return formulas_.equinoctial(space_, s); }, [](Punto) { return kEquinox; });
  if (!isX() || p_.LatRad != 0) return;
  double x = 0;
  assign(x, over(-space_.y0, space_.sinD));
  litLine(sheet_, {x, 0}, {x, -sheet_.ShiftY()},
          {.colour = palette(9), .family = CurveFamily::Equinoctial},
          [](Punto) { return kEquinox; });
}

void Drawing::Curve() {
  Trace trace;
  for (const double s : swept()) {
    for (const DeclinationCone& cone : cones_) {
      const Quadratic q = formulas_.cone(space_, s, cone.K);
      const Roots w = quadraticRoots(q.a, q.b, q.c);
      if (!sound(w.plus) && !sound(w.minus)) continue;
      const auto sunAt = [&](Punto at) { return suns_.ofPair(cone.declination, at); };
      mark(trace, {s, w.plus + q.base}, cone.ink(), sunAt);
      mark(trace, {s, w.minus + q.base}, cone.ink(), sunAt);
    }
  }
}

// Hours counted from sunset (0 to 180 degrees) and from sunrise (-180 to 0); the longitude does not
// enter.
void Drawing::hoursFromHorizon(double first, double last, double step, const Ink& ink) {
  const double side = ink.family == CurveFamily::Italic ? +1 : -1;
  Trace trace;
  for (const double t : run_.sweep(first, last, 15)) {
    const double H = p_.radians(t);
    const double sinH = std::sin(H), cosH = std::cos(H);
    const Sweep sweep = run_.sweep(-kReach, kReach, step, {.step = Field::txt_Definition});
    row(
        trace, sweep, ink, [&](double s) { return formulas_.horizonHour(space_, s, sinH, cosH); },
        [&](Punto at) { return suns_.ofHorizonHour(-H, side, at); });
  }
}

// The ray of each day's sun at the zone's noon, from the tip on to the plane. Where the sun is
// behind the plane the ray is drawn backwards.
void Drawing::Analemma() {
  const Space& k = space_;
  const double tilt = p_.radians(obliquity(47));
  const double G = -k.y0 * k.cosD + k.z0 * k.tanR - k.x0 * k.sinD;
  Trace trace;
  for (const double L : run_.sweep(0, 360, 360 / kDaysOfYear)) {
    const SunOfDay sun = sunAtMeanLongitude(p_, p_.radians(L), tilt);
    const double He = -sun.equationOfTime + p_.CorrFuso;
    const double sinH = std::sin(He), tanH = std::tan(He);
    const double lift = std::tan(-sun.declination) * tanH;
    const double den = lift * (k.cosF * k.cosD - k.sinF * k.tanR) +
                       (k.cosF * k.tanR + k.sinF * k.cosD) * sinH - sinH * tanH * k.sinD;
    const double ray = over(G, den);
    const double swept =
        isX() ? -ray * sinH * tanH + k.x0 : ray * (lift * k.cosF + k.sinF * sinH) + k.y0;
    mark(trace, {swept, ray * (lift * k.sinF - k.cosF * sinH) + k.z0},
         {.colour = palette(isX() ? 14 : 12), .family = CurveFamily::Analemma}, [&](Punto) {
           return Sun{-He, sun.declination};
         });
  }
}

void drawUnder(Run& run, Variable variable, std::string_view caption) {
  run.sheet.Messaggio(run.T(caption));
  run.hourglass(true);
  Drawing(run, variable).all();
  run.hourglass(false);
}

constexpr std::string_view kDefinitionMessage =
    "Modify the definition if the graph is not well visible";
constexpr std::string_view kUseXCaption = "Horizontal dial, please use variable X";

}  // namespace

void DisegnaInclinati(Run& run) {
  if (run.on(Field::optX)) {
    DisegnaInclinatiX(run);
  } else {
    DisegnaInclinatiY(run);
  }
}

void DisegnaInclinatiX(Run& run) {
  DisegnaCornice(run);
  ImpostaInclinati(run);
  run.message(run.T(kDefinitionMessage));
  if (latitudeIsMissing(run)) {
    run.refuse(kIncompleteSiteMessage);
    return;
  }
  if (std::abs(run.number(Field::txtDecl)) == 90) {
    run.beep();
    run.refuse(run.T("Please use the other variable !!"));
    return;
  }
  drawUnder(run, Variable::X, "Reclining dial by 3D analytic geometry, variable X");
}

void DisegnaInclinatiY(Run& run) {
  if (latitudeIsMissing(run)) {
    run.refuse(kIncompleteSiteMessage);
    return;
  }
  ImpostaInclinati(run);
  run.message(run.T(kDefinitionMessage));
  if (run.number(Field::txtDecl) == 0) {
    run.refuseByCaption(run.T(kUseXCaption));
    return;
  }
  DisegnaCornice(run);
  if (run.params.ReclinGradi == 90) {
    run.refuseByCaption(run.T(kUseXCaption));
    return;
  }
  drawUnder(run, Variable::Y, "Declining, reclining dial by 3D analytic geometry, variable y");
}

}  // namespace dialwright
