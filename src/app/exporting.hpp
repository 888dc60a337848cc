// The formats that a sheet is written in, for every face.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "app/program.hpp"
#include "numerics/sink.hpp"

namespace dialwright {

struct ExportOptions {
  std::optional<int> scale;  // 1:n; left out, a PDF is 1:1 and a bitmap in the sheet's scale
  bool dark = false;         // the sheet's own colours on its ground, not inks for white paper
};

struct ExportFormat {
  std::string_view ending;
  // Fills the sink. The result is empty, or says what can't be made; what the sink throws passes
  // through.
  std::string (*write)(Program& program, const ExportOptions& options, const Sink& sink);
};

std::span<const ExportFormat> exportFormats();

// The format of an ending without its dot; upper and lower case don't count. nullptr for none.
const ExportFormat* findExportFormat(std::string_view ending);

}  // namespace dialwright
