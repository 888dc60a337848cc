// What the two projective methods share: the fields' checks, the polar style of the dial's plane
// and its drawing. Both work on a simple upright plane first and carry every point to the dial's
// plane by a central projection through the tip of the style.
#pragma once

#include <array>

#include "dials/drawing.hpp"
#include "dials/flat/flat_setup.hpp"
#include "dials/flat/plane_suns.hpp"
#include "shell/style_triangle.hpp"

namespace dialwright {

inline constexpr double LimiteSweep = 2;     // metres swept on both sides, on the reference plane
inline constexpr double kSweepStep = 0.005;  // metres
inline constexpr double kFineSweepStep = 0.001;  // of the equinoctial

// Refuses a southern latitude, the equator, a wall that faces East or West unless `sideWalls`, and
// a level plane; false when it did.
bool acceptsProjection(Run& run, bool sideWalls);

// Fills the record from the panel: the site, the plane, Stilo and PassoOre.
void readProjectivePlane(Run& run);

// The dial's style and the lines that show it.
class StyleOfDial {
 public:
  explicit StyleOfDial(Run& run)
      : run_(run), style_(polarStyle(run.params, StylePlane(run.params))) {}

  const PolarStyle& polar() const { return style_; }
  Punto centre() const { return style_.centre; }
  Punto tip() const;

  // The style's triangle in the sheet's lower left corner, ready to be measured: true to scale, or
  // smaller where it does not fit into half the sheet.
  void triangleInCorner() const;

 private:
  Run& run_;
  PolarStyle style_;
};

// The drawing of a method: the dial's own style and sky, and the dots that points of the reference
// plane become.
class ProjectiveDrawing : protected PanelDrawing {
 protected:
  explicit ProjectiveDrawing(Run& run);

  Sweep swept(double step = kSweepStep) const {
    return run_.sweep(-LimiteSweep, LimiteSweep, step);
  }
  // A point as it fell on the dial's plane; a coordinate that failed keeps that of the point
  // before.
  template <class SunAt>
  void mark(Punto fallen, const Ink& ink, SunAt sunAt) {
    assign(point_, fallen);
    dot(sheet_, point_, ink, sunAt(point_));
  }

  const StyleOfDial style_;
  const PlaneSuns suns_;
  const std::array<DeclinationCone, 3> cones_;
  Punto point_;  // the last good one
};

}  // namespace dialwright
