// UTF-8 and Windows-1252.
#include "persist/encoding.hpp"

#include <array>
#include <cstdint>
#include <cstring>

namespace dialwright {

namespace {

using Byte = unsigned char;

// What Windows-1252 has at 0x80 to 0x9F; its five free places stand for themselves.
constexpr std::array<std::uint16_t, 32> kWindows = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void appendUtf8(std::string& text, unsigned code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | code >> 6);
    text += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | code >> 12);
    text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (code & 0x3F));
  }
}

// A lead byte's form: how many bytes follow it and what the first of them may be, which is where
// overlong forms, surrogates and too large codes show.
struct Lead {
  Byte first, last;
  std::size_t following;
  Byte least, most;
};
constexpr Lead kLeads[] = {{0xC2, 0xDF, 1, 0x80, 0xBF}, {0xE0, 0xE0, 2, 0xA0, 0xBF},
                           {0xE1, 0xEC, 2, 0x80, 0xBF}, {0xED, 0xED, 2, 0x80, 0x9F},
                           {0xEE, 0xEF, 2, 0x80, 0xBF}, {0xF0, 0xF0, 3, 0x90, 0xBF},
                           {0xF1, 0xF3, 3, 0x80, 0xBF}, {0xF4, 0xF4, 3, 0x80, 0x8F}};

bool isBetween(char c, Byte least, Byte most) {
  const auto byte = static_cast<Byte>(c);
  return byte >= least && byte <= most;
}

// The length of the sequence that a text begins with, 0 when it is malformed.
std::size_t sequenceLength(std::string_view text) {
  if (isBetween(text.front(), 0, 0x7F)) return 1;
  for (const Lead& lead : kLeads) {
    if (!isBetween(text.front(), lead.first, lead.last)) continue;
    if (text.size() <= lead.following || !isBetween(text[1], lead.least, lead.most)) return 0;
    for (std::size_t i = 2; i <= lead.following; ++i) {
      if (!isBetween(text[i], 0x80, 0xBF)) return 0;
    }
    return lead.following + 1;
  }
  return 0;
}

// The number of plain ASCII characters at the head of a text, eight at a time.
std::size_t asciiPrefix(std::string_view text) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  std::size_t at = 0;
  for (std::uint64_t eight = 0; at + sizeof eight <= text.size(); at += sizeof eight) {
    std::memcpy(&eight, text.data() + at, sizeof eight);
    if ((eight & kHighBits) != 0) break;
  }
  return at;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    bytes.remove_prefix(asciiPrefix(bytes));
    if (bytes.empty()) break;
    const std::size_t length = sequenceLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

std::string decodeText(std::string bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (isUtf8(bytes)) {
    if (bytes.starts_with(kByteOrderMark)) bytes.erase(0, kByteOrderMark.size());
    return bytes;
  }
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char c : bytes) {
    const unsigned code = static_cast<Byte>(c);
    appendUtf8(text, code >= 0x80 && code < 0xA0 ? kWindows[code - 0x80] : code);
  }
  return text;
}

}  // namespace dialwright
