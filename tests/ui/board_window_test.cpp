// The utility board's window passes the user's work on to the board, and shows what it holds.
#include "ui/board_window.hpp"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include "support/folder.hpp"
#include "ui/application.hpp"
#include "ui/az_drawing.hpp"
#include "ui/az_instructions.hpp"

namespace dialwright {
namespace {

class BoardWindowTest : public ::testing::Test {
 protected:
  BoardWindowTest() {
    window.show();
    window.activateWindow();
  }
  QLineEdit& text(const char* name) { return *window.findChild<QLineEdit*>(name); }
  QAbstractButton& button(const char* name) { return *window.findChild<QAbstractButton*>(name); }
  void enter(const char* name, const char* keys) {
    QLineEdit& edit = text(name);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    edit.setFocus();
    // The focus selects it, but only after the events that brought the focus.
    const auto selected = [&] { return edit.hasFocus() && edit.selectedText() == edit.text(); };
    EXPECT_TRUE(QTest::qWaitFor(selected, 20000)) << name;
    QTest::keyClicks(&edit, keys);
    QTest::keyClick(&edit, Qt::Key_Tab);
  }

  const Folder folder;
  Program program{{folder.path(), DIALWRIGHT_DATA_DIR, "en"}};
  BoardWindow window{program};
  QSignalSpy transfers{&window, &BoardWindow::transferred};
};

TEST_F(BoardWindowTest, OpensModalOnThePanelsSiteAtThisMoment) {
  EXPECT_TRUE(window.isModal());
  EXPECT_EQ(window.windowTitle(), "Utility board - Outils - Strumenti - Herramientas");
  EXPECT_EQ(text("txtLAT").text(), "45.7438");
  EXPECT_EQ(text("txtLatP").text(), "44");
  EXPECT_EQ(text("TxtFuso").text(), "-1");
  EXPECT_GE(text("txtYear").text().toInt(), 2024);
}

TEST_F(BoardWindowTest, AFieldIsReplacedWholeAndTakesNumbersOnly) {
  enter("txtLAT", "4x1,.5e");
  EXPECT_EQ(text("txtLAT").text(), "41.5");
  EXPECT_EQ(text("txtLatP").text(), "30");  // the other notation has followed
  enter("txtLAT", "-10");
  EXPECT_EQ(button("cmdSignLAT").text(), "-");
  enter("txtDay", "-7");
  EXPECT_EQ(text("txtDay").text(), "7");  // no sign in a day
}

TEST_F(BoardWindowTest, OneNotationIsOpenAtATime) {
  EXPECT_FALSE(text("txtLatG").isEnabled());
  button("OptModoSess").click();
  EXPECT_FALSE(text("txtLAT").isEnabled());
  enter("txtLonG", "12");
  button("cmdSignLON").click();  // from minus to plus
  EXPECT_EQ(text("txtLON").text().left(6), "12.643");
  EXPECT_TRUE(transfers.empty());
  button("optModoDec").click();
  EXPECT_TRUE(text("txtLON").isEnabled());
}

TEST_F(BoardWindowTest, CalculatesWhatStandsInTheFieldAndTellsTheWindow) {
  text("txtAngle").setFocus();
  QTest::keyClicks(&text("txtAngle"), "12.5");
  QTest::keyClick(&text("txtAngle"), Qt::Key_Return);
  EXPECT_EQ(transfers.size(), 1);
  auto* results = window.findChild<QPlainTextEdit*>("txtResult");
  EXPECT_TRUE(results->isReadOnly());
  EXPECT_TRUE(results->toPlainText().contains("Declination of the dial: "));
  EXPECT_TRUE(results->toPlainText().contains("declination of the mirror: "));
  EXPECT_NE(program.panel().text(Field::txtDelta), "23.45");
}

TEST_F(BoardWindowTest, TransfersTheSiteOnlyWhenAsked) {
  enter("txtLAT", "10.25");
  EXPECT_EQ(program.panel().text(Field::txtLAT), "45.7438");
  button("cmdTrans").click();
  EXPECT_EQ(program.panel().text(Field::txtLAT), "10.25");
  EXPECT_EQ(transfers.size(), 1);
}

TEST_F(BoardWindowTest, ShowsItsInstructionsAndCloses) {
  button("cmdInfo").click();
  auto* instructions = window.findChild<AzInstructions*>();
  ASSERT_NE(instructions, nullptr);
  EXPECT_TRUE(instructions->isVisible());
  EXPECT_TRUE(instructions->isModal());
  instructions->close();
  button("cmdExit").click();
  EXPECT_FALSE(window.isVisible());
}

TEST(BoardWindow, CutsNoTextInAnyLanguageOnASmallScreen) {
  const Folder folder;
  for (const char* language : {"en", "it", "fr", "es"}) {
    Program program({folder.path(), DIALWRIGHT_DATA_DIR, language});
    BoardWindow window(program);
    window.show();
    window.findChild<QAbstractButton*>("cmdCalcola")->click();
    EXPECT_LE(window.width(), 1280) << language;
    EXPECT_LE(window.height(), 720) << language;
    const auto* results = window.findChild<QPlainTextEdit*>("txtResult");
    EXPECT_LE(results->verticalScrollBar()->maximum(), 0) << language;
    EXPECT_LE(results->horizontalScrollBar()->maximum(), 0) << language;
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
      const int words = button->fontMetrics().horizontalAdvance(button->text());
      EXPECT_LE(words, button->width()) << language << " " << button->text().toStdString();
    }
    for (const QLabel* label : window.findChildren<QLabel*>()) {
      EXPECT_LE(label->sizeHint().width(), label->width()) << label->text().toStdString();
    }
  }
}

// The sun stands to the left of one who faces the wall, so that the shadow of a positive az falls
// to the right of the perpendicular and meets the wall there.
TEST(AzDrawing, ThePositiveAngleHasItsShadowToTheRight) {
  AzDrawing drawing([](std::string_view text) { return std::string(text); });
  drawing.resize(520, 380);
  const QImage image = drawing.grab().toImage();
  const auto coloured = [&image](QRect area) {
    for (int y = area.top(); y < area.bottom(); ++y) {
      for (int x = area.left(); x < area.right(); ++x) {
        if (image.pixelColor(x, y).hslSaturation() > 100) return true;
      }
    }
    return false;
  };
  EXPECT_TRUE(coloured({270, 70, 120, 150}));  // the shadow
  EXPECT_FALSE(coloured({20, 70, 230, 150}));  // its counterpart is without colour
  EXPECT_TRUE(coloured({150, 310, 70, 60}));   // the sun
  EXPECT_FALSE(coloured({300, 250, 200, 120}));
}

}  // namespace
}  // namespace dialwright
