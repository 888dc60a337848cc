// The sheet in its window: scales, zoom, clicks, pages, panels and what lies under the cursor.
#include "ui/sheet_widget.hpp"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include "support/folder.hpp"
#include "ui/appearance.hpp"
#include "ui/application.hpp"
#include "ui/sheet_canvas.hpp"
#include "ui/text.hpp"

namespace dialwright {
namespace {

class SheetWidgetTest : public ::testing::Test {
 protected:
  SheetWidgetTest() {
    widget.resize(1000, 700);
    widget.show();
    settle();
  }

  void settle() const {
    QCoreApplication::processEvents();
    EXPECT_TRUE(QTest::qWaitFor([this] { return canvas.sharp(); }, 20000));
    QCoreApplication::processEvents();
  }
  QAbstractButton& button(const char* name) const {
    return *widget.findChild<QAbstractButton*>(name);
  }
  QString label(const char* name) const { return widget.findChild<QLabel*>(name)->text(); }
  // A place in drawing coordinates (metres) as a pixel of the window.
  QPoint pixel(double x, double y) const {
    const SheetPlot& sheet = program.sheet();
    return canvas.toPixel({x + sheet.ShiftX(), y + sheet.ShiftY()}).toPoint();
  }
  void press(const char* name) {
    button(name).click();
    settle();
  }
  QImage picture() const { return canvas.viewport()->grab().toImage(); }

