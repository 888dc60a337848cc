// Writing and reading the project file.
#include "persist/project.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <utility>

#include "numerics/fault.hpp"
#include "numerics/numbers.hpp"
#include "persist/encoding.hpp"
#include "persist/safe_file.hpp"
#include "persist/state_text.hpp"

namespace dialwright {

namespace {

constexpr std::string_view kFormatMark = "|KoK 2.0|";
constexpr std::string_view kNotRecognised = "File non riconosciuto!";
constexpr std::string_view kLineEnd = "\r\n";
constexpr int kShuffles = 3;

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool sameLetter(char a, char b) { return lower(a) == lower(b); }

bool isBlank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

bool startsIgnoringCase(std::string_view text, std::string_view start) {
  return text.size() >= start.size() &&
         std::equal(start.begin(), start.end(), text.begin(), sameLetter);
}

bool endsIgnoringCase(std::string_view text, std::string_view end) {
  return text.size() >= end.size() &&
         startsIgnoringCase(text.substr(text.size() - end.size()), end);
}

// Where a mark, which begins with "<", stands first.
std::size_t findMark(std::string_view body, std::string_view mark) {
  std::size_t at = body.find('<');
  while (at != std::string_view::npos && !startsIgnoringCase(body.substr(at), mark)) {
    at = body.find('<', at + 1);
  }
  return at;
}

// The sheet's elements with what they stand for.
struct SheetElement {
  std::string_view key;
  double (SheetPlot::*get)() const;
  void (SheetPlot::*set)(double);
  double least, most;  // metres; what lies beyond is damage, not a sheet
};
constexpr double kSmallestSide = 0.001;
constexpr double kFarthestShift = 1000;
constexpr SheetElement kSheetElements[] = {
    {"QuadranteH", &SheetPlot::QuadranteH, &SheetPlot::QuadranteH, kSmallestSide, HUGE_VAL},
    {"QuadranteL", &SheetPlot::QuadranteL, &SheetPlot::QuadranteL, kSmallestSide, HUGE_VAL},
    {"Shiftx", &SheetPlot::ShiftX, &SheetPlot::ShiftX, -kFarthestShift, kFarthestShift},
    {"Shifty", &SheetPlot::ShiftY, &SheetPlot::ShiftY, -kFarthestShift, kFarthestShift}};

// --- Writing

class Body {
 public:
  void control(const FieldRow& row, const Control& control) {
    switch (row.kind) {
      case FieldKind::Text: element(row.name, control, control.text); break;
      case FieldKind::Check: element(row.name, control, textWithSign(control.state ? 1 : 0)); break;
      case FieldKind::Option: element(row.name, control, optionText(control.state)); break;
      case FieldKind::Label:
        if (!isBlank(control.caption)) label(row.name, control);
        break;
      case FieldKind::Frame: element(row.name, control, {}); break;
      case FieldKind::Button:
      case FieldKind::Combo: break;
    }
  }

  void item(const ItemRow& row, const MenuItem& item) {
    element(row.name, item, optionText(item.checked));
  }

  void sheet(const SheetPlot& sheet) {
    for (const SheetElement& element : kSheetElements) {
      append({"<_", element.key, ">", textOf((sheet.*element.get)()), "</_", element.key, ">"});
    }
  }

  std::string take() { return std::move(text_); }

 private:
  static std::string optionText(bool on) { return textWithSign(on ? -1 : 0); }

  template <class Thing>
  void element(std::string_view name, const Thing& thing, std::string_view value) {
    append({"<", name, thing.visible ? " visible=true" : " visible=false",
            thing.enabled ? " enabled=true" : " enabled=false", ">", value, "</", name, ">",
            kLineEnd});
  }

  void label(std::string_view name, const Control& control) {
    append({"<", name, control.visible ? " visible=true" : " visible=false", ">", control.caption,
            "</", name, ">", kLineEnd});
  }

  void append(std::initializer_list<std::string_view> parts) {
    for (const std::string_view part : parts) text_ += part;
  }

