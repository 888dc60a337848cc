// The command that draws a dial's shadow at a moment, or through a row of moments.
#pragma once

#include "cli/request.hpp"

namespace dialwright {

// Throws UsageError or CommandFailure.
void commandShadow(const Request& request);

}  // namespace dialwright
