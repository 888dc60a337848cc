// Angle helpers: the inverse functions and conversions that every dial shares, on the circle
// constant of the moment.
#pragma once

#include <cmath>

#include "numerics/fault.hpp"

namespace dialwright {

// An angle of hours split into whole hours, whole minutes and seconds (not rounded).
struct HourParts {
  double hours;
  double minutes;
  double seconds;
};

// The circle constant and what is measured with it. The constant is a value of the running program,
// not of the language: one dial routine leaves another one behind, and the results follow it in the
// tenth decimal.
struct Angles {
  double PiGreco = 3.141592654;

  // Degrees to radians and back.
  double radians(double degrees) const { return degrees * PiGreco / 180; }
  double degrees(double radians) const { return over(radians * 180, PiGreco); }

  // Arcsine in -PiGreco/2 to PiGreco/2 by the arctangent; exact at 1 and -1, a fault beyond.
  double ArcSin(double x) const {
    return std::abs(x) == 1 ? (PiGreco / 2) * x : arctan(over(x, root(-x * x + 1)));
  }

  // Tangent of the arcsine, without the way through the angle.
  double TanArcSin(double x) const {
    return std::abs(x) == 1 ? std::tan(PiGreco / 2) * x : over(x, root(-x * x + 1));
  }

  // Arccosine: a quarter turn less the arcsine; a fault beyond 1 and -1.
  double ArcCos(double x) const { return PiGreco / 2 - ArcSin(x); }

  // Angle of the point (x, y): 0 up to two PiGreco, but plus or minus a quarter turn (or 0) where x
  // is 0.
  double ArcTanPieno(double y, double x) const;
};

// Hours, minutes and seconds of an angle in degrees, 15 degrees an hour; the hours are floored.
HourParts OreDaAngolo(double degrees);

// The angle in degrees brought to 0 to 360; zero and negative whole turns give 360.
double Normalizza360(double degrees);

// Hyperbolic cosine; a fault on overflow.
double CosIperbolico(double x);

}  // namespace dialwright
