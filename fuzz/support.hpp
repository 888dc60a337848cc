// What the fuzzers share: a folder of their own, and the demand that something holds.
#pragma once

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "app/program.hpp"

namespace dialwright::fuzz {

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

inline void demand(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "not so: %s\n", what);
  std::abort();
}

// A folder in memory or else among the temporary files, one a process, that goes with it.
class Folder {
 public:
  Folder() {
    const std::filesystem::path memory = "/dev/shm";
    const auto base = std::filesystem::exists(memory) ? memory
                                                      : std::filesystem::temp_directory_path();
    path_ = base / ("dialwright-fuzz-" + std::to_string(::getpid()));
    std::filesystem::create_directories(path_);
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  void put(const char* name, std::string_view content) const {
    std::ofstream(path_ / name, std::ios::binary) << content;
  }
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline const Folder& folder() {
  static const Folder only;
  return only;
}

inline ProgramConfig config() { return {folder().path(), DIALWRIGHT_DATA_DIR, "en"}; }

}  // namespace dialwright::fuzz
