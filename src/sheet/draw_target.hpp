// What the sheet draws on: a screen, a printer, or a recorder in a test.
#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

#include "sheet/colour.hpp"

namespace dialwright {

// A circle or an arc in target units. Angles are radians, counter-clockwise from the x axis; an end
// angle of 0 means the whole circle, a negative angle that the arc is closed by a radius at that
// end.
struct TargetCircle {
  double x, y, radius;
  double aspect;
  double startAngle, endAngle;
  Rgb colour;
  Rgb fill;  // kNoFill for none

  bool whole() const { return endAngle == 0; }
  // Only what is closed is filled: a whole circle or a slice.
  bool closed() const { return whole() || (startAngle < 0 && endAngle < 0); }
  // The arc runs from start() by sweep(), which is more than 0 and at most a turn.
  double start() const { return whole() ? 0 : std::abs(startAngle); }
  double sweep() const;
  // The radius is that of the longer axis.
  double radiusX() const { return radius * std::min(1 / aspect, 1.0); }
  double radiusY() const { return radius * std::min(aspect, 1.0); }
};

inline double TargetCircle::sweep() const {
  constexpr double kTurn = 2 * std::numbers::pi;
  constexpr double kLeastArc = 1e-6;  // from nought to a whole turn by a shortened circle constant
  if (whole()) return kTurn;
  const double sweep = std::fmod(std::abs(endAngle) - start(), kTurn);
  return sweep < kLeastArc ? sweep + kTurn : sweep;
}

// Positions are in twips from the target's top-left corner, x to the right and y downwards.
class DrawTarget {
 public:
  virtual ~DrawTarget() = default;

  virtual void clear() = 0;
  virtual void line(double x1, double y1, double x2, double y2, Rgb colour, int width) = 0;
  // Lines from here on are dotted, or solid again; a target may draw them all solid.
  virtual void dotted(bool) {}
  virtual void point(double x, double y, Rgb colour) = 0;
  virtual void circle(const TargetCircle& circle) = 0;
  virtual void box(double x1, double y1, double x2, double y2, Rgb colour, bool filled) = 0;
  // The text's upper left corner stands at (x, y).
  virtual void text(double x, double y, std::string_view text, Rgb colour) = 0;
};

}  // namespace dialwright
