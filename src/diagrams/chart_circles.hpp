// The circles that the stereographic chart and its background share.
#pragma once

#include <cmath>

#include "dials/pen.hpp"
#include "numerics/angles.hpp"

namespace dialwright {

inline constexpr int kSummerInk = 12, kWinterInk = 9, kDayInk = 8;

// The radius of the circle of declination -d on a chart of radius R.
inline double ring(const Angles& angles, double R, double d) {
  return R * std::tan(angles.radians((90 + d) / 2));
}

// A circle of the chart; a fault in its figures leaves it off.
inline void arc(SheetPlot& sheet, Punto centre, double radius, Rgb colour, double start = 0,
                double end = 0) {
  if (!sound(centre.x + centre.y + radius + start + end)) return;
  circle(sheet, centre, radius, colour, {.startAngle = start, .endAngle = end});
}

// The arc of a day on a chart of radius R: a semi-diurnal arc (radians) on both sides of the South.
// The declination is in degrees. A negative angle would ask for a line to the centre.
inline void dayArc(const Angles& angles, SheetPlot& sheet, double R, double declination,
                   double semiArc, int ink) {
  const double radius = ring(angles, R, -declination);
  const double south = angles.PiGreco / 2;
  const double start = south - semiArc;
  if (!sound(radius + semiArc)) return;
  const Sun sun{Sun::kOpen, angles.radians(declination)};
  arc(sheet, {0, 0}, radius, palette(ink),
      {.startAngle = start < 0 ? start + 2 * angles.PiGreco : start, .endAngle = south + semiArc},
      {CurveFamily::Declinations, sun, sun});
}

}  // namespace dialwright
