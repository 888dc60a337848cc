// Finding the data from the executable's own path.
#include "app/data_folder.hpp"

#include <system_error>

namespace dialwright {

std::filesystem::path dataFolder() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  std::filesystem::path beside = program.parent_path().parent_path() / "share" / "dialwright";
  return std::filesystem::is_directory(beside, error) ? beside : DIALWRIGHT_DATA_DIR;
}

}  // namespace dialwright
