// The shared curves of the sky.
#include "dials/flat/sky_curves.hpp"

#include <cmath>

#include "dials/site.hpp"
#include "dials/sun.hpp"
#include "dials/trig.hpp"
#include "numerics/numbers.hpp"
#include "shell/dispatch.hpp"

namespace dialwright {

namespace {

constexpr Ink kAsrInk{.colour = rgb(0, 193, 97), .family = CurveFamily::Asr};
constexpr Rgb kQiblaGreen = 65280;
constexpr Rgb kTextWhite = 16777215;

bool isUpright(const Run& run) { return run.panel[Item::mnuVertSph].checked; }

bool isLevel(const Run& run) { return !isUpright(run) && std::abs(run.params.ReclinGradi) == 90; }

// Only the universal dial takes its reclination to these curves; with true shadows every dial that
// has one.
void readReclination(Run& run) {
  DialParams& p = run.params;
  const bool takes = run.trueShadows() ? !isUpright(run) : run.panel[Item::mnuUni].checked;
  p.ReclinRad = takes ? p.radians(p.ReclinGradi) : 0;
}

double horizonOf(const Run& run) {
  return horizonLimit(run, run.params.Stilo * std::tan(run.params.ReclinRad));
}

}  // namespace

double horizonLimit(const Run& run, double height) { return run.trueShadows() ? HUGE_VAL : height; }

Piano planeOf(const DialParams& p) {
  return {p.Stilo, p.LatRad, p.DeclRad, p.PiGreco / 2 - p.ReclinRad};
}

void CurvaAsr(Run& run) {
  DialParams& p = run.params;
  assign(p.DeclRad, p.radians(run.number(Field::txtDecl)));
  if (isUpright(run)) p.ReclinRad = 0;
  assign(p.LimiteOrizzonte, over(p.Stilo * std::sin(p.ReclinRad), std::cos(p.ReclinRad)));
  if (!run.on(Field::ckAsr)) return;
  const Projection project(planeOf(p));
  const double sinLat = std::sin(p.LatRad), cosLat = std::cos(p.LatRad);
  const double s = signOrOne(p.LatRad);
  const bool level = isLevel(run);
  // The hour angle of the prayer on a day whose noon sun stands so far from the zenith; a fault
  // where the sun does not get there.
  const auto prayer = [&](double fromZenith, double d) {
    const double altitude = arctan(over(1, 1 + std::tan(fromZenith)));
    return p.ArcCos(over(std::sin(altitude) - sinLat * std::sin(d), cosLat * std::cos(d))) * s;
  };
  double H = 0;
  Punto point;
  for (const double degrees : run.sweep(-kSolstice, kSolstice, 0.05)) {
    const double d = p.radians(degrees);
    const double fromZenith = (p.LatRad - d) * s;
    // North of the zenith the noon shadow's length comes out negative.
    const double own = prayer(std::abs(fromZenith), d);
    assign(H, run.trueShadows() || fromZenith >= 0 ? own : prayer(fromZenith, d));
    assign(point, project(std::sin(H), std::cos(H), std::tan(d)));
    const Sun sun{sound(own) ? own : p.PiGreco, d};
    // A level plane, whose horizon is infinitely far, has its points in any case.
    const auto mark = [&] { dot(run.sheet, {s * point.x, s * point.y}, kAsrInk, sun); };
    if (s * point.y <= s * horizonLimit(run, p.LimiteOrizzonte)) mark();
    if (level && !run.trueShadows()) mark();
  }
}

// --- The Qibla

namespace {

constexpr Ink kQiblaInk{.colour = palette(10), .family = CurveFamily::Qibla};

class Qibla {
 public:
  explicit Qibla(Run& run)
      : run_(run),
        p_(run.params),
        window_(run),
        project_(planeOf(p_)),
        s_(signOrOne(p_.LatRad)),
        horizon_(horizonOf(run)),
        level_(isLevel(run)) {
    const double away = p_.radians(run.number(Field::txtQlon) - run.number(Field::txtLON));
    const double target = p_.radians(run.number(Field::txtQlat));
    const double sinLat = std::sin(p_.LatRad), cosLat = std::cos(p_.LatRad);
    const double southward = sinLat * std::cos(away) - cosLat * std::tan(target);
    double tangent = 0;
    assign(tangent, over(std::sin(away), southward));
    b_ = arctan(sinLat * tangent);
    // The whole circle tells a place in the North from the direction opposite to it.
    towards_ = Trig(std::atan2(std::sin(away), southward));
    azimuth_ = p_.degrees(run.trueShadows() ? towards_.angle : arctan(tangent));
    sinB_ = std::sin(b_);
    tanLat_ = std::tan(p_.LatRad);
    tanAzimuth_ = tangent;
  }

