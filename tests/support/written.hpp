// What a writer hands to its sink, as one text.
#pragma once

#include <string>
#include <string_view>

#include "sheet/sink.hpp"

namespace dialwright {

// writer(sink) writes; it must report success.
template <class Writer>
std::string written(Writer writer) {
  std::string all;
  const Sink sink = [&all](std::string_view bytes) {
    all += bytes;
    return true;
  };
  return writer(sink) ? all : "the writer failed";
}

inline std::size_t countOf(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos;
       at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

}  // namespace dialwright
