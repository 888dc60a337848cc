// Program 35: a cornice dial on the inside of an upright cylinder. The border's radius is at most
// the cylinder's; the development's origin is the North on the level of the border.
#include "dials/cornice/cornice_cilindrica.hpp"

#include <cmath>

#include "dials/cornice/cornice_frame.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

namespace {

using namespace cornice;

constexpr DayLine kDays[] = {{Half::Afternoon, 0.0001, 105, 0.01, 0.0001, 4, "diurna"},
                             {Half::Morning, -105, 0, 0.01, -105, 4, "diurne"}};
// The hours before noon are drawn ten times as fine as those after it.
constexpr HourLines kHours[] = {{Half::Afternoon, 0, 90, 0.1, 10, "ore"},
                                {Half::Morning, -90, 0, 0.01, 10, "ore2"}};
constexpr BorderArc kBorder = {Half::Afternoon, -1, 1, 11, "ore", false};

class Cilindro final : public Surface {
 public:
  // A whole one has its southern half beside the northern one.
  Cilindro(double radius, double border, bool whole) : R_(radius), a_(border), whole_(whole) {}

  Vettore edge(double theta) const override { return PuntoBordo(a_, theta); }

  bool meet(Light& light, const Vettore& edge, const Vettore& ray, Half) const override {
    if (!RaggioCilindro(light.way, edge, ray)) return false;
    light.travel(edge, ray);
    Sviluppo(light);
    return true;
  }

  bool keeps(const Light& light) const override { return light.point.y < 0; }

 private:
  bool RaggioCilindro(double& way, const Vettore& edge, const Vettore& ray) const {
    return plusRoot(way, ray.x * ray.x + ray.z * ray.z, 2 * (ray.x * edge.x + ray.z * edge.z),
                    a_ * a_ - R_ * R_);
  }

  // The arctangent lays the southern half of the cylinder over the northern one.
  void Sviluppo(Light& light) const {
    assign(light.angle,
           whole_ ? std::atan2(light.at.x, -light.at.z) : arctan(over(light.at.x, -light.at.z)));
    assign(light.point, {R_ * light.angle, light.at.y});
  }

  double R_, a_;
  bool whole_;
};

// The window becomes the development's width, from right to left, below the border.
void fillWindow(Run& run, double halfWidth) {
  run.panel.setText(Field::y1txt, "0");
  if (!sound(halfWidth)) return;
  run.panel.setText(Field::x1txt, textOf(halfWidth));
  run.panel.setText(Field::x2txt, textOf(-halfWidth));
}

// The border's radius, at most the cylinder's; the panel follows.
double readBorder(Run& run, double R) {
  const double a = numberOr0(run, Field::txt_R2);
  if (!(a > R)) return a;
  run.panel.setText(Field::txt_R2, textOf(R));
  return R;
}

// Both sides and the lower end of a band of the development.
void edgesOfBand(SheetPlot& sheet, double halfWidth, double height) {
  sheet.xLine(-halfWidth, 0, -halfWidth, height, palette(7));
  sheet.xLine(halfWidth, 0, halfWidth, height, palette(15));
  sheet.xLine(halfWidth, height, -halfWidth, height, palette(15));
}

void drawCylinder(Run& run, double R, double a, double height) {
  const double pi = run.params.PiGreco;
  SheetPlot& sheet = run.sheet;
  sheet.xCircle(0, 0, R, palette(7), {.endAngle = pi});
  sheet.xCircle(0, 0, a, palette(14), {.endAngle = pi});
  for (const double x : {(pi / 2) * R, -(pi / 2) * R})
    sheet.xCircle(x, 0, R / 50, palette(7), {.fill = palette(5), .endAngle = pi});
  edgesOfBand(sheet, (pi / 2) * R, height);
  edgesOfBand(sheet, pi * R, height);
}

void tellCylinder(Run& run, double R, double a, double height) {
  const double pi = run.params.PiGreco;
  const ReportLine lines[] = {{"CYLINDRICAL DAM DIAL "},
                              {"latitude ", run.params.LatGradi, " °"},
                              {"maximum radius ", R},
                              {"radius of border ", a},
                              {"Cylinder developed on a flat surface "},
                              {"height of the cylinder ", height},
                              {"distance between the two bases ", height, {}, kUnrounded},
                              {"total amplitude ", 360, " °"},
                              {"circumference ", 2 * pi * R},
                              {"useful arc ", 180, " °"},
                              {"lenght of the useful arc ", pi * a}};
  report(run, lines);
  reportOptions(run);
}

}  // namespace

void DisegnaCorniceCilindrica(Run& run) {
  if (!readLatitude(run)) return;
  run.hourglass(true);
  const double R = numberOr0(run, Field::TxtRadius);
  fillWindow(run, R * run.params.PiGreco);
  DisegnaCornice(run);
  const double a = readBorder(run, R);
  const double height = numberOr0(run, Field::txtD1);

  const Cilindro cylinder(R, a, run.trueShadows());
  Cornice dial(run, cylinder, -kSolstice);
  if (run.on(Field::Ck_DayLightCurves)) {
    for (const DayLine& line : kDays) dial.dayLine(line);
  }
  for (const HourLines& lines : kHours) dial.hourLines(lines);
  dial.numerals(a < R);
  if (run.on(Field::ckFunction)) dial.borderShadow(kBorder);
  drawCylinder(run, R, a, height);
  tellCylinder(run, R, a, height);
  run.hourglass(false);
}

}  // namespace dialwright
