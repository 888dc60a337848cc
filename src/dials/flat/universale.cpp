// Program 7: a flat dial of any declination and reclination by spherical trigonometry. Every curve
// is a row of suns, each projected onto the plane through the tip of the style.
#include "dials/flat/universale.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "dials/drawing.hpp"
#include "dials/flat/sky_curves.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"
#include "lettering/arabic.hpp"
#include "lettering/roman.hpp"
#include "lettering/zodiac.hpp"
#include "numerics/numbers.hpp"
#include "shell/dispatch.hpp"
#include "shell/style_triangle.hpp"

namespace dialwright {

namespace {

constexpr Rgb kOrange = rgb(255, 127, 39);
constexpr double kFirstDay = -80;  // degrees of mean longitude, where the analemma's loop starts
constexpr double kDayReach = 120;  // degrees of hour angle of a day's curve, either side of noon
constexpr double kTipMark = 0.01;  // radius of the style tip's circle, metres

// A curve of one declination.
struct DayCurve {
  double declination;
  int colour;
  const char* layer;
};
constexpr std::array<DayCurve, 6> kDayCurves = {{{-kSolstice, 12, "-23.445°"},
                                                 {kSolstice, 12, "23.445°"},
                                                 {-kTwentieth, 13, "-20.15°"},
                                                 {kTwentieth, 13, "20.15°"},
                                                 {kEleventh, 11, "11.47°"},
                                                 {-kEleventh, 11, "-11.47°"}}};

// The hours that are counted from sunset, from sunrise, or in twelfths of the day: the hour angle
// of the hour n where the semi-diurnal arc is H0, radians. The lines from sunset and sunrise are
// numbered one hour early.
struct SunHours {
  Field box;
  double first, last;
  double step;  // of the declination, degrees
  const char* layer;
  CurveFamily family;
  double (*hourAngle)(double n, double H0, double PiGreco);
  bool inDaylight;  // left out where the sun is below the horizon
};
constexpr std::array<SunHours, 3> kSunHours = {{
    {Field::ck_Italiche, 4, 22, 0.2, "Ita", CurveFamily::Italic,
     [](double n, double H0, double pi) { return n * pi / 12 + H0 - 2 * pi + pi / 12; }, true},
    {Field::ck_babiloniche, 0, 12, 0.2, "Bab", CurveFamily::Babylonian,
     [](double n, double H0, double pi) { return n * pi / 12 - H0 + pi / 12; }, true},
    {Field::ckTemp, 0, 12, 0.5, "Temp", CurveFamily::Temporary,
     [](double n, double H0, double) { return H0 * (n / 6 - 1); }, false},
}};

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run) : PanelDrawing(run) {}

  void all();

 private:
  // H of an hour in degrees from noon, on the zone's meridian when the longitude is used.
  double hourAngle(double t) const {
    return p_.radians(t - p_.degrees(p_.CorrFuso) * p_.UsaLongitudine);
  }

  void trace(Pen& pen, Punto point, bool pastStart, const Sun& sun) const {
    pen.visit(point,
              TracciaCurva(window_, horizonLimit(run_, p_.LimiteOrizzonte), point, pastStart), sun);
  }

  void ImpostaUniversale();
  void OreUniversale();
  void NumeriUniversale();
  void CurveDeclinazione();
  void LineaDeclinazione();
  void LineaEquinoziale();
  void dayCurve(Pen& pen, double declination, double step);
  void sunHours(const SunHours& hours);
  void analemma(bool southern);
  void LineaSustilare();
  void TriangoloStilo();
  void styleLine(const PolarStyle& style, Punto tip);
  void styleInWindow(const PolarStyle& style, Punto tip);
  void LineaOrizzonte();
};

void Drawing::all() {
  ImpostaUniversale();
  if (on(Field::chkOreAstronomiche)) OreUniversale();
  // Each box draws the row, and the Roman numerals come first in both.
  if (on(Field::ckRomani)) NumeriUniversale();
  if (on(Field::ckArabi)) NumeriUniversale();
  if (on(Field::Ck_DayLightCurves)) {
    CurveDeclinazione();
    LineaDeclinazione();
  }
  if (on(Field::ck_Equinoziale)) LineaEquinoziale();
  for (const SunHours& hours : kSunHours) {
    if (on(hours.box)) sunHours(hours);
  }
  if (on(Field::ck_Lemniscate)) analemma(on(Field::ckFunction));
  if (on(Field::ck_Sustilare)) LineaSustilare();
  if (on(Field::ck_Triangolo)) TriangoloStilo();
  if (on(Field::ck_Orizzonte) && !p_.PianoOrizzontale) LineaOrizzonte();
  if (on(Field::CkQibla)) CurvaQibla(run_);
  CurvaAsr(run_);
  LineeAzimut(run_);
  if (on(Field::ckAlt)) CurveAlmucantarat(run_);
}

