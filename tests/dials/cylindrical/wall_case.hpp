// A dial of a test on a bent wall, and the order of its colours.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"

namespace dialwright {

struct TestWall {
  double latitude = 45.7438, declination = -14.57, radius = 0.4, style = 0.2;
  bool convex = true;
};

// Outside and inside, turned either way.
inline constexpr TestWall kTestWalls[] = {{},
                                          {.convex = false},
                                          {60, 25, 0.3, 0.25, true},
                                          {60, 55, 0.3, 0.1, false},
                                          {45, 0, 0.4, 0.15, false}};

class WallCase : public DialCase {
 public:
  WallCase(Item item, Driver driver, const TestWall& wall) : DialCase(item, driver) {
    clearBoxes();
    set(Field::txtLAT, textOf(wall.latitude)).set(Field::txtDecl, textOf(wall.declination));
    set(Field::TxtRadius, textOf(wall.radius)).set(Field::TxtStilo, textOf(wall.style));
    set(Field::TxtHour, "1");
    panel.setState(wall.convex ? Field::OptConvex : Field::Optconcave, true);
  }
  WallCase& boxes(std::initializer_list<Field> fields) {
    for (const Field field : fields) panel.setState(field, true);
    return *this;
  }
};

// The colours of records in their order, each run of one colour once.
template <class Record>
std::vector<Rgb> inks(const std::vector<Record>& records) {
  std::vector<Rgb> all;
  for (const Record& r : records)
    if (all.empty() || all.back() != r.colour) all.push_back(r.colour);
  return all;
}
inline std::vector<Rgb> palettes(std::initializer_list<int> numbers) {
  std::vector<Rgb> all;
  for (const int number : numbers) all.push_back(palette(number));
  return all;
}

}  // namespace dialwright
