// The step from the command line to the desktop program, which lies beside it.
#include <unistd.h>

#include <filesystem>
#include <vector>

#include "cli/commands.hpp"
#include "cli/errors.hpp"

namespace dialwright {

void commandDesktop(const Request& request) {
  std::error_code ignored;
  const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", ignored);
  const std::string desktop = (self.parent_path() / "dialwright-desktop").string();
  std::vector<std::string> words = {desktop};
  if (!request.folder.empty()) words.insert(words.end(), {"--folder", request.folder});
  if (!request.language.empty()) words.insert(words.end(), {"--lang", request.language});
  if (!request.item.empty()) words.insert(words.end(), {"--", request.item});
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  execv(desktop.c_str(), arguments.data());
  throw CommandFailure("there is no " + desktop +
                       ": the desktop program was not built or not installed");
}

}  // namespace dialwright
