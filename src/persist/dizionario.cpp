// Loading dictionaries, translating with them, choosing one.
#include "persist/dizionario.hpp"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <system_error>

#include "persist/encoding.hpp"
#include "persist/safe_file.hpp"
#include "shell/names.hpp"

namespace dialwright {

namespace {

namespace fs = std::filesystem;

constexpr std::array<Lingua, 4> kLingue = {{
    {"en", Item::mnuInglese, "", "You must restart Dialwright!!"},
    {"it", Item::mnuItalian, "ItalianoQ2006", "Riavviare Dialwright!!"},
    {"fr", Item::mnuFrancais, "FranceseQ2006", "Il faut sortir avant d'exécuter Dialwright!!"},
    {"es", Item::mnuEspanol, "SpagnoloQ2006", "Reiniciar Dialwright!!"},
}};

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kDumpKey = "_DB";

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

fs::path fileOf(std::string_view key) { return "DB" + std::string(trimmed(key)) + ".txt"; }

// The text in capitals: ASCII and, in UTF-8, the Latin letters à to ÿ. The sharp s and the division
// sign among them have no capital.
std::string upperCase(std::string_view text) {
  std::string upper(text);
  for (std::size_t i = 0; i < upper.size(); ++i) {
    char& c = upper[i];
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    if (c != '\xC3' || i + 1 == upper.size()) continue;
    char& letter = upper[++i];
    if (letter == '\xBF') {  // the capital of ÿ lies elsewhere
      c = '\xC5';
      letter = '\xB8';
    } else if (letter >= '\xA0' && letter <= '\xBE' && letter != '\xB7') {
      letter = static_cast<char>(letter - 0x20);
    }
  }
  return upper;
}

// Shows every text of the panel that a dictionary covers.
void forEachText(Panel& panel, const std::function<void(std::string&)>& visit) {
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const FieldKind kind = rowOf(fieldAt(i)).kind;
    if (kind == FieldKind::Combo) continue;
    Control& control = panel[fieldAt(i)];
    if (kind != FieldKind::Text) visit(control.caption);
    visit(control.tip);
  }
  for (std::size_t i = 0; i < kItemCount; ++i) visit(panel[itemAt(i)].caption);
}

void dump(Panel& panel, std::string_view window, const fs::path& folder) {
  std::string content;
  forEachText(panel, [&content](const std::string& text) {
    if (!trimmed(text).empty()) content.append(text).append("|").append(kLineEnd);
  });
  replaceFile(folder / fileOf('_' + std::string(window)), content);
}

// What a dictionary file says, or nothing when there is no such file.
std::optional<std::string> tryRead(const fs::path& path) {
  try {
    return readFile(path);
  } catch (const FileError&) {
    return {};
  }
}

bool tryReplace(const fs::path& path, std::string_view content) {
  try {
    replaceFile(path, content);
    return true;
  } catch (const FileError&) {
    return false;
  }
}

// Puts a language's dictionary in use. Where that fails, the one in use stays.
void install(std::string_view key, const fs::path& workFolder, const fs::path& dataFolder) {
  const fs::path inUse = workFolder / fileOf(kLanguageKey);
  if (key.empty()) {
    std::error_code ignored;
    fs::remove(inUse, ignored);
    return;
  }
  std::optional<std::string> content = tryRead(workFolder / fileOf(key));
  if (!content) content = tryRead(dataFolder / fileOf(key));
  if (content) tryReplace(inUse, *content);
}

}  // namespace

std::span<const Lingua> lingue() { return kLingue; }

std::string dictionaryText(const fs::path& folder, std::string_view key) {
  return decodeText(tryRead(folder / fileOf(key)).value_or(""));
}

const Lingua* findLingua(std::string_view code) {
  const auto found = std::find_if(kLingue.begin(), kLingue.end(), [code](const Lingua& lingua) {
    return equalIgnoringCase(lingua.code, code);
  });
  return found == kLingue.end() ? nullptr : &*found;
}

void Dizionario::load(const fs::path& folder, std::string_view key) {
  if (!key_.empty() && key == key_ && folder == folder_) return;
  key_ = key;
  folder_ = folder;
  entries_.clear();
  if (trimmed(key).empty()) return;
  const std::string text = dictionaryText(folder, key);
  for (std::string_view rest = text; !rest.empty();) {
    const std::string_view line = rest.substr(0, rest.find(kLineEnd));
    add(line);
    rest.remove_prefix(std::min(rest.size(), line.size() + kLineEnd.size()));
  }
}

void Dizionario::add(std::string_view line) {
  const std::size_t bar = line.find('|');
  if (bar == std::string_view::npos || trimmed(line.substr(bar + 1)).empty()) return;
  // The first of two equal sources stands.
  entries_.emplace(upperCase(line.substr(0, bar)), line.substr(bar + 1));
}

std::string Dizionario::T(std::string_view text) const {
  const auto found = entries_.find(upperCase(text));
  return found == entries_.end() ? std::string(text) : found->second;
}

bool Dizionario::has(std::string_view text) const { return entries_.contains(upperCase(text)); }

void TraduciFinestra(Panel& panel, std::string_view window, std::string_view key,
                     const fs::path& folder, Dizionario& dictionary) {
  if (key.empty()) return;
  if (key.starts_with(kDumpKey)) {
    dump(panel, window, folder);
    return;
  }
  dictionary.load(folder, key);
  if (dictionary.empty()) return;
  forEachText(panel, [&dictionary](std::string& text) { text = dictionary.T(text); });
}

std::string scegliLingua(Panel& panel, Item item, const fs::path& workFolder,
                         const fs::path& dataFolder) {
  const auto chosen = std::find_if(kLingue.begin(), kLingue.end(),
                                   [item](const Lingua& lingua) { return lingua.item == item; });
  if (chosen == kLingue.end()) return {};
  install(chosen->key, workFolder, dataFolder);
  panel[Item::mnuLang].enabled = false;
  return std::string(chosen->message);
}

}  // namespace dialwright
