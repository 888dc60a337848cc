// Angle helpers that need more than a line.
#include "numerics/angles.hpp"

namespace dialwright {

double Angles::ArcTanPieno(double y, double x) const {
  if (x == 0) return (PiGreco / 2) * Sgn(y);
  if (y == 0) return x > 0 ? 0.0 : PiGreco;
  const double t = over(y, x);
  const double a = arctan(t);
  if (t > 0) return y > 0 ? a : a + PiGreco;
  return y > 0 ? a + PiGreco : a + 2 * PiGreco;
}

HourParts OreDaAngolo(double degrees) {
  const double h = degrees / 15;
  const double hours = std::floor(h);
  const double m = (h - hours) * 60;
  const double minutes = std::floor(m);
  return {hours, minutes, (m - minutes) * 60};
}

double Normalizza360(double degrees) {
  if (degrees > 0) return degrees - std::floor(degrees / 360) * 360;
  return degrees + (std::floor(std::abs(degrees) / 360) + 1) * 360;
}

double CosIperbolico(double x) {
  const double growing = exponential(std::abs(x));
  return (growing + 1 / growing) / 2;
}

}  // namespace dialwright
