// The moving shadow: its sliders, its words, and the lines that stand over the sheet.
#include "ui/shadow_bar.hpp"

#include <QAction>
#include <QSlider>

#include "app/moment.hpp"
#include "ui/desk.hpp"
#include "ui/sheet_widget.hpp"

namespace dialwright {
namespace {

class ShadowBarTest : public DeskTest {
 protected:
  ShadowBarTest() {
    desk.window.inputs().live()->setChecked(false);
    desk.choose(Item::mnuUni);
    desk.press(Field::cmdRun);
    sheet.shadowAction()->trigger();
    bar.setMoment(QDate(2026, 6, 21), 10 * 60 + 30);
    waitUntilSharp(canvas);
  }

  QString label(const char* name) const { return named<QLabel>(name, bar).text(); }
  QSlider& slider(const char* name) const { return named<QSlider>(name, bar); }
  QImage picture() const { return canvas.viewport()->grab().toImage(); }
  // The shadow on the canvas is the panel's, of that moment.
  bool isOf(const proof::Instant& moment) const {
    const Panel& panel = desk.program.panel();
    const auto due = shadowOf(panel, sunAt(panel, moment));
    const auto same = [](Punto a, Punto b) { return a.x == b.x && a.y == b.y; };
    const auto& shown = canvas.shadow();
    return due.size() == 1 && shown.size() == 1 && std::ranges::equal(due[0], shown[0], same);
  }

  SheetWidget& sheet = *desk.window.findChild<SheetWidget*>();
  SheetCanvas& canvas = sheet.canvas();
  ShadowBar& bar = sheet.shadowBar();
};

TEST_F(ShadowBarTest, MovesTheShadowOverTheSheetByKeys) {
  EXPECT_TRUE(isOf({2026, 6, 21, 10.5}));
  const QImage before = picture();
  QTest::keyClick(&slider("shadowTime"), Qt::Key_PageUp);
  EXPECT_EQ(label("shadowTimeValue"), "11:30");
  EXPECT_TRUE(isOf({2026, 6, 21, 11.5}));
  EXPECT_TRUE(canvas.sharp()) << "no new picture of the sheet";
  EXPECT_NE(picture(), before);
  QTest::keyClick(&slider("shadowTime"), Qt::Key_PageDown);
  EXPECT_EQ(picture(), before);
  QTest::keyClick(&slider("shadowDay"), Qt::Key_End);
  EXPECT_EQ(label("shadowDayValue"), "2026-12-31");
  EXPECT_TRUE(isOf({2026, 12, 31, 10.5}));
}

// It lies on the sheet where the drawing does, whichever way the sheet is turned.
TEST_F(ShadowBarTest, LiesAsTheSheetDoes) {
  const QColor blue(redOf(kShadowBlue), greenOf(kShadowBlue), blueOf(kShadowBlue));
  const auto blueWithSign = [&](double signX) {
    const SheetPlot& plot = desk.program.sheet();
    const Punto at = canvas.shadow().front().back();
    const QPointF place(plot.ShiftX() + signX * at.x, plot.ShiftY() - at.y);
    return picture().pixelColor(canvas.toPixel(place).toPoint()) == blue;
  };
  canvas.zoomBy(3);
  waitUntilSharp(canvas);
  EXPECT_TRUE(blueWithSign(1));
  desk.program.view().press(SheetCommand::cmdInvX);
  waitUntilSharp(canvas);
  EXPECT_TRUE(blueWithSign(-1));
  EXPECT_FALSE(blueWithSign(1));
}

TEST_F(ShadowBarTest, TellsWhatTheDialReadsOrWhyNothing) {
  const Panel& panel = desk.program.panel();
  const Sun sun = sunAt(panel, {2026, 6, 21, 10.5});
  const QString reading = "The dial reads " + shown(clockText(hourTold(panel, sun))) + ".";
  EXPECT_TRUE(label("shadowReading").startsWith(reading)) << label("shadowReading").toStdString();
  slider("shadowTime").setValue(0);
  EXPECT_EQ(label("shadowReading"), "The sun is down.");
  EXPECT_TRUE(canvas.shadow().empty());
  slider("shadowTime").setValue(5 * 60 + 15);  // a summer's sun rises behind a wall to the South
  EXPECT_TRUE(label("shadowReading").endsWith("throws no shadow on the dial."));
  desk.choose(Item::mnuDia);
  EXPECT_EQ(label("shadowReading"), "This dial throws no shadow that could be shown.");
  EXPECT_FALSE(slider("shadowTime").isEnabled());
}

// Before any run, and while it is hidden without any work.
TEST_F(ShadowBarTest, FollowsThePanel) {
  const proof::Instant moment{2026, 6, 21, 10.5};
  desk.type(Field::TxtStilo, "0.45");
  EXPECT_TRUE(isOf(moment));
  sheet.shadowAction()->trigger();
  EXPECT_FALSE(bar.isVisible());
  desk.window.history().undo();
  EXPECT_TRUE(canvas.shadow().empty());
  sheet.shadowAction()->trigger();
  EXPECT_TRUE(isOf(moment));
}

}  // namespace
}  // namespace dialwright
