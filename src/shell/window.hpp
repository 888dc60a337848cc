// The drawing window of the panel.
#pragma once

#include "numerics/projection.hpp"
#include "shell/run.hpp"

namespace dialwright {

// The window that the curves are drawn in, in dial coordinates.
struct Window {
  double x1, x2;  // left and right
  double y1, y2;  // top and bottom

  explicit Window(const Run& run)
      : x1(run.number(Field::x1txt)),
        x2(run.number(Field::x2txt)),
        y1(run.number(Field::y1txt)),
        y2(run.number(Field::y2txt)) {}

  // Strictly inside.
  bool holdsX(double x) const { return x1 < x && x < x2; }
  bool holdsY(double y) const { return y2 < y && y < y1; }
  bool holds(Punto p) const { return holdsX(p.x) && holdsY(p.y); }
};

}  // namespace dialwright
