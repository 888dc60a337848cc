// What a writer hands to its sink, as one text.
#pragma once

#include <string>
#include <string_view>

#include "sheet/output_buffer.hpp"

namespace dialwright {

// writer(sink) writes.
template <class Writer>
std::string written(Writer writer) {
  std::string all;
  writer(Sink([&all](std::string_view bytes) { all += bytes; }));
  return all;
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
