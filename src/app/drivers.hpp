// The table of drivers: which routine draws which dial.
#pragma once

#include <span>

#include "shell/dispatch.hpp"

namespace dialwright {

// In the order in which a run tries the checked items.
std::span<const DriverRow> drivers();

// True when the dial has a driver.
bool draws(Item dial);

// True for the items that are in the catalogue only: a run with one of them checked draws nothing
// and says nothing.
bool isSilent(Item dial);

}  // namespace dialwright
