// Program 10: an upright cylinder of parabolic cross-section by geometry in space. The section is
// the parabola Y = P^2/(2r) - P tan D with its axis in the meridian, the foot of the style in its
// origin and P towards the East; Y grows to the North for a style outside and to the South for one
// inside. The curves are dots on the development.
#include "dials/cylindrical/parabolico.hpp"

#include <algorithm>
#include <cmath>

#include "dials/cylindrical/cylinder.hpp"
#include "dials/cylindrical/dotted.hpp"
#include "dials/cylindrical/tip_rays.hpp"
#include "dials/drawing.hpp"
#include "dials/flat/substyle_frame.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"

namespace dialwright {

namespace {

constexpr double kLastDeclination = 70;  // degrees

// Abscissas between which curves are plotted: hours and the like; the days; the section.
constexpr double kFirstP = -1, kLastP = 1.5;
constexpr double kLastQ = 1;
constexpr double kLastOfSection = 2;

constexpr double kArc = 0.1;       // radius of the angle of declination in the section
constexpr double kTipMark = 0.01;  // radius

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run) : PanelDrawing(run), latitude_(p_.LatRad) {}

  void ParabolicoCurve();
  void ParabolicoSezione();

 private:
  void read();
  void hours();
  template <class Ordinate>
  void trace(CurveFamily family, const Sun& sun, Ordinate ordinate);
  // The sun behind the tip as a dot at P sees it; the section's axes turn over for a style inside.
  Sun behindTip(double P, double y) const {
    const LevelWay to = way(P);
    return sunBehindTip(latitude_, {SegnoY() * to.south, to.west}, y);
  }
  void day();

  // By it the ordinates are plotted.
  double SegnoY() const { return p_.SegnoCilindro; }
  double section(double P) const { return over(P * P, 2 * p_.Raggio) - P * tanD_; }
  double arc(double P) const { return arcFromVertex(P - vertex_) - arcFromVertex(-vertex_); }
  double arcFromVertex(double u) const;
  LevelWay way(double P) const { return {section(P) - y0_, P - x0_}; }
  Punto inPlan(double P, double Y) const;

  Trig latitude_;
  double tanD_ = 0;         // of the declination by the section's axes
  double vertex_ = 0;       // abscissa
  double x0_ = 0, y0_ = 0;  // the style's tip
  double x1_ = 0, x2_ = 0;  // arcs from the vertex to the foot, and from the foot to noon
};

void Drawing::read() {
  assign(p_.DeclGradi, run_.number(Field::txtDecl));
  assign(p_.DeclRad, p_.radians(p_.DeclGradi));
  readUsaLongitudine(run_);
  const double D = SegnoY() * p_.DeclRad;
  tanD_ = std::tan(D);
  vertex_ = p_.Raggio * tanD_;
  x0_ = -SegnoY() * p_.Stilo * std::sin(D);
  y0_ = -SegnoY() * p_.Stilo * std::cos(D);
  assign(x1_, -arc(vertex_));
  assign(x2_, arc(x0_));
}

// The closed form of the parabola's length, on either side of the vertex; of the parameter's sign.
double Drawing::arcFromVertex(double u) const {
  const double r = p_.Raggio;
  return (over(u * std::sqrt(r * r + u * u), r) + r * std::asinh(over(u, std::abs(r)))) / 2;
}

void Drawing::ParabolicoCurve() {
  read();
  hours();
  trace(CurveFamily::Equinoctial, {Sun::kOpen, 0},
        [this](LevelWay way) { return equatorOrdinate(latitude_, way); });
  const double substyle = over(tanD_, latitude_.sine);
  trace(CurveFamily::Hours, {hourOfSubstyle(p_)},
        [&](LevelWay way) { return hourOrdinate(latitude_, way, substyle); });
  sheet_.xLine(-x1_, -sheet_.ShiftY(), -x1_, sheet_.ShiftY(), palette(1));
  sheet_.xLine(x2_, -sheet_.ShiftY(), x2_, sheet_.ShiftY(), palette(4));
  day();
}

