// The encodings of the program's own text files.
#pragma once

#include <string>
#include <string_view>

namespace dialwright {

// True for well-formed UTF-8: no overlong forms, no surrogates, nothing beyond U+10FFFF.
bool isUtf8(std::string_view bytes);

// The text of a file's bytes, in UTF-8: the bytes as they are (less a byte order mark) where they
// are well-formed UTF-8, and taken as Windows-1252 otherwise.
std::string decodeText(std::string bytes);

}  // namespace dialwright
