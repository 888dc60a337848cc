// The running program: start-up, new sheets, runs apart, the buttons of the map.
#include <gtest/gtest.h>

#include <algorithm>

#include "app/workplace.hpp"

namespace dialwright {
namespace {

class ProgramTest : public ::testing::Test, protected Workplace {};

// Their middles differ by a digit.
TEST_F(ProgramTest, StartsAsAfterAClickOnProgramOneAndGivesNewSheets) {
  EXPECT_EQ(program.panel().chosen(), Item::M_Light);
  EXPECT_EQ(program.panel().text(Field::TxtInizio), "9");
  EXPECT_DOUBLE_EQ(program.sheet().ShiftY(), 2.80 / 3.333333);
  program.CmdRun_Click();
  program.sheet().Scala(100);
  program.sheet().invertX();
  ASSERT_TRUE(program.NuovoFoglio());
  EXPECT_EQ(program.sheet().list().size(), 0u);
  EXPECT_EQ(program.sheet().Scala(), 5);
  EXPECT_EQ(program.sheet().SignX(), 1);
  EXPECT_DOUBLE_EQ(program.sheet().ShiftY(), 2.80 / 3.3333333);
}

TEST_F(ProgramTest, StartsWhereItsExportFolderCannotBe) {
  EXPECT_TRUE(std::filesystem::is_directory(start().CartellaDXF()));
  std::filesystem::remove(folder / "DialwrightDXF");
  folder.put("DialwrightDXF", "a file in its place");
  EXPECT_EQ(start().CartellaDXF(), folder / "DialwrightDXF");
}

TEST_F(ProgramTest, TheDataButtonWritesAfterTheFirstRun) {
  Program italian = start("it");
  EXPECT_EQ(italian.press("cmdData"), Press::Disabled);
  italian.CmdRun_Click();
  EXPECT_EQ(italian.press("cmdData"), Press::Done);
  const auto& texts = italian.sheet().list().texts;
  EXPECT_EQ(std::ranges::count(texts, "Elevazione dello stilo  -42.48719°", &TextRecord::text), 1);
}

TEST_F(ProgramTest, KeepsWhatTheUserHasMadeOfPanelAndSheetWhenARunTakesItsPlace) {
  program.click(Item::mnuBall);
  program.type(Field::txtDecl, "12");  // which the ball dial's run sets to 0
  program.view().press(SheetCommand::CmdGriglia);
  program.view().xTrovaA4(0.5, 0.5);
  program.view().press(SheetCommand::cmdInvX);
  SpareRun run = program.prepareRun(true);
  program.type(Field::txtLAT, "41");
  program.click(Field::ck_Etna, true);
  program.make(run, {});
  program.adopt(std::move(run));
  EXPECT_EQ(program.panel().text(Field::txtLAT), "41");
  EXPECT_EQ(program.params().UsaLongitudine, 1);
  EXPECT_EQ(program.panel().text(Field::txtDecl), "0");
  EXPECT_NE(entitiesOf(program).find("sys:page"), std::string::npos) << "drawn again";
  EXPECT_EQ(program.view().selectedPages().size(), 1u);
  EXPECT_EQ(program.sheet().SignX(), -1);
}

TEST_F(ProgramTest, AsksBeforeAProjectIsClosed) {
  SalvaProgetto(folder / "a.sun", program.panel(), program.sheet());
  program.CaricaProgetto(folder / "a.sun");
  program.CmdRun_Click();
  std::string question;
  program.ports.ask = [&question](std::string_view text) {
    question = text;
    return false;
  };
  EXPECT_FALSE(program.NuovoFoglio());
  EXPECT_EQ(question, "Attention! do you wish to close the file a.sun?");
  EXPECT_GT(program.sheet().list().size(), 0u);
}

TEST_F(ProgramTest, LoadsAndPlotsTheMapOnTheDialsThatShowIt) {
  EXPECT_EQ(program.press("cmdNothing"), Press::Unknown);
  EXPECT_EQ(program.press("cmdPlot"), Press::Disabled) << "program 1 has no map";
  program.click(Item::mnuUni);
  EXPECT_EQ(program.press("cmdPlot"), Press::Disabled) << "not before it is loaded";
  EXPECT_EQ(program.press("cmdStati"), Press::Done);
  EXPECT_EQ(program.panel().text(Field::cmbStati), kWholeWorld);
  EXPECT_EQ(program.press("cmdPlot"), Press::Done);
  EXPECT_EQ(program.press("Option_P"), Press::Done);
  EXPECT_FALSE(program.panel().on(Field::Option_P));
}

// A map by the style of the run, on a panel that has another one by now, is no shadow of that one.
TEST_F(ProgramTest, JudgesAPressAfterTheRunWithTrueShadows) {
  program.click(Item::mnuUni);
  program.type(Field::txtLON, "0");
  program.click(Field::ckTrue, true);
  program.CmdRun_Click();
  const std::size_t dial = program.sheet().list().size();
  program.press("Option_P");
  EXPECT_EQ(program.sheet().list().size(), dial + 11) << "a dot and a star of ten strokes";
  program.type(Field::TxtStilo, "0.3");
  program.press("Option_P");
  EXPECT_EQ(program.sheet().list().size(), dial + 11);
  EXPECT_EQ(program.sheet().judge(), nullptr);
}

}  // namespace
}  // namespace dialwright
