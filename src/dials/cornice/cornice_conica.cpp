// Program 36: a cornice dial on the inside of a truncated cone, developed on a plane. The
// development's origin is the North of the upper base; its arcs have their centre below.
#include "dials/cornice/cornice_conica.hpp"

#include <cmath>
#include <utility>

#include "dials/cornice/cornice_frame.hpp"

namespace dialwright {

namespace {

using namespace cornice;

constexpr HourLines kHours[] = {{Half::Afternoon, -30, 120, 0.01, 12, "ore1"},
                                {Half::Morning, -120, 30, 0.01, 10, "ore2"}};
constexpr DayLine kDays[] = {{Half::Morning, -105, 0, 0.051, -105, 4, "diurna"},
                             {Half::Afternoon, 0.001, 105, 0.051, 0.001, 4, "diurna2"}};
// The southern half of the border is drawn twice: what falls beyond the East and the West is laid
// to either side.
constexpr BorderArc kBorder[] = {{Half::Afternoon, -1, 1, 11, "ombra2", false},
                                 {Half::Afternoon, 1, 3, 13, "ombra", true},
                                 {Half::Morning, 1, 3, 13, "xombra", false}};

// The cone and its development. A cone that doesn't narrow has no vertex: what is measured from it
// is a fault, and what that stands in is left out. No point of a curve belongs to its development,
// and its numerals stay on the origin.
class Cono final : public Surface {
 public:
  explicit Cono(const Run& run);

  Vettore edge(double theta) const override { return PuntoBordo(a, theta); }
  double edgeAngle(double theta, double t, Half half) const override;
  bool meet(Light& light, const Vettore& edge, const Vettore& ray, Half half) const override;
  bool keeps(const Light& light) const override { return DentroCono(light.point); }

  // The element's length down from a radius, to the vertex.
  double element(double radius) const { return over(radius, sine); }

  const double PiGreco;
  const bool whole;            // the development has one turn and no more
  const double Rm, a, r, h;    // upper base, border, lower base, distance of the bases
  double beta = 0;             // half the angle at the vertex, radians
  double sine, cosine, slope;  // of it
  double Hc = 0;               // height of the whole cone
  double AmpiezzaUtile;        // a quarter of the developed amplitude, radians

