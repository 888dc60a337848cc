// The dictionaries know every text that the program asks them for.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <string>

#include "board/board_fields.hpp"
#include "persist/dizionario.hpp"
#include "sheet/commands.hpp"
#include "shell/clicks.hpp"

namespace dialwright {
namespace {

// Texts with the place that asks for them.
using Texts = std::map<std::string, std::string>;

// Of the tables of the panel, the utility board and the sheet, and of the clicks on the dials.
Texts textsOfTheTables() {
  Texts texts;
  const auto addFields = [&texts](const auto& table) {
    for (const auto& row : table) {
      if (row.kind != FieldKind::Text) texts.emplace(row.text, row.name);
      texts.emplace(row.tip, row.name);
    }
  };
  addFields(fieldTable());
  addFields(boardTable());
  for (const SheetFieldRow& row : kSheetFields) texts.emplace(row.label, row.name);
  for (const SheetCommandRow& row : kSheetCommands) {
    for (const auto& text : {row.caption, row.tip}) texts.emplace(text, row.name);
  }
  for (const ItemRow& row : itemTable()) texts.emplace(row.caption, row.name);
  for (const Item dial : dialItems()) {
    Panel panel;
    DialParams params;
    clickItem(panel, params, dial, [&](std::string_view text) {
      texts.emplace(text, rowOf(dial).name);
      return std::string(text);
    });
  }
  return texts;
}

// The literals in calls of T, one argument in one or more pieces: what joins them goes, as does
// the stroke of an escape.
void addCalls(Texts& texts, const std::filesystem::path& source) {
  static const std::regex kCall(R"re(\bT\(\s*"((?:[^"\\\n]|\\.|"\s*")*)")re");
  static const std::regex kJoint(R"re("\s*"|\\(.))re");
  std::ifstream file(source);
  const std::string code{std::istreambuf_iterator<char>(file), {}};
  for (std::sregex_iterator call(code.begin(), code.end(), kCall), end; call != end; ++call) {
    const std::string text = std::regex_replace((*call)[1].str(), kJoint, "$1");
    texts.emplace(text, source.filename().string());
  }
}

TEST(Texts, StandInEveryDictionary) {
  Texts texts = textsOfTheTables();
  const std::size_t ofTables = texts.size();
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(DIALWRIGHT_SOURCE_DIR "/src")) {
    if (entry.path().extension() == ".cpp") addCalls(texts, entry.path());
  }
  ASSERT_GT(ofTables, 150u);
  ASSERT_GT(texts.size(), ofTables);
  const auto isLetter = [](unsigned char c) { return std::isalpha(c) || c >= 0x80; };
  std::erase_if(texts,
                [&](const auto& text) { return std::ranges::none_of(text.first, isLetter); });
  for (const Lingua& lingua : lingue()) {
    if (lingua.key.empty()) continue;
    Dizionario words;
    words.load(DIALWRIGHT_DATA_DIR, lingua.key);
    for (const auto& [text, place] : texts) {
      EXPECT_TRUE(words.has(text)) << lingua.code << " misses \"" << text << "\" of " << place;
    }
  }
}

}  // namespace
}  // namespace dialwright
