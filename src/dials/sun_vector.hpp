// The sunlight as a vector in space.
#pragma once

#include "dials/trig.hpp"

namespace dialwright {

// In the frame of a dial that looks South: x to the East, the viewer's right, y upwards, z to the
// South, out of the dial.
struct Vettore {
  double x = 0, y = 0, z = 0;
};

// The way of the sunlight, a unit vector.
inline Vettore VettoreSole(const Trig& latitude, const Trig& hour, const Trig& sun) {
  const double meridian = sun.cosine * hour.cosine;
  return {sun.cosine * hour.sine, -meridian * latitude.cosine - sun.sine * latitude.sine,
          sun.sine * latitude.cosine - meridian * latitude.sine};
}

}  // namespace dialwright
