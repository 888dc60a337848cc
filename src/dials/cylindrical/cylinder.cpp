// The frame of the dials on a cylinder of circular cross-section, and the shadow on its
// development.
#include "dials/cylindrical/cylinder.hpp"

#include <cmath>
#include <string>

#include "dials/drawing.hpp"
#include "dials/site.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

namespace {

constexpr double kFootMark = 0.002;    // radius
constexpr double kTick = 0.0055;       // half the width of the tick at the style's tip
constexpr double kSectionTop = 1.1;    // ordinate on the sheet of the section's upper edge
constexpr double kSliceRadius = 0.99;  // of the section's

// The style's tip in the cross-section, about the centre: across the meridian and along it.
Punto tipInSection(const DialParams& p) {
  const double reach = p.Raggio + p.SegnoCilindro * p.Stilo;
  return {reach * std::sin(p.DeclRad), reach * std::cos(p.DeclRad)};
}

}  // namespace

// --- The record

void LeggiCilindro(Run& run) {
  DialParams& p = run.params;
  const bool convex = run.on(Field::OptConvex);
  p.SegnoCilindro = convex ? 1 : -1;
  p.CodiceCilindro = convex ? 2 : 1;
  assign(p.Stilo, run.number(Field::TxtStilo));
}

void LeggiSitoCilindro(Run& run) {
  constexpr double kAlmostEquator = 1e-8;  // radians
  LeggiParametriSito(run);
  LeggiCilindro(run);
  if (run.trueShadows() && run.params.LatRad == 0) run.params.LatRad = kAlmostEquator;
}

void leggiSegnoCurva(Run& run) { run.params.SegnoCurva = run.on(Field::Optconcave) ? -1 : 1; }

void setLimits(DialParams& p) {
  const double edge = arcsineByTangent(over(p.Raggio, p.Raggio + p.Stilo));
  assign(p.AzLimiteEst, p.DeclRad + edge);
  assign(p.AzLimiteOvest, p.DeclRad - edge);
  assign(p.ArcoLimite, p.Raggio * (p.PiGreco / 2 - edge));
}

void CilLimiti(Run& run) {
  leggiSegnoCurva(run);
  setLimits(run.params);
}

bool locateNoonGenerator(DialParams& p) {
  const Punto tip = tipInSection(p);
  const double square = p.Raggio * p.Raggio - tip.x * tip.x;
  if (!(square > 0)) return false;
  const double b = std::sqrt(square);
  assign(p.DistStiloMezzodi, -p.SegnoCilindro * (b - tip.y));
  assign(p.ArcoGeneratriceN,
         std::abs(p.DeclRad) < p.PiGreco / 2
             ? p.ArcSin(over(-p.DistStiloMezzodi * std::sin(p.DeclRad), p.Raggio))
             : -p.DeclRad + arctan(over(tip.x, b)));
  assign(p.ArcoMezzodi, p.Raggio * p.ArcoGeneratriceN);
  return true;
}

// --- The frame's drawing

void CilGeneratriceCentro(Run& run) {
  DialParams& p = run.params;
  const Punto tip = tipInSection(p);
  if (!(std::abs(tip.x) < p.Raggio)) return;
  const double b = root(p.Raggio * p.Raggio - tip.x * tip.x);
  const double x = p.SegnoCilindro * p.Raggio * p.DeclRad;
  run.sheet.xLine(x, -run.sheet.ShiftY(), x, 2 * run.sheet.ShiftY(), palette(15));
  assign(p.DistStiloMezzodi, std::abs(b - tip.y));
  assign(p.IpotenusaStilo, over(p.DistStiloMezzodi, std::cos(p.LatRad)));
  assign(p.AngoloStilo, p.degrees(arctan(over(tip.x, b))));
}

void CilGeneratriceMezzodi(Run& run, Rgb colour) {
  const DialParams& p = run.params;
  if (!locateNoonGenerator(run.params)) return;
  run.sheet.xLine(p.ArcoMezzodi, run.sheet.ShiftY(), p.ArcoMezzodi, -run.sheet.ShiftY(), colour);
}

void CilOrizzonte(Run& run) {
  run.sheet.xLine(-run.sheet.ShiftX(), 0, run.sheet.ShiftX(), 0, palette(2));
}

void CilPiede(Run& run) {
  circle(run.sheet, {0, 0}, kFootMark, palette(15), {.fill = palette(12)});
  dot(run.sheet, {0, 0}, palette(12));
  run.sheet.ForeColor = palette(12);
  run.sheet.Dati("  G", 0, 0);
}

