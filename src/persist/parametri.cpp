// The store's file and the inputs that are kept in it.
#include "persist/parametri.hpp"

#include <algorithm>
#include <utility>

#include "numerics/numbers.hpp"
#include "persist/encoding.hpp"
#include "persist/safe_file.hpp"
#include "persist/state_text.hpp"

namespace dialwright {

namespace {

struct Entry {
  std::string_view key;
  Field field;
};

// In the order of the file. "FRAZIONE" stands in it twice and is stored once.
constexpr Entry kEntries[] = {{"LAT", Field::txtLAT},
                              {"DEC", Field::txtDecl},
                              {"RADIUS", Field::TxtRadius},
                              {"ORTO", Field::TxtStilo},
                              {"DIURNE", Field::Ck_DayLightCurves},
                              {"EQUINOX", Field::ck_Equinoziale},
                              {"ORE", Field::chkOreAstronomiche},
                              {"LEMNISCATA", Field::ck_Lemniscate},
                              {"HORIZON", Field::ck_Orizzonte},
                              {"ITALICHE", Field::ck_Italiche},
                              {"BABILONICHE", Field::ck_babiloniche},
                              {"TEMPORARIE", Field::ckTemp},
                              {"TRIANGOLO", Field::ck_Triangolo},
                              {"SUSTILARE", Field::ck_Sustilare},
                              {"FUNZIONE", Field::ckFunction},
                              {"FRAZIONE", Field::TxtHour},
                              {"LONG", Field::txtLON},
                              {"FRAZIONE", Field::TxtHour},
                              {"Cornice", Field::ckFrame},
                              {"x1txt", Field::x1txt},
                              {"x2txt", Field::x2txt},
                              {"y1txt", Field::y1txt},
                              {"y2txt", Field::y2txt},
                              {"Romani", Field::ckRomani},
                              {"Arabi", Field::ckArabi},
                              {"Distanza 1", Field::txtD1},
                              {"DELTA", Field::txtDelta},
                              {"ORARIO", Field::txtAO},
                              {"r2", Field::txt_R2}};

constexpr std::string_view kLineEnds = "\r\n";

// Takes the next value off the text: a quoted one up to its closing quote, a bare one up to a comma
// or the line's end. Whatever stands between a closing quote and the comma is passed over.
std::string takeValue(std::string_view& rest) {
  std::string_view value;
  if (rest.starts_with('"')) {
    rest.remove_prefix(1);
    value = rest.substr(0, rest.find('"'));
    rest.remove_prefix(std::min(rest.size(), value.size() + 1));
  } else {
    value = rest.substr(0, rest.find_first_of(",\r\n"));
  }
  rest.remove_prefix(std::min(rest.size(), rest.find_first_of(",\r\n")));
  return std::string(value);
}

}  // namespace

void Parametri::readOnce() {
  if (!pairs_.empty()) return;
  std::string text;
  try {
    text = decodeText(readFile(file_));
  } catch (const FileError&) {
    return;  // no store yet: every first start is like that
  }
  std::string_view rest = text;
  while (pairs_.size() < kMostPairs) {
    rest.remove_prefix(std::min(rest.size(), rest.find_first_not_of(kLineEnds)));
    if (rest.empty()) break;
    Pair pair{.key = takeValue(rest), .value = {}};
    if (!rest.starts_with(',')) continue;  // half a pair
    rest.remove_prefix(1);
    pair.value = takeValue(rest);
    if (rest.starts_with(',')) rest.remove_prefix(1);
    pairs_.push_back(std::move(pair));
  }
}

std::vector<Parametri::Pair>::iterator Parametri::find(std::string_view key) {
  readOnce();
  return std::find_if(pairs_.begin(), pairs_.end(), [key](const Pair& p) { return p.key == key; });
}

const std::vector<Parametri::Pair>& Parametri::pairs() {
  readOnce();
  return pairs_;
}

std::string Parametri::Leggi(std::string_view key) {
  const auto found = find(key);
  return found == pairs_.end() ? std::string() : found->value;
}

void Parametri::keep(std::string_view key, std::string_view value) {
  const auto found = find(key);
  if (found != pairs_.end()) {
    found->value = value;
  } else if (pairs_.size() < kMostPairs) {
    pairs_.push_back({.key = std::string(key), .value = std::string(value)});
  } else {
    throw FileError("The value \"" + std::string(key) + "\" can't be stored: \"" + file_.string() +
                    "\" holds 100 values already. Delete that file to start anew.");
  }
}

void Parametri::writeFile() const {
  replaceFile(file_, [this](const Sink& sink) {
    for (const Pair& pair : pairs_) sink('"' + pair.key + "\",\"" + pair.value + "\"\r\n");
  });
}

void Parametri::Scrivi(std::string_view key, std::string_view value) {
  keep(key, value);
  writeFile();
}

std::filesystem::path storeIn(const std::filesystem::path& folder) {
  return folder / "dialwright.dat";
}

void CaricaDefault(Panel& panel, Parametri& store) {
  for (const Entry& entry : kEntries) {
    const std::string value = store.Leggi(entry.key);
    if (value.empty()) continue;
    if (rowOf(entry.field).kind == FieldKind::Text) {
      panel.setText(entry.field, value);
    } else if (const auto state = stateOf(value)) {
      panel.setState(entry.field, *state);
    }
  }
}

void SalvaDefault(const Panel& panel, Parametri& store) {
  // The file is written once, not after every value: it ends up the same, and a failure halfway
  // can't leave the new values mixed with the old ones.
  for (const Entry& entry : kEntries) {
    const bool text = rowOf(entry.field).kind == FieldKind::Text;
    store.keep(entry.key, text ? panel.text(entry.field) : textOf(panel.on(entry.field) ? 1 : 0));
  }
  store.writeFile();
}

}  // namespace dialwright