  const Folder folder;
  Program program{{folder.path(), DIALWRIGHT_DATA_DIR, ""}};
  SheetWidget widget{program};
  SheetCanvas& canvas = widget.canvas();
};

TEST_F(SheetWidgetTest, TheScaleIsTrueMillimetresOfTheScreen) {
  widget.setScreenZoom(4000);  // four pixels a millimetre
  auto* scales = widget.findChild<QComboBox*>("cmbScala");
  ASSERT_EQ(scales->count(), 4) << "1:5, 1:10, 1:20, 1:100";
  emit scales->activated(1);
  settle();
  EXPECT_EQ(program.sheet().Scala(), 10);
  EXPECT_DOUBLE_EQ(canvas.zoom(), 400);
  EXPECT_EQ(scales->currentText(), "1:10");
  EXPECT_EQ(canvas.horizontalScrollBar()->value(), 0);

  canvas.zoomBy(1.3);
  settle();
  EXPECT_EQ(scales->currentIndex(), -1);
  EXPECT_EQ(scales->placeholderText(), "1:7.69");
  EXPECT_EQ(program.sheet().Scala(), 10) << "the sheet's own scale stays";
  widget.setScreenZoom(4400);
  EXPECT_NEAR(canvas.zoom(), 4400 * 1.3 / 10, 1e-9) << "another screen, the same scale";
}

TEST_F(SheetWidgetTest, FitsTheSheetAndStaysFitting) {
  const auto fits = [&] {
    const QPointF corner = canvas.toPixel({program.sheet().QuadranteL(), 2.80});
    const QSize window = canvas.viewport()->size();
    return std::abs(corner.y() - window.height()) < 2 && canvas.toPixel({0, 0}).x() > 0;
  };
  EXPECT_TRUE(fits());
  widget.resize(900, 500);
  settle();
  EXPECT_TRUE(fits());
  canvas.zoomBy(4);
  EXPECT_FALSE(fits());
  QTest::keyClick(&canvas, Qt::Key_0);
  EXPECT_TRUE(fits());
}

TEST_F(SheetWidgetTest, TheWheelZoomsAtTheCursorAndDraggingMoves) {
  canvas.zoomBy(6);
  const QPointF at(300, 200);
  const QPointF before = canvas.toSheet(at);
  QWheelEvent turn(at, canvas.viewport()->mapToGlobal(at), {}, {0, 240}, Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  const double zoom = canvas.zoom();
  QCoreApplication::sendEvent(canvas.viewport(), &turn);
  EXPECT_NEAR(canvas.zoom() / zoom, 1.44, 1e-9);
  EXPECT_NEAR((canvas.toSheet(at) - before).manhattanLength() * canvas.zoom(), 0, 1.5);

  const int entities = static_cast<int>(program.sheet().list().size());
  const QPointF grabbed = canvas.toSheet({300, 200});
  QTest::mousePress(canvas.viewport(), Qt::LeftButton, {}, {300, 200});
  QTest::mouseMove(canvas.viewport(), {350, 240});
  QTest::mouseMove(canvas.viewport(), {420, 260});
  QTest::mouseRelease(canvas.viewport(), Qt::LeftButton, {}, {420, 260});
  EXPECT_NEAR((canvas.toSheet({420, 260}) - grabbed).manhattanLength() * canvas.zoom(), 0, 1.5);
  EXPECT_EQ(program.sheet().list().size(), entities) << "a drag is no click";
  EXPECT_NEAR(program.view().HScroll1().value,
              canvas.horizontalScrollBar()->value() / canvas.zoom() * kTwipsPerMeter /
                  program.sheet().Scala(),
              1e-6);

  const int scrolled = canvas.verticalScrollBar()->value();
  QTest::keyClick(&canvas, Qt::Key_Down);
  EXPECT_GT(canvas.verticalScrollBar()->value(), scrolled);
}

TEST_F(SheetWidgetTest, AClickIsReadAndSelectsItsPage) {
  QTest::mouseClick(canvas.viewport(), Qt::LeftButton, {}, pixel(0.1, -0.2));
  settle();
  ASSERT_EQ(program.view().selectedPages().size(), 1u);
  EXPECT_EQ(label("lblXYval"), shown(program.view().lblXYval()));
  const QStringList read = label("lblXYval").split(" : ");
  EXPECT_NEAR(read[0].toDouble(), 100, 1000 / canvas.zoom());
  EXPECT_NEAR(read[1].toDouble(), -200, 1000 / canvas.zoom());
  // 0.995 + 0.1 m is in the sixth column of 0.199 m, 0.84 - 0.2 m in the third row of 0.28 m.
  EXPECT_EQ(program.view().selectedPages()[0].number, 2 * 10 + 6);
  EXPECT_EQ(program.sheet().list().texts.back().text, "26");

  // The same by keyboard: a cross from the middle of the window.
  canvas.setFocus();
  QTest::keyClick(&canvas, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
  QTest::keyClick(&canvas, Qt::Key_Return);
  EXPECT_EQ(program.view().selectedPages().size(), 2u);
}

TEST_F(SheetWidgetTest, ShowsWhatTheSheetHolds) {
  const Rgb yellow = palette(14);
  program.sheet().xLine(-0.5, 0.2, 0.3, 0.2, yellow);
  widget.refresh();
  settle();
  const auto yellowAt = [&](double x, double y) {
    const QPoint at = pixel(x, y);
    const QImage image = picture();
    for (int row = -1; row <= 1; ++row) {
      const QColor colour = image.pixelColor(at + QPoint(0, row));
      if (colour.red() > 150 && colour.green() > 150 && colour.blue() < 100) return true;
    }
    return false;
  };
  EXPECT_TRUE(yellowAt(0.25, 0.2));
  EXPECT_FALSE(yellowAt(0.45, 0.2));
  press("cmdInvX");
  EXPECT_TRUE(yellowAt(0.45, 0.2));
  EXPECT_FALSE(yellowAt(-0.4, 0.2));
  canvas.zoomBy(3.7);
  settle();
  EXPECT_TRUE(yellowAt(0.1, 0.2));
  EXPECT_NE(picture().pixelColor(0, 0), QColor(Qt::white));
  press("cmdPulisci");
  EXPECT_FALSE(yellowAt(0.1, 0.2));
}

TEST_F(SheetWidgetTest, TheScreenIsTheBitmapThatSaveWrites) {
  program.CmdRun_Click();
  widget.setScreenZoom(kTwipsPerMeter / 15);  // a pixel as large as that of the bitmap
  emit widget.findChild<QComboBox*>("cmbScala")->activated(0);
  settle();
  const auto path = folder / "sheet.bmp";
  ASSERT_EQ(widget.exports().write({"", "bmp", {}}, path), "");
  const QImage bitmap(shown(path.string()));
  const QImage window = picture();
  const QSize common = window.size().boundedTo(bitmap.size());
  int different = 0;
  for (int y = 0; y < common.height(); ++y) {
    for (int x = 0; x < common.width(); ++x) {
      different += window.pixelColor(x, y).rgb() == bitmap.pixelColor(x, y).rgb() ? 0 : 1;
    }
  }
  EXPECT_EQ(different, 0);
}

TEST_F(SheetWidgetTest, InversionButtonsShowTheirState) {
  const auto middle = [&](const char* name) {
    return button(name).grab().toImage().pixelColor(5, 5);
  };
  const QColor plain = middle("cmdInvX");
  press("cmdInvX");
  EXPECT_EQ(middle("cmdInvX"), QColor(0xFF, 0xFF, 0x80));
  EXPECT_EQ(middle("cmdInvY"), plain);
  press("cmdPulisci");
  EXPECT_EQ(middle("cmdInvX"), plain);
}

TEST_F(SheetWidgetTest, ShowsAScaleOfItsOwnInTheColourOfTheMoment) {
  const QPalette before = QApplication::palette();
  const auto* scales = widget.findChild<QComboBox*>("cmbScala");
  for (const QPalette& colours : {darkPalette(), lightPalette()}) {
    QApplication::setPalette(colours);
    QCoreApplication::processEvents();
    EXPECT_EQ(scales->palette().color(QPalette::PlaceholderText), colours.color(QPalette::Text));
    EXPECT_EQ(scales->palette().color(QPalette::Base), colours.color(QPalette::Base));
  }
  QApplication::setPalette(before);
}

TEST_F(SheetWidgetTest, PanelsOpenFilterTheirKeysAndUpdate) {
  auto* panel = widget.findChild<QWidget*>("picDimensioni");
  EXPECT_FALSE(panel->isVisible());
  press("cmdDim");
  EXPECT_TRUE(panel->isVisible());
  auto* width = widget.findChild<QLineEdit*>("txtQL");
  EXPECT_EQ(width->text(), "1.99");
  width->selectAll();
  QTest::keyClicks(width, "a3,x25b");
  EXPECT_EQ(width->text(), "3.25");
  QTest::keyClick(width, Qt::Key_Backspace);
  EXPECT_EQ(width->text(), "3.2");
  press("cmdQAggiorna");
  EXPECT_FALSE(panel->isVisible());
  EXPECT_DOUBLE_EQ(program.sheet().QuadranteL(), 3.2);
  EXPECT_EQ(widget.findChild<QComboBox*>("cmbScala")->itemText(0), "1:10");
  EXPECT_EQ(label("lblDimVal"), "3 x 3");

  press("cmdAssi");
  EXPECT_TRUE(widget.findChild<QWidget*>("PicAssi")->isVisible());
  EXPECT_EQ(program.sheet().list().lines.size(), 2u);
  press("cmdAssiChiudi");
  EXPECT_FALSE(widget.findChild<QWidget*>("PicAssi")->isVisible());

  widget.findChild<QLineEdit*>("txtX")->setText("pasted");
  EXPECT_EQ(program.view().text(SheetField::txtX), "pasted");
}

TEST_F(SheetWidgetTest, FindsTheStrokeUnderTheCursor) {
  SheetPlot& sheet = program.sheet();
  const LayerId hours = sheet.layer("ore");
  sheet.xLine(-0.5, 0.1, 0.5, 0.1, palette(14), {.layer = hours});
  sheet.xCircle(0.3, 0.6, 0.2, palette(10), {.layer = sheet.layer("ring")});
  sheet.xBox(-0.6, -0.3, -0.2, -0.1, palette(12), false);
  for (int i = 0; i < 20000; ++i) sheet.xPset(-0.9 + i * 1e-6, 1.5, palette(9));
  widget.refresh();
  settle();
  QSignalSpy spy(&widget, &SheetWidget::hovered);
  const auto under = [&](const QPoint& at) {
    spy.clear();
    QTest::mouseMove(canvas.viewport(), at);
    return spy.isEmpty() ? QString() : spy.last()[0].toString();
  };
  const QString line = under(pixel(0.2, 0.1) + QPoint(0, 3));
  EXPECT_TRUE(line.endsWith("layer ore, yellow")) << line.toStdString();
  EXPECT_NEAR(line.section(' ', 1, 1).toDouble(), 200, 1000 / canvas.zoom());
  EXPECT_TRUE(under(pixel(0.2, 0.1) + QPoint(0, 6)).endsWith("mm"));
  EXPECT_TRUE(under(pixel(0.3, 0.8)).endsWith("layer ring, green"));
  EXPECT_TRUE(under(pixel(-0.2, -0.2)).endsWith("layer 0, red"));
  EXPECT_TRUE(under(pixel(-0.885, 1.5)).endsWith("layer 0, blue"));
  EXPECT_EQ(under({1, 1}), "") << "beside the sheet";
  press("cmdInvX");
  EXPECT_TRUE(under(pixel(0.2, -0.2)).endsWith("layer 0, red"));
}

TEST_F(SheetWidgetTest, TellsWhatTheStrokeUnderTheCursorStandsFor) {
  program.click(Item::mnuUni);
  program.CmdRun_Click();
  widget.refresh();
  settle();
  const DisplayList& list = program.sheet().list();
  const auto told = [&](CurveFamily family) {
    for (std::size_t i = 0; i < list.lines.size(); ++i) {
      const Meaning meaning = list.meaningOfLine(i);
      if (meaning.family != family || std::isnan(meaning.first.hourAngle)) continue;
      return describe(program, list, {EntityKind::Line, i});
    }
    return QString();
  };
  const QString hours = told(CurveFamily::Hours);
  EXPECT_TRUE(QRegularExpression("^hour line, at \\d+:[03]0.*layer ").match(hours).hasMatch())
      << hours.toStdString();
  const QString declination = told(CurveFamily::Declinations);
  EXPECT_TRUE(declination.startsWith("declination curve, at ")) << declination.toStdString();
  EXPECT_TRUE(declination.contains(", sun's declination ")) << declination.toStdString();
}

TEST_F(SheetWidgetTest, SpeaksTheProgramsLanguageWithoutACutText) {
  for (const char* language : {"it", "fr", "es"}) {
    Program other{{folder.path(), DIALWRIGHT_DATA_DIR, language}};
    SheetWidget narrow(other);
    narrow.resize(640, 480);
    narrow.show();
    QCoreApplication::processEvents();
    EXPECT_NE(narrow.findChild<QToolButton*>("cmdPulisci")->text(), "Clear");
    for (const auto* each : narrow.findChildren<QToolButton*>()) {
      if (!each->isVisible()) continue;
      EXPECT_GE(each->width(), each->minimumSizeHint().width()) << each->text().toStdString();
      const QRect place(each->mapTo(&narrow, QPoint()), each->size());
      EXPECT_TRUE(narrow.rect().contains(place)) << each->text().toStdString();
      EXPECT_FALSE(each->text().isEmpty());
    }
  }
}

}  // namespace
}  // namespace dialwright
