// The main window as a user drives it: dials, fields, runs, undo, and what the next start finds.
#include "ui/main_window.hpp"

#include <QCheckBox>
#include <QClipboard>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>

#include "ui/desk.hpp"
#include "ui/sheet_widget.hpp"

namespace dialwright {
namespace {

class MainWindowTest : public DeskTest {
 protected:
  QString status() const { return desk.window.statusBar()->currentMessage(); }
};

// --- The panel

TEST_F(MainWindowTest, ShowsWhatEachDialShowsOneBesideTheOther) {
  desk.window.inputs().live()->click();
  desk.window.resize(1000, 3000);  // without scrolling
  for (const Item dial : dialItems()) {
    desk.choose(dial);
    QCoreApplication::processEvents();
    EXPECT_TRUE(desk.window.menus().actionOf(dial)->isChecked());
    QRegion taken(0, 0, 1, 1);  // where a field lies that no section has
    for (std::size_t i = 0; i < kFieldCount; ++i) {
      SCOPED_TRACE(std::string(rowOf(dial).name) + "'s " + std::string(fieldTable()[i].name));
      const Control& control = desk.program.panel()[fieldAt(i)];
      const QWidget* widget = desk.window.inputs().widgetOf(fieldAt(i));
      EXPECT_EQ(!widget->isHidden(), control.visible);
      EXPECT_EQ(widget->isEnabled(), control.enabled);
      if (!control.visible || fieldTable()[i].kind == FieldKind::Frame) continue;
      EXPECT_FALSE(widget->accessibleName().isEmpty());
      const QRect place(widget->mapTo(&desk.window.inputs(), QPoint()), widget->size());
      EXPECT_FALSE(taken.intersects(place));
      taken += place;
    }
  }
  EXPECT_EQ(desk.widget<QCheckBox>(Field::ckTrue)->text(), "True shadows only");
}

TEST_F(MainWindowTest, FiltersTypedKeysButTakesPastedTexts) {
  const auto latitude = [this] { return desk.program.panel().text(Field::txtLAT); };
  const auto paste = [this](const QString& text) {
    QApplication::clipboard()->setText(text);
    desk.edit(Field::txtLAT)->selectAll();
    desk.edit(Field::txtLAT)->paste();
  };
  desk.type(Field::txtLAT, "4a5,x5");
  QTest::keyClick(desk.edit(Field::txtLAT), Qt::Key_Backspace);
  EXPECT_EQ(latitude(), "45.");
  paste("12abc");
  EXPECT_EQ(latitude(), "12abc");
  paste(QString(1 << 20, 'z'));
  EXPECT_LT(latitude().size(), 1000u);
}

TEST_F(MainWindowTest, ClicksBoxesAndOptionsWithTheirEffects) {
  desk.choose(Item::mnuUni);
  desk.widget<QCheckBox>(Field::ck_Italiche)->click();
  EXPECT_EQ(desk.edit(Field::TxtFine)->text(), " 23");
  for (int i = 0; i < 2; ++i) {  // a second click changes nothing
    desk.widget<QRadioButton>(Field::OptZenital)->click();
    EXPECT_TRUE(desk.widget<QRadioButton>(Field::OptZenital)->isChecked());
    EXPECT_TRUE(desk.program.panel().on(Field::OptZenital));
    EXPECT_FALSE(desk.widget<QRadioButton>(Field::OptHorizontal)->isChecked());
  }
}

// --- Runs

// Choosing, typing and Run give the drawing of the command line, to the byte.
TEST_F(MainWindowTest, DrawsWhatAPlainProgramDraws) {
  for (const Item dial : {Item::M_Light, Item::mnuVertSph, Item::mnuBall, Item::mnuCorncil}) {
    SCOPED_TRACE(rowOf(dial).name);
    Desk fresh;
    Workplace plain;
    plain.program.click(dial);
    plain.program.type(Field::txtLAT, "44.1");
    plain.program.CmdRun_Click();
    fresh.choose(dial);
    fresh.settle();
    fresh.type(Field::txtLAT, "44.1");
    fresh.settle();
    ASSERT_GT(fresh.drawn(), 0u);
    EXPECT_TRUE(entitiesOf(fresh.program) == entitiesOf(plain.program)) << "live";
    fresh.press(Field::cmdRun);
    EXPECT_TRUE(entitiesOf(fresh.program) == entitiesOf(plain.program)) << "Run takes its place";
    plain.program.CmdRun_Click();
    fresh.press(Field::cmdRun);
    EXPECT_TRUE(entitiesOf(fresh.program) == entitiesOf(plain.program)) << "again, on top";
    plain.program.press("cmdData");
    fresh.press(Field::cmdData);
    EXPECT_TRUE(entitiesOf(fresh.program) == entitiesOf(plain.program)) << "texts at the cursor";
  }
}

TEST_F(MainWindowTest, DrawsNothingByItselfUntilItIsLive) {
  desk.window.inputs().live()->click();
  desk.choose(Item::mnuUni);
  EXPECT_FALSE(desk.window.runner().busy());
  EXPECT_EQ(desk.drawn(), 0u);
  desk.window.inputs().live()->click();
  desk.settle();
  EXPECT_GT(desk.drawn(), 0u);
  EXPECT_FALSE(desk.widget<QPushButton>(Field::cmdData)->isHidden());
}

TEST_F(MainWindowTest, TellsARefusalInTheFittingPlace) {
  desk.choose(Item::M_Light);
  desk.type(Field::txtLAT, "-30");
  desk.settle();
  EXPECT_TRUE(desk.said.isEmpty());
  EXPECT_TRUE(status().contains("Southern"));
  desk.press(Field::cmdRun);
  ASSERT_EQ(desk.said.size(), 1);
  EXPECT_TRUE(desk.said.front().contains("Southern"));
}

TEST_F(MainWindowTest, CancelsALongRun) {
  desk.choose(Item::mnuVertSph);
  for (const Field box : {Field::ck_Lemniscate, Field::ckTrue})
    desk.widget<QCheckBox>(box)->click();
  desk.settle();
  const std::string before = entitiesOf(desk.program);
  desk.program.panel().setText(Field::TxtHour, "100000");  // a run of seconds
  desk.window.runner().run();
  auto* cancel = desk.window.findChild<QPushButton*>("cancelRun");
  ASSERT_TRUE(QTest::qWaitFor([cancel] { return cancel->isVisible(); }, 60000));
  cancel->click();
  EXPECT_FALSE(desk.window.runner().busy());
  EXPECT_FALSE(cancel->isVisible());
  EXPECT_TRUE(entitiesOf(desk.program) == before);
}

// With what the proof of a plain program's run finds.
TEST_F(MainWindowTest, TellsWhichStrokesAreNoShadowsAndLeavesThemOut) {
  Workplace plain;
  plain.program.click(Item::mnuCircp);
  plain.program.sheet().list().keepMeanings(true);
  plain.program.CmdRun_Click();
  const proof::LayerProof sum = plain.program.prove()->total();
  const QString sentence = QString("%1 of %2 strokes are no shadows; with \"True shadows only\" ")
                               .arg(sum.strokes - sum.genuine)
                               .arg(sum.strokes);
  const auto remarks = [&] {
    return QTest::qWaitFor([&] { return status().contains(sentence); }, 60000);
  };
  desk.choose(Item::mnuCircp);
  desk.settle();
  EXPECT_TRUE(remarks()) << status().toStdString();
  EXPECT_TRUE(status().startsWith("Modify the definition")) << "the run's own word stays";
  desk.window.statusBar()->clearMessage();
  desk.press(Field::cmdRun);
  EXPECT_TRUE(remarks()) << status().toStdString();

  desk.widget<QCheckBox>(Field::ckTrue)->click();
  desk.settle();
  EXPECT_LT(desk.drawn(), sum.strokes);
  EXPECT_FALSE(status().contains(sentence));
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
  EXPECT_TRUE(entitiesOf(desk.program) != first);
  desk.window.history().undo();
  EXPECT_EQ(desk.program.params().UsaLongitudine, 0);
  desk.window.history().undo();  // two keys, one change
  EXPECT_EQ(desk.edit(Field::txtDecl)->text(), "-14.57");
  desk.settle();
  EXPECT_TRUE(entitiesOf(desk.program) == first);
  desk.window.history().redo();
  EXPECT_EQ(desk.edit(Field::txtDecl)->text(), "33");
}

// --- The menus and the next start

TEST_F(MainWindowTest, TheNextStartHasLanguageDefaultsAndTheScreensTrueSize) {
  desk.type(Field::txtLAT, "41.5");
  desk.press(Field::cmdSave);
  emit desk.window.findChild<SheetWidget*>()->calibrated(5000);
  desk.choose(Item::mnuItalian);
  EXPECT_EQ(desk.said, QStringList("Riavviare Dialwright!!"));
  desk.window.history().undo();
  EXPECT_FALSE(desk.window.menus().actionOf(Item::mnuLang)->isEnabled()) << "chosen once a start";
  Program next = desk.start("");
  MainWindow window(next);
  EXPECT_EQ(window.menus().actionOf(Item::mnuExit)->text().remove('&'), "Esci");
  EXPECT_EQ(window.findChild<SheetWidget*>()->canvas().screenZoom(), 5000);
  EXPECT_EQ(next.panel().text(Field::txtLAT), "41.5");
}

TEST(Menus, GiveEachItemAKeyOfItsOwn) {
  EXPECT_EQ(withMnemonics({"Save", "Save as", "A & B", "", "Save"}),
            QStringList({"&Save", "Save &as", "A && &B", "", "Sa&ve"}));
}

}  // namespace
}  // namespace dialwright
