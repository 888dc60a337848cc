// The commands behind the command line's words.
#pragma once

#include "cli/request.hpp"

namespace dialwright {

// Each throws UsageError or CommandFailure.
void commandList(const Request& request);
void commandFields(const Request& request);
void commandRun(const Request& request);

}  // namespace dialwright
