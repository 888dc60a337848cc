// The drawing window of the panel.
#pragma once

#include "numerics/projection.hpp"
#include "shell/run.hpp"

namespace dialwright {

// The window that the curves are drawn in, in dial coordinates.
struct Window {
  double x1 = 0, x2 = 0;  // left and right
  double y1 = 0, y2 = 0;  // top and bottom

  // A number too large for a field leaves that side at 0.
  explicit Window(const Run& run) {
    assign(x1, run.number(Field::x1txt));
    assign(x2, run.number(Field::x2txt));
    assign(y1, run.number(Field::y1txt));
    assign(y2, run.number(Field::y2txt));
  }

  // Strictly inside.
  bool holdsX(double x) const { return x1 < x && x < x2; }
  bool holdsY(double y) const { return y2 < y && y < y1; }
  bool holds(Punto p) const { return holdsX(p.x) && holdsY(p.y); }
};

}  // namespace dialwright
