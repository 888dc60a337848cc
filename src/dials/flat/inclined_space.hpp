// The analytic geometry in space of program 2: where a declining, reclining plane meets the planes
// and cones of the sun, at a value of the coordinate that is swept. The plane runs through the
// origin of the world's coordinates (X to the East, Y to the North, Z upwards) with the tip of the
// style over it.
#pragma once

#include <cmath>

#include "numerics/projection.hpp"
#include "shell/dial_params.hpp"

namespace dialwright::inclined {

// The plane, the site and the tip (x0, y0, z0) of the style. F stands for the latitude, D for the
// wall's declination, R for its reclination.
struct Space {
  double sinF, cosF, tanF, sinD, cosD, tanD, sinR, cosR, tanR;
  double x0, y0, z0;

  explicit Space(const DialParams& p)
      : sinF(std::sin(p.LatRad)),
        cosF(std::cos(p.LatRad)),
        tanF(std::tan(p.LatRad)),
        sinD(std::sin(p.DeclRad)),
        cosD(std::cos(p.DeclRad)),
        tanD(std::tan(p.DeclRad)),
        sinR(std::sin(p.ReclinRad)),
        cosR(std::cos(p.ReclinRad)),
        tanR(std::tan(p.ReclinRad)),
        x0(-p.Stilo * sinD * cosR),
        y0(-p.Stilo * cosD * cosR),
        z0(p.Stilo * sinR) {}
};

// a*z^2 + b*z + c = 0, where z is counted from `base`.
struct Quadratic {
  double a, b, c, base;
};

// A point of the plane by the swept coordinate and its height in the world.
struct Place {
  double swept, w;
};

// The formulas of one variable; each gives the world's height w of the plane's point at a value of
// that variable.
struct Formulas {
  double (*hour)(const Space&, double s, double tanH);
  Quadratic (*cone)(const Space&, double s, double K);
  double (*horizonHour)(const Space&, double s, double sinH,
                        double cosH);  // hours from sunset and sunrise
  double (*equinoctial)(const Space&, double s);
  double (*substyle)(const Space&, double s);
  Place (*foot)(const Space&, double s);
  Punto (*toPlane)(const Space&, const Place&);
};

// What one variable can't draw, the other does.
extern const Formulas kAlongX;
extern const Formulas kAlongY;

}  // namespace dialwright::inclined
