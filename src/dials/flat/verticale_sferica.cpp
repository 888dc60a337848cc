// Program 6: a vertical dial of any declination by spherical trigonometry. Each point is the shadow
// of a sun given by its azimuth and altitude; the origin is the foot of the upright style.
#include "dials/flat/verticale_sferica.hpp"

#include <array>
#include <cmath>
#include <span>
#include <string>
#include <vector>

#include "dials/drawing.hpp"
#include "dials/flat/sky_curves.hpp"
#include "dials/flat/substyle_frame.hpp"
#include "dials/flat/upright_wall.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"
#include "lettering/roman.hpp"
#include "lettering/segment_digits.hpp"
#include "numerics/numbers.hpp"
#include "shell/style_triangle.hpp"

namespace dialwright {

namespace {

constexpr Rgb kOrange = rgb(255, 127, 39);
constexpr Rgb kRed = 255;

constexpr double kHorizon = 0;     // ordinate
constexpr double kDayGap = 0.015;  // longest segment of the curves of a day, metres
constexpr double kReach = 120;  // degrees of hour angle that the curves take, either side of noon

// This dial's own value of the inner zodiac boundary, degrees.
constexpr double kInner = 11.47464;

// A curve of one declination of the sun. A step of 0 stands for ten times PassoCurva.
struct DayCurve {
  double declination = 0;
  int colour = 0;
  const char* layer = "";
  double step = 0;
};
constexpr std::array<DayCurve, 3> kSummer = {
    {{kSolstice, 12, "23.445°"}, {kTwentieth, 13, "20.15°"}, {kInner, 11, "11.47°"}}};
constexpr std::array<DayCurve, 3> kWinter = {
    {{-kSolstice, 12, "-23.445°", 0.05}, {-kTwentieth, 13, "-20.15°"}, {-kInner, 11, "-11.47°"}}};

// A day of the analemma.
struct MeanNoon {
  SolarDay sun;
  double equationOfTime;  // radians of hour angle
};

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run) : PanelDrawing(run) {}

  void all();

 private:
  bool sideWall() const { return std::abs(p_.DeclGradi) == 90; }
  // Of an hour in degrees from noon, on the zone's meridian when the longitude is used; radians.
  double hourAngle(double t) const {
    return p_.radians(t - p_.degrees(p_.CorrFuso) * p_.UsaLongitudine);
  }
  SolarDay dayOf(Field declination) const;
  SolarDay solstice() const { return solarDay(p_, p_.LatRad, kSolstice); }
  Sweep declinations(double first, double last) const {
    return run_.sweep(first, last, p_.PassoCurva * 10, {.step = Field::txt_Definition});
  }
  void trace(Pen& pen, Punto point, bool pastStart, const Sun& sun) const {
    pen.visit(point, TracciaCurva(window_, kHorizon, point, pastStart), sun);
  }

  void ImpostaVerticale();
  void OreVerticale();
  template <class Draw>
  void alongNumeralRow(double first, Draw numeral);
  void NumeriRomaniV();
  void NumeriArabiV();
  void arabicNumeral(Punto at, int hour, double size);
  void dayCurves(std::span<const DayCurve> curves);
  void LineaDeclinazioneV();
  void dayLongHours();
  void labels(std::span<const double> hours, HourSystem system, double ahead, Rgb colour,
              const char* blank);
  void LineaEquinoxV();
  void AnalemmaV();
  std::vector<MeanNoon> yearOfNoons(const Sweep& longitudes) const;
  void LineaSustilareV();
  double substyle() const;
  void StiloVerticale();
  void styleTriangle(Punto centre, Punto tip, double substyle, double elevation);
  void CurvaConica();
  void FuochiConica();
};

void Drawing::all() {
  ImpostaVerticale();
  circle(sheet_, {0, 0}, p_.Stilo / 100, palette(12));
  if (on(Field::chkOreAstronomiche)) {
    OreVerticale();
    if (on(Field::ckRomani)) NumeriRomaniV();
    if (on(Field::ckArabi)) NumeriArabiV();
  }
  if (on(Field::Ck_DayLightCurves)) {
    dayCurves(kSummer);
    dayCurves(kWinter);
    LineaDeclinazioneV();
  }
  dayLongHours();
  if (on(Field::ck_Equinoziale)) LineaEquinoxV();
  if (on(Field::ck_Orizzonte)) sheet_.xLine(-sheet_.ShiftX(), 0, sheet_.ShiftX(), 0, palette(2));
  if (on(Field::ck_Lemniscate)) AnalemmaV();
  if (on(Field::ck_Sustilare)) LineaSustilareV();
  StiloVerticale();
  CurvaAsr(run_);
  if (on(Field::CkQibla)) CurvaQibla(run_);
  if (on(Field::ckAlt)) CurveAlmucantarat(run_);
  if (on(Field::ckAz)) LineeAzimut(run_);
  if (on(Field::CkConic)) CurvaConica();
  FuochiConica();
  p_.ModoDati = 1;
}

