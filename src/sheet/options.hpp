// The two settings of the sheet that last as long as the program.
#pragma once

#include "sheet/colour.hpp"

namespace dialwright {

class clsOptions {
 public:
  Rgb SheetBackColor() const { return sheetBackColor_; }
  void SheetBackColor(Rgb colour) { sheetBackColor_ = colour; }
  bool SheetMultiColor() const { return sheetMultiColor_; }
  void SheetMultiColor(bool multiColor) { sheetMultiColor_ = multiColor; }

 private:
  Rgb sheetBackColor_ = kBlack;
  bool sheetMultiColor_ = true;
};

}  // namespace dialwright
