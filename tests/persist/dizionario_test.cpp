// Translating, and choosing a language.
#include "persist/dizionario.hpp"

#include <gtest/gtest.h>

#include "support/folder.hpp"

namespace dialwright {
namespace {

TEST(Dizionario, FindsTheFirstEntryWithoutCase) {
  const Folder folder;
  folder.put("DBQ2006.txt",
             "Latitude |Latitudine \r\nlatitude |second\r\nno bar\r\nblank|  \r\nblank|later\r\n"
             "bar|a|b\r\nlone\nfeed|one\r\nété ÿ|summer\r\n |x\r\nlast|end");
  Dizionario words;
  EXPECT_EQ(words.T("Latitude "), "Latitude ");
  words.load(folder.path(), " Q2006 ");
  const std::pair<const char*, const char*> kCases[] = {
      {"latitude ", "Latitudine "}, {"Latitude", "Latitude"}, {"no bar", "no bar"},
      {"Blank", "later"},           {"bar", "a|b"},           {"lone\nfeed", "one"},
      {"ÉTÉ Ÿ", "summer"},          {"LAST", "end"},          {"", ""}};
  for (const auto& [text, translation] : kCases) EXPECT_EQ(words.T(text), translation);
}

TEST(Dizionario, LoadsANewKeyInPlaceOfTheOld) {
  const Folder folder;
  folder.put("DBa.txt", "x|1\r\n");
  folder.put("DBb.txt", "y|\xB0\r\n");
  Dizionario words;
  for (const char* key : {"a", "b"}) words.load(folder.path(), key);
  EXPECT_EQ(words.T("x") + words.T("y"), "x°");
}

TEST(Dizionario, TranslatesThePanelByKindAndDumpsIt) {
  const Folder folder;
  folder.put("DBQ2006.txt",
             "Hour lines|Linee orarie\r\nDark green|Verde scuro\r\nFile|Archivio\r\n"
             "Loc.|Luogo\r\nRun|Via\r\n");
  Panel panel;
  Dizionario words;
  for (const std::string_view key : {std::string_view(), std::string_view("_DB"), kLanguageKey}) {
    EXPECT_EQ(panel[Field::cmdRun].caption, "Run");
    TraduciFinestra(panel, kMainWindow, key, folder.path(), words);
  }
  EXPECT_EQ(panel[Field::cmdRun].caption, "Via");
  EXPECT_EQ(panel[Field::chkOreAstronomiche].caption, "Linee orarie");
  EXPECT_EQ(panel[Field::ck_Orizzonte].tip, "Verde scuro");
  EXPECT_EQ(panel[Item::nome].caption, "Archivio");
  EXPECT_EQ(panel.text(Field::txtLocation), "Loc.") << "what the user types is not translated";
  const std::string dump = folder.get("DB_MDIForm1.txt");
  EXPECT_TRUE(dump.starts_with("List of inputs|\r\nLatitude |\r\nuse degrees even with decimals|"));
  EXPECT_TRUE(dump.ends_with("Français|\r\nEspanol|\r\n"));
  EXPECT_EQ(dump.find("45.7438"), std::string::npos);
}

TEST(Language, IsPutInPlaceForTheNextStart) {
  const Folder work, data;
  data.put("DBItalianoQ2006.txt", "Run|Esegui\r\n");
  data.put("DBFranceseQ2006.txt", "Run|Tracer\r\n");
  work.put("DBFranceseQ2006.txt", "Run|Lancer\r\n");
  // Without a file of its own, Spanish leaves the dictionary that is in use.
  for (const auto& [item, message, inUse] :
       {std::tuple{Item::mnuItalian, "Riavviare Dialwright!!", "Run|Esegui\r\n"},
        {Item::mnuEspanol, "Reiniciar Dialwright!!", "Run|Esegui\r\n"},
        {Item::mnuFrancais, "Il faut sortir avant d'exécuter Dialwright!!", "Run|Lancer\r\n"},
        {Item::mnuInglese, "You must restart Dialwright!!", ""},
        {Item::mnuUni, "", ""}}) {
    Panel panel;
    EXPECT_EQ(scegliLingua(panel, item, work.path(), data.path()), message);
    EXPECT_EQ(panel[Item::mnuLang].enabled, item == Item::mnuUni);
    EXPECT_EQ(work.get("DBQ2006.txt"), inUse);
  }
  EXPECT_FALSE(std::filesystem::exists(work / "DBQ2006.txt"));
}

}  // namespace
}  // namespace dialwright