void Drawing::ImpostaVerticale() {
  LeggiParametriSito(run_);
  assign(p_.Stilo, number(Field::TxtStilo));
  wrapDeclination(p_);
  p_.ReclinRad = 0;
  readUsaLongitudine(run_);
}

SolarDay Drawing::dayOf(Field field) const {
  double declination = 0;
  assign(declination, number(field));
  return solarDay(p_, p_.LatRad, declination);
}

// --- Hours

// Noon itself is South: where the sun passes North of the zenith the noon line falls on its day's
// opposite side.
void Drawing::OreVerticale() {
  const LayerId layer = sheet_.layer("oreastro");
  Pen pen(sheet_, kSkyGap);
  SolarDays days(p_, p_.LatRad);
  UprightShadow shadow(run_);
  for (const double t : run_.sweep(-kReach, kReach, p_.PassoOre, {.step = Field::TxtHour})) {
    pen.dip({.colour = palette(hourInk(t)), .layer = layer, .family = CurveFamily::Hours});
    const double H = hourAngle(t);
    const double sinH = std::sin(H), cosH = std::cos(H);
    const Sweep year = run_.sweep(-kSolstice, kSolstice, 0.05);
    for (const SolarDay& day : days.of(year)) {
      shadow.aim(sinH, cosH, day);
      if (shadow.acrossMeridian(sinH)) shadow.turnToWall();
      shadow.cast();
      trace(pen, shadow.point, day.degrees > year.first(), {H, day.radians});
    }
  }
}

// Calls `numeral` with the point and the hour (1 to 12, or more in the afternoon) of each whole
// hour on the panel's line of declination.
template <class Draw>
void Drawing::alongNumeralRow(double first, Draw numeral) {
  const SolarDay day = dayOf(Field::txtLineofdeclination);
  UprightShadow shadow(run_);
  for (const double t : run_.sweep(first, -first, 15)) {
    const double H = hourAngle(t);
    const double sinH = std::sin(H);
    shadow.aim(sinH, std::cos(H), day);
    if (shadow.acrossMeridian(sinH)) shadow.turn(+1);
    shadow.cast();
    if (shadow.point.y <= kHorizon &&
        isShown(sheet_, shadow.point, CurveFamily::Hours, {H, day.radians}))
      numeral(shadow.point, 12 + static_cast<int>(t) / 15);
  }
}

void Drawing::NumeriRomaniV() {
  alongNumeralRow(-kReach, [this](Punto at, int hour) {
    if (!window_.holds(at)) return;
    DisegnaNumeroRomano(run_, at.x, at.y, p_.PiGreco / 2, hour > 12 ? hour - 12 : hour, 1);
  });
}

void Drawing::NumeriArabiV() {
  double size = 0;
  assign(size, number(Field::txtArabi));
  alongNumeralRow(-105, [this, size](Punto at, int hour) { arabicNumeral(at, hour, size); });
}

// Only the left and right sides of the window cut the numerals off.
void Drawing::arabicNumeral(Punto at, int hour, double size) {
  const int shown = hour > 12 ? hour - 12 : hour;
  const bool pair = shown >= 10;
  const double x = pair ? at.x - size / 2 : at.x;
  if (!window_.holdsX(x)) return;
  DisegnaCifraSegmenti(run_, x, at.y, pair ? 1 : shown, size);
  if (!pair) return;
  // Two ones stand closer.
  const double advance = shown == 11 ? 4.0 / 5 * size : size;
  DisegnaCifraSegmenti(run_, x + advance, at.y, shown - 10, size);
}

// --- Declinations