  std::string text_;
};

std::string plainBody(const Panel& panel, const SheetPlot& sheet) {
  Body body;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    body.control(rowOf(fieldAt(i)), panel[fieldAt(i)]);
  }
  for (std::size_t i = 0; i < kItemCount; ++i) body.item(rowOf(itemAt(i)), panel[itemAt(i)]);
  body.sheet(sheet);
  return body.take();
}

// --- Reading

// An element taken apart; what it does not say is left out.
struct Element {
  std::optional<bool> visible;
  std::optional<bool> enabled;
  std::optional<std::string_view> value;
};

void readAttributes(std::string_view attributes, Element& element) {
  for (std::size_t at = attributes.find('='); at != std::string_view::npos;
       at = attributes.find('=', at + 1)) {
    const std::string_view name = attributes.substr(0, at);
    const std::string_view state = attributes.substr(at + 1);
    const bool isTrue = startsIgnoringCase(state, "true");
    if (!isTrue && !startsIgnoringCase(state, "false")) continue;
    if (endsIgnoringCase(name, "visible")) element.visible = isTrue;
    if (endsIgnoringCase(name, "enabled")) element.enabled = isTrue;
  }
}

Element parse(std::string_view content) {
  Element element;
  const std::size_t bracket = content.find('>');
  readAttributes(content.substr(0, bracket), element);
  if (bracket != std::string_view::npos) element.value = content.substr(bracket + 1);
  return element;
}

// The first opening and the first closing mark of every control, found in one walk over the body.
class ControlMarks {
 public:
  explicit ControlMarks(std::string_view body) : body_(body) {
    for (std::size_t at = body.find('<'); at != std::string_view::npos;
         at = body.find('<', at + 1)) {
      note(at);
    }
  }

  // What LeggiElemento gives for the field or item, or nothing where the element is missing.
  std::optional<std::string_view> find(Field field) const {
    return find(static_cast<std::size_t>(field));
  }
  std::optional<std::string_view> find(Item item) const {
    return find(kFieldCount + static_cast<std::size_t>(item));
  }

  // The body from the first mark of the sheet on: there its elements are looked for.
  std::string_view sheetPart() const { return body_.substr(std::min(sheetAt_, body_.size())); }

 private:
  static constexpr std::size_t kNone = std::string_view::npos;
  static constexpr std::size_t kLongestName = 32;

  struct Marks {
    std::size_t opening = kNone;  // behind the mark
    std::size_t closing = kNone;
  };
  using Numbers = std::unordered_map<std::string_view, std::size_t>;

  // The place of every control in the list of marks, by its name in lower case.
  static const Numbers& numbers() {
    static const std::array<std::string, kFieldCount + kItemCount> kNames = [] {
      std::array<std::string, kFieldCount + kItemCount> names;
      for (std::size_t i = 0; i < names.size(); ++i) {
        names[i] = i < kFieldCount ? rowOf(fieldAt(i)).name : rowOf(itemAt(i - kFieldCount)).name;
        std::transform(names[i].begin(), names[i].end(), names[i].begin(), lower);
      }
      return names;
    }();
    static const Numbers kNumbers = [] {
      Numbers numbers;
      for (std::size_t i = 0; i < kNames.size(); ++i) numbers.emplace(kNames[i], i);
      return numbers;
    }();
    return kNumbers;
  }

  void note(std::size_t at) {
    std::size_t from = at + 1;
    const bool closes = from < body_.size() && body_[from] == '/';
    if (closes) ++from;
    if (sheetAt_ == kNone && from < body_.size() && body_[from] == '_') sheetAt_ = at;
    std::array<char, kLongestName> name{};
    std::size_t length = 0;
    while (length < kLongestName && from + length < body_.size()) {
      const char c = body_[from + length];
      if (c == ' ' || c == '>' || c == '<') break;
      name[length++] = lower(c);
    }
    const std::size_t end = from + length;
    if (length == 0 || end >= body_.size() || body_[end] != (closes ? '>' : ' ')) return;
    const auto number = numbers().find({name.data(), length});
    if (number == numbers().end()) return;
    Marks& marks = marks_[number->second];
    std::size_t& place = closes ? marks.closing : marks.opening;
    if (place == kNone) place = closes ? at : end + 1;
  }

  std::optional<std::string_view> find(std::size_t number) const {
    const Marks& marks = marks_[number];
    if (marks.opening == kNone || marks.closing == kNone || marks.closing < marks.opening) {
      return {};
    }
    return body_.substr(marks.opening, marks.closing - marks.opening);
  }

