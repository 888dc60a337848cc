// The report's block for cylinders: the planes through the style's tip that touch the surface.
#include <cmath>

#include "shell/report_lines.hpp"

namespace dialwright {

namespace {

void limitPlanes(const Report& r, double left, double right) {
  r.say({{"Declination of the left limit plane:  ", roundedDegrees(r.p, left, 2), kDegree},
         {"Declination of the right limit plane:  ", roundedDegrees(r.p, right, 2), kDegree}});
}

void circularSection(const Report& r) {
  const DialParams& p = r.p;
  double between = 0;
  assign(between, p.ArcSin(over(p.Raggio, p.Raggio + p.Stilo)));
  const double Am = -between + p.DeclRad, As = between + p.DeclRad;
  r.blank();
  r.say({{"Tangent lighted planes "},
         {"A_m : ", roundedDegrees(p, Am, 2), kDegree},
         {"A_s : ", roundedDegrees(p, As, 2), kDegree}});
  limitPlanes(r, p.PiGreco / 2 + Am, -p.PiGreco / 2 + As);
}

// The planes' angles are those of the slopes of the section's tangents, whose sign is opposite to
// that of a declination.
void parabolicSection(const Report& r) {
  const DialParams& p = r.p;
  double parameter = 0;
  assign(parameter, over(1, 2 * p.Raggio));
  const double tanD = std::tan(p.DeclRad);
  const double xs = -p.Stilo * std::sin(p.DeclRad), ys = -p.Stilo * std::cos(p.DeclRad);
  double reach = 0;
  assign(reach, root(parameter * parameter * xs * xs - parameter * tanD * xs - parameter * ys));
  const double middle = -tanD + 2 * parameter * xs;
  r.blank();
  r.say({{"Tangent lighted planes "}});
  limitPlanes(r, arctan(middle + 2 * reach), arctan(middle - 2 * reach));
}

}  // namespace

void cylinderBlock(const Report& r) {
  if (r.run.panel[Item::M_Parabolico].checked) {
    parabolicSection(r);
  } else {
    circularSection(r);
  }
}

}  // namespace dialwright
