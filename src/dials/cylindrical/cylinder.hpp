// The upright cylinder of circular cross-section: the frame that the dials on it share, and the
// shadow of the style's tip on its development. The origin of the development is G, the foot of the
// style; x is the arc from the generator through G, positive to the right of who faces the surface,
// and y is negative below G.
#pragma once

#include "dials/cylindrical/sun_angles.hpp"
#include "dials/pen.hpp"
#include "shell/run.hpp"

namespace dialwright {

// --- The record

// SegnoCilindro and CodiceCilindro from OptConvex, and the style's length.
void LeggiCilindro(Run& run);

// The record of a driver's run: LeggiParametriSito and LeggiCilindro. True shadows on the equator
// are those of a latitude so small that it moves nothing, for much has no form there.
void LeggiSitoCilindro(Run& run);

// SegnoCurva, the copy of the sign that the curves work with: -1 with Optconcave selected, else +1.
void leggiSegnoCurva(Run& run);

// The azimuths between which the tip's shadow meets a convex surface, and the arc to its tangent
// generators.
void setLimits(DialParams& p);

// SegnoCurva and the limits.
void CilLimiti(Run& run);

// The triangle of the noon sun in the cross-section: DistStiloMezzodi, ArcoGeneratriceN and
// ArcoMezzodi. False, with the record untouched, when the noon sun's ray through the tip misses the
// cylinder.
bool locateNoonGenerator(DialParams& p);

// --- The frame's drawing. It takes the cylinder's sign from SegnoCilindro.

// M, the generator that lines up with the cylinder's axis, white; DistStiloMezzodi, IpotenusaStilo
// and AngoloStilo. Nothing when the noon sun's ray misses the cylinder.
void CilGeneratriceCentro(Run& run);

// N, the generator of the noon sun, by locateNoonGenerator.
void CilGeneratriceMezzodi(Run& run, Rgb colour = palette(12));

// The level of the style's foot, across the sheet.
void CilOrizzonte(Run& run);

// A mark on the foot of the style, and its letter.
void CilPiede(Run& run);

// The triangle of the polar style on the noon generator, and the perpendicular style. Reads the
// style's length again.
void CilTriangolo(Run& run);

// The cross-section in plan below the development, with its legend.
void CilSezione(Run& run);

// --- The shadow

// The cylinder of a curve.
struct Cilindro {
  // side is +1 for a style on a convex surface, -1 in a concave one. With `everywhere` its shadows
  // are found on every side of the meridian, of the wall and of the cylinder's axis.
  Cilindro(const DialParams& p, double side, bool everywhere);

  Trig latitude;
  double radius, style, side;
  double declination;  // of the tangent plane in G, radians
  bool facesSouth;     // by its declination in degrees
  bool everywhere;
  double PiGreco;
};

// Where the tip's shadow falls, and what it was found by. It lives as long as a routine does: what
// fails in a sample keeps the value of the sample before.
struct Ombra {
  double A = 0;      // azimuth from the South, positive to the West
  double q = 0;      // sine of the angle between the ray and the surface's normal
  double beta = 0;   // and that angle
  double theta = 0;  // central angle from G
  double h = 0;      // altitude
  Punto point;
};

// Arcsine by the arctangent alone: a fault at 1 and -1 too.
inline double arcsineByTangent(double q) { return arctan(over(q, root(1 - q * q))); }

// The shadow of the style's tip: the azimuth fixes the generator by a plane triangle of the centre,
// the tip and the point; the altitude sets the drop along the generator. False when the sun's ray
// through the tip misses the cylinder. With `zenith` the sun may stand in the zenith; otherwise the
// altitude fails there.
bool CilPuntoOmbra(const Cilindro& cylinder, const Trig& hour, const SunDeclination& sun,
                   Ombra& shadow, bool zenith = false);

// --- Its steps, for the routines that take one of them in a way of their own

// The azimuth that its tangent gave, in its quadrant: by half a turn, away from the surface's
// normal.
void turnAzimuth(const Cilindro& cylinder, const Trig& hour, Ombra& shadow);

// The generator that the sun's ray through the tip meets at the azimuth; false when there is none.
bool meetSurface(const Cilindro& cylinder, Ombra& shadow);

// The drop along the generator at the altitude.
void dropShadow(const Cilindro& cylinder, const Trig& hour, const SunDeclination& sun,
                Ombra& shadow);

}  // namespace dialwright
