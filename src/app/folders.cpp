// The folder of the environment.
#include "app/folders.hpp"

#include <cstdlib>

namespace dialwright {

std::filesystem::path configurationFolder() {
  const char* configured = std::getenv("XDG_CONFIG_HOME");
  if (configured != nullptr && *configured == '/')
    return std::filesystem::path(configured) / "dialwright";
  const char* home = std::getenv("HOME");
  if (home != nullptr && *home == '/')
    return std::filesystem::path(home) / ".config" / "dialwright";
  return ".";
}

}  // namespace dialwright
