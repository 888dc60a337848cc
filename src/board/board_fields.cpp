// The board's table, built from the list of its controls.
#include "board/board_fields.hpp"

#include <algorithm>
#include <array>

#include "shell/names.hpp"

namespace dialwright {

namespace {

constexpr bool Signed = true, Plain = false;

constexpr std::array<BoardRow, kBoardFieldCount> kRows = {{
#define WINDOW(name, caption) {#name, FieldKind::Frame, caption, ""},
#define TEXT(name, text, label, sign, tip) \
  {#name, FieldKind::Text, text, tip, BoardField::label, sign},
#define RESULT(name) {#name, FieldKind::Text, "", ""},
#define LABEL(name, caption, tip) {#name, FieldKind::Label, caption, tip},
#define CHECK(name, caption) {#name, FieldKind::Check, caption, ""},
#define OPTION(name, state, caption) \
  {#name, FieldKind::Option, caption, "", BoardField::None, false, state},
#define BUTTON(name, caption) {#name, FieldKind::Button, caption, ""},
#include "board/board.def"
}};

}  // namespace

std::span<const BoardRow, kBoardFieldCount> boardTable() { return kRows; }

const BoardRow& rowOf(BoardField field) { return kRows[static_cast<std::size_t>(field)]; }

bool isInput(BoardField field) {
  switch (rowOf(field).kind) {
    case FieldKind::Text: return field != BoardField::txtResult;
    case FieldKind::Check:
    case FieldKind::Option: return true;
    default: return field == BoardField::cmdSignLAT || field == BoardField::cmdSignLON;
  }
}

std::optional<BoardField> findBoardField(std::string_view name) {
  const auto found = std::ranges::find_if(
      kRows, [name](const BoardRow& row) { return equalIgnoringCase(row.name, name); });
  if (found == kRows.end()) return {};
  return boardFieldAt(static_cast<std::size_t>(found - kRows.begin()));
}

}  // namespace dialwright
