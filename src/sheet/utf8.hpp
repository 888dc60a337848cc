// Reads UTF-8 one character at a time, whatever the bytes.
#pragma once

#include <cstddef>
#include <string_view>

namespace dialwright {

inline constexpr char32_t kReplacement = 0xFFFD;

// A character and the bytes that it took.
struct Utf8Character {
  char32_t code;
  std::size_t length;
};

// The first character of a text that is not empty; a byte that does not belong to well-formed UTF-8
// counts as one replacement character.
inline Utf8Character firstCharacter(std::string_view text) {
  const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return {kReplacement, 1};
  char32_t code = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80U) return {kReplacement, 1};
    code = code << 6 | (byte(i) & 0x3FU);
  }
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (code < kLeast[length] || surrogate || code > 0x10FFFF) return {kReplacement, 1};
  return {code, length};
}

}  // namespace dialwright
