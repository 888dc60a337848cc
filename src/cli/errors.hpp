// What ends a command early.
#pragma once

#include <stdexcept>

namespace dialwright {

// A wrong word on the command line: status 2.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// An input or a file that can't be worked with: status 1. An empty sentence says that the user has
// been told.
struct CommandFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace dialwright
