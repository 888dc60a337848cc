// Where a writer's bytes go.
#pragma once

#include <functional>
#include <string_view>

namespace dialwright {

// Takes the next bytes; false when it can't, and then the writer stops.
using Sink = std::function<bool(std::string_view)>;

}  // namespace dialwright
