// Texts and colours as SVG writes them.
#pragma once

#include <string>
#include <string_view>

#include "sheet/colour.hpp"

namespace dialwright {

// XML's text of any bytes: what XML can't hold is left out, a line's end becomes a blank.
std::string xmlText(std::string_view text);

// A colour as "#rrggbb".
std::string hexOf(Rgb colour);

// The texts of the colours, as they are on the sheet or as inks on white paper; drawings use few of
// them, each many times in a row.
class SvgInks {
 public:
  explicit SvgInks(bool dark) : dark_(dark) {}
  const std::string& of(Rgb colour);

 private:
  bool dark_;
  Rgb last_ = kBlack;
  std::string text_;
};

}  // namespace dialwright