  void curve() {
    for (const double degrees : run_.sweep(-kSolstice, kSolstice, 0.005)) point(degrees);
    point(kSolstice * s_);
    run_.sheet.ForeColor = kQiblaGreen;
    run_.sheet.Dati(run_.panel.text(Field::txtLocation), point_.x * s_,
                    -(point_.y - 0.02 * s_) * s_);
    run_.sheet.ForeColor = kTextWhite;
  }

  void report() {
    SheetPlot& sheet = run_.sheet;
    sheet.Dati("", -sheet.ShiftX(), 0.75);
    sheet.Dati(run_.panel.text(Field::txtLocation));
    sheet.ForeColor = kQiblaGreen;
    figure("Latitude ", run_.number(Field::txtQlat));
    figure("Longitude ", run_.number(Field::txtQlon));
    const double B = azimuth_;
    if (p_.LatRad > 0 || run_.trueShadows()) {
      figure("Qibla from South = ", B, "° azimuth");
      figure("Qibla from North = ", B < 0 ? 180 + B : -180 + B, "° azimuth");
    } else {
      figure("Qibla from North = ", -B, "° azimuth");
      figure("Qibla from South = ", B < 0 ? -180 - B : 180 - B, "° azimuth");
    }
    sheet.ForeColor = kTextWhite;
  }

 private:
  void point(double degrees) {
    const double tangent = std::tan(p_.radians(degrees));
    const double g = fromB(tangent, run_.trueShadows());
    if (!(std::abs(g) <= 1)) return;
    const double day = p_.radians(degrees), H = s_ * (b_ - p_.ArcSin(g));
    // A day's sun meets the vertical plane of the direction twice.
    const double aside = p_.ArcSin(fromB(tangent, true));
    double shown = p_.PiGreco;  // midnight stands for a sun that does not come there
    for (const double each : {s_ * (b_ + p_.PiGreco + aside), s_ * (b_ - aside)}) {
      if (!isOver(each, tangent)) continue;
      shown = each;
      if (run_.trueShadows()) mark(each, {each, day}, tangent);
    }
    if (!run_.trueShadows()) mark(H, {shown, day}, tangent);
  }

  // The sine of the hours between b and the sun in the place's azimuth, by the day's tangent. On
  // the equator the azimuth goes without saying, but for true shadows.
  double fromB(double tangent, bool ofAzimuth) const {
    if (p_.LatRad == 0) return ofAzimuth ? tangent * tanAzimuth_ : tangent;
    return tangent * sinB_ / tanLat_;
  }

  // True when the sun stands over the place and not opposite to it.
  bool isOver(double H, double tangent) const {
    const double southward = std::sin(p_.LatRad) * std::cos(H) - std::cos(p_.LatRad) * tangent;
    return std::sin(H) * towards_.sine + southward * towards_.cosine > 0;
  }

  void mark(double H, const Sun& sun, double tangent) {
    assign(point_, project_(std::sin(H), std::cos(H), tangent));
    if (!window_.holds(point_)) return;
    const bool sunUp = s_ * point_.y <= s_ * horizon_;
    if (level_ || (s_ > 0 && sunUp)) dot(run_.sheet, point_, kQiblaInk, sun);
    if (level_) return;
    if (s_ < 0 && sunUp) dot(run_.sheet, {-point_.x, -point_.y}, kQiblaInk, sun);
    if (p_.PianoOrizzontale) dot(run_.sheet, point_, kQiblaInk, sun);
  }

  void figure(std::string_view label, double value, std::string_view unit = {}) {
    run_.sheet.Dati(run_.T(label) + textOf(truncated(value, 5)).append(unit));
  }

