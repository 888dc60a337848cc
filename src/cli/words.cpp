// Reading the command line's words.
#include "cli/words.hpp"

#include "cli/errors.hpp"
#include "persist/encoding.hpp"
#include "shell/names.hpp"

namespace dialwright {

namespace {

bool isAssignable(FieldKind kind) {
  return kind == FieldKind::Text || kind == FieldKind::Check || kind == FieldKind::Option ||
         kind == FieldKind::Combo;
}

// The other option of a pair, which a user clicks to get rid of this one.
Field partnerOf(Field option) {
  const OptionGroup group = rowOf(option).group;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    if (fieldAt(i) != option && rowOf(fieldAt(i)).group == group) return fieldAt(i);
  }
  return option;
}

void clickTo(Program& program, Field field, bool state) {
  Panel& panel = program.panel();
  if (panel.on(field) == state) return;
  if (field == Field::ckFrame) {
    panel.setState(field, state);
  } else if (rowOf(field).kind == FieldKind::Option && !state) {
    program.click(partnerOf(field), true);
  } else {
    program.click(field, state);
  }
}

}  // namespace

std::string unknownWord(std::string_view what, std::string_view word,
                        const std::vector<std::string_view>& known) {
  std::string sentence = "no " + std::string(what) + " '" + std::string(word) + "'";
  const std::string near = nearestName(word, known);
  if (!near.empty()) sentence += "; did you mean " + near + "?";
  return sentence;
}

Item dialOf(std::string_view word) {
  if (const auto item = findDial(word)) return *item;
  std::vector<std::string_view> names;
  for (const Item item : dialItems()) names.push_back(rowOf(item).name);
  const std::string sentence = unknownWord("dial", word, names);
  throw UsageError(sentence + (sentence.back() == '?' ? " " : "; ") +
                   "'dialwright list' shows them all");
}

Field fieldOf(std::string_view word) {
  if (const auto field = findField(word)) return *field;
  std::vector<std::string_view> names;
  for (const FieldRow& row : fieldTable()) {
    if (isAssignable(row.kind)) names.push_back(row.name);
  }
  throw UsageError(unknownWord("field", word, names));
}

Assignment assignmentOf(std::string_view text) {
  const std::size_t sign = text.find('=');
  if (sign == std::string_view::npos)
    throw UsageError("'" + std::string(text) + "' is no assignment: it should read NAME=VALUE");
  return {text.substr(0, sign), text.substr(sign + 1)};
}

bool stateOf(std::string_view name, std::string_view value) {
  if (value == "1" || equalIgnoringCase(value, "true") || equalIgnoringCase(value, "on"))
    return true;
  if (value == "0" || equalIgnoringCase(value, "false") || equalIgnoringCase(value, "off"))
    return false;
  throw UsageError("'" + std::string(name) + "' is a box or an option: it takes 1 or 0, not '" +
                   std::string(value) + "'");
}

void assignField(Program& program, std::string_view assignment) {
  const auto [name, value] = assignmentOf(assignment);
  const Field field = fieldOf(name);
  const FieldRow& row = rowOf(field);
  if (!isAssignable(row.kind)) {
    throw UsageError("'" + std::string(row.name) + "' is a " + std::string(nameOf(row.kind)) +
                     " and takes no value; only texts, boxes and options do");
  }
  if (row.kind == FieldKind::Text || row.kind == FieldKind::Combo) {
    program.type(field, decodeText(std::string(value)));
  } else {
    clickTo(program, field, stateOf(row.name, value));
  }
}

void pressButton(Program& program, std::string_view button) {
  const std::size_t sign = button.find('=');
  if (sign != std::string_view::npos) {
    if (const auto field = findSheetField(button.substr(0, sign))) {
      program.view().setText(*field, button.substr(sign + 1));
      return;
    }
    assignField(program, button);
    return;
  }
  switch (program.press(button)) {
    case Press::Done: return;
    case Press::Disabled:
      throw CommandFailure("the button " + std::string(button) + " can't be pressed on this dial");
    case Press::Unknown: throw UsageError(unknownWord("button", button, program.buttons()));
  }
}

}  // namespace dialwright
