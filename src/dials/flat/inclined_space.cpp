// The formulas along X and along Y, each solved for the height.
#include "dials/flat/inclined_space.hpp"

#include <cmath>

namespace dialwright::inclined {

namespace {

// The parts of a declination's cone along and across the axis.
struct ConeTerms {
  double A1, A2;

  ConeTerms(const Space& k, double K)
      : A1(k.cosF * k.cosF - K * k.sinF * k.sinF), A2(k.sinF * k.sinF - K * k.cosF * k.cosF) {}
};

namespace along_x {

double hour(const Space& k, double X, double t) {
  const double den = t * (k.tanR * k.sinF - k.cosF * k.cosD);
  return over(
      X * (k.sinD * k.sinF * t - k.cosD) + k.cosD * (k.x0 + (k.y0 * k.sinF - k.z0 * k.cosF) * t),
      den);
}

Quadratic cone(const Space& k, double X, double K) {
  const auto [A1, A2] = ConeTerms(k, K);
  const double P = X * k.sinD + k.y0 * k.cosD;
  const double T = k.tanR;
  const double mixed = (1 + K) * k.sinF * k.cosF;
  const double cosD2 = k.cosD * k.cosD;
  return {cosD2 * A1 + T * T * A2 - 2 * k.cosD * T * mixed,
          -2 * k.z0 * cosD2 * A1 + 2 * mixed * k.cosD * (P + T * k.z0) - 2 * T * A2 * P,
          cosD2 * (A1 * k.z0 * k.z0 + (X - k.x0) * (X - k.x0)) - 2 * k.cosD * k.z0 * P * mixed +
              A2 * P * P,
          0};
}

double horizonHour(const Space& k, double X, double sinH, double cosH) {
  const double c = k.cosF * cosH + k.tanF * k.sinF;
  const double den = k.cosD * c - k.sinF * k.tanR * (cosH - 1);
  return over(-(X * k.sinD + k.y0 * k.cosD) * k.sinF * (cosH - 1) - sinH * k.cosD * (X - k.x0) +
                  k.z0 * k.cosD * c,
              den);
}

double equinoctial(const Space& k, double X) {
  return over(X * k.sinD + (k.y0 + k.z0 * k.tanF) * k.cosD, k.cosD * k.tanF + k.tanR);
}

double substyle(const Space& k, double X) {
  return over(-X * (k.cosD * k.tanR + k.tanF), k.sinD * (k.cosD - k.tanF * k.tanR));
}

Place foot(const Space& k, double w) { return {k.x0, w}; }

Punto toPlane(const Space& k, const Place& at) {
  return {over(at.swept, k.cosD) - at.w * k.tanD * k.tanR, over(at.w, k.cosR)};
}

}  // namespace along_x

namespace along_y {

double hour(const Space& k, double Y, double t) {
  const double den = k.tanR - k.sinD * k.cosF * t;
  return over(
      Y * (k.cosD - k.sinF * t * k.sinD) + k.sinD * (k.x0 + (k.y0 * k.sinF - k.z0 * k.cosF) * t),
      den);
}

Quadratic cone(const Space& k, double Y, double K) {
  const auto [A1, A2] = ConeTerms(k, K);
  const double P = Y * k.cosD + k.x0 * k.sinD;
  const double T = k.tanR;
  const double sinD2 = k.sinD * k.sinD;
  const double aside = P - T * k.z0;
  return {sinD2 * A1 + T * T, -2 * (T * aside + sinD2 * k.sinF * k.cosF * (Y - k.y0) * (1 + K)),
          aside * aside + sinD2 * (Y - k.y0) * (Y - k.y0) * A2, k.z0};
}

double horizonHour(const Space& k, double Y, double sinH, double cosH) {
  const double den = k.tanR * sinH + (k.cosF * cosH + k.sinF * k.tanF) * k.sinD;
  const double rise = k.cosD * sinH + k.sinF * k.sinD * cosH - k.cosF * k.tanF * k.sinD;
  return over((Y - k.y0) * rise + (k.x0 * k.sinD + k.y0 * k.cosD - k.z0 * k.tanR) * sinH, den) +
         k.z0;
}

double equinoctial(const Space& k, double Y) { return over(-(Y - k.y0), k.tanF) + k.z0; }

double substyle(const Space& k, double Y) {
  const double M = k.sinF * k.cosD + k.cosF * k.tanR;
  const double sinD2 = k.sinD * k.sinD;
  return over((Y - k.y0) * (k.cosD * M + sinD2 * k.sinF) +
                  (k.x0 * k.sinD + k.y0 * k.cosD - k.z0 * k.tanR) * M,
              k.tanR * M + sinD2 * k.cosF) +
         k.z0;
}

Place foot(const Space& k, double Y) { return {Y, over(k.x0 * k.sinD + Y * k.cosD, k.tanR)}; }

Punto toPlane(const Space& k, const Place& at) {
  return {over(-at.swept, k.sinD) + over(at.w * k.tanR, k.tanD), over(at.w, k.cosR)};
}

}  // namespace along_y

}  // namespace

const Formulas kAlongX{along_x::hour,     along_x::cone, along_x::horizonHour, along_x::equinoctial,
                       along_x::substyle, along_x::foot, along_x::toPlane};
const Formulas kAlongY{along_y::hour,     along_y::cone, along_y::horizonHour, along_y::equinoctial,
                       along_y::substyle, along_y::foot, along_y::toPlane};

}  // namespace dialwright::inclined
