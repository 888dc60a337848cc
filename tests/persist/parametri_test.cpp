// The store of default parameters.
#include "persist/parametri.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "folder.hpp"
#include "persist/safe_file.hpp"

namespace dialwright {
namespace {

TEST(Parametri, KeepsPairsInTheirOrder) {
  const Folder folder;
  Parametri store(folder / "x.dat");
  EXPECT_EQ(store.Leggi("LAT"), "");
  store.Scrivi("LAT", "45");
  store.Scrivi("x1txt", "-.5");
  store.Scrivi("LAT", "46, North");
  EXPECT_EQ(folder.get("x.dat"), "\"LAT\",\"46, North\"\r\n\"x1txt\",\"-.5\"\r\n");
  Parametri again(folder / "x.dat");
  EXPECT_EQ(again.Leggi("LAT"), "46, North");
  EXPECT_EQ(again.Leggi("lat"), "");
  EXPECT_EQ(again.NomeFile(), folder / "x.dat");
}

TEST(Parametri, ReadsTheFileAgainWhileItIsEmpty) {
  const Folder folder;
  Parametri store(storeIn(folder.path()));
  EXPECT_EQ(store.Leggi("LAT"), "");
  folder.put("dialwright.dat", "\"LAT\",\"45\"\r\n");
  EXPECT_EQ(store.Leggi("LAT"), "45");
  folder.put("dialwright.dat", "\"LAT\",\"46\"\r\n");
  EXPECT_EQ(store.Leggi("LAT"), "45");
}

TEST(Parametri, ToleratesOddFiles) {
  const Folder folder;
  folder.put(
      "x.dat",
      "\n\"LAT\",\"4\"5\"\nbare,7\r\nhalf\r\n,\"no key\"\n\"\"\n\"Caf\xE9\",\"\xB0\"\n\"open,\"x");
  Parametri store(folder / "x.dat");
  EXPECT_EQ(store.Leggi("LAT"), "4");
  EXPECT_EQ(store.Leggi("bare"), "7");
  EXPECT_EQ(store.Leggi("half"), "");
  EXPECT_EQ(store.Leggi("Café"), "°");
  for (const std::string& odd : {std::string("\""), std::string("\"\""), std::string(",,,,"),
                                 std::string(100'000, '"'), std::string(100'000, ',')}) {
    folder.put("odd.dat", odd);
    EXPECT_EQ(Parametri(folder / "odd.dat").Leggi("LAT"), "");
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
  panel.setState(Field::ckFrame, true);
  panel.setState(Field::Ck_DayLightCurves, false);
  Parametri store(storeIn(folder.path()));
  SalvaDefault(panel, store);

  const std::string file = folder.get("dialwright.dat");
  EXPECT_TRUE(file.starts_with("\"LAT\",\"46.5\"\r\n\"DEC\",\"-14.57\"\r\n\"RADIUS\",\"60\"\r\n"));
  EXPECT_TRUE(file.ends_with("\"DELTA\",\"\"\r\n\"ORARIO\",\"32.5\"\r\n\"r2\",\"0.7\"\r\n"));
  EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 28);
  EXPECT_NE(file.find("\"DIURNE\",\"0\""), std::string::npos);

  Panel fresh;
  Parametri next(storeIn(folder.path()));
  CaricaDefault(fresh, next);
  EXPECT_EQ(fresh.text(Field::txtLAT), "46.5");
  EXPECT_EQ(fresh.text(Field::txt_R2), "0.7");
  EXPECT_EQ(fresh.text(Field::txtDelta), "23.45");
  EXPECT_EQ(fresh.text(Field::TxtHour), "4");
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

TEST(Defaults, StayWholeWhenTheyCannotBeWritten) {
  const Folder folder;
  folder.put("x.dat", "\"LAT\",\"40\"\r\n");
  std::filesystem::permissions(folder / "x.dat", std::filesystem::perms::owner_read);
  Parametri store(folder / "x.dat");
  EXPECT_THROW(SalvaDefault(Panel(), store), FileError);
  EXPECT_EQ(folder.get("x.dat"), "\"LAT\",\"40\"\r\n");
}

}  // namespace
}  // namespace dialwright
