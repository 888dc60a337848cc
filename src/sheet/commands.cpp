// Finds the sheet's commands by name.
#include "sheet/commands.hpp"

#include <algorithm>

namespace dialwright {

namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool sameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, lower, lower);
}

}  // namespace

std::optional<SheetCommand> findSheetCommand(std::string_view name) {
  const auto* row = std::ranges::find_if(
      kSheetCommands, [name](const SheetCommandRow& each) { return sameName(each.name, name); });
  if (row == std::end(kSheetCommands)) return {};
  return row->command;
}

}  // namespace dialwright
