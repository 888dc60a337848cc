// Writes characters and colours for an XML reader.
#include "sheet/svg_text.hpp"

#include "sheet/paper_ink.hpp"
#include "sheet/utf8.hpp"

namespace dialwright {

std::string xmlText(std::string_view text) {
  std::string xml;
  while (!text.empty()) {
    const auto [code, length] = firstCharacter(text);
    const std::string_view bytes = text.substr(0, length);
    text.remove_prefix(length);
    switch (code) {
      case '&': xml += "&amp;"; break;
      case '<': xml += "&lt;"; break;
      case '>': xml += "&gt;"; break;
      case '"': xml += "&quot;"; break;
      case '\t':
      case '\n':
      case '\r': xml += ' '; break;
      case kReplacement: xml += "\xEF\xBF\xBD"; break;
      default:
        if (code >= 0x20 && code != 0xFFFE && code != 0xFFFF) xml += bytes;
    }
  }
  return xml;
}

std::string hexOf(Rgb colour) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text = "#";
  for (const int channel : {redOf(colour), greenOf(colour), blueOf(colour)}) {
    text += kDigits[static_cast<std::size_t>(channel >> 4)];
    text += kDigits[static_cast<std::size_t>(channel & 15)];
  }
  return text;
}

const std::string& SvgInks::of(Rgb colour) {
  if (colour != last_ || text_.empty()) {
    last_ = colour;
    text_ = hexOf(dark_ ? colour : inkOnPaper(colour));
  }
  return text_;
}

}  // namespace dialwright
