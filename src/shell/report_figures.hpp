// What the report works out before it writes: the style over the plane, the substyle's hour and the
// hours of the lines of greatest slope.
#pragma once

#include "numerics/projection.hpp"
#include "shell/run.hpp"

namespace dialwright {

// Beside these the record holds the latitude (without sign), the declination of the plane,
// ElevStilo (negative where the style's southern end stands over the plane), SustilareReport and
// OrarioSustilare (positive after noon) of the report.
struct ReportFigures {
  double longitudeCorrection = 0;  // minutes of time
  double ReclinGradi = 0;          // 0 on the dials that have no field for it
  bool level = false;              // the plane is horizontal
  double elevationSine = 0;        // exactly 0 for a style without a centre
  Punto centre;                    // of the dial, from the foot of the style
  double verticalHour = 12;        // of the line of greatest slope
  double slopeToNoon = 0;          // degrees between the lines of greatest slope and of noon

  bool hasCentre() const { return elevationSine != 0; }
};

// Sets the record for the report and gives its figures.
ReportFigures prepareReport(Run& run);

// Hours on the clock of an hour angle in radians.
double clockHour(const Angles& angles, double hourAngle);

}  // namespace dialwright
