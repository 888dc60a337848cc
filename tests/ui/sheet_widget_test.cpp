// The sheet in its window: scales, zoom, clicks, pages, panels and what lies under the cursor.
#include "ui/sheet_widget.hpp"

#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QWheelEvent>

#include "ui/application.hpp"

namespace dialwright {
namespace {

class SheetWidgetTest : public ::testing::Test, protected Workplace {
 protected:
  SheetWidgetTest() {
    widget.resize(1000, 700);
    widget.show();
    waitUntilSharp(canvas);
  }

  template <class Widget>
  Widget& find(const char* name) const {
    return named<Widget>(name, widget);
  }
  QString label(const char* name) const { return find<QLabel>(name).text(); }
  // A place in drawing coordinates (metres) as a pixel of the window.
  QPoint pixel(double x, double y) const {
    const SheetPlot& sheet = program.sheet();
    return canvas.toPixel({x + sheet.ShiftX(), y + sheet.ShiftY()}).toPoint();
  }
  void press(const char* name) {
    find<QAbstractButton>(name).click();
    waitUntilSharp(canvas);
  }

  SheetWidget widget{program};
  SheetCanvas& canvas = widget.canvas();
  QComboBox& scales = find<QComboBox>("cmbScala");
};

TEST_F(SheetWidgetTest, TheScaleIsTrueMillimetresOfTheScreen) {
  widget.setScreenZoom(4000);  // four pixels a millimetre
  ASSERT_EQ(scales.count(), 4) << "1:5, 1:10, 1:20, 1:100";
  emit scales.activated(1);
  EXPECT_EQ(program.sheet().Scala(), 10);
  EXPECT_DOUBLE_EQ(canvas.zoom(), 400);
  waitUntilSharp(canvas);
  EXPECT_EQ(scales.currentText(), "1:10");

  canvas.zoomBy(1.3);
  waitUntilSharp(canvas);
  EXPECT_EQ(scales.currentIndex(), -1);
  EXPECT_EQ(scales.placeholderText(), "1:7.69");
  EXPECT_EQ(program.sheet().Scala(), 10) << "the sheet's own scale stays";
  widget.setScreenZoom(4400);
  EXPECT_NEAR(canvas.zoom(), 4400 * 1.3 / 10, 1e-9) << "another screen, the same scale";
}

TEST_F(SheetWidgetTest, FitsTheSheetAndStaysFitting) {
  const auto expectFitting = [&](bool fitting) {
    const QPointF bottom = canvas.toPixel({0, program.sheet().QuadranteH()});
    EXPECT_EQ(std::abs(bottom.y() - canvas.viewport()->height()) < 2 && bottom.x() > 0, fitting);
  };
  widget.resize(900, 500);
  waitUntilSharp(canvas);
  expectFitting(true);
  canvas.zoomBy(4);
  expectFitting(false);
  QTest::keyClick(&canvas, Qt::Key_0);
  expectFitting(true);
}

TEST_F(SheetWidgetTest, TheWheelZoomsAtTheCursorAndDraggingMoves) {
  canvas.zoomBy(6);
  const double zoom = canvas.zoom();
  const auto expectAt = [this](const QPointF& pixel, const QPointF& place) {
    EXPECT_NEAR((canvas.toSheet(pixel) - place).manhattanLength() * canvas.zoom(), 0, 1.5);
  };
  const QPoint from(300, 200), to(420, 260);
  const QPointF held = canvas.toSheet(from);
  QWheelEvent turn(from, canvas.viewport()->mapToGlobal(from), {}, {0, 240}, Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(canvas.viewport(), &turn);
  EXPECT_NEAR(canvas.zoom() / zoom, 1.44, 1e-9);
  expectAt(from, held);

  const std::size_t entities = program.sheet().list().size();
  const QPointF grabbed = canvas.toSheet(from);
  QTest::mousePress(canvas.viewport(), Qt::LeftButton, {}, from);
  for (const QPoint at : {QPoint(350, 240), to}) QTest::mouseMove(canvas.viewport(), at);
  QTest::mouseRelease(canvas.viewport(), Qt::LeftButton, {}, to);
  expectAt(to, grabbed);
  EXPECT_EQ(program.sheet().list().size(), entities) << "a drag is no click";
  const double left = canvas.horizontalScrollBar()->value() / canvas.zoom();  // metres
  EXPECT_NEAR(program.view().HScroll1().value, left * kTwipsPerMeter / program.sheet().Scala(),
              1e-6);
}

TEST_F(SheetWidgetTest, AClickIsReadAndSelectsItsPage) {
  QTest::mouseClick(canvas.viewport(), Qt::LeftButton, {}, pixel(0.1, -0.2));
  waitUntilSharp(canvas);
  ASSERT_EQ(program.view().selectedPages().size(), 1u);
  const QStringList read = label("lblXYval").split(" : ");
  EXPECT_NEAR(read[0].toDouble(), 100, 1000 / canvas.zoom());
  EXPECT_NEAR(read[1].toDouble(), -200, 1000 / canvas.zoom());
  // 0.995 + 0.1 m is in the sixth column of 0.199 m, 0.84 - 0.2 m in the third row of 0.28 m.
  EXPECT_EQ(program.view().selectedPages()[0].number, 2 * 10 + 6);

  // The same by keyboard: a cross from the middle of the window.
  canvas.setFocus();
  QTest::keyClick(&canvas, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
  QTest::keyClick(&canvas, Qt::Key_Return);
  EXPECT_EQ(program.view().selectedPages().size(), 2u);
}

// Pixel by pixel, as drawn, turned over, scrolled and cleared.
TEST_F(SheetWidgetTest, TheScreenIsTheBitmapThatSaveWrites) {
  widget.setScreenZoom(kTwipsPerMeter / 15);  // a pixel as large as that of the bitmap
  emit scales.activated(0);
  const auto expectSame = [this] {
    waitUntilSharp(canvas);
    EXPECT_EQ(widget.exports().write({"", "bmp", {}}, folder / "sheet.bmp"), "");
    const QImage bitmap(shown((folder / "sheet.bmp").string()));
    const QImage window = canvas.viewport()->grab().toImage().convertToFormat(bitmap.format());
    const QPoint corner = canvas.toPixel({}).toPoint();  // of the sheet, in the window
    const QRect common = window.rect() & bitmap.rect().translated(corner);
    EXPECT_EQ(window.copy(common), bitmap.copy(common.translated(-corner)));
  };
  program.CmdRun_Click();
  program.sheet().xLine(-0.9, 0.75, 0.3, 0.7, palette(14));
  widget.refresh();
  expectSame();
  press("cmdInvX");
  canvas.horizontalScrollBar()->setValue(150);
  canvas.verticalScrollBar()->setValue(200);
  expectSame();
  press("cmdPulisci");
  expectSame();
}

TEST_F(SheetWidgetTest, PanelsOpenFilterTheirKeysAndUpdate) {
  press("cmdDim");
  EXPECT_TRUE(find<QWidget>("picDimensioni").isVisible());
  auto& width = find<QLineEdit>("txtQL");
  EXPECT_EQ(width.text(), "1.99");
  width.selectAll();
  QTest::keyClicks(&width, "a3,x25b");
  QTest::keyClick(&width, Qt::Key_Backspace);
  press("cmdQAggiorna");
  EXPECT_FALSE(find<QWidget>("picDimensioni").isVisible());
  EXPECT_DOUBLE_EQ(program.sheet().QuadranteL(), 3.2);
  EXPECT_EQ(scales.itemText(0), "1:10");
  EXPECT_EQ(label("lblDimVal"), "3 x 3");
}

TEST_F(SheetWidgetTest, FindsTheStrokeUnderTheCursor) {
  SheetPlot& sheet = program.sheet();
  sheet.xLine(-0.5, 0.1, 0.5, 0.1, palette(14), {.layer = sheet.layer("ore")});
  sheet.xCircle(0.3, 0.6, 0.2, palette(10), {.layer = sheet.layer("ring")});
  sheet.xBox(-0.6, -0.3, -0.2, -0.1, palette(12), false);
  for (int i = 0; i < 20000; ++i) sheet.xPset(-0.9 + i * 1e-6, 1.5, palette(9));
  widget.refresh();
  waitUntilSharp(canvas);
  QSignalSpy spy(&widget, &SheetWidget::hovered);
  const auto under = [&](const QPoint& at) {
    spy.clear();
    QTest::mouseMove(canvas.viewport(), at);
    return spy.isEmpty() ? QString() : spy.last()[0].toString();
  };
  const std::pair<QPoint, const char*> places[] = {
      {pixel(0.2, 0.1) + QPoint(0, 3), "layer ore, yellow"},
      {pixel(0.2, 0.1) + QPoint(0, 6), "mm"},  // too far: the place alone
      {pixel(0.3, 0.8), "layer ring, green"},
      {pixel(-0.2, -0.2), "layer 0, red"},
      {pixel(-0.885, 1.5), "layer 0, blue"}};
  for (const auto& [at, told] : places) EXPECT_TRUE(under(at).endsWith(told)) << told;
  EXPECT_NEAR(under(pixel(0.2, 0.1)).section(' ', 1, 1).toDouble(), 200, 1000 / canvas.zoom());
  EXPECT_EQ(under({1, 1}), "") << "beside the sheet";
  press("cmdInvX");
  EXPECT_TRUE(under(pixel(0.2, -0.2)).endsWith("layer 0, red"));
}

TEST_F(SheetWidgetTest, TellsWhatAStrokeStandsFor) {
  program.click(Item::mnuUni);
  program.CmdRun_Click();
  const DisplayList& list = program.sheet().list();
  std::size_t hour = 0;
  while (list.meaningOfLine(hour).family != CurveFamily::Hours) ++hour;
  const QString told = describe(program, list, {EntityKind::Line, hour});
  const QRegularExpression due("^hour line, at \\d+:[03]0.*, sun's declination ");
  EXPECT_TRUE(told.contains(due)) << told.toStdString();
}

}  // namespace
}  // namespace dialwright