  Run& run_;
  const DialParams& p_;
  Window window_;
  Projection project_;
  double s_;  // -1 in the South, which is drawn as the northern picture turned about the foot
  double horizon_;
  bool level_;
  double azimuth_ = 0;  // of the Qibla, degrees from the South, West positive
  double b_ = 0, sinB_ = 0, tanLat_ = 0, tanAzimuth_ = 0;
  Trig towards_;  // the direction of the place in the whole circle
  Punto point_;
};

}  // namespace

void CurvaQibla(Run& run) {
  readReclination(run);
  Qibla qibla(run);
  qibla.curve();
  qibla.report();
}

// --- The sun's azimuth and altitude

void LineeAzimut(Run& run) {
  DialParams& p = run.params;
  assign(p.DeclGradi, run.number(Field::txtDecl));
  wrapDeclination(p);
  readReclination(run);
  // Those of the northern half, and those of the equator, are for true shadows alone.
  const bool all = run.trueShadows();
  if ((p.LatRad == 0 && !all) || !run.on(Field::ckAz)) return;
  const Window window(run);
  const Projection project(planeOf(p));
  const double horizon = horizonOf(run);
  const double sinLat = std::sin(p.LatRad), tanLat = std::tan(p.LatRad);
  Pen pen(run.sheet);
  pen.dip(
      {.colour = palette(6), .layer = run.sheet.layer("azimut"), .family = CurveFamily::Azimuths});
  SolarDays days(p, p.LatRad);
  double H = 0;
  Punto point;
  for (const double azimuth : all ? run.sweep(-165, 180, 15) : run.sweep(-90, 90, 15)) {
    const double A = p.radians(azimuth), tanA = std::tan(A);
    const double b = all ? std::atan2(sinLat * std::sin(A), std::cos(A)) : arctan(sinLat * tanA);
    const double slope =
        p.LatRad == 0 ? std::copysign(tanA, std::sin(A)) : over(std::sin(b), tanLat);
    for (const SolarDay& day : days.of(run.sweep(-kSolstice, kSolstice, 0.05))) {
      // A day whose sun does not come there has the hour of the day before; midnight stands for it.
      const bool comes = assign(H, b - p.ArcSin(day.tangent * slope));
      assign(point, project(std::sin(H), std::cos(H), day.tangent));
      pen.visit(point,
                drawIf(point.y <= horizon && window.holds(point) && day.degrees > -kSolstice),
                {comes ? H : p.PiGreco, day.radians});
    }
  }
}

// The lines of altitude of one half of the day and then of the other.
void CurveAlmucantarat(Run& run) {
  DialParams& p = run.params;
  readReclination(run);
  assign(p.DeclRad, p.radians(run.number(Field::txtDecl)));
  if (isLevel(run)) {
    p.DeclRad = 0;
    p.PianoOrizzontale = true;
  }
  if (p.LatRad < 0) return;
  const Window window(run);
  const Projection project(planeOf(p));
  const double horizon = horizonOf(run);
  const double sinLat = std::sin(p.LatRad), cosLat = std::cos(p.LatRad);
  const double highest = 90 - run.number(Field::txtLAT) + kSolstice;
  const double step = 0.005 * run.number(Field::txt_Definition);
  Pen pen(run.sheet, kSkyGap);
  pen.dip({.colour = palette(7),
           .layer = run.sheet.layer("almucantarat"),
           .family = CurveFamily::Altitudes});
  SolarDays days(p, p.LatRad);
  double c = 0;
  Punto point;
  for (const double side : {-1.0, +1.0}) {
    for (const double altitude : run.sweep(10, highest, 10, {.bound = Field::txtLAT})) {
      const double height = std::sin(p.radians(altitude));
      for (const SolarDay& day :
           days.of(run.sweep(-kSolstice, kSolstice, step, {.step = Field::txt_Definition}))) {
        assign(c, over(height - sinLat * day.sine, cosLat * day.cosine));
        if (!(std::abs(c) <= 1)) continue;
        const double H = side * p.ArcCos(c);
        assign(point, project(std::sin(H), std::cos(H), day.tangent));
        pen.visit(point, TracciaCurva(window, horizon, point, day.degrees > -kSolstice),
                  {H, day.radians});
      }
    }
  }
}

}  // namespace dialwright
