// The state of a box or an option as the program's files write it.
#pragma once

#include <cmath>
#include <optional>
#include <string_view>

#include "numerics/numbers.hpp"

namespace dialwright {

// The state that the number of a text stands for: 0 is off, 1 and -1 are on. No other number is a
// state.
inline std::optional<bool> stateOf(std::string_view text) {
  const double number = numberOf(text);
  if (number == 0) return false;
  if (std::abs(number) == 1) return true;
  return {};
}

}  // namespace dialwright