void Drawing::dayCurves(std::span<const DayCurve> curves) {
  Pen pen(sheet_, kDayGap);
  UprightShadow shadow(run_);
  for (const DayCurve& curve : curves) {
    const bool zodiac = std::abs(curve.declination) != kSolstice;
    if (zodiac && on(Field::ckZodiaco)) continue;
    pen.dip({.colour = palette(curve.colour),
             .layer = sheet_.layer(curve.layer),
             .family = CurveFamily::Declinations});
    const SolarDay day = solarDay(p_, p_.LatRad, curve.declination);
    const Sweep hours =
        curve.step > 0 ? run_.sweep(-kReach, kReach, curve.step) : declinations(-kReach, kReach);
    for (const double t : hours) {
      const double H = p_.radians(t);
      const double sinH = std::sin(H);
      shadow.aim(sinH, std::cos(H), day);
      if (shadow.acrossMeridian(sinH)) shadow.turn(Sgn(H));
      shadow.cast();
      trace(pen, shadow.point, t > hours.first(), {H, day.radians});
    }
  }
}

// The line of the panel's declination, unless the numerals stand on it. Only the branch on the
// sun's own side of the equinoctial is drawn.
void Drawing::LineaDeclinazioneV() {
  if (on(Field::ckRomani) || on(Field::ckArabi)) return;
  const SolarDay day = dayOf(Field::txtLineofdeclination);
  const EquinoctialLine equinoctial(p_, StylePlane(p_));
  Pen pen(sheet_, kSkyGap);
  pen.dip({.colour = kOrange,
           .layer = sheet_.layer(textOf(day.degrees)),
           .family = CurveFamily::Declinations});
  UprightShadow shadow(run_);
  const Sweep hours = run_.sweep(-kReach, kReach, 0.1);
  for (const double t : hours) {
    const double H = p_.radians(t);
    const double sinH = std::sin(H);
    shadow.aim(sinH, std::cos(H), day);
    if (shadow.acrossMeridian(sinH)) shadow.turn(-Sgn(H));
    shadow.cast();
    const double above = equinoctial.above(shadow.point);
    const bool ownSide = run_.trueShadows() || (day.degrees > 0 ? above < 0 : above > 0);
    trace(pen, shadow.point, ownSide && t > hours.first(), {H, day.radians});
  }
}

// --- Hours of the day's length

constexpr std::array<double, 13> kItalicLabels = {12, 11, 13, 14, 15, 16, 17,
                                                  18, 19, 20, 21, 22, 23};
constexpr std::array<double, 16> kBabylonianLabels = {0, 1, 2,  3,  4,  5,  6,  7,
                                                      8, 9, 10, 11, 12, 13, 14, 15};
constexpr std::array<double, 11> kTemporaryLabels = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};

// Roman numerals take the place of all labels. Those of the temporary hours would be read as the
// others', so they are for temporary hours alone.
void Drawing::dayLongHours() {
  const bool italic = on(Field::ck_Italiche), babylonian = on(Field::ck_babiloniche);
  const bool labelled = !on(Field::ckRomani);
  if (italic) {
    drawSunHours(run_, run_.sweep(6, 24, 1), HourSystem::Italic, palette(12));
    // The labels stand between the lines, half an hour on, when the function box asks for it.
    const double ahead = on(Field::ckFunction) ? 0.5 : 0;
    if (labelled) labels(kItalicLabels, HourSystem::Italic, ahead, kRed, " ");
  }
  if (babylonian) {
    drawSunHours(run_, run_.sweep(0, 18, 1), HourSystem::Babylonian, palette(13));
    if (labelled) labels(kBabylonianLabels, HourSystem::Babylonian, 0, palette(13), " ");
  }
  if (on(Field::ckTemp)) {
    drawSunHours(run_, run_.sweep(1, 12, 1), HourSystem::Temporary, palette(6));
    if (labelled && !italic && !babylonian)
      labels(kTemporaryLabels, HourSystem::Temporary, 0, palette(6), "");
  }
}

// The hours' numbers at the summer solstice, wherever that falls.
void Drawing::labels(std::span<const double> hours, HourSystem system, double ahead, Rgb colour,
                     const char* blank) {
  const SolarDay day = solstice();
  UprightShadow shadow(run_);
  sheet_.ForeColor = colour;
  double H = 0;
  for (const double n : hours) {
    if (!castHour(shadow, p_, system, n + ahead, day, H) || !(shadow.point.y <= kHorizon)) continue;
    if (!isShown(sheet_, shadow.point, CurveFamily::Hours, {H, day.radians})) continue;
    sheet_.Dati(blank + textOf(n) + blank, shadow.point.x, -shadow.point.y);
  }
}