void CilTriangolo(Run& run) {
  DialParams& p = run.params;
  SheetPlot& sheet = run.sheet;
  assign(p.Stilo, run.number(Field::TxtStilo));
  const double c = p.SegnoCilindro;
  const Punto tip = tipInSection(p);
  if (std::abs(tip.x) < p.Raggio) {
    // The side of the section that the noon sun's ray meets: the near one outside, the far one
    // inside.
    double e = 0;
    assign(e, -c * Sgn(std::cos(p.DeclRad)) * root(p.Raggio * p.Raggio - tip.x * tip.x));
    const double w = e + c * tip.y;
    assign(p.ArcoGeneratriceN, p.ArcSin(over(w * std::sin(p.DeclRad), p.Raggio)));
    assign(p.ArcoMezzodi, -p.Raggio * p.ArcoGeneratriceN);
    const double foot = p.ArcoMezzodi - c * w;
    const double height = w * std::tan(p.LatRad);
    sheet.Dati("N", p.ArcoMezzodi, 0);
    sheet.xLine(p.ArcoMezzodi, -height, foot, 0, palette(9));
    sheet.xLine(p.ArcoMezzodi, 0, foot, 0, palette(11));
    sheet.xLine(p.ArcoMezzodi, -sheet.ShiftY(), p.ArcoMezzodi, sheet.ShiftY(), palette(11));
  }
  sheet.xLine(0, 0, 0, -p.Stilo, palette(13));
  sheet.xLine(kTick, -p.Stilo, -kTick, -p.Stilo, palette(15));
}

// --- The section

namespace {

class Sezione : PanelDrawing {
 public:
  explicit Sezione(Run& run) : PanelDrawing(run), r_(p_.Raggio), c_(p_.SegnoCilindro) {}

  void all();

 private:
  bool concave() const { return c_ < 0; }
  bool noonMeets() const { return std::abs(px_) < r_; }
  void locate();
  void column();
  void measures();
  void slice();
  void north();
  void outline();
  void say(std::string_view text) { sheet_.Dati(run_.T(text)); }
  void say(std::string_view text, double number) { sheet_.Dati(run_.T(text) + textOf(number)); }

  double r_, c_;
  double px_ = 0;           // abscissa of the tip and of N, about the centre
  double ty_ = 0, ny_ = 0;  // ordinates of the tip and of N
  double arcNM_ = 0;
  Punto centre_, foot_;  // on the sheet
};

void Sezione::all() {
  locate();
  sheet_.xLine(centre_.x, centre_.y, foot_.x, foot_.y, palette(8),
               {.layer = sheet_.layer("radius")});
  column();
  slice();
  north();
  outline();
}

void Sezione::locate() {
  const double s = p_.Stilo;
  const double facing = Sgn(std::cos(p_.DeclRad));
  px_ = -c_ * (r_ + c_ * s) * std::sin(p_.DeclRad);
  const double reach = r_ + c_ * s;
  // Inside, the tip may stand beyond the centre.
  const double side = concave() ? facing * signOrOne(r_ - s) : -facing;
  assign(ty_, root(reach * reach - px_ * px_) * side);
  assign(ny_, root(r_ * r_ - px_ * px_) * (concave() ? facing : -facing));
  if (noonMeets()) assign(arcNM_, -arctan(over(px_, ny_)) * r_ * c_);
  centre_ = {c_ * r_ * std::sin(p_.DeclRad), kSectionTop + r_};
  foot_ = {0, centre_.y + c_ * r_ * std::cos(p_.DeclRad)};
}

void Sezione::column() {
  sheet_.Dati("", 0.9, -0.5);
  say("O general origin of coordinates = G ");
  if (noonMeets()) measures();
  sheet_.Dati("");
}

void Sezione::measures() {
  const auto inColour = [this](int number) { sheet_.ForeColor = palette(number); };
  sheet_.Dati("", 0.9, -0.3);
  say("T R I A N G L E ");
  inColour(8);
  say("Style: hypotenuse ", truncated(p_.IpotenusaStilo, 5));
  inColour(13);
  say("Perpendicular style", p_.Stilo);
  inColour(11);
  say("radius ", r_);
  say("small radius  ", run_.number(Field::txt_R2));
  say("N is a point of the generator on the noon line (cyan)");
  inColour(8);
  say("C centre of the section: origin of coordinates ");
  inColour(11);
  sheet_.Dati(run_.T("N Coordinates on the section ") + textOf(truncated(px_, 5)) + " " +
              textOf(truncated(ny_, 5)));
  say("M(white) is the generator aligned with the center of the cylinder");
  say("Arc between the foot G e M ");
  say("Arc GM = r*d ", rounded(r_ * p_.DeclRad, 5));
  say("Arc between the generators N and M ", rounded(arcNM_, 5));
  say("G coincides with O ");
  say("x1 ", rounded(run_.number(Field::x1txt), 5));
  say("x2 ", rounded(run_.number(Field::x2txt), 5));
  say("y1 ", rounded(run_.number(Field::y1txt), 5));
  say("y2 ", rounded(run_.number(Field::y2txt), 5));
}

// The slice between the meridian and the radius to the foot; angles below zero close it by its
// radii.
void Sezione::slice() {
  const double D = p_.DeclRad;
  const double right = p_.PiGreco / 2;
  const auto draw = [this](double from, double to) {
    sheet_.xCircle(centre_.x, centre_.y, kSliceRadius * r_, palette(7),
                   {.startAngle = -from, .endAngle = -to});
  };
  if (D < 0 && concave()) draw(right, right - D);
  if (D > 0 && !concave()) draw(3 * right - D, 3 * right);
  if (D < 0 && D >= -right && !concave()) draw(3 * right, 3 * right - D);
  if (D > 0 && concave()) draw(5 * right - D, right);
}

void Sezione::north() {
  const double D = p_.DeclRad;
  sheet_.Dati(run_.T("North"), centre_.x - 0.03, 1);
  sheet_.xLine(centre_.x, centre_.y, centre_.x, centre_.y + c_ * r_, palette(6));
  sheet_.ForeColor = palette(11);
  sheet_.Dati("d", c_ * (r_ * std::sin(D) - r_ / 2 * std::sin(D / 2)),
              centre_.y + c_ * (r_ / 2) * std::cos(D / 2));
}

void Sezione::outline() {
  const Punto tip{px_ + centre_.x, centre_.y - ty_};
  circle(sheet_, {centre_.x, -centre_.y}, r_, palette(8));
  sheet_.Dati(" C ", centre_.x, centre_.y);
  sheet_.xPset(foot_.x, foot_.y, palette(12));
  sheet_.xLine(tip.x, tip.y, tip.x, centre_.y - ny_, palette(11), {.layer = sheet_.layer("PS")});
  sheet_.xLine(foot_.x, foot_.y, tip.x, tip.y, palette(13));
  sheet_.Dati(" G ", foot_.x, foot_.y);
}

}  // namespace

