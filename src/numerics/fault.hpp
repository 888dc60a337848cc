// The fault rule: a failing statement is skipped and its target keeps its value; a fault travels as
// a NaN.
#pragma once

#include <cmath>
#include <limits>

namespace dialwright {

inline constexpr double kFault = std::numeric_limits<double>::quiet_NaN();

// True for a value that a statement may store: neither a fault nor an overflow.
inline bool sound(double value) { return std::isfinite(value); }

// a / b; a fault when b is zero, when either is no number, and when the quotient overflows.
inline double over(double a, double b) {
  const double quotient = a / b;
  return b != 0 && sound(b) && sound(quotient) ? quotient : kFault;
}

// Square root; a fault below zero and on overflow.
inline double root(double x) { return x >= 0 && sound(x) ? std::sqrt(x) : kFault; }

// Natural logarithm; a fault at zero and below.
inline double logarithm(double x) { return x > 0 && sound(x) ? std::log(x) : kFault; }

// e to the x; a fault on overflow.
inline double exponential(double x) {
  const double power = std::exp(x);
  return sound(power) ? power : kFault;
}

// Arctangent that does not hide an overflow behind a quarter turn: a fault unless x is finite.
inline double arctan(double x) { return sound(x) ? std::atan(x) : kFault; }

// Sign: -1, 0 or 1; a fault of a fault.
inline double Sgn(double x) { return x > 0 ? 1.0 : x < 0 ? -1.0 : x == 0 ? 0.0 : kFault; }

// The sign with zero counted as positive; the older value's owner decides what a fault means.
inline double signOrOne(double x) { return x < 0 ? -1.0 : x >= 0 ? 1.0 : kFault; }

// target := value, skipped when value is a fault. Tells whether it was stored.
inline bool assign(double& target, double value) {
  if (!sound(value)) return false;
  target = value;
  return true;
}

}  // namespace dialwright
