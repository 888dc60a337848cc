// The fields of the input panel: an enumeration with one table behind it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace dialwright {

enum class Field : std::uint8_t {
#define TEXT(name, text, label, tip) name,
#define LABEL(name, caption, tip) name,
#define CHECK(name, state, caption, tip) name,
#define OPTION(name, state, group, caption, tip) name,
#define BUTTON(name, caption, tip) name,
#define FRAME(name, caption) name,
#define COMBO(name) name,
#include "shell/fields.def"
  None
};

inline constexpr std::size_t kFieldCount = static_cast<std::size_t>(Field::None);

enum class FieldKind : std::uint8_t { Text, Label, Check, Option, Button, Frame, Combo };

// Options of one group exclude each other; the option of Point stands alone and works as a push
// button.
enum class OptionGroup : std::uint8_t { None, Inclination, Variable, Side, Point };

struct FieldRow {
  std::string_view name;
  FieldKind kind;
  std::string_view text;  // default text of a text field, caption of the others
  std::string_view tip;
  Field label = Field::None;
  OptionGroup group = OptionGroup::None;
  bool state = false;  // of a check box or an option at start
};

// All rows in the window's order; a field's row stands at its own number.
std::span<const FieldRow, kFieldCount> fieldTable();
const FieldRow& rowOf(Field field);
constexpr Field fieldAt(std::size_t number) { return static_cast<Field>(number); }

// The word for a kind in lists: "text", "check", ...
std::string_view nameOf(FieldKind kind);

// The field of a name, without regard to case.
std::optional<Field> findField(std::string_view name);

// Key filter of the number fields: backspace passes, a character outside "0123456789,.-" gives 0
// (and calls for a beep),
// "," becomes ".".
char FiltroNumerico(char key);

// True for the 26 fields whose key presses FiltroNumerico filters.
bool isFiltered(Field field);

}  // namespace dialwright
