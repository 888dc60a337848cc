// Texts between the program and the toolkit.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace dialwright {

inline QString words(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A caption: an "&" in it is no mnemonic.
inline QString caption(std::string_view text) { return words(text).replace('&', "&&"); }

}  // namespace dialwright
