// The polar style of a flat dial: its elevation over the plane, the centre where it meets it, the
// substyle below it and the equinoctial across.
#pragma once

#include <cmath>
#include <optional>

#include "numerics/projection.hpp"
#include "shell/dial_params.hpp"
#include "shell/window.hpp"

namespace dialwright {

// A plane and its upright style; angles in radians.
struct StylePlane {
  double Stilo = 0;
  double LatRad = 0;
  double DeclRad = 0;
  double ReclinRad = 0;
  double SegnoDecl = 1;  // the side that the substyle of an upright plane on the equator lies on

  StylePlane() = default;
  explicit StylePlane(const DialParams& p)
      : Stilo(p.Stilo),
        LatRad(p.LatRad),
        DeclRad(p.DeclRad),
        ReclinRad(p.ReclinRad),
        SegnoDecl(p.SegnoDecl) {}

  // Sine of the style's elevation, sin R sin(latitude) - cos R cos(latitude) cos D: negative where
  // its southern end stands over the plane.
  double elevationSine() const;
};

// A polar style over its plane.
struct PolarStyle {
  double sine = 0;       // of the elevation; exactly 0 counts as a style without a centre
  double elevation = 0;  // radians
  Punto centre;          // the origin where there is none
  // Radians from the noon side of the vertical, in the quadrant of the centre.
  double substyle = 0;

  bool hasCentre() const { return sine != 0; }
};

// The way of the northern pole along a plane, in its coordinates: the substyle's direction, also of
// an upright one.
Punto poleAlong(const StylePlane& plane);

// The style of a plane. `sine` stands for the plane's own elevationSine where a caller counts a
// tiny one as 0.
PolarStyle polarStyle(const Angles& angles, const StylePlane& plane, double sine);
inline PolarStyle polarStyle(const Angles& angles, const StylePlane& plane) {
  return polarStyle(angles, plane, plane.elevationSine());
}

// The line through the origin along a substyle (radians), cut to the window's sides: from its left
// end to its right end where the slope is moderate.
struct Chord {
  Punto a, b;
};
Chord clippedSubstyle(double substyle, const Window& window);

// The part in the window of the line through a point in a direction, from `first` to `last` times
// the direction; nothing where it passes the window by.
std::optional<Chord> clippedLine(Punto through, Punto along, const Window& window,
                                 double first = -HUGE_VAL, double last = HUGE_VAL);

// The equinoctial of a plane: the line through `foot` with a slope.
struct EquinoctialLine {
  double slope = 0;
  Punto foot;

  EquinoctialLine(const Angles& angles, const StylePlane& plane);
  // How far a point lies above the line, metres.
  double above(Punto p) const { return p.y - slope * (p.x - foot.x) - foot.y; }
};

}  // namespace dialwright
