// Finds the sheet's commands by name.
#include "sheet/commands.hpp"

#include <algorithm>

namespace dialwright {

namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool sameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, lower, lower);
}

template <class Rows>
auto rowOfName(const Rows& rows, std::string_view name) {
  const auto row =
      std::ranges::find_if(rows, [name](const auto& each) { return sameName(each.name, name); });
  return row == std::end(rows) ? nullptr : row;
}

}  // namespace

std::optional<SheetCommand> findSheetCommand(std::string_view name) {
  const SheetCommandRow* row = rowOfName(kSheetCommands, name);
  if (row == nullptr) return {};
  return row->command;
}

std::optional<SheetField> findSheetField(std::string_view name) {
  const SheetFieldRow* row = rowOfName(kSheetFields, name);
  if (row == nullptr) return {};
  return row->field;
}

}  // namespace dialwright
