// The utility board's window passes the user's work on to the board, and shows what it holds.
#include "ui/board_window.hpp"

#include <QLineEdit>
#include <QPlainTextEdit>

#include "ui/application.hpp"

namespace dialwright {
namespace {

class BoardWindowTest : public ::testing::Test, protected Workplace {
 protected:
  BoardWindowTest() {
    window.show();
    window.activateWindow();
  }
  QLineEdit& text(const char* name) { return named<QLineEdit>(name, window); }
  QAbstractButton& button(const char* name) { return named<QAbstractButton>(name, window); }
  void enter(const char* name, const char* keys, Qt::Key last = Qt::Key_Tab) {
    QLineEdit& edit = text(name);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window, 20000));
    edit.setFocus();
    // The focus selects it, but only after the events that brought the focus.
    const auto selected = [&] { return edit.hasFocus() && edit.selectedText() == edit.text(); };
    EXPECT_TRUE(QTest::qWaitFor(selected, 20000)) << name;
    QTest::keyClicks(&edit, keys);
    QTest::keyClick(&edit, last);
  }

  BoardWindow window{program};
  QSignalSpy transfers{&window, &BoardWindow::transferred};
};

TEST_F(BoardWindowTest, AFieldIsReplacedWholeAndTakesNumbersOnly) {
  enter("txtLAT", "4x1,.5e");
  EXPECT_EQ(text("txtLAT").text(), "41.5");
  EXPECT_EQ(text("txtLatP").text(), "30");  // the other notation has followed
  enter("txtLAT", "-10");
  EXPECT_EQ(button("cmdSignLAT").text(), "-");
  enter("txtDay", "-7");
  EXPECT_EQ(text("txtDay").text(), "7");  // no sign in a day
  EXPECT_FALSE(text("txtLatG").isEnabled()) << "one notation is open at a time";
  button("OptModoSess").click();
  EXPECT_FALSE(text("txtLAT").isEnabled());
  enter("txtLonG", "12");
  button("cmdSignLON").click();  // from minus to plus
  EXPECT_EQ(text("txtLON").text().left(6), "12.643");
}

TEST_F(BoardWindowTest, TransfersResultsAtOnceAndTheSiteWhenAsked) {
  EXPECT_GE(text("txtYear").text().toInt(), 2024) << "it opens at this moment";
  enter("txtAngle", "12.5", Qt::Key_Return);
  EXPECT_EQ(transfers.size(), 1);
  const QString told = named<QPlainTextEdit>("txtResult", window).toPlainText();
  EXPECT_TRUE(told.contains("Declination of the dial: "));
  EXPECT_NE(program.panel().text(Field::txtDelta), "23.45");

  const std::string site = program.panel().text(Field::txtLAT);
  EXPECT_EQ(text("txtLAT").text().toStdString(), site);
  enter("txtLAT", "10.25");
  EXPECT_EQ(program.panel().text(Field::txtLAT), site);
  button("cmdTrans").click();
  EXPECT_EQ(program.panel().text(Field::txtLAT), "10.25");
  EXPECT_EQ(transfers.size(), 2);
}

}  // namespace
}  // namespace dialwright
