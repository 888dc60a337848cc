// The field table, built from the list of fields.
#include "shell/fields.hpp"

#include <algorithm>
#include <array>

#include "shell/names.hpp"

namespace dialwright {

namespace {

constexpr std::array<FieldRow, kFieldCount> kFields = {{
#define TEXT(name, text, label, tip) {#name, FieldKind::Text, text, tip, Field::label},
#define LABEL(name, caption, tip) {#name, FieldKind::Label, caption, tip},
#define CHECK(name, state, caption, tip) \
  {#name, FieldKind::Check, caption, tip, Field::None, OptionGroup::None, state},
#define OPTION(name, state, group, caption, tip) \
  {#name, FieldKind::Option, caption, tip, Field::None, OptionGroup::group, state},
#define BUTTON(name, caption, tip) {#name, FieldKind::Button, caption, tip},
#define FRAME(name, caption) {#name, FieldKind::Frame, caption, ""},
#define COMBO(name) {#name, FieldKind::Combo, "", ""},
#include "shell/fields.def"
}};

constexpr std::array kFiltered = {Field::txt_Definition,
                                  Field::txt_R2,
                                  Field::txtAO,
                                  Field::txtArabi,
                                  Field::txtD1,
                                  Field::txtDecl,
                                  Field::txtDelta,
                                  Field::txtHeightx,
                                  Field::txtHeightz,
                                  Field::txtLAT,
                                  Field::txtLineofdeclination,
                                  Field::txtLON,
                                  Field::txtNumbersize,
                                  Field::txtQlat,
                                  Field::txtQlon,
                                  Field::TxtRadius,
                                  Field::txtReclinZ,
                                  Field::txtSemi,
                                  Field::TxtStilo,
                                  Field::txtV1,
                                  Field::txtV2,
                                  Field::txtZodiacsize,
                                  Field::x1txt,
                                  Field::x2txt,
                                  Field::y1txt,
                                  Field::y2txt};

constexpr char kBackspace = 8;

}  // namespace

std::span<const FieldRow, kFieldCount> fieldTable() { return kFields; }

const FieldRow& rowOf(Field field) { return kFields[static_cast<std::size_t>(field)]; }

std::string_view nameOf(FieldKind kind) {
  constexpr std::array<std::string_view, 7> kNames = {"text",   "label", "check", "option",
                                                      "button", "frame", "combo"};
  return kNames[static_cast<std::size_t>(kind)];
}

std::optional<Field> findField(std::string_view name) {
  const auto found = std::find_if(kFields.begin(), kFields.end(), [&](const FieldRow& row) {
    return equalIgnoringCase(row.name, name);
  });
  if (found == kFields.end()) return {};
  return fieldAt(static_cast<std::size_t>(found - kFields.begin()));
}

char FiltroNumerico(char key) {
  if (key == kBackspace) return key;
  if (std::string_view("0123456789,.-").find(key) == std::string_view::npos) return 0;
  return key == ',' ? '.' : key;
}

bool isFiltered(Field field) {
  return std::find(kFiltered.begin(), kFiltered.end(), field) != kFiltered.end();
}

}  // namespace dialwright
