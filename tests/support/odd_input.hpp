// Odd texts in the fields of dials: each run ends, and what it draws is bounded and finite.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>

#include "support/dial_case.hpp"

namespace dialwright {

inline constexpr const char* kOddTexts[] = {"", "0", "-1", "1e-9", "90", "1e9", "1e999"};

inline void expectBounded(const DialCase& dial) {
  EXPECT_LT(dial.entities(), 4'100'000u);
  const auto finite = [](std::initializer_list<double> values) {
    for (const double value : values) ASSERT_TRUE(std::isfinite(value));
  };
  for (const LineRecord& line : dial.sheet.list().lines)
    finite({line.x1, line.y1, line.x2, line.y2});
  for (const PointRecord& point : dial.sheet.list().points) finite({point.x, point.y});
  for (const CircleRecord& circle : dial.sheet.list().circles)
    finite({circle.x, circle.y, circle.radius, circle.startAngle, circle.endAngle});
  EXPECT_FALSE(dial.busy);
}

}  // namespace dialwright