// --- The equinox and the analemma

void Drawing::LineaEquinoxV() {
  constexpr double kFirstDrawn = -90;
  const SolarDay day = solarDay(p_, p_.LatRad, 0);
  Pen pen(sheet_, kDayGap);
  pen.dip(
      {.colour = palette(9), .layer = sheet_.layer("equinox"), .family = CurveFamily::Equinoctial});
  UprightShadow shadow(run_);
  for (const double t : declinations(-kReach, kReach)) {
    const double H = p_.radians(t);
    const double sinH = std::sin(H);
    if (p_.LatRad == 0 && !run_.trueShadows()) {
      // On the equator that day's sun is East or West throughout.
      shadow.azimuth = p_.PiGreco / 2;
      shadow.tanAltitude = std::tan(-std::abs(H) + p_.PiGreco / 2);
    } else {
      shadow.aim(sinH, std::cos(H), day);
    }
    if (shadow.acrossMeridian(sinH)) shadow.turnToWall();
    shadow.cast();
    trace(pen, shadow.point, t > kFirstDrawn, {H, 0});
  }
}

std::vector<MeanNoon> Drawing::yearOfNoons(const Sweep& longitudes) const {
  const double tilt = p_.radians(obliquity(42));
  std::vector<MeanNoon> year;
  for (const double L : longitudes) {
    const SunOfDay sun = sunAtMeanLongitude(p_, p_.radians(L), tilt);
    year.push_back({solarDay(p_, p_.LatRad, p_.degrees(sun.declination)), sun.equationOfTime});
  }
  return year;
}

// The mean noons of the year or of the half of it that is chosen, and the like for all hours. Days
// on which the wall has no sun at that hour are passed over, and the next ones joined to the last.
void Drawing::AnalemmaV() {
  constexpr double kFarthest = 1;  // ordinate above which a point is passed over, metres
  const bool half = on(Field::Ck_Section);
  const bool toSummer = half && on(Field::Optconcave);
  const double first = half && !toSummer ? 91 : -90;
  const double last = toSummer ? 90 : 270;
  const double reach = on(Field::CheckL) ? 135 : 0;
  Pen pen(sheet_);
  pen.dip(
      {.colour = palette(7), .layer = sheet_.layer("Lemniscate"), .family = CurveFamily::Analemma});
  UprightShadow shadow(run_);
  std::vector<MeanNoon> year;
  for (const double t : run_.sweep(-reach, reach, p_.PassoOre, {.step = Field::TxtHour})) {
    const Sweep longitudes = run_.sweep(first, last, 360 / kDaysOfYear);
    if (run_.stopped()) return;
    if (year.empty()) year = yearOfNoons(longitudes);
    for (const MeanNoon& noon : year) {
      const bool pastStart = &noon != &year.front();
      const double H = -p_.CorrFuso + noon.equationOfTime + p_.radians(t);
      const double sinH = std::sin(H);
      shadow.aim(sinH, std::cos(H), noon.sun);
      if (shadow.acrossMeridian(sinH)) shadow.turn(shadow.azimuth < 0 ? +1 : -1);
      if (!shadow.beforeWall()) continue;
      shadow.cast();
      const Punto point = shadow.point;
      if (pastStart && point.y > kFarthest) continue;
      pen.visit(point, drawIf(pastStart && point.y <= kHorizon && window_.holds(point)),
                {H, noon.sun.radians});
    }
  }
}

// --- The style

void Drawing::LineaSustilareV() {
  const double Hs =
      p_.LatRad == 0 ? p_.PiGreco / 2 : p_.ArcTanPieno(std::tan(p_.DeclRad), std::sin(p_.LatRad));
  const double sinH = std::sin(Hs), cosH = std::cos(Hs);
  Pen pen(sheet_, kDayGap);
  pen.dip({palette(12), sheet_.layer("sustilare")});
  UprightShadow shadow(run_);
  const Sweep range = declinations(-80, 80);
  for (const double degrees : range) {
    const SolarDay day = solarDay(p_, p_.LatRad, degrees);
    shadow.aim(sinH, cosH, day);
    assign(shadow.azimuth, p_.ArcTanPieno(sinH, shadow.southward(cosH, day)));
    shadow.cast();
    pen.visit(shadow.point, drawIf(degrees > range.first() && window_.holds(shadow.point)));
  }
}

