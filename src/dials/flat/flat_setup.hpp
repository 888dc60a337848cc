// What the flat dials by analytic geometry and by projection share: the cones of the sun's
// declination, the tip of the style laid into the plane, and the figures that a run leaves for the
// report.
#pragma once

#include <array>

#include "dials/pen.hpp"
#include "shell/run.hpp"

namespace dialwright {

inline constexpr const char* kIncompleteSiteMessage =
    "Immettere Longitudine,latitudine,Declinazione e Ortostilo !!";
inline constexpr const char* kEquatorMessage = "Sorry, unable to work at the equator ";
inline constexpr const char* kLevelPlaneMessage = "Sorry, unable to deal with horizontal dials ";

// True when nothing but blanks stands in the field of the latitude.
bool latitudeIsMissing(const Run& run);

// The cone that the sun's rays make on a day, by the squared cotangent of its declination, and its
// curve's colour.
struct DeclinationCone {
  double K = 0;
  Rgb colour = kWhite;
  double declination = 0;  // of its northern half, radians

  Ink ink() const { return {.colour = colour, .family = CurveFamily::Declinations}; }
};

// The solstice's arc in half turns of 180: the declination in degrees times the circle constant.
// The dials take the solstice at 23.45 degrees in space and at 23.445 degrees on a reference plane.
inline constexpr double kSolsticeArcInSpace = 73.6703477363;
inline constexpr double kSolsticeArcOnPlane = 73.65463977303;

// Sets KSolstizio, K20 and K11 and gives the three cones in the order in which the curves are
// drawn.
std::array<DeclinationCone, 3> declinationCones(DialParams& params, double solsticeArc);

// The tip of the style laid into the plane, on the side of the substyle (radians) that the wall's
// sign tells.
Punto laidTip(const DialParams& params, double substyle);

// A line through x over the whole height of the sheet and beyond its foot.
void steepestLine(SheetPlot& sheet, double x);

// The horizon of a plane that is not upright, across the sheet.
void horizonAcross(Run& run);

// SegnoDecl from DeclRad, and Sustilare turned to the report's side for a style that points down.
void SistemaSustilare(DialParams& params);

}  // namespace dialwright