  std::string_view body_;
  std::size_t sheetAt_ = kNone;
  std::array<Marks, kFieldCount + kItemCount> marks_;
};

template <class Thing>
void setAttributes(Thing& thing, const Element& element) {
  thing.visible = element.visible.value_or(thing.visible);
  thing.enabled = element.enabled.value_or(thing.enabled);
}

void setField(Panel& panel, Field field, const Element& element) {
  setAttributes(panel[field], element);
  if (!element.value) return;
  switch (rowOf(field).kind) {
    case FieldKind::Text:
      if (!isBlank(*element.value)) panel.setText(field, *element.value);
      break;
    case FieldKind::Check:
    case FieldKind::Option:
      if (const auto state = stateOf(*element.value)) panel.setState(field, *state);
      break;
    case FieldKind::Label:
      if (!isBlank(*element.value)) panel[field].caption = *element.value;
      break;
    case FieldKind::Frame:
    case FieldKind::Button:
    case FieldKind::Combo: break;
  }
}

void setItem(Panel& panel, Item item, const Element& element) {
  setAttributes(panel[item], element);
  if (rowOf(item).separator || !element.value) return;
  if (const auto checked = stateOf(*element.value)) panel[item].checked = *checked;
}

bool hasElement(const FieldRow& row) {
  return row.kind != FieldKind::Button && row.kind != FieldKind::Combo;
}

// The number of controls that have an element.
std::size_t setControls(Panel& panel, const ControlMarks& marks) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    if (!hasElement(rowOf(fieldAt(i)))) continue;
    const auto content = marks.find(fieldAt(i));
    if (!content) continue;
    setField(panel, fieldAt(i), parse(*content));
    ++count;
  }
  for (std::size_t i = 0; i < kItemCount; ++i) {
    const auto content = marks.find(itemAt(i));
    if (!content) continue;
    setItem(panel, itemAt(i), parse(*content));
    ++count;
  }
  return count;
}

void setSheet(SheetPlot& sheet, std::string_view body) {
  for (const SheetElement& element : kSheetElements) {
    const auto value = parse(LeggiElemento(body, '_' + std::string(element.key))).value;
    if (!value || value->find_first_of("0123456789") == std::string_view::npos) continue;
    const double metres = numberOf(*value);
    if (metres >= element.least && metres <= element.most) (sheet.*element.set)(metres);
  }
}

// The plain body of a file's bytes, or nothing when they are not one whole record of this format.
std::optional<std::string> bodyOf(std::string bytes) {
  const std::string head = '"' + std::string(kFormatMark);
  if (!bytes.starts_with(head)) return {};
  const std::size_t end = bytes.find('"', head.size());
  if (end == std::string::npos) return {};
  bytes.erase(end);
  bytes.erase(0, head.size());
  for (int i = 0; i < kShuffles; ++i) bytes = Ricomponi(bytes);
  return decodeText(std::move(bytes));
}

}  // namespace

std::string Mescola(std::string_view text) {
  std::string shuffled(text.size(), '\0');
  char* out = shuffled.data();
  for (std::size_t i = 0; i < text.size(); i += 2) *out++ = text[i];
  for (std::size_t i = 1; i < text.size(); i += 2) *out++ = text[i];
  return shuffled;
}

std::string Ricomponi(std::string_view text) {
  std::string plain(text.size(), '\0');
  const char* in = text.data();
  for (std::size_t i = 0; i < text.size(); i += 2) plain[i] = *in++;
  for (std::size_t i = 1; i < text.size(); i += 2) plain[i] = *in++;
  return plain;
}

std::string_view LeggiElemento(std::string_view body, std::string_view name) {
  const bool ofSheet = name.starts_with('_');
  const std::string opening = '<' + std::string(name) + (ofSheet ? "" : " ");
  const std::string closing = "</" + std::string(name) + (ofSheet ? "" : ">");
  const std::size_t first = findMark(body, opening);
  const std::size_t last = findMark(body, closing);
  if (first == std::string_view::npos || last == std::string_view::npos) return {};
  const std::size_t start = first + opening.size();
  return last < start ? std::string_view{} : body.substr(start, last - start);
}

std::string progettoDi(const Panel& panel, const SheetPlot& sheet) {
  std::string body = plainBody(panel, sheet);
  for (int i = 0; i < kShuffles; ++i) body = Mescola(body);
  std::string bytes;
  bytes.reserve(body.size() + 16);
  bytes.append("\"").append(kFormatMark).append(body).append("\"").append(kLineEnd);
  return bytes;
}

bool leggiProgetto(std::string bytes, Panel& panel, SheetPlot& sheet) {
  const std::optional<std::string> body = bodyOf(std::move(bytes));
  if (!body) return false;
  Panel loaded = panel;
  const ControlMarks marks(*body);
  if (setControls(loaded, marks) == 0) return false;
  panel = std::move(loaded);
  setSheet(sheet, marks.sheetPart());
  return true;
}

void SalvaProgetto(const std::filesystem::path& path, const Panel& panel, const SheetPlot& sheet) {
  replaceFile(path, progettoDi(panel, sheet));
}

LoadResult CaricaProgetto(const std::filesystem::path& path, Panel& panel, SheetPlot& sheet) {
  using enum LoadResult::Outcome;
  std::string bytes;
  try {
    bytes = readFile(path);
  } catch (const FileError& error) {
    return {Unreadable, error.what()};
  }
  if (leggiProgetto(std::move(bytes), panel, sheet)) return {Loaded, {}};
  return {NotRecognised, std::string(kNotRecognised)};
}

}  // namespace dialwright