void Drawing::ImpostaUniversale() {
  p_.PiGreco = Angles{}.PiGreco;
  assign(p_.Stilo, number(Field::TxtStilo));
  assign(p_.LatGradi, number(Field::txtLAT));
  p_.LatRad = p_.radians(p_.LatGradi);
  assign(p_.LonGradi, number(Field::txtLON));
  setLongitudeCorrections(run_);
  p_.ReclinRad = p_.radians(p_.ReclinGradi);
  assign(p_.PassoOre, over(15, number(Field::TxtHour)));
  readUsaLongitudine(run_);
  p_.PianoOrizzontale = std::abs(p_.ReclinGradi) == 90;
  if (p_.PianoOrizzontale) {
    run_.panel.setText(Field::txtDecl, "0");
    assign(p_.LimiteOrizzonte, window_.y1);
  } else {
    assign(p_.LimiteOrizzonte, p_.Stilo * std::tan(p_.ReclinRad) * (p_.ReclinGradi > 90 ? -1 : 1));
  }
  assign(p_.DeclGradi, number(Field::txtDecl));
  p_.DeclRad = p_.radians(p_.DeclGradi);
}

// --- Hours

void Drawing::OreUniversale() {
  const Projection project(planeOf(p_));
  const LayerId layer = sheet_.layer("oreastro");
  Pen pen(sheet_, kSkyGap);
  SolarDays days(p_, p_.LatRad);
  Punto point;
  for (const double t : run_.sweep(-90, 90, p_.PassoOre, {.step = Field::TxtHour})) {
    pen.dip({.colour = palette(hourInk(t)), .layer = layer, .family = CurveFamily::Hours});
    const double H = hourAngle(t);
    const Projection::Hour shadow = project.atHour(H);
    for (const SolarDay& day : days.of(run_.sweep(-kSolstice, kSolstice, 0.05))) {
      assign(point, shadow(day.tangent));
      trace(pen, point, day.degrees > -kSolstice, {H, day.radians});
    }
  }
}

void Drawing::NumeriUniversale() {
  const Piano plane = planeOf(p_);
  double declination = 0;
  assign(declination, p_.radians(number(Field::txtLineofdeclination)));
  Punto point;
  for (const double t : run_.sweep(-90, 90, 15)) {
    assign(point, ProiezioneSferica(plane, hourAngle(t), declination));
    if (!window_.holds(point) || !(point.y <= horizonLimit(run_, p_.LimiteOrizzonte)) ||
        !isShown(sheet_, point, CurveFamily::Hours, {hourAngle(t), declination}))
      continue;
    const int fromMidnight = 12 + static_cast<int>(t) / 15;
    const int hour = fromMidnight > 12 ? fromMidnight - 12 : fromMidnight;
    if (on(Field::ckRomani)) {
      DisegnaNumeroRomano(run_, point.x, point.y, p_.PiGreco / 2, hour, 1);
    } else {
      DisegnaNumeroArabo(run_, point.x, point.y, 90, hour, hour >= 10 ? 2 : 1);
    }
  }
}

void Drawing::sunHours(const SunHours& hours) {
  const Projection project(planeOf(p_));
  Pen pen(sheet_, kSkyGap);
  pen.dip({.colour = palette(12), .layer = sheet_.layer(hours.layer), .family = hours.family});
  SolarDays days(p_, p_.LatRad);
  Punto point;
  for (const double n : run_.sweep(hours.first, hours.last, 1)) {
    for (const SolarDay& day : days.of(run_.sweep(-kSolstice, kSolstice, hours.step))) {
      const double H0 = sound(day.arc) ? day.arc : p_.PiGreco;  // on through polar day and night
      const double H = hours.hourAngle(n, H0, p_.PiGreco);
      if (hours.inDaylight && std::abs(H) > H0) continue;
      assign(point, project(std::sin(H), std::cos(H), day.tangent));
      trace(pen, point, day.degrees > -kSolstice, {H, day.radians});
    }
  }
}

