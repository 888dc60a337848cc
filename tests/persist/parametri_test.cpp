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
  EXPECT_EQ(early.NomeFile(), path);
  EXPECT_EQ(early.Leggi("LAT"), "");
  store.Scrivi("LAT", "45");
  EXPECT_EQ(early.Leggi("LAT"), "45");
  store.Scrivi("x1txt", "-.5");
  store.Scrivi("LAT", "46, North");
  EXPECT_EQ(early.Leggi("LAT"), "45") << "read once";
  EXPECT_EQ(folder.get("dialwright.dat"), "\"LAT\",\"46, North\"\r\n\"x1txt\",\"-.5\"\r\n");
  EXPECT_EQ(Parametri(path).Leggi("LAT"), "46, North");
  EXPECT_EQ(Parametri(path).Leggi("lat"), "");
}

TEST(Parametri, ToleratesOddFiles) {
  const Folder folder;
  const auto reads = [&](std::string_view file, std::string_view key) {
    folder.put("x.dat", file);
    return Parametri(folder / "x.dat").Leggi(key);
  };
  const std::string_view odd =
      "\n\"LAT\",\"4\"5\"\nbare,7\r\nhalf\r\n,\"no key\"\n\"\"\n\"Caf\xE9\",\"\xB0\"\n\"open,\"x";
  EXPECT_EQ(reads(odd, "LAT"), "4");
  EXPECT_EQ(reads(odd, "bare"), "7");
  EXPECT_EQ(reads(odd, "half"), "");
  EXPECT_EQ(reads(odd, "Café"), "°");
  for (const std::string& none : {std::string("\""), std::string("\"\""), std::string(",,,,"),
                                  std::string(100'000, '"'), std::string(100'000, ',')}) {
    EXPECT_EQ(reads(none, "LAT"), "");
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
  for (const auto& [field, text] : {std::pair(Field::txtLAT, "46.5"),
                                    {Field::txt_R2, "0.7"},
                                    {Field::txtDelta, ""},
                                    {Field::TxtHour, "4"}}) {
    panel.setText(field, text);
  }
  panel.setState(Field::ckFrame, true);
  panel.setState(Field::Ck_DayLightCurves, false);
  Parametri store(folder / "x.dat");
  SalvaDefault(panel, store);

  const std::string file = folder.get("x.dat");
  EXPECT_TRUE(file.starts_with("\"LAT\",\"46.5\"\r\n\"DEC\",\"-14.57\"\r\n\"RADIUS\",\"60\"\r\n"));
  EXPECT_TRUE(file.ends_with("\"DELTA\",\"\"\r\n\"ORARIO\",\"32.5\"\r\n\"r2\",\"0.7\"\r\n"));
  EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 28);
  EXPECT_NE(file.find("\"DIURNE\",\"0\""), std::string::npos);

  Panel fresh;
  Parametri next(folder / "x.dat");
  CaricaDefault(fresh, next);
  for (const Field field : {Field::txtLAT, Field::txt_R2, Field::TxtHour}) {
    EXPECT_EQ(fresh.text(field), panel.text(field)) << rowOf(field).name;
  }
  EXPECT_EQ(fresh.text(Field::txtDelta), "23.45") << "an empty text sets nothing";
  EXPECT_TRUE(fresh.on(Field::ckFrame));
  EXPECT_FALSE(fresh.on(Field::Ck_DayLightCurves));
}

TEST(Defaults, SetOnlyWhatCanBeSet) {
  const Folder folder;
  folder.put("x.dat", "\"FRAZIONE\",\"0\"\r\n\"ORE\",\"7\"\r\n\"ITALICHE\",\"1\"\r\n");
  Panel panel;
  Parametri store(folder / "x.dat");
  CaricaDefault(panel, store);
  EXPECT_EQ(panel.text(Field::TxtHour), "1");
  EXPECT_TRUE(panel.on(Field::chkOreAstronomiche));
  EXPECT_TRUE(panel.on(Field::ck_Italiche));
  EXPECT_EQ(panel.text(Field::TxtInizio), "");  // no click
}

}  // namespace
}  // namespace dialwright
