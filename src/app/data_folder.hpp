// Where the program finds its dictionaries and its map.
#pragma once

#include <filesystem>

namespace dialwright {

// share/dialwright beside the folder of the running executable, so that an installed tree may be
// moved as a whole; where there is none, the folder that the build was told.
std::filesystem::path dataFolder();

}  // namespace dialwright
