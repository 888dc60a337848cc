// The main window as a user drives it: dials, fields, runs, undo, the language.
#include "ui/main_window.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTest>

#include "sheet/entity_list.hpp"
#include "support/folder.hpp"
#include "ui/application.hpp"
#include "ui/desk.hpp"
#include "ui/input_layout.hpp"
#include "ui/sheet_canvas.hpp"
#include "ui/sheet_widget.hpp"
#include "ui/text.hpp"

namespace dialwright {
namespace {

class MainWindowTest : public ::testing::Test {
 protected:
  Desk desk;
};

// --- The panel

TEST(InputLayout, PlacesEachFieldOnce) {
  std::array<int, kFieldCount> places{};
  const auto place = [&](Field field) {
    if (field != Field::None) ++places[static_cast<std::size_t>(field)];
  };
  for (const InputSection& section : inputSections()) {
    place(section.heading);
    for (const InputRow& row : section.rows) std::ranges::for_each(row.fields, place);
  }
  std::ranges::for_each(inputButtons(), place);
  for (std::size_t i = 0; i < kFieldCount; ++i) EXPECT_EQ(places[i], 1) << fieldTable()[i].name;
}

TEST_F(MainWindowTest, ShowsWhatEachDialShows) {
  desk.choose(Item::mnuVertSph);
  desk.choose(Item::mnuCorncil);
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Control& control = desk.program.panel()[fieldAt(i)];
    const QWidget* widget = desk.window.inputs().widgetOf(fieldAt(i));
    EXPECT_EQ(!widget->isHidden(), control.visible) << fieldTable()[i].name;
    EXPECT_EQ(widget->isEnabled(), control.enabled) << fieldTable()[i].name;
    if (rowOf(fieldAt(i)).kind != FieldKind::Frame && control.visible) {
      EXPECT_FALSE(widget->accessibleName().isEmpty()) << fieldTable()[i].name;
    }
  }
  EXPECT_EQ(desk.edit(Field::TxtRadius)->text(), "0.5");
  EXPECT_EQ(desk.widget<QLabel>(Field::lblLineofdeclination)->text(), "Border shade");
  EXPECT_TRUE(desk.window.menus().actionOf(Item::mnuCorncil)->isChecked());
  EXPECT_FALSE(desk.window.menus().actionOf(Item::mnuVertSph)->isChecked());
}

TEST_F(MainWindowTest, FiltersTypedKeysButTakesPastedTexts) {
  QLineEdit* latitude = desk.edit(Field::txtLAT);
  latitude->selectAll();
  QTest::keyClicks(latitude, "4a5,x5");
  EXPECT_EQ(latitude->text(), "45.5");
  EXPECT_EQ(desk.program.panel().text(Field::txtLAT), "45.5");
  QTest::keyClick(latitude, Qt::Key_Backspace);
  EXPECT_EQ(desk.program.panel().text(Field::txtLAT), "45.");
  latitude->selectAll();
  desk.paste(latitude, "12abc");
  EXPECT_EQ(desk.program.panel().text(Field::txtLAT), "12abc");
  latitude->selectAll();
  desk.paste(latitude, QString(1 << 20, 'z'));
  EXPECT_LT(desk.program.panel().text(Field::txtLAT).size(), 1000u);
  QLineEdit* hour = desk.edit(Field::TxtHour);  // takes any key, but never stays empty
  hour->selectAll();
  QTest::keyClick(hour, Qt::Key_Delete);
  EXPECT_EQ(hour->text(), "1");
}

TEST_F(MainWindowTest, ClicksBoxesAndOptionsWithTheirEffects) {
  desk.choose(Item::mnuUni);
  desk.widget<QCheckBox>(Field::ck_Italiche)->click();
  EXPECT_EQ(desk.program.panel().text(Field::TxtFine), " 23");
  desk.widget<QRadioButton>(Field::OptZenital)->click();
  EXPECT_TRUE(desk.program.panel().on(Field::OptZenital));
  EXPECT_FALSE(desk.widget<QRadioButton>(Field::OptHorizontal)->isChecked());
  desk.widget<QRadioButton>(Field::OptZenital)->click();  // a second click changes nothing
  EXPECT_TRUE(desk.widget<QRadioButton>(Field::OptZenital)->isChecked());
}

TEST_F(MainWindowTest, LoadsTheCountries) {
  desk.choose(Item::mnuVertSph);
  desk.settle();
  auto* countries = desk.widget<QComboBox>(Field::cmbStati);
  EXPECT_EQ(countries->count(), 0);
  desk.press(Field::cmdStati);
  EXPECT_EQ(countries->count(), static_cast<int>(desk.program.world().countries.size()) + 1);
  EXPECT_EQ(countries->currentText(), shown(kWholeWorld));
  const std::size_t before = desk.program.sheet().list().size();
  desk.press(Field::cmdPlot);
  EXPECT_GT(desk.program.sheet().list().size(), before);
}

// --- Runs

// Choosing, typing and Run give the drawing of the command line, to the byte.
TEST_F(MainWindowTest, DrawsWhatAPlainProgramDraws) {
  struct Case {
    Item item;
    Field field;
    const char* text;
  };
  for (const Case& each :
       {Case{Item::M_Light, Field::txtDecl, "20.5"}, Case{Item::mnuVertSph, Field::txtLAT, "44.1"},
        Case{Item::mnuBall, Field::txtLON, "-9"}, Case{Item::mnuCorncil, Field::TxtRadius, "0.4"},
        Case{Item::mnuConoAntico, Field::txtSemi, "25"}}) {
    const Folder folder;
    Program plain({folder.path(), DIALWRIGHT_DATA_DIR, "en"});
    plain.click(each.item);
    plain.type(each.field, each.text);
    plain.CmdRun_Click();
    Desk fresh;
    fresh.choose(each.item);
    fresh.settle();
    fresh.edit(each.field)->selectAll();
    QTest::keyClicks(fresh.edit(each.field), each.text);
    fresh.settle();
    ASSERT_FALSE(entitiesOf(plain).empty());
    EXPECT_EQ(entitiesOf(fresh.program), entitiesOf(plain)) << "live, " << rowOf(each.item).name;
    fresh.press(Field::cmdRun);
    EXPECT_EQ(entitiesOf(fresh.program), entitiesOf(plain)) << "run, " << rowOf(each.item).name;
    plain.CmdRun_Click();
    fresh.press(Field::cmdRun);
    EXPECT_EQ(entitiesOf(fresh.program), entitiesOf(plain)) << "again, " << rowOf(each.item).name;
  }
}

TEST_F(MainWindowTest, DrawsNothingByItselfUntilItIsLive) {
  desk.window.inputs().live()->click();
  EXPECT_TRUE(desk.widget<QPushButton>(Field::cmdData)->isHidden());
  desk.choose(Item::mnuUni);
  QTest::qWait(300);
  EXPECT_EQ(desk.program.sheet().list().size(), 0u);
  desk.window.inputs().live()->click();
  desk.settle();
  EXPECT_GT(desk.program.sheet().list().size(), 0u);
  EXPECT_FALSE(desk.widget<QPushButton>(Field::cmdData)->isHidden());
}

TEST_F(MainWindowTest, KeepsAxesGridAndPagesUnderALiveDrawing) {
  desk.choose(Item::mnuUni);
  desk.settle();
  SheetView& view = desk.program.view();
  view.press(SheetCommand::CmdGriglia);
  view.xTrovaA4(0.5, 0.5);
  view.press(SheetCommand::cmdInvX);
  const std::size_t lines = desk.program.sheet().list().size();
  desk.widget<QCheckBox>(Field::ck_Orizzonte)->click();
  desk.settle();
  EXPECT_GE(desk.program.sheet().list().size(), lines);
  EXPECT_EQ(view.selectedPages().size(), 1u);
  EXPECT_EQ(desk.program.sheet().SignX(), -1);
  EXPECT_NE(entitiesOf(desk.program).find("sys:page"), std::string::npos);
}

TEST_F(MainWindowTest, TellsARefusalInTheFittingPlace) {
  desk.choose(Item::M_Light);
  desk.type(Field::txtLAT, "-30");
  desk.settle();
  EXPECT_TRUE(desk.said.isEmpty());
  EXPECT_TRUE(desk.window.statusBar()->currentMessage().contains("Southern"));
  desk.press(Field::cmdRun);
  ASSERT_EQ(desk.said.size(), 1);
  EXPECT_TRUE(desk.said.front().contains("Southern"));
}

TEST_F(MainWindowTest, CancelsALongRun) {
  desk.choose(Item::mnuVertSph);
  desk.widget<QCheckBox>(Field::ck_Lemniscate)->click();
  desk.settle();
  const std::string before = entitiesOf(desk.program);
  desk.program.panel().setText(Field::TxtHour, "5000");  // a run of seconds
  desk.window.runner().run();
  auto* cancel = desk.window.findChild<QPushButton*>("cancelRun");
  ASSERT_TRUE(QTest::qWaitFor([&] { return cancel->isVisible(); }, 5000));
  QTest::qWait(150);
  cancel->click();
  EXPECT_FALSE(desk.window.runner().busy());
  EXPECT_FALSE(cancel->isVisible());
  EXPECT_EQ(entitiesOf(desk.program), before);
  desk.program.panel().setText(Field::TxtHour, "2");
  desk.press(Field::cmdRun);  // the thread is free again
  EXPECT_EQ(entitiesOf(desk.program), before);
}

// --- Undo

TEST_F(MainWindowTest, TakesChangesBack) {
  desk.choose(Item::mnuUni);
  desk.settle();
  const std::string first = entitiesOf(desk.program);
  desk.type(Field::txtDecl, "33");
  desk.widget<QCheckBox>(Field::ck_Etna)->click();
  EXPECT_EQ(desk.program.params().UsaLongitudine, 1);
  desk.settle();
  EXPECT_NE(entitiesOf(desk.program), first);
  desk.window.history().undo();
  EXPECT_EQ(desk.program.params().UsaLongitudine, 0);
  desk.window.history().undo();  // two keys, one change
  EXPECT_EQ(desk.edit(Field::txtDecl)->text(), "-14.57");
  desk.settle();
  EXPECT_EQ(entitiesOf(desk.program), first);
  EXPECT_FALSE(desk.widget<QPushButton>(Field::cmdData)->isHidden());
  desk.window.history().redo();
  EXPECT_EQ(desk.edit(Field::txtDecl)->text(), "33");
}

// --- The language and the menus

TEST_F(MainWindowTest, ChangesTheLanguageOfTheNextStart) {
  desk.window.menus().actionOf(Item::mnuItalian)->trigger();
  EXPECT_EQ(desk.said, QStringList("Riavviare Dialwright!!"));
  EXPECT_FALSE(desk.window.menus().actionOf(Item::mnuLang)->isEnabled());
  desk.type(Field::txtLAT, "40");
  desk.window.history().undo();
  EXPECT_FALSE(desk.window.menus().actionOf(Item::mnuLang)->isEnabled());
  Program next({desk.folder.path(), DIALWRIGHT_DATA_DIR, ""});
  MainWindow window(next);
  EXPECT_EQ(window.menus().actionOf(Item::mnuExit)->text().remove('&'), "Esci");
}

TEST(Menus, GiveEachItemAKeyOfItsOwn) {
  EXPECT_EQ(withMnemonics({"Save", "Save as", "A & B", "", "Save"}),
            QStringList({"&Save", "Save &as", "A && &B", "", "Sa&ve"}));
}

TEST_F(MainWindowTest, RemembersTheScreensTrueSize) {
  emit desk.window.findChild<SheetWidget*>()->calibrated(5000);
  Program next({desk.folder.path(), DIALWRIGHT_DATA_DIR, "en"});
  const MainWindow window(next);
  EXPECT_EQ(window.findChild<SheetWidget*>()->canvas().screenZoom(), 5000);
}

TEST_F(MainWindowTest, StoresTheDefaults) {
  desk.type(Field::txtLAT, "41.5");
  desk.press(Field::cmdSave);
  Program next({desk.folder.path(), DIALWRIGHT_DATA_DIR, "en"});
  EXPECT_EQ(next.panel().text(Field::txtLAT), "41.5");
}

}  // namespace
}  // namespace dialwright
