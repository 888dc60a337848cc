// Shows a dial, the catalogue, the dark look and the windows beside, and takes each as it stands.
#include "ui/screenshots.hpp"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <chrono>

#include "ui/appearance.hpp"
#include "ui/az_instructions.hpp"
#include "ui/board_window.hpp"
#include "ui/gallery.hpp"
#include "ui/main_window.hpp"
#include "ui/shadow_bar.hpp"
#include "ui/sheet_canvas.hpp"
#include "ui/sheet_widget.hpp"

namespace dialwright {

namespace {

constexpr QSize kWindow{1280, 720};
constexpr double kCloser = 1.6;  // than the whole sheet
constexpr int kMoment = 700;     // milliseconds in which whatever goes on changes a window
constexpr int kMostMoments = 30;

// A moment of its own, so that the picture is the same each time.
using namespace std::chrono_literals;
constexpr std::chrono::sys_seconds kMidsummer = std::chrono::sys_days{2026y / 6 / 21} + 9h + 30min;

void wait(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

// The window once it has come to rest: no run, no picture under way.
QPixmap restful(QWidget& window) {
  wait(kMoment);
  QPixmap before = window.grab();
  for (int moment = 0; moment < kMostMoments; ++moment) {
    wait(kMoment);
    QPixmap now = window.grab();
    if (now.toImage() == before.toImage()) return now;
    before = std::move(now);
  }
  return before;
}

class Camera {
 public:
  explicit Camera(const QString& folder) : folder_(folder) {}

  void take(QWidget& window, const QString& name) {
    good_ &= restful(window).save(folder_.filePath("desktop-" + name + ".png"), "PNG");
  }
  bool good() const { return good_; }

 private:
  QDir folder_;
  bool good_ = true;
};

void show(MainWindow& window, Item dial, std::initializer_list<Field> boxes) {
  window.menus().actionOf(dial)->trigger();
  for (const Field field : boxes) {
    if (auto* box = qobject_cast<QCheckBox*>(window.inputs().widgetOf(field));
        box != nullptr && !box->isChecked())
      box->click();
  }
  while (window.runner().busy()) wait(kMoment / 10);
  auto* sheet = window.findChild<SheetWidget*>();
  sheet->showFit();
  sheet->canvas().zoomBy(kCloser);
}

}  // namespace

bool takeScreenshots(MainWindow& window, Program& program, Appearance& appearance,
                     const QString& folder) {
  Camera camera(folder);
  QApplication::setCursorFlashTime(0);  // a cursor that blinks is never at rest
  window.resize(kWindow);
  appearance.choose(Appearance::Choice::Light);
  window.inputs().live()->setChecked(true);

  show(window, Item::mnuUni,
       {Field::ckArabi, Field::ck_Lemniscate, Field::ck_Triangolo, Field::ck_Italiche});
  camera.take(window, "dial");

  auto* sheet = window.findChild<SheetWidget*>();
  sheet->shadowAction()->trigger();
  sheet->shadowBar().setMoment(QDate(2026, 6, 21), 10 * 60 + 30);
  camera.take(window, "shadow");
  sheet->shadowAction()->trigger();

  auto* tabs = window.findChild<QTabWidget*>();
  auto* gallery = window.findChild<Gallery*>();
  tabs->setCurrentWidget(gallery);
  camera.take(window, "catalogue");

  appearance.choose(Appearance::Choice::Dark);
  show(window, Item::mnuBall_v, {Field::ckArabi, Field::ck_Lemniscate});
  camera.take(window, "dark");
  appearance.choose(Appearance::Choice::Light);

  BoardWindow board(program, &window);
  board.board().setMoment(kMidsummer);
  board.refresh();
  board.show();
  board.findChild<QPushButton*>("cmdCalcola")->click();
  camera.take(board, "board");
  auto* instructions = new AzInstructions(
      board.board(), [&program](std::string_view text) { return program.T(text); }, &board);
  instructions->show();
  camera.take(*instructions, "instructions");
  instructions->close();
  return camera.good();
}

}  // namespace dialwright
