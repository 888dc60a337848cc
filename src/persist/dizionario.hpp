// The dictionary: the program's English texts in the user's language.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

#include "shell/panel.hpp"

namespace dialwright {

// The stem of the dictionary in use: "DB" and this key and ".txt".
inline constexpr std::string_view kLanguageKey = "Q2006";

// The name under which the main window's texts are dumped.
inline constexpr std::string_view kMainWindow = "MDIForm1";

// A language of the menu.
struct Lingua {
  std::string_view code;  // "it"
  Item item;
  std::string_view key;      // of its dictionary; empty for the program's own language
  std::string_view message;  // shown after it was chosen
};
std::span<const Lingua> lingue();
// The language of a code ("it") without regard to case, or nullptr.
const Lingua* findLingua(std::string_view code);

// A table of translations, of one file at a time.
class Dizionario {
 public:
  // Loads "DB" + key + ".txt" of the folder, unless it is the one now loaded. A file that is
  // missing or can't be read gives an empty table.
  void load(const std::filesystem::path& folder, std::string_view key);

  // The translation of a text, found without regard to case, or the text itself.
  std::string T(std::string_view text) const;

  // True when there is an entry for the text, be it the same as the text.
  bool has(std::string_view text) const;

  bool empty() const { return entries_.empty(); }

 private:
  void add(std::string_view line);

  std::string key_;
  std::filesystem::path folder_;
  std::unordered_map<std::string, std::string> entries_;  // by the source in upper case
};

// What the dictionary file of a key says, in a folder; empty when there is none.
std::string dictionaryText(const std::filesystem::path& folder, std::string_view key);

// Translates the captions and tips of the panel with the dictionary of a key. A key that begins
// with
// "_DB" writes them instead, each with an empty translation, to "DB_" + window + ".txt" in the
// folder: the start of a new language.
void TraduciFinestra(Panel& panel, std::string_view window, std::string_view key,
                     const std::filesystem::path& folder, Dizionario& dictionary);

// A choice in the language menu: puts that language's dictionary, from the working folder or else
// from the program's data, in the place of the one in use, or takes that one away for English.
// Works from the next start on; the menu is disabled until then. Failures are silent. Gives the
// message for the user, an empty one when the item is no language.
std::string scegliLingua(Panel& panel, Item item, const std::filesystem::path& workFolder,
                         const std::filesystem::path& dataFolder);

}  // namespace dialwright
