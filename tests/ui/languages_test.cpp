// No window cuts a text short in any language, on a small screen.
#include <QAction>
#include <QDate>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "ui/application.hpp"
#include "ui/board_window.hpp"
#include "ui/shadow_bar.hpp"
#include "ui/sheet_widget.hpp"

namespace dialwright {
namespace {

class LanguagesTest : public ::testing::TestWithParam<const char*>, protected Workplace {
 protected:
  static void expectWhole(const QWidget& window) {
    QCoreApplication::processEvents();
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
      if (!button->isVisible()) continue;
      SCOPED_TRACE(button->text().toStdString());
      EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()), button->width());
      const QRect place(button->mapTo(&window, QPoint()), button->size());
      EXPECT_TRUE(window.rect().contains(place));
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
      if (!label->isVisible()) continue;
      EXPECT_LE(label->sizeHint().width(), label->width()) << label->text().toStdString();
    }
  }

  Program spoken = start(GetParam());
};

TEST_P(LanguagesTest, TheSheetWithItsBarAndTheShadowsWords) {
  SheetWidget sheet(spoken);
  sheet.resize(640, 480);
  sheet.show();
  sheet.shadowAction()->trigger();
  for (const int hour : {0, 6, 12, 20}) {
    sheet.shadowBar().setMoment(QDate(2026, 6, 21), hour * 60);
    expectWhole(sheet);
  }
  EXPECT_EQ(sheet.width(), 640);
  EXPECT_EQ(named<QAbstractButton>("cmdPulisci", sheet).text() == "Clear",
            std::string("en") == GetParam());
}

TEST_P(LanguagesTest, TheBoardWithItsResults) {
  BoardWindow board(spoken);
  board.show();
  named<QAbstractButton>("cmdCalcola", board).click();
  expectWhole(board);
  EXPECT_LE(board.width(), 1280);
  EXPECT_LE(board.height(), 720);
  const auto& results = named<QPlainTextEdit>("txtResult", board);
  EXPECT_LE(results.verticalScrollBar()->maximum(), 0);
  EXPECT_LE(results.horizontalScrollBar()->maximum(), 0);
}

INSTANTIATE_TEST_SUITE_P(Each, LanguagesTest, ::testing::Values("en", "it", "fr", "es"));

}  // namespace
}  // namespace dialwright
