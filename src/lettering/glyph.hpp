// Stroke glyphs: designs of arcs and straight strokes in a grid, and the one routine that
// draws them all.
#pragma once

#include <span>

#include "shell/run.hpp"

namespace dialwright {

// How a curved stroke reaches the sheet: as one circle entity, or as that many equal chords.
inline constexpr int kCircle = 0;

// A curved stroke: centre and radius in grid units, then the angles in degrees between which it
// runs counter-clockwise. An arc that passes the zero of its angles (from > to) is drawn backwards,
// from its second angle down to the first.
struct Arc {
  double p, q, radius;
  double from, to;
  int chords;
  int ink;  // palette number
};

// A straight stroke between two grid points.
struct GlyphStroke {
  double p1, q1, p2, q2;
  int ink;
};

// One design: its arcs are drawn first, then its straight strokes.
struct Glyph {
  std::span<const Arc> arcs;
  std::span<const GlyphStroke> strokes;
};

// Where a design's grid lies on the dial: its origin (x, y) and the length of a grid unit in
// metres; `theta`, the character's upward direction, a quarter turn to the left of the p axis, and
// `zero`, the direction of the zero of the arcs' angles, in radians counter-clockwise; `up`, +1
// when q grows along theta (upwards) and -1 when it grows against it.
struct GlyphFrame {
  double x, y;
  double unit;
  double theta;
  double zero;
  double up;
};

// Draws the design on the run's sheet, with the default width and layer; the dial's y grows upwards
// and is negated here. Strokes whose coordinates overflow are left out.
void draw(Run& run, const GlyphFrame& frame, const Glyph& glyph);

}  // namespace dialwright
