// The two roots of a quadratic equation, both with their full digits.
#pragma once

#include <cmath>

#include "numerics/fault.hpp"

namespace dialwright {

// (-b - sqrt(b*b - 4*a*c))/(2*a) and (-b + sqrt(b*b - 4*a*c))/(2*a).
struct Roots {
  double minus, plus;
};

// The roots of a*x^2 + b*x + c = 0; faults where there are none. Where a is so small that one of
// them runs away, it is a fault or far off and the other one stands. (Standard: the root without
// cancellation first, the other by the product c/a of both.)
inline Roots quadraticRoots(double a, double b, double c) {
  const double q = -(b + std::copysign(root(b * b - 4 * a * c), b)) / 2;
  const double first = over(q, a);
  const double second = q == 0 ? first : over(c, q);
  return b < 0 ? Roots{second, first} : Roots{first, second};
}

}  // namespace dialwright
