// What the lettering's tests share: a run on a sheet of its own, and looks at what was drawn.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

#include "shell/run.hpp"

namespace dialwright {

struct Box {
  double left = std::numeric_limits<double>::infinity();
  double right = -left;
  double bottom = left;
  double top = -left;
  void take(double x, double y) {
    left = std::min(left, x);
    right = std::max(right, x);
    bottom = std::min(bottom, y);
    top = std::max(top, y);
  }
};

struct Slate {
  Panel panel;
  DialParams params;
  SheetPlot sheet;
  Ports ports;
  Run run{panel, params, sheet, ports};

  const std::vector<LineRecord>& lines() const { return sheet.list().lines; }
  const std::vector<CircleRecord>& circles() const { return sheet.list().circles; }

  // How many entities of each palette colour were drawn.
  std::map<int, int> inks() const {
    std::map<int, int> count;
    const auto note = [&](Rgb colour) {
      ++count[static_cast<int>(std::ranges::find(kPalette, colour) - kPalette.begin())];
    };
    for (const LineRecord& line : lines()) note(line.colour);
    for (const CircleRecord& circle : circles()) note(circle.colour);
    return count;
  }

  // The lines and arcs' bounds, y upwards.
  Box bounds() const {
    Box box;
    for (const LineRecord& line : lines()) {
      box.take(line.x1, -line.y1);
      box.take(line.x2, -line.y2);
    }
    for (const CircleRecord& circle : circles()) {
      const double turn = 2 * 3.14159265358979;
      const double end = circle.endAngle == 0 ? turn : circle.endAngle;
      const double sweep =
          end > circle.startAngle ? end - circle.startAngle : end - circle.startAngle + turn;
      for (int k = 0; k <= 64; ++k) {
        const double angle = circle.startAngle + k * sweep / 64;
        box.take(circle.x + circle.radius * std::cos(angle),
                 -circle.y + circle.radius * std::sin(angle));
      }
    }
    return box;
  }
};

}  // namespace dialwright
