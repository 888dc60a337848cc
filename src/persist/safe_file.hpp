// Files read whole and replaced whole: a failed, interrupted or refused write leaves the old file
// as it was.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "numerics/sink.hpp"

namespace dialwright {

// A file that can't be read or written. what() is a sentence for the user: it names the file, the
// cause and what would help.
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

using Writer = std::function<void(const Sink&)>;

// Fills a new file beside the old one with what the writer sends to its sink, and puts it in the
// old one's place once all of it is safely on the disk. The old file's owner and permissions are
// kept, a link stays a link. Devices and pipes are written to directly. Throws FileError; what the
// writer itself throws passes through.
void replaceFile(const std::filesystem::path& path, const Writer& writer);
void replaceFile(const std::filesystem::path& path, std::string_view content);

inline constexpr std::size_t kLargestFile = std::size_t{256} << 20;

// The whole content of a plain file. Throws FileError, also for a file of more than that many
// bytes.
std::string readFile(const std::filesystem::path& path, std::size_t largest = kLargestFile);

}  // namespace dialwright