// --- Declinations

void Drawing::dayCurve(Pen& pen, double declination, double step) {
  const Projection project(planeOf(p_));
  const double day = p_.radians(declination);
  const double tangent = std::tan(day);
  Punto point;
  const Sweep hours = run_.sweep(-kDayReach, kDayReach, step);
  for (const double t : hours) {
    const double H = p_.radians(t);
    assign(point, project(std::sin(H), std::cos(H), tangent));
    trace(pen, point, t > hours.first(), {H, day});
  }
}

void Drawing::CurveDeclinazione() {
  Pen pen(sheet_, kSkyGap);
  for (const DayCurve& curve : kDayCurves) {
    pen.dip({.colour = palette(curve.colour),
             .layer = sheet_.layer(curve.layer),
             .family = CurveFamily::Declinations});
    dayCurve(pen, curve.declination, 0.1);
  }
}

void Drawing::LineaEquinoziale() {
  Pen pen(sheet_, kSkyGap);
  pen.dip({.colour = palette(12), .layer = sheet_.layer("0°"), .family = CurveFamily::Equinoctial});
  dayCurve(pen, 0, 0.1);
}

// The line of the panel's declination, unless the numerals stand on it. Only the branch on the
// sun's own side of the equinoctial is drawn.
void Drawing::LineaDeclinazione() {
  if (on(Field::ckArabi) || on(Field::ckRomani)) return;
  double declination = 0;
  assign(declination, number(Field::txtLineofdeclination));
  const Projection project(planeOf(p_));
  const EquinoctialLine equinoctial(p_, StylePlane(p_));
  const double day = p_.radians(declination);
  const double tangent = std::tan(day);
  Pen pen(sheet_, kSkyGap);
  pen.dip({.colour = kOrange,
           .layer = sheet_.layer(textOf(declination)),
           .family = CurveFamily::Declinations});
  Punto point;
  const Sweep hours = run_.sweep(-kDayReach, kDayReach, 0.05);
  for (const double t : hours) {
    const double H = p_.radians(t);
    assign(point, project(std::sin(H), std::cos(H), tangent));
    const double above = equinoctial.above(point);
    const bool ownSide = run_.trueShadows() || (declination >= 0 ? above < 0 : above > 0);
    trace(pen, point, ownSide && t > hours.first(), {H, day});
  }
}

// --- The analemma

// The noon of the mean sun through the year. The southern recipe (a northern latitude, and the
// sheet mirrored after the run) turns the declination and the longitude over; it alone has the
// zodiac's signs.
void Drawing::analemma(bool southern) {
  const Projection project(planeOf(p_));
  const double tilt = p_.radians(obliquity(47));
  if (southern)
    assign(p_.LonOrario, p_.radians(15 * number(Field::TxtFuso) - number(Field::txtLON)));
  const double base = southern ? p_.LonOrario : -p_.CorrFuso;
  Pen pen(sheet_, southern ? 0.015 : 0.05);
  pen.dip(
      {.colour = palette(15), .layer = sheet_.layer("analemma"), .family = CurveFamily::Analemma});
  Punto point;
  const Sweep days = run_.sweep(kFirstDay, southern ? 280 : 360, 360 / kDaysOfYear);
  for (const double L : days) {
    const SunOfDay sun = sunAtMeanLongitude(p_, p_.radians(L), tilt);
    const double H = base + sun.equationOfTime;
    const double day = southern ? -sun.declination : sun.declination;
    assign(point, project(std::sin(H), std::cos(H), std::tan(day)));
    if (southern && !window_.holdsX(point.x)) continue;
    trace(pen, point, L > days.first(), {H, day});
  }
  if (southern && on(Field::ckZodiaco)) DisegnaSegniZodiaco(run_);
}

// --- The style

void Drawing::LineaSustilare() {
  if (run_.trueShadows()) {
    const auto chord = clippedLine({0, 0}, poleAlong(StylePlane(p_)), window_);
    if (chord) line(sheet_, chord->a, chord->b, palette(15));
    return;
  }
  if (p_.DeclRad == 0) return;
  const double slope = EquinoctialLine(p_, StylePlane(p_)).slope;
  Pen pen(sheet_);
  pen.dip({palette(15)});
  Punto point;
  const Sweep xs = run_.sweep(window_.x1, window_.x2, 0.005, {.bound = Field::x2txt});
  for (const double x : xs) {
    assign(point, {x, over(-x, slope)});
    pen.visit(point, drawIf(x > xs.first() && window_.holdsY(point.y)));
  }
}

