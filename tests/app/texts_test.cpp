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

namespace fs = std::filesystem;

// Texts with the place that asks for them.
using Texts = std::map<std::string, std::string>;

bool hasLetters(std::string_view text) {
  return std::ranges::any_of(text, [](unsigned char c) { return std::isalpha(c) || c >= 0x80; });
}

// Of the panel: its tables, and what the clicks on the dials ask for.
Texts textsOfThePanel() {
  Texts texts;
  for (const FieldRow& row : fieldTable()) {
    if (row.kind != FieldKind::Text) texts.emplace(row.text, row.name);
    texts.emplace(row.tip, row.name);
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

// Of the sheet's bar and panels.
void addSheet(Texts& texts) {
  for (const SheetCommandRow& row : kSheetCommands) {
    texts.emplace(row.caption, row.name);
    texts.emplace(row.tip, row.name);
  }
  for (const SheetFieldRow& row : kSheetFields) texts.emplace(row.label, row.name);
}

// Of the utility board: its table.
void addBoard(Texts& texts) {
  for (const BoardRow& row : boardTable()) {
    if (row.kind != FieldKind::Text) texts.emplace(row.text, row.name);
    texts.emplace(row.tip, row.name);
  }
}

// The literals in calls of T, one argument in one or more pieces.
void addCalls(Texts& texts, const fs::path& source) {
  static const std::regex kCall(R"re(\bT\(\s*((?:"(?:[^"\\\n]|\\.)*"\s*)+))re");
  static const std::regex kPiece(R"re("((?:[^"\\\n]|\\.)*)")re");
  static const std::regex kEscape(R"re(\\(.))re");
  std::ifstream file(source);
  const std::string code{std::istreambuf_iterator<char>(file), {}};
  for (std::sregex_iterator call(code.begin(), code.end(), kCall), end; call != end; ++call) {
    const std::string pieces = (*call)[1];
    std::string text;
    for (std::sregex_iterator piece(pieces.begin(), pieces.end(), kPiece); piece != end; ++piece) {
      text += std::regex_replace((*piece)[1].str(), kEscape, "$1");
    }
    texts.emplace(text, source.filename().string());
  }
}

TEST(Texts, StandInEveryDictionary) {
  Texts texts = textsOfThePanel();
  const std::size_t ofPanel = texts.size();
  addBoard(texts);
  for (const auto& entry : fs::recursive_directory_iterator(DIALWRIGHT_SOURCE_DIR "/src")) {
    if (entry.path().extension() == ".cpp") addCalls(texts, entry.path());
  }
  addSheet(texts);
  ASSERT_GT(ofPanel, 150u);
  ASSERT_GT(texts.size(), ofPanel);
  for (const Lingua& lingua : lingue()) {
    if (lingua.key.empty()) continue;
    Dizionario words;
    words.load(DIALWRIGHT_DATA_DIR, lingua.key);
    for (const auto& [text, place] : texts) {
      if (!hasLetters(text)) continue;
      EXPECT_TRUE(words.has(text)) << lingua.code << " misses \"" << text << "\" of " << place;
    }
  }
}

}  // namespace
}  // namespace dialwright
