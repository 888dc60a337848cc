// The running program: start-up, two at once, new sheets, the buttons of the map, the table of
// drivers.
#include "app/program.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "sheet/entity_list.hpp"
#include "support/folder.hpp"

namespace dialwright {
namespace {

class ProgramTest : public ::testing::Test {
 protected:
  std::unique_ptr<Program> start(std::string language = "") {
    return std::make_unique<Program>(
        ProgramConfig{folder.path(), DIALWRIGHT_DATA_DIR, std::move(language)});
  }

  const Folder folder;
};

TEST_F(ProgramTest, StartsAsAfterAClickOnProgramOne) {
  const auto program = start();
  EXPECT_EQ(program->panel().chosen(), Item::M_Light);
  EXPECT_EQ(program->panel().text(Field::TxtInizio), "9");
  EXPECT_DOUBLE_EQ(program->sheet().QuadranteL(), 1.99);
  EXPECT_DOUBLE_EQ(program->sheet().QuadranteH(), 2.80);
  EXPECT_DOUBLE_EQ(program->sheet().ShiftX(), 0.995);
  EXPECT_DOUBLE_EQ(program->sheet().ShiftY(), 2.80 / 3.333333);
  EXPECT_EQ(program->sheet().Scala(), 5);
  EXPECT_TRUE(std::filesystem::is_directory(program->CartellaDXF()));
  EXPECT_EQ(program->CartellaDXF().filename(), "DialwrightDXF");
}

// Fields that make no surface have no shadow: a cone that widens.
TEST_F(ProgramTest, TrueShadowsOfSenselessFieldsAreNone) {
  const auto lines = [&](const char* lower, bool onlyTrue) {
    const auto program = start();
    program->click(Item::mnuCorncon);
    program->type(Field::TxtStilo, lower);
    program->panel().setState(Field::ckTrue, onlyTrue);
    program->CmdRun_Click();
    return program->sheet().list().lines.size();
  };
  EXPECT_GT(lines("0.6", false), 10000u);
  EXPECT_LT(lines("0.6", true), 100u);
  EXPECT_GT(lines("0.3", true), 10000u);
}

TEST_F(ProgramTest, StartsWhereItsExportFolderCannotBe) {
  folder.put("DialwrightDXF", "a file in its place");
  EXPECT_EQ(start()->CartellaDXF(), folder / "DialwrightDXF");
}

TEST_F(ProgramTest, TwoDoNotDisturbEachOther) {
  const auto first = start();
  const auto second = start("it");
  first->click(Field::ck_Lemniscate, true);
  EXPECT_EQ(first->CmdRun_Click(), RunResult::Drawn);
  EXPECT_EQ(second->sheet().list().size(), 0u);
  EXPECT_EQ(second->params().PiGreco, Angles{}.PiGreco);
  EXPECT_NE(first->params().PiGreco, second->params().PiGreco);
  EXPECT_NE(first->T("Horizon"), second->T("Horizon"));
}

TEST_F(ProgramTest, TheDataButtonWritesAfterTheFirstRun) {
  const auto program = start();
  EXPECT_EQ(program->press("cmdData"), Press::Disabled);
  program->click(Field::ckFunction, true);
  program->CmdRun_Click();
  const std::size_t before = program->sheet().list().texts.size();
  EXPECT_EQ(program->press("cmdData"), Press::Done);
  const auto& texts = program->sheet().list().texts;
  ASSERT_GT(texts.size(), before);
  EXPECT_EQ(texts[before].text, "DATA: ");
  // Centre and substyle of the dial that was drawn.
  const DialParams& p = program->params();
  EXPECT_NEAR(p.degrees(p.SustilareReport), -13.7725, 1e-4);
  EXPECT_EQ(texts.back().text, "-0.171911    0.544198");

  const auto italian = start("it");
  italian->CmdRun_Click();
  italian->press("cmdData");
  EXPECT_EQ(std::ranges::count(italian->sheet().list().texts, "Elevazione dello stilo  -42.48719°",
                               &TextRecord::text),
            1);
}

TEST_F(ProgramTest, ANewSheetIsNew) {
  const auto program = start();
  program->CmdRun_Click();
  program->sheet().Scala(100);
  program->sheet().invertX();
  ASSERT_TRUE(program->NuovoFoglio());
  EXPECT_EQ(program->sheet().list().size(), 0u);
  EXPECT_EQ(program->sheet().Scala(), 5);
  EXPECT_EQ(program->sheet().SignX(), 1);
  EXPECT_EQ(program->sheet().ForeColor, kWhite);
  EXPECT_DOUBLE_EQ(program->sheet().ShiftY(), 2.80 / 3.3333333);
}

std::string entitiesOf(const Program& program) {
  std::string list;
  writeEntityList(program.sheet().list(), [&](std::string_view chunk) { list += chunk; });
  return list;
}

// A run apart, adopted, is the run itself: list, layers, meanings, texts at the cursor, record.
TEST_F(ProgramTest, AdoptsARunAsIfItWereItsOwn) {
  const auto own = start(), apart = start();
  for (Program* program : {own.get(), apart.get()}) {
    program->sheet().list().keepMeanings(true);
    program->view().press(SheetCommand::CmdGriglia);
  }
  for (const Item dial : {Item::M_Light, Item::mnuUni, Item::mnuBall}) {
    own->click(dial);
    own->CmdRun_Click();
    apart->click(dial);
    SpareRun run = apart->prepareRun(false);
    apart->make(run, {});
    EXPECT_EQ(run.result, RunResult::Drawn);
    apart->adopt(std::move(run));
    EXPECT_EQ(entitiesOf(*apart), entitiesOf(*own)) << rowOf(dial).name;
    EXPECT_EQ(apart->sheet().caption(), own->sheet().caption());
    EXPECT_EQ(apart->params().PiGreco, own->params().PiGreco);
    EXPECT_TRUE(apart->panel()[Field::cmdData].visible);
  }
  const DisplayList& list = apart->sheet().list();
  for (std::size_t line = 0; line < list.lines.size(); ++line) {
    ASSERT_EQ(list.meaningOfLine(line).family, own->sheet().list().meaningOfLine(line).family);
  }
  EXPECT_EQ(apart->press("cmdData"), own->press("cmdData"));
  EXPECT_EQ(entitiesOf(*apart), entitiesOf(*own));
}

TEST_F(ProgramTest, KeepsWhatChangesWhileARunIsMade) {
  const auto program = start();
  program->click(Item::mnuBall);
  program->type(Field::txtDecl, "12");  // which the ball dial's run sets to 0
  SpareRun run = program->prepareRun(true);
  program->type(Field::txtLAT, "41");
  program->click(Field::ck_Etna, true);
  program->make(run, {});
  program->adopt(std::move(run));
  EXPECT_EQ(program->panel().text(Field::txtLAT), "41");
  EXPECT_EQ(program->params().UsaLongitudine, 1);
  EXPECT_EQ(program->panel().text(Field::txtDecl), "0");
}

TEST_F(ProgramTest, AsksBeforeAProjectIsClosed) {
  const auto program = start();
  SalvaProgetto(folder / "a.sun", program->panel(), program->sheet());
  ASSERT_EQ(program->CaricaProgetto(folder / "a.sun").outcome, LoadResult::Outcome::Loaded);
  program->CmdRun_Click();
  std::string question;
  program->ports.ask = [&question](std::string_view text) {
    question = text;
    return false;
  };
  EXPECT_FALSE(program->NuovoFoglio());
  EXPECT_EQ(question, "Attention! do you wish to close the file a.sun?");
  EXPECT_GT(program->sheet().list().size(), 0u);
  EXPECT_EQ(program->projectTitle(), "a.sun");
}

TEST_F(ProgramTest, LoadsAndPlotsTheMapOnTheDialsThatShowIt) {
  const auto program = start();
  EXPECT_EQ(program->press("cmdPlot"), Press::Disabled) << "program 1 has no map";
  EXPECT_EQ(program->press("cmdNothing"), Press::Unknown);
  program->click(Item::mnuUni);
  EXPECT_EQ(program->press("cmdPlot"), Press::Disabled) << "not before it is loaded";
  EXPECT_EQ(program->press("cmdStati"), Press::Done);
  EXPECT_GT(program->world().countries.size(), 150u);
  EXPECT_EQ(program->panel().text(Field::cmbStati), kWholeWorld);
  EXPECT_FALSE(program->panel()[Field::Distance1].visible);
  EXPECT_TRUE(program->panel()[Field::lblFiltro].visible);
  program->type(Field::cmbStati, "Italy");
  EXPECT_EQ(program->press("cmdPlot"), Press::Done);
  EXPECT_EQ(program->press("Option_P"), Press::Done);
  EXPECT_FALSE(program->panel().on(Field::Option_P));
}

// A map by the style of the run, on a panel that has another one by now, is no shadow of that one.
TEST_F(ProgramTest, JudgesAPressAfterTheRunWithTrueShadows) {
  const auto program = start();
  program->click(Item::mnuUni);
  program->type(Field::txtLON, "0");
  program->click(Field::ckTrue, true);
  program->CmdRun_Click();
  const std::size_t dial = program->sheet().list().size();
  program->press("Option_P");
  EXPECT_EQ(program->sheet().list().size(), dial + 11) << "a dot and a star of ten strokes";
  program->type(Field::TxtStilo, "0.3");
  program->press("Option_P");
  EXPECT_EQ(program->sheet().list().size(), dial + 11);
  EXPECT_EQ(program->sheet().judge(), nullptr);
}

TEST(Drivers, AreTriedInOneOrderAndCoverWhatIsNotSilent) {
  const std::vector<Item> order = {
      Item::M_Light,      Item::M_CILINDRICI,  Item::M_Proiettivo,  Item::M_Parabolico,
      Item::M_Param,      Item::M_nProiettivo, Item::M_Frinter,     Item::mnuCircp,
      Item::mnuCCs,       Item::mnuChapeau,    Item::mnuVertSph,    Item::mnuUni,
      Item::mnuDia,       Item::mnuConoAntico, Item::mnuFontana_H3, Item::mnuBifvert,
      Item::mnucatenaria, Item::mnuBall,       Item::mnuBall_v,     Item::mnuCorncil,
      Item::mnuCorncon,   Item::mnuCorn_flat,  Item::mnuCorn_flat2, Item::M_Inclinati};
  std::size_t at = 0;
  for (const DriverRow& row : drivers()) {
    while (at < order.size() && order[at] != row.item) ++at;
    EXPECT_LT(at, order.size()) << rowOf(row.item).name << " is out of order";
  }
  for (const Item dial : dialItems()) EXPECT_FALSE(draws(dial) && isSilent(dial));
}

}  // namespace
}  // namespace dialwright
