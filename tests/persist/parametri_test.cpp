// The store of default parameters.
#include "persist/parametri.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "persist/safe_file.hpp"
#include "support/folder.hpp"

namespace dialwright {
namespace {

TEST(Parametri, KeepsPairsInTheirOrderAndReadsTheFileWhileItIsEmpty) {
  const Folder folder;
  const std::filesystem::path path = folder / "dialwright.dat";
  Parametri early(storeIn(folder.path())), store(path);
  EXPECT_EQ(early.Leggi("LAT"), "");
  store.Scrivi("LAT", "45");
  EXPECT_EQ(early.Leggi("LAT"), "45");
  store.Scrivi("x1txt", "-.5");
  store.Scrivi("LAT", "46, North");
  EXPECT_EQ(early.Leggi("LAT"), "45") << "read once";
  EXPECT_EQ(folder.get("dialwright.dat"), "\"LAT\",\"46, North\"\r\n\"x1txt\",\"-.5\"\r\n");
  EXPECT_EQ(Parametri(path).Leggi("lat"), "");
}

TEST(Parametri, ToleratesOddFiles) {
  const Folder folder;
  const std::string odd =
      "\n\"LAT\",\"4\"5\"\nbare,7\r\nhalf\r\n,\"no key\"\n\"\"\n\"Caf\xE9\",\"\xB0\"\n\"open,\"x";
  const std::tuple<std::string, const char*, const char*> kCases[] = {
      {odd, "LAT", "4"},
      {odd, "bare", "7"},
      {odd, "half", ""},
      {odd, "Café", "°"},
      {"\"", "LAT", ""},
      {std::string(100'000, '"'), "LAT", ""},
      {std::string(100'000, ','), "LAT", ""}};
  for (const auto& [file, key, value] : kCases) {
    folder.put("x.dat", file);
    EXPECT_EQ(Parametri(folder / "x.dat").Leggi(key), value) << key << " of " << file.substr(0, 9);
  }
}

TEST(Parametri, RefusesAPairTooMany) {
  const Folder folder;
  Parametri store(folder / "x.dat");
  for (int i = 0; i < 100; ++i) store.keep(std::to_string(i), "v");
  store.Scrivi("99", "w");
  EXPECT_THROW(store.Scrivi("100", "v"), FileError);
  EXPECT_EQ(Parametri(folder / "x.dat").Leggi("99"), "w");
  EXPECT_EQ(store.Leggi("100"), "");
}

TEST(Defaults, ComeBackAtTheNextStart) {
  const Folder folder;
  Panel panel;
  panel.setText(Field::txtLAT, "46.5");
  panel.setText(Field::txt_R2, "0.7");
  panel.setText(Field::txtDelta, "");
  panel.setText(Field::TxtHour, "4");
  panel.setState(Field::ck_Italiche, true);  // which sets no hours, as a click does
  panel.setState(Field::Ck_DayLightCurves, false);
  Parametri store(folder / "x.dat");
  SalvaDefault(panel, store);
  const std::string file = folder.get("x.dat");
  EXPECT_TRUE(file.starts_with("\"LAT\",\"46.5\"\r\n\"DEC\",\"-14.57\"\r\n\"RADIUS\",\"60\"\r\n"));
  EXPECT_TRUE(file.ends_with("\"DELTA\",\"\"\r\n\"ORARIO\",\"32.5\"\r\n\"r2\",\"0.7\"\r\n"));
  EXPECT_EQ(std::ranges::count(file, '\n'), 28);

  Panel fresh;
  Parametri next(folder / "x.dat");
  CaricaDefault(fresh, next);
  EXPECT_EQ(fresh.text(Field::txtDelta), "23.45") << "an empty text sets nothing";
  panel.setText(Field::txtDelta, "23.45");
  for (std::size_t i = 0; i < kFieldCount; ++i)
    EXPECT_TRUE(fresh[fieldAt(i)] == panel[fieldAt(i)]) << rowOf(fieldAt(i)).name;
}

}  // namespace
}  // namespace dialwright
