// What the lettering's tests share: a run on a sheet of its own, and looks at what was drawn.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

#include "shell/run.hpp"

namespace dialwright {

// A place of the ink, y upwards; a whole circle has its centre and its radius.
struct InkSpot {
  double x, y, radius = 0;
};

struct Bounds {
  double left, right, bottom, top;
};

struct Slate {
  Panel panel;
  DialParams params;
  SheetPlot sheet;
  Ports ports;
  Run run{panel, params, sheet, ports};

  const std::vector<LineRecord>& lines() const { return sheet.list().lines; }

  // How many entities of each palette colour were drawn.
  std::map<int, int> inks() const {
    std::map<int, int> count;
    const auto note = [&](const auto& entity) {
      ++count[static_cast<int>(std::ranges::find(kPalette, entity.colour) - kPalette.begin())];
    };
    std::ranges::for_each(lines(), note);
    std::ranges::for_each(sheet.list().circles, note);
    return count;
  }

  // The ends of the lines, then points along the arcs, each in drawing order.
  std::vector<InkSpot> spots() const {
    std::vector<InkSpot> all;
    for (const LineRecord& line : lines()) {
      all.push_back({line.x1, -line.y1});
      all.push_back({line.x2, -line.y2});
    }
    for (const auto& [x, y, radius, aspect, colour, fill, start, end, layer] :
         sheet.list().circles) {
      EXPECT_TRUE(start >= 0 && end >= 0) << "a negative angle would draw a radius";
      EXPECT_TRUE(start < 6.2832 && end < 6.2832) << "more than a turn";
      if (end == 0) all.push_back({x, -y, radius});
      const double sweep = end - start + (end > start ? 0 : 2 * std::numbers::pi);
      for (double part = 0; end != 0 && part <= 1; part += 1.0 / 64) {
        const double angle = start + part * sweep;
        all.push_back({x + radius * std::cos(angle), -y + radius * std::sin(angle)});
      }
    }
    return all;
  }

  Bounds bounds() const {
    Bounds box{1e9, -1e9, 1e9, -1e9};
    for (const auto& [x, y, radius] : spots()) {
      box.left = std::min(box.left, x - radius);
      box.right = std::max(box.right, x + radius);
      box.bottom = std::min(box.bottom, y - radius);
      box.top = std::max(box.top, y + radius);
    }
    return box;
  }
};

// `turned` is `upright` turned counter-clockwise by so many degrees and moved to the point (x, y).
inline void expectTurned(const Slate& upright, const Slate& turned, double degrees, double x,
                         double y) {
  const double turn = degrees * std::numbers::pi / 180;
  const double c = std::cos(turn), s = std::sin(turn);
  const std::vector<InkSpot> from = upright.spots(), to = turned.spots();
  ASSERT_EQ(to.size(), from.size());
  for (std::size_t i = 0; i < from.size(); ++i) {
    EXPECT_NEAR(to[i].x, x + from[i].x * c - from[i].y * s, 1e-8) << i;
    EXPECT_NEAR(to[i].y, y + from[i].x * s + from[i].y * c, 1e-8) << i;
    EXPECT_NEAR(to[i].radius, from[i].radius, 1e-12);
  }
}

}  // namespace dialwright