void Drawing::TriangoloStilo() {
  assign(p_.SegnoDecl, signOrOne(number(Field::txtDecl)));
  const PolarStyle style = polarStyle(p_, StylePlane(p_));
  const double reach = -p_.Stilo * p_.SegnoDecl;
  const Punto tip{reach * std::cos(style.substyle), reach * std::sin(style.substyle)};
  circle(sheet_, tip, kTipMark, palette(12));
  line(sheet_, tip, {0, 0}, {palette(10), sheet_.layer("ortostilo")});
  if (run_.trueShadows()) {
    styleInWindow(style, tip);
  } else {
    const Chord substyle = clippedSubstyle(style.substyle, window_);
    line(sheet_, substyle.b, substyle.a, {palette(12), sheet_.layer("sottostilo")});
    styleLine(style, tip);
  }
  const Punto centre = style.centre;
  if (window_.holdsX(centre.x)) {
    line(sheet_, {centre.x, window_.y1}, {centre.x, window_.y2},
         {palette(8), sheet_.layer("maxpendenza")});
  }
}

// The substyle and the style by the plane's vectors, cut to the window: each in one piece, also
// where they stand upright.
void Drawing::styleInWindow(const PolarStyle& style, Punto tip) {
  const Punto pole = poleAlong(StylePlane(p_));
  if (const auto substyle = clippedLine({0, 0}, pole, window_))
    line(sheet_, substyle->b, substyle->a, {palette(12), sheet_.layer("sottostilo")});
  const Punto way{style.centre.x - tip.x, style.centre.y - tip.y};
  const auto laid =
      style.hasCentre() ? clippedLine(tip, way, window_, 0, 1) : clippedLine(tip, pole, window_);
  if (laid) line(sheet_, laid->b, laid->a, {palette(15), sheet_.layer("assostilo")});
}

// The style itself, laid into the plane along the substyle: from its tip to the centre, or to the
// window's edge on the way there.
void Drawing::styleLine(const PolarStyle& style, Punto tip) {
  const Punto centre = style.centre;
  const Ink ink{palette(15), sheet_.layer("assostilo")};
  Punto end;
  const auto atHeight = [&](double y) {
    end.y = y;
    assign(end.x, over(y - centre.y, tip.y - centre.y) * (tip.x - centre.x) + centre.x);
  };
  const auto atSide = [&](double x) {
    end.x = x;
    assign(end.y, over(x - centre.x, tip.x - centre.x) * (tip.y - centre.y) + centre.y);
  };
  if (style.elevation < 0) {
    atHeight(window_.y1);
    if (end.x < window_.x1) atSide(window_.x1);
    if (end.x > window_.x2) atSide(window_.x2);
    line(sheet_, window_.holds(centre) ? centre : end, tip, ink);
    return;
  }
  // An end beside the window is replaced by one on its top; a style may so be drawn in more than
  // one piece.
  atHeight(window_.y2);
  const auto toTop = [&] {
    atHeight(std::min(window_.y1, centre.y));
    line(sheet_, end, tip, ink);
  };
  if (end.x < window_.x1) toTop();
  if (end.x > window_.x2) toTop();
  if (window_.holds(centre)) {
    line(sheet_, centre, tip, ink);
  } else if (window_.holdsX(end.x) && window_.holdsY(0)) {
    atHeight(centre.y > 0 ? window_.y1 : window_.y2);
    line(sheet_, end, tip, ink);
  }
}

void Drawing::LineaOrizzonte() {
  assign(p_.LimiteOrizzonte, p_.Stilo * std::tan(p_.ReclinRad));
  const double side = sheet_.ShiftX();
  line(sheet_, {-side, p_.LimiteOrizzonte}, {side, p_.LimiteOrizzonte}, palette(2));
}

}  // namespace

void DisegnaUniversale(Run& run) {
  run.hourglass(true);
  if (run.number(Field::txtLAT) < 0) {
    run.panel.setState(Field::ckFunction, true);
    run.refuse(run.T(
        "Use positive latitude also for the Southern hemisphere and click on F; after RUN press Key InvertX "));
  } else {
    DisegnaCornice(run);
    Drawing(run).all();
  }
  run.hourglass(false);
}

}  // namespace dialwright
