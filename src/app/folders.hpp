// Where a program works when nobody says it.
#pragma once

#include <filesystem>

namespace dialwright {

// The user's configuration folder, or the current one for a user without a home.
std::filesystem::path configurationFolder();

}  // namespace dialwright
