// A folder of its own for a test, gone with it.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace dialwright {

class Folder {
 public:
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "dialwright-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

  void put(std::string_view name, std::string_view content) const {
    std::ofstream(path_ / name, std::ios::binary) << content;
  }
  std::string get(std::string_view name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::size_t count() const {
    using std::filesystem::directory_iterator;
    return static_cast<std::size_t>(std::distance(directory_iterator(path_), directory_iterator()));
  }

 private:
  std::filesystem::path path_;
};

}  // namespace dialwright
