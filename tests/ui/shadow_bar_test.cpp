// The moving shadow: its sliders, its words, and the lines that stand over the sheet.
#include "ui/shadow_bar.hpp"

#include <QLabel>
#include <QSlider>
#include <QTest>

#include "app/moment.hpp"
#include "ui/application.hpp"
#include "ui/desk.hpp"
#include "ui/sheet_canvas.hpp"
#include "ui/sheet_widget.hpp"

namespace dialwright {
namespace {

bool same(const std::vector<proof::Polyline>& a, const std::vector<proof::Polyline>& b) {
  const auto equal = [](Punto one, Punto other) { return one.x == other.x && one.y == other.y; };
  return std::ranges::equal(a, b, [&](const proof::Polyline& one, const proof::Polyline& other) {
    return std::ranges::equal(one, other, equal);
  });
}

class ShadowBarTest : public ::testing::Test {
 protected:
  ShadowBarTest() {
    desk.window.inputs().live()->setChecked(false);
    desk.choose(Item::mnuUni);
    desk.press(Field::cmdRun);
    sheet.shadowAction()->trigger();
    bar.setMoment(QDate(2026, 6, 21), 10 * 60 + 30);
    EXPECT_TRUE(QTest::qWaitFor([this] { return canvas.sharp(); }, 20000));
  }

  QString label(const char* name) const { return bar.findChild<QLabel*>(name)->text(); }
  QSlider& slider(const char* name) const { return *bar.findChild<QSlider*>(name); }
  std::vector<proof::Polyline> expected(const proof::Instant& moment) const {
    return shadowOf(desk.program.panel(), sunAt(desk.program.panel(), moment));
  }
  QImage picture() const { return canvas.viewport()->grab().toImage(); }

  Desk desk;
  SheetWidget& sheet = *desk.window.findChild<SheetWidget*>();
  SheetCanvas& canvas = sheet.canvas();
  ShadowBar& bar = sheet.shadowBar();
};

TEST_F(ShadowBarTest, MovesTheShadowOverTheSheetByKeys) {
  const proof::Instant first{2026, 6, 21, 10.5};
  EXPECT_TRUE(same(canvas.shadow(), expected(first)));
  EXPECT_FALSE(canvas.shadow().empty());
  const QImage before = picture();
  QTest::keyClick(&slider("shadowTime"), Qt::Key_PageUp);
  EXPECT_EQ(label("shadowTimeValue"), "11:30");
  EXPECT_TRUE(same(canvas.shadow(), expected({2026, 6, 21, 11.5})));
  EXPECT_TRUE(canvas.sharp()) << "no new picture of the sheet";
  EXPECT_NE(picture(), before);
  QTest::keyClick(&slider("shadowTime"), Qt::Key_PageDown);
  EXPECT_EQ(picture(), before);
  QTest::keyClick(&slider("shadowDay"), Qt::Key_Right);
  EXPECT_EQ(label("shadowDayValue"), "2026-06-22");
  QTest::keyClick(&slider("shadowDay"), Qt::Key_End);
  EXPECT_EQ(label("shadowDayValue"), "2026-12-31");
  EXPECT_TRUE(same(canvas.shadow(), expected({2026, 12, 31, 10.5})));
  for (const char* name : {"shadowTime", "shadowDay"}) {
    EXPECT_FALSE(slider(name).accessibleName().isEmpty());
    EXPECT_EQ(slider(name).accessibleDescription(), label((std::string(name) + "Value").c_str()));
  }
}

// Its end lies on the sheet where the drawing has the sun of that moment, whichever way the sheet
// is turned.
TEST_F(ShadowBarTest, LiesAsTheSheetDoes) {
  const QColor blue(redOf(kShadowBlue), greenOf(kShadowBlue), blueOf(kShadowBlue));
  const auto blueBeside = [&](double signX, double signY) {
    const SheetPlot& plot = desk.program.sheet();
    const proof::Polyline& line = canvas.shadow().front();
    const Punto at = line[line.size() / 2];
    const QPointF place(plot.ShiftX() + signX * at.x, plot.ShiftY() - signY * at.y);
    return picture().pixelColor(canvas.toPixel(place).toPoint()) == blue;
  };
  canvas.zoomBy(3);
  const auto settled = [this] { return canvas.sharp(); };
  ASSERT_TRUE(QTest::qWaitFor(settled, 20000));
  EXPECT_TRUE(blueBeside(1, 1));
  desk.program.view().press(SheetCommand::cmdInvX);
  QCoreApplication::processEvents();
  ASSERT_TRUE(QTest::qWaitFor(settled, 20000));
  EXPECT_TRUE(blueBeside(-1, 1));
  sheet.shadowAction()->trigger();
  EXPECT_TRUE(canvas.shadow().empty());
  EXPECT_FALSE(bar.isVisible());
}

TEST_F(ShadowBarTest, TellsWhatTheDialReadsOrWhyNothing) {
  const Panel& panel = desk.program.panel();
  const Sun sun = sunAt(panel, {2026, 6, 21, 10.5});
  EXPECT_TRUE(label("shadowReading")
                  .startsWith("The dial reads " + shown(clockText(hourTold(panel, sun))) + "."))
      << label("shadowReading").toStdString();
  EXPECT_TRUE(
      label("shadowReading").contains(QString::number(placeInSky(panel, sun).height, 'f', 1)));
  slider("shadowTime").setValue(0);
  EXPECT_EQ(label("shadowReading"), "The sun is down.");
  EXPECT_TRUE(canvas.shadow().empty());
  slider("shadowTime").setValue(5 * 60 + 15);  // a summer's sun rises behind a wall to the South
  EXPECT_TRUE(label("shadowReading").endsWith("throws no shadow on the dial."));
  EXPECT_TRUE(slider("shadowTime").isEnabled());
  desk.choose(Item::mnuDia);
  EXPECT_EQ(label("shadowReading"), "This dial throws no shadow that could be shown.");
  EXPECT_FALSE(slider("shadowTime").isEnabled());
}

// Before any run, and while it is hidden without any work.
TEST_F(ShadowBarTest, FollowsThePanel) {
  const auto before = canvas.shadow();
  desk.type(Field::TxtStilo, "0.45");
  EXPECT_FALSE(same(canvas.shadow(), before));
  EXPECT_TRUE(same(canvas.shadow(), expected({2026, 6, 21, 10.5})));
  desk.window.history().undo();
  EXPECT_TRUE(same(canvas.shadow(), before));
  sheet.shadowAction()->trigger();
  desk.type(Field::TxtStilo, "0.3");
  EXPECT_TRUE(canvas.shadow().empty());
  sheet.shadowAction()->trigger();
  EXPECT_TRUE(same(canvas.shadow(), expected({2026, 6, 21, 10.5})));
}

TEST_F(ShadowBarTest, CutsNoTextInTheSmallestWindow) {
  for (const char* language : {"en", "it", "fr", "es"}) {
    Program other{{desk.folder.path(), DIALWRIGHT_DATA_DIR, language}};
    ShadowBar narrow(other);
    narrow.resize(640, narrow.sizeHint().height());
    narrow.show();
    for (const int hour : {0, 6, 12, 20}) {
      narrow.setMoment(QDate(2026, 6, 21), hour * 60);
      for (const QLabel* each : narrow.findChildren<QLabel*>()) {
        EXPECT_LE(each->sizeHint().width(), each->width()) << each->text().toStdString();
      }
    }
  }
}

}  // namespace
}  // namespace dialwright
