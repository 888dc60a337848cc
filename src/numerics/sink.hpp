// Where the bytes of a file go: every writer fills a sink, chunk by chunk and in order.
#pragma once

#include <functional>
#include <string_view>

namespace dialwright {

// Takes a file's bytes piece by piece, so that a large one never stands in memory as a whole. It
// throws when it can take no more.
using Sink = std::function<void(std::string_view)>;

}  // namespace dialwright
