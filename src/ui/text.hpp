// Texts of the core as Qt has them.
#pragma once

#include <QString>
#include <string_view>

namespace dialwright {

inline QString shown(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace dialwright
