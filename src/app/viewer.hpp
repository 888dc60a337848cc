// The external viewer of exported drawings.
#pragma once

#include <string>

namespace dialwright {

// Starts a viewer program, a path or a name on the search path, with the file as its argument and
// goes on without waiting for it. Nothing happens when no viewer is configured or its program is
// not found.
void openViewer(const std::string& viewer, const std::string& file);

}  // namespace dialwright