// In a concave wall the samples count hours before noon as positive. At noon itself the ordinate
// fails, and the dots stay where the line before ended.
void Drawing::hours() {
  double x = 0, e = 0;
  for (const double t : run_.sweep(-90, 90, p_.PassoOre, {.step = Field::TxtHour})) {
    const double counted = p_.radians(t) - SegnoY() * p_.CorrFuso * p_.UsaLongitudine;
    const double tangent = std::tan(counted);
    const Ink ink{.colour = palette(hourInk(t)), .family = CurveFamily::Hours};
    for (const double P : dots(run_, kFirstP, kLastP)) {
      assign(e, -hourOrdinate(latitude_, way(P), tangent));
      assign(x, arc(P));
      dot(sheet_, {x, -SegnoY() * e}, ink, {SegnoY() * counted});
    }
  }
}

// A curve of its own over the same abscissas.
template <class Ordinate>
void Drawing::trace(CurveFamily family, const Sun& sun, Ordinate ordinate) {
  const Ink ink{.colour = palette(9), .family = family};
  for (const double P : dots(run_, kFirstP, kLastP)) {
    const Punto point{arc(P), SegnoY() * ordinate(way(P))};
    if (sound(point.x) && sound(point.y)) dot(sheet_, point, ink, sun);
  }
}

void Drawing::day() {
  const double degrees = run_.number(Field::txtLineofdeclination);
  const double K = coneOf(p_, degrees);
  const Ink ink{.colour = palette(12), .family = CurveFamily::Declinations};
  for (const double Q : dots(run_, -kLastQ, kLastQ)) {
    const Roots roots = coneOrdinates(latitude_, way(Q), K);
    for (const double y : {roots.minus, roots.plus}) {
      const Punto point{arc(Q), SegnoY() * y};
      if (sound(point.x) && sound(point.y))
        dot(sheet_, point, ink, sunOfCone(p_.radians(degrees), behindTip(Q, point.y)));
    }
  }
}

// --- The section in plan, North up, with its noon below the noon of the development

Punto Drawing::inPlan(double P, double Y) const {
  return {P - x0_ + x2_, SegnoY() * (Y - p_.Raggio)};
}

void Drawing::ParabolicoSezione() {
  const double r = p_.Raggio;
  struct Part {
    double first, last;
    int colour;
  };
  for (const Part& part : {Part{-kLastOfSection, kLastOfSection, 7}, Part{-r, r, 8}}) {
    const Sweep Ps = run_.sweep(part.first, part.last, p_.PassoCurva / 2,
                                {.step = Field::txt_Definition, .bound = Field::TxtRadius});
    for (const double P : Ps) {
      const Punto point = inPlan(P, section(P));
      if (sound(point.y)) dot(sheet_, point, palette(part.colour));
    }
  }
  const Punto foot = inPlan(0, 0), tip = inPlan(x0_, y0_);
  dot(sheet_, tip, palette(12));
  line(sheet_, foot, tip, palette(13));
  // The wall's normal goes on behind the foot; its angle with the North is the declination.
  line(sheet_, foot, inPlan(-x0_, -y0_), palette(11));
  const double north = p_.PiGreco / 2, normal = north - p_.DeclRad;
  if (p_.DeclRad != 0) {
    circle(sheet_, foot, kArc, palette(7),
           {.startAngle = std::min(north, normal), .endAngle = std::max(north, normal)});
  }
  circle(sheet_, tip, kTipMark, palette(15));
  dot(sheet_, tip, palette(12));
}

}  // namespace

void QuadranteParabolico(Run& run) {
  const double declination = run.number(Field::txtDecl);
  if (run.number(Field::txtLAT) < 0 || std::abs(declination) > kLastDeclination) {
    run.refuse(run.T("Sorry, graph not available  "));
    return;
  }
  run.message(run.T(kDefinitionNotice));
  DisegnaCornice(run);
  run.hourglass(true);
  run.sheet.Messaggio(run.T("Cylindrical sundial of parabolic cross-section : 3D method"));
  LeggiSitoCilindro(run);
  if (run.on(Field::ck_Orizzonte)) CilOrizzonte(run);
  Drawing drawing(run);
  drawing.ParabolicoCurve();
  footRows(run);
  if (run.on(Field::Ck_Section)) drawing.ParabolicoSezione();
  run.sheet.Messaggio(run.T("Cylindrical sundial of parabolic cross-section."));
  run.hourglass(false);
}

}  // namespace dialwright
