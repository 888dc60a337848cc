// The level dials' sun and their demonstration.
#include "dials/bifilar/level_dial.hpp"

#include <string>

#include "dials/site.hpp"
#include "numerics/numbers.hpp"

namespace dialwright::bifilar {

namespace {

constexpr double kConicStep = 0.0001;  // metres
constexpr Rgb kPlanColour = palette(7);
constexpr Rgb kRayColour = palette(4);

}  // namespace

void readLevelSite(Run& run) {
  DialParams& p = run.params;
  assign(p.PassoOre,
         run.number(Field::TxtHour));  // the divisions themselves, not the degrees of one
  readUsaLongitudine(run);
  readSite(run);
  p.DeclRad = 0;
  p.ReclinRad = p.PiGreco / 2;
  run.panel.setText(Field::txtDecl, "0");
}

void LevelSun::turnTo(double azimuth) {
  azimuth_ = azimuth;
  sinAzimuth_ = std::sin(azimuth);
  cosAzimuth_ = std::cos(azimuth);
}

bool LevelSun::look(const Trig& H, const Trig& delta) {
  heightSine_ = sinLat_ * delta.sine + cosLat_ * delta.cosine * H.cosine;
  assign(altitude_, angles_.ArcSin(heightSine_));
  const double south = sinLat_ * H.cosine - cosLat_ * (delta.sine / delta.cosine);
  if (fullCircle_) {
    turnTo(std::atan2(H.sine, south));
    return true;
  }
  const double azimuth = arctan(over(H.sine, south));
  if (sound(azimuth)) turnTo(azimuth);
  return Sgn(H.sine) == Sgn(sinAzimuth_);
}

bool LevelSun::see(const Trig& H, const Trig& delta) {
  if (!look(H, delta)) turnTo(angles_.PiGreco + azimuth_);
  return heightSine_ >= 0;
}

void LevelSun::seeWithinHalfTurn(const Trig& H, const Trig& delta) {
  if (!look(H, delta)) turnTo(azimuth_ + (azimuth_ < 0 ? angles_.PiGreco : -angles_.PiGreco));
}

void plot(Run& run, const ShadowConic& conic) {
  if (!sound(conic.first) || !sound(conic.last)) return;
  const double squared = conic.radius * conic.radius;
  const double flattening = conic.squeeze * conic.squeeze;
  for (const double side : {1.0, -1.0}) {
    for (const double X : run.sweep(conic.first, conic.last, kConicStep, {.bound = Field::txtAO})) {
      const double v = squared - X * X * flattening;
      if (!(v >= 0)) continue;
      const double Y = side * std::sqrt(v);
      run.sheet.xPset(-(X * conic.sine + Y * conic.cosine + conic.shift.x),
                      -(Y * conic.sine - X * conic.cosine + conic.shift.y), conic.colour);
    }
  }
}

SphereDemonstration::SphereDemonstration(Run& run, LevelSun& sun, double radius, double lower)
    : run_(run), sun_(sun), R_(radius), lower_(lower) {
  const Instant now = readInstant(run);
  const Trig H(now.H);
  sun.seeWithinHalfTurn(H, Trig(now.delta));
  ex_ = -R_ * std::sin(sun.altitude()) * signOrOne(now.H);
  ey_ = R_ * std::cos(sun.altitude());
  const double y0 = ey_ + 2 * R_ + lower_;
  const double y1 = 2 * R_ + lower_;
  assign(m_, (1 - over(2 * R_ - y0, y1 - y0)) * ex_);
  assign(n_, over(lower_ * (y0 - y1), 0 - ex_));
}

void SphereDemonstration::plan() {
  const double h = sun_.altitude();
  if (!(h >= 0)) return;
  const double sinHeight = std::sin(h);
  const double sine = sun_.sinAzimuth(), cosine = sun_.cosAzimuth();
  const double L = std::abs(m_ + n_) * Sgn(lower_);
  const double away = over(lower_, std::tan(h));
  plot(run_, {-L,
              over(R_, sinHeight),
              R_,
              sinHeight,
              sine,
              cosine,
              {away * sine, -away * cosine},
              kPlanColour});
  double axis = 0;
  assign(axis, over(lower_ + over(R_, std::cos(h)), std::tan(h)));
  run_.sheet.xLine(-axis * sine, axis * cosine, -axis * sine * 6 / 5, axis * cosine * 6 / 5,
                   kPlanColour);
  plot(run_, {0, R_ * sinHeight, R_, over(1, sinHeight), sine, cosine, {}, kRayColour});
}

void SphereDemonstration::section() {
  SheetPlot& sheet = run_.sheet;
  const double pi = run_.params.PiGreco;
  const double centre = -(2 * R_ + lower_);
  double start = 0, end = 0;
  if (lower_ > R_) {
    start = end = 2 * pi;
  } else {
    const double cut = run_.params.ArcSin(over(lower_, R_));
    assign(start, 2 * pi * (lower_ > 0 ? 1 : 0) - cut);
    assign(end, pi + cut);
  }
  sheet.xCircle(0, centre, R_, palette(15), {.startAngle = start, .endAngle = end});
  sheet.xLine(-2 * R_, -2 * R_, 2 * R_, -2 * R_, palette(8));
  const double base = root(R_ * R_ - lower_ * lower_);
  sheet.xLine(-base, -2 * R_, base, -2 * R_, palette(1));
  sheet.xLine(0, -(3 * R_ + lower_), 0, -(4 * R_ + lower_), palette(15));
  if (lower_ > R_) sheet.xLine(0, -(lower_ + R_), 0, -2 * R_, palette(15));
  const double top = -(ey_ + 2 * R_ + lower_);
  if (std::abs(m_) < std::abs(ex_)) {
    sheet.xLine(ex_, top, m_, -2 * R_, kRayColour);
  } else {
    sheet.xLine(ex_, top, -ex_, ey_ - 2 * R_ - lower_, kRayColour);
  }
}

void legendLine(Run& run, std::string_view label, double number, std::string_view unit) {
  if (!sound(number)) return;
  run.sheet.Dati(run.T(label) + textOf(rounded(number, 4)) + std::string(unit));
}

void longitudeLine(Run& run) {
  run.sheet.Dati(run.T("Longitude ") + textFixed(run.params.LonGradi, 4) + "°");
}

void knob(Run& run, double radius, double style, double altitude) {
  const double top = radius * std::tan(altitude) + style + radius + style;
  run.sheet.xCircle(0, -top, radius / 20, palette(2), {.fill = palette(6)});
}

}  // namespace dialwright::bifilar
