// Starting the viewer in a session of its own, so that it outlives the program and leaves no zombie
// behind.
#include "app/viewer.hpp"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

namespace dialwright {

void openViewer(const std::string& viewer, const std::string& file) {
  if (viewer.empty()) return;
  const std::string path = std::filesystem::absolute(file).string();
  const pid_t child = fork();
  if (child < 0) return;
  if (child == 0) {
    setsid();
    if (fork() != 0) _exit(0);
    const int nowhere = open("/dev/null", O_RDWR);
    dup2(nowhere, STDIN_FILENO);
    dup2(nowhere, STDOUT_FILENO);
    execlp(viewer.c_str(), viewer.c_str(), path.c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
  waitpid(child, nullptr, 0);
}

}  // namespace dialwright
