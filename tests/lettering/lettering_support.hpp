// What the lettering's tests share: a run on a sheet of its own, and looks at what was drawn.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numbers>

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

  bool hasLength() const {
    return std::ranges::any_of(
        lines(), [](const LineRecord& line) { return line.x1 != line.x2 || line.y1 != line.y2; });
  }

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
      const double turn = 2 * std::numbers::pi;
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

// `turned` is `upright` turned counter-clockwise by `turn` radians and moved to the point (x, y), y
// upwards.
inline void expectTurned(const Slate& upright, const Slate& turned, double turn, double x,
                         double y) {
  const double c = std::cos(turn), s = std::sin(turn);
  const auto expectPoint = [&](double fromX, double fromY, double toX, double toY) {
    EXPECT_NEAR(toX, x + fromX * c + fromY * s, 1e-8);
    EXPECT_NEAR(-toY, y + fromX * s - fromY * c, 1e-8);
  };
  ASSERT_EQ(turned.lines().size(), upright.lines().size());
  for (std::size_t i = 0; i < upright.lines().size(); ++i) {
    const LineRecord &from = upright.lines()[i], &to = turned.lines()[i];
    expectPoint(from.x1, from.y1, to.x1, to.y1);
    expectPoint(from.x2, from.y2, to.x2, to.y2);
  }
  ASSERT_EQ(turned.circles().size(), upright.circles().size());
  for (std::size_t i = 0; i < upright.circles().size(); ++i) {
    const CircleRecord &from = upright.circles()[i], &to = turned.circles()[i];
    expectPoint(from.x, from.y, to.x, to.y);
    EXPECT_EQ(to.endAngle == 0, from.endAngle == 0);
    if (from.endAngle == 0) continue;
    EXPECT_NEAR(std::cos(to.startAngle), std::cos(from.startAngle + turn), 1e-8);
    EXPECT_NEAR(std::sin(to.endAngle), std::sin(from.endAngle + turn), 1e-8);
    EXPECT_GE(to.startAngle, 0);
    EXPECT_LE(to.endAngle, 2 * std::numbers::pi + 1e-8);
  }
}

}  // namespace dialwright