void CilSezione(Run& run) { Sezione(run).all(); }

// --- The shadow

Cilindro::Cilindro(const DialParams& p, double side_, bool everywhere_)
    : latitude(p.LatRad),
      radius(p.Raggio),
      style(p.Stilo),
      side(side_),
      declination(p.DeclRad),
      facesSouth(p.DeclGradi == 0),
      everywhere(everywhere_),
      PiGreco(p.PiGreco) {}

void turnAzimuth(const Cilindro& cylinder, const Trig& hour, Ombra& shadow) {
  if (onOtherSide(hour, shadow.A))
    shadow.A -= Sgn(shadow.A - cylinder.declination) * cylinder.PiGreco;
}

bool meetSurface(const Cilindro& c, Ombra& shadow) {
  assign(shadow.q,
         over(c.radius + c.side * c.style, c.radius) * std::sin(shadow.A - c.declination));
  if (1 - shadow.q * shadow.q < 0) return false;
  assign(shadow.beta, arcsineByTangent(shadow.q));
  assign(shadow.theta, c.side * (shadow.beta - shadow.A + c.declination));
  assign(shadow.point.x, c.radius * shadow.theta);
  return true;
}

void dropShadow(const Cilindro& c, const Trig& hour, const SunDeclination& sun, Ombra& shadow) {
  // Straight down at noon: the general form has no value there.
  const bool noon = c.facesSouth && hour.angle == 0;
  assign(shadow.point.y, noon ? over(-c.style, std::tan(c.latitude.angle - sun.angle))
                              : over(-c.radius * std::sin(shadow.theta) * std::tan(shadow.h),
                                     std::sin(shadow.A - c.declination)));
}

namespace {

// By the azimuth of the whole circle, within half a turn of the wall's, and the way from the tip in
// plan.
bool shadowEverywhere(const Cilindro& c, const Trig& hour, const SunDeclination& sun,
                      Ombra& shadow) {
  shadow.A =
      c.declination + std::remainder(azimuth(c.latitude, hour, sun) - c.declination, 2 * c.PiGreco);
  if (!meetSurface(c, shadow)) return false;
  const double reach = c.radius + c.side * c.style;
  const double way =
      root(reach * reach + c.radius * c.radius - 2 * reach * c.radius * std::cos(shadow.theta));
  assign(shadow.h, arcsineByTangent(sineOfAltitude(c.latitude, hour, sun)));
  assign(shadow.point.y, -way * std::tan(shadow.h));
  return true;
}

}  // namespace

bool CilPuntoOmbra(const Cilindro& c, const Trig& hour, const SunDeclination& sun, Ombra& shadow,
                   bool zenith) {
  if (c.everywhere) return shadowEverywhere(c, hour, sun, shadow);
  assign(shadow.A, azimuthByTangent(c.latitude, hour, sun));
  turnAzimuth(c, hour, shadow);
  if (!meetSurface(c, shadow)) return false;
  const double u = sineOfAltitude(c.latitude, hour, sun);
  assign(shadow.h, zenith && std::abs(u) == 1 ? (c.PiGreco / 2) * Sgn(u) : arcsineByTangent(u));
  dropShadow(c, hour, sun, shadow);
  return true;
}

}  // namespace dialwright
