// The controls of the utility board: an enumeration with one table behind it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "shell/fields.hpp"

namespace dialwright {

enum class BoardField : std::uint8_t {
#define WINDOW(name, caption) name,
#define TEXT(name, text, label, sign, tip) name,
#define RESULT(name) name,
#define LABEL(name, caption, tip) name,
#define CHECK(name, caption) name,
#define OPTION(name, state, caption) name,
#define BUTTON(name, caption) name,
#include "board/board.def"
  None
};

inline constexpr std::size_t kBoardFieldCount = static_cast<std::size_t>(BoardField::None);

struct BoardRow {
  std::string_view name;
  FieldKind kind;         // Frame for a window's title
  std::string_view text;  // at start of a text field, caption of the others
  std::string_view tip;
  BoardField label = BoardField::None;
  bool sign = false;   // a text that may bear a sign
  bool state = false;  // of an option at start
};

// All rows in the window's order; a control's row stands at its own number.
std::span<const BoardRow, kBoardFieldCount> boardTable();
const BoardRow& rowOf(BoardField field);
constexpr BoardField boardFieldAt(std::size_t number) { return static_cast<BoardField>(number); }

// True for what a user fills in: the texts but for the results, the box, the options and the two
// signs.
bool isInput(BoardField field);

// The control of a name, without regard to case.
std::optional<BoardField> findBoardField(std::string_view name);

}  // namespace dialwright