double Drawing::substyle() const {
  return p_.LatRad == 0 ? p_.PiGreco / 2
                        : p_.ArcTanPieno(std::sin(p_.DeclRad), std::tan(p_.LatRad));
}

void Drawing::StiloVerticale() {
  const double E = -p_.ArcSin(-std::cos(p_.LatRad) * std::cos(p_.DeclRad));
  const double S = substyle();
  Punto centre{10, 10};  // beyond any window: a wall that looks due East or West has none
  if (!sideWall()) {
    centre = {};
    assign(centre, {-p_.Stilo * std::tan(p_.DeclRad),
                    over(p_.Stilo * std::tan(p_.LatRad), std::cos(p_.DeclRad))});
    dot(sheet_, centre, palette(12));
  }
  const Punto tip{p_.Stilo * std::cos(S), p_.Stilo * std::sin(S)};
  line(sheet_, tip, {0, 0}, {palette(13), sheet_.layer("ortostilo")});
  if (window_.holds(centre)) circle(sheet_, centre, p_.Stilo / 100, palette(12));
  circle(sheet_, tip, p_.Stilo / 100, palette(12));
  if (on(Field::ck_Triangolo) && !on(Field::ckFunction)) styleTriangle(centre, tip, S, E);
}

// The noon line, the substyle and the style itself, laid into the plane, from the window's edge or
// the centre to the tip.
void Drawing::styleTriangle(Punto centre, Punto tip, double S, double E) {
  if (!sideWall() && window_.holdsX(centre.x)) {
    line(sheet_, {centre.x, window_.y1}, {centre.x, window_.y2}, {palette(8), sheet_.layer("12h")});
  }
  // For true shadows an upright one is upright.
  const auto chord = run_.trueShadows() ? clippedLine({0, 0}, poleAlong(StylePlane(p_)), window_)
                                        : std::optional(clippedSubstyle(S, window_));
  if (chord) line(sheet_, chord->b, chord->a, {palette(12), sheet_.layer("sottostilo")});

  const double T = std::tan(S + E);
  const auto styleLine = [&](double y) {
    Punto end{-T * (y - tip.y) + tip.x, y};
    const auto atSide = [&](double x) {
      end.x = x;
      assign(end.y, over(-(x - tip.x), T) + tip.y);
    };
    if (end.x < window_.x1) atSide(window_.x1);
    if (end.x > window_.x2) atSide(window_.x2);
    if (window_.holds(centre)) end = centre;
    line(sheet_, end, tip, {palette(15), sheet_.layer("assostilo")});
  };
  if (E >= 0) styleLine(window_.y1);
  if (E <= 0) styleLine(window_.y2);  // a level style has both ends
}

// --- The conic of the latitude

void Drawing::CurvaConica() {
  if (p_.LatRad != 0) {
    const double E = uprightElevation(p_);
    double S = 0;
    assign(S, arctan(over(std::sin(p_.DeclRad), std::tan(p_.LatRad))));
    ConicSet conic;
    drawLatitudeConic(run_, conic, E, SubstyleTurn(S, p_.Stilo * std::tan(E)),
                      {.hyperbola = 1, .firstVertex = -1});
  }
  writeEccentricity(run_);
  p_.Sustilare = polarStyle(p_, StylePlane(p_)).substyle;
}

// The foci of the solstices' conic, in every drawing.
void Drawing::FuochiConica() {
  const double E = uprightElevation(p_);
  ConicSet conic;
  setConic(conic, p_.Stilo, E, coneOf(p_, kSolstice));
  const SubstyleTurn turn(substyle(), p_.Stilo * std::tan(E));
  const double focus = root((conic.A1 * conic.A1 - 4 * conic.A0) * (1 - over(1, conic.A2))) / 2;
  const auto mark = [&](double along, const char* name) {
    double v = 0;
    assign(v, along);
    const Punto point = turn(0, v);
    dot(sheet_, point, palette(12));
    sheet_.Dati(name, point.x, -point.y);
  };
  mark(focus - conic.A1 / 2, "F1");
  mark(-focus - conic.A1 / 2, "F2");
}

}  // namespace

void DisegnaVerticale(Run& run) {
  if (run.number(Field::txtLAT) < 0) {
    run.refuse(run.T(
        "For sundials in the Southern hemisphere please use programme 7) and read the rules"));
    return;
  }
  drawFramed(run, "Vertical dial by spherical trigonometry", [&run] { Drawing(run).all(); });
}

}  // namespace dialwright
