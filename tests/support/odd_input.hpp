// What dials refuse, and odd texts in their fields: each run ends, and what it draws is finite.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>

#include "support/dial_case.hpp"

namespace dialwright {

// A latitude of the South and not the equator's.
inline void expectRefusesSouth(Item item, Driver driver) {
  DialCase dial(item, driver);
  dial.set(Field::txtLAT, "-0.0001").run();
  EXPECT_TRUE(dial.refused && dial.entities() == 0 && !dial.busy);
  EXPECT_EQ(dial.messages.at(0), "Sorry, unable to work in the Southern hemisphere ");
  dial.set(Field::txtLAT, "0").run();
  EXPECT_FALSE(dial.refused);
  EXPECT_GT(dial.entities(), 0u);
}

inline void expectBounded(Item item, Driver driver, std::initializer_list<Field> boxes,
                          std::initializer_list<Field> fields) {
  for (const Field field : fields) {
    for (const char* text : {"", "abc", "0", "-1", "1e-9", "90", "1e9", "1e308", "1e999"}) {
      SCOPED_TRACE(testing::Message() << rowOf(field).name << '=' << text);
      DialCase dial(item, driver);
      for (const Field box : boxes) dial.check(box);
      dial.set(field, text).run();
      EXPECT_LT(dial.entities(), 4'100'000u);
      for (const LineRecord& line : dial.sheet.list().lines) {
        for (const double value : {line.x1, line.y1, line.x2, line.y2})
          ASSERT_TRUE(std::isfinite(value));
      }
      for (const PointRecord& point : dial.sheet.list().points)
        ASSERT_TRUE(std::isfinite(point.x) && std::isfinite(point.y));
      for (const CircleRecord& circle : dial.sheet.list().circles) {
        for (const double value : {circle.x, circle.y, circle.startAngle, circle.endAngle})
          ASSERT_TRUE(std::isfinite(value));
      }
      EXPECT_FALSE(dial.busy);
    }
  }
}

}  // namespace dialwright
