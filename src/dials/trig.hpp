// An angle with its sine and cosine, which a loop takes once for what it holds fixed.
#pragma once

#include <cmath>

namespace dialwright {

// A latitude, an hour angle (positive after noon) or a declination of the sun; radians.
struct Trig {
  double angle = 0, sine = 0, cosine = 1;

  Trig() = default;
  explicit Trig(double radians)
      : angle(radians), sine(std::sin(radians)), cosine(std::cos(radians)) {}
};

}  // namespace dialwright