 private:
  bool RaggioCono(double& way, const Vettore& edge, const Vettore& ray) const;
  void SviluppoCono(Light& light, Half half) const;
  bool DentroCono(Punto point) const;
};

Cono::Cono(const Run& run)
    : PiGreco(run.params.PiGreco),
      whole(run.trueShadows()),
      Rm(numberOr0(run, Field::TxtRadius)),
      a(numberOr0(run, Field::txt_R2)),
      r(numberOr0(run, Field::TxtStilo)),
      h(numberOr0(run, Field::txtD1)) {
  assign(beta, arctan(over(Rm - r, h)));
  sine = std::sin(beta);
  cosine = std::cos(beta);
  slope = std::tan(beta);
  assign(Hc, std::abs(over(Rm, slope)));
  AmpiezzaUtile = (PiGreco / 2) * sine;
}

// Hours before noon in the afternoon's family, and after it in the morning's, have their point on
// the southern half of the border.
double Cono::edgeAngle(double theta, double t, Half half) const {
  const bool east = std::sin(theta) >= 0;
  if (half == Half::Afternoon) return east && t < 90 ? theta - PiGreco : theta;
  return !east && t > -90 ? theta + PiGreco : theta;
}

bool Cono::meet(Light& light, const Vettore& edge, const Vettore& ray, Half half) const {
  if (!RaggioCono(light.way, edge, ray)) return false;
  light.travel(edge, ray);
  SviluppoCono(light, half);
  return true;
}

bool Cono::RaggioCono(double& way, const Vettore& edge, const Vettore& ray) const {
  return plusRoot(way, ray.x * ray.x + ray.z * ray.z - slope * slope * ray.y * ray.y,
                  2 * (ray.x * edge.x + ray.z * edge.z - slope * Rm * ray.y), a * a - Rm * Rm);
}

// In the southern half the angle goes on from the West after noon and from the East before it; a
// whole turn has each point on its own side.
void Cono::SviluppoCono(Light& light, Half half) const {
  assign(light.angle,
         whole ? std::atan2(light.at.x, -light.at.z) : arctan(over(light.at.x, -light.at.z)));
  if (!whole && light.at.z > 0) light.angle += half == Half::Afternoon ? -PiGreco : PiGreco;
  const double turn = light.angle * sine;
  const double reach = (Hc + light.at.y) / cosine;
  assign(light.point, {reach * std::sin(turn), -element(Rm) + reach * std::cos(turn)});
}

// Inside the outer circle of the development.
bool Cono::DentroCono(Punto point) const {
  const double outer = element(Rm);
  const double v = point.y + outer;
  return point.x * point.x + v * v - outer * outer < 0;
}

void drawCone(Run& run, const Cono& cone) {
  SheetPlot& sheet = run.sheet;
  const double pi = cone.PiGreco;
  const double D = run.params.DeclRad;
  const double outer = cone.element(cone.Rm);
  const double g = cone.AmpiezzaUtile;
  const double lowest = over(cone.Rm - cone.r, cone.sine) + cone.r;
  const Rgb ground = palette(6);
  sheet.xCircle(0, lowest, cone.r, palette(7), {.fill = ground, .endAngle = pi});
  const double start = D < 0 ? -D : 2 * pi - D;
  for (const auto& [radius, colour] : {std::pair{cone.Rm, 7}, std::pair{cone.a, 14}}) {
    sheet.xCircle(0, -cone.Rm / 5, radius, palette(colour),
                  {.fill = ground, .startAngle = start, .endAngle = pi - D});
  }
  sheet.xLine(-cone.r, lowest, cone.r, lowest, palette(4));
  const double mark = cone.Rm / 50;
  for (const double x : {(pi / 2) * cone.Rm, -(pi / 2) * cone.Rm})
    sheet.xCircle(x, 0, mark, palette(7), {.fill = palette(5), .endAngle = pi});
  for (const int colour : {7, 14}) {
    for (const double side : {1, -1})
      sheet.xCircle(side * outer * std::sin(g), outer * (1 - std::cos(g)), mark, palette(colour));
  }
}

void tellCone(Run& run, const Cono& cone) {
  const double beta = run.params.degrees(cone.beta);
  const ReportLine lines[] = {
      {"CONICAL DAM DIAL "},
      {"latitude ", run.params.LatGradi, " °"},
      {"maximum radius ", cone.Rm},
      {"upper radius ", cone.a},
      {"lower radius  ", cone.r},
      {"theoretical height of the cone ", cone.Hc},
      {"height of the truncated cone ", over(cone.Rm - cone.r, cone.slope)},
      {"lenght of the truncated element ", over(cone.Rm - cone.r, cone.sine)},
      {"distance between the two bases ", cone.h, {}, kUnrounded},
      {"semiangle at vertex ", beta, " °"},
      {"inclination of the element ", 90 - beta, " °"},
      {"lenght of the element ", cone.element(cone.Rm)},
      {"Conical surface developed on a plane "},
      {"Total amplitude ", 360 * cone.sine, " °"},
      {"useful arc ", 180 * cone.sine, " °"},
      {"long radius ", cone.element(cone.Rm)}};
  report(run, lines);
  reportOptions(run);
}

// The arc of a base in the development.
void arcOfBase(Run& run, Pen& pen, const Cono& cone, double radius, double step, const Ink& ink) {
  pen.dip(ink);
  const double arc = cone.element(radius), outer = cone.element(cone.Rm);
  if (!sound(arc + outer)) return;
  const double north = cone.PiGreco / 2, half = 2 * cone.AmpiezzaUtile;
  const Sweep angles = run.sweep(north - half, north + half, step);
  for (const double b : angles) {
    pen.visit({arc * std::cos(b), arc * std::sin(b) - outer}, drawIf(b > angles.first()));
  }
}

// The bases' arcs and the elements that bound the whole cone and its northern half.
void outline(Run& run, Pen& pen, const Cono& cone) {
  const Rgb yellow = palette(14);
  arcOfBase(run, pen, cone, cone.Rm, 0.001, {yellow, run.sheet.layer("basealta")});
  arcOfBase(run, pen, cone, cone.r, 0.0001, {yellow, run.sheet.layer("basebassa")});
  const double outer = cone.element(cone.Rm), inner = cone.element(cone.r);
  for (const double angle : {2 * cone.AmpiezzaUtile, cone.AmpiezzaUtile}) {
    for (const double side : {1, -1}) {
      const double sine = side * std::sin(angle), cosine = std::cos(angle);
      line(run.sheet, {outer * sine, outer * cosine - outer},
           {inner * sine, inner * cosine - outer}, yellow);
    }
  }
}

}  // namespace

void DisegnaCorniceConica(Run& run) {
  if (!readLatitude(run)) return;
  run.sheet.Messaggio(run.T("Dam or cornice dial by vectors"));
  run.hourglass(true);
  DisegnaCornice(run);
  const Cono cone(run);
  Cornice dial(run, cone, Cornice::kAllDays);
  for (const HourLines& lines : kHours) dial.hourLines(lines);
  if (run.on(Field::Ck_DayLightCurves)) {
    for (const DayLine& line : kDays) dial.dayLine(line);
  }
  dial.numerals(cone.a < cone.Rm);
  if (run.on(Field::ckFunction)) {
    for (const BorderArc& arc : kBorder) {
      if (!(cone.whole && arc.again)) dial.borderShadow(arc);
    }
  }
  drawCone(run, cone);
  tellCone(run, cone);
  outline(run, dial.pen(), cone);
  run.hourglass(false);
}

}  // namespace dialwright
