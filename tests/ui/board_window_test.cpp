#include "ui/board_window.hpp"
#include <QPushButton>
#include "ui/appearance.hpp"
#include "ui/application.hpp"
#include "ui/az_instructions.hpp"
namespace dialwright {
TEST(LookBoard, Windows) {
  Appearance ap;
  for (auto c : {Appearance::Choice::Light, Appearance::Choice::Dark}) {
    ap.choose(c);
    for (const char* lang : {"en", "it", "fr", "es"}) {
      Program program({.workingFolder = "/tmp/extras_pics/w",
                       .dataFolder = DIALWRIGHT_DATA_DIR,
                       .language = lang});
      BoardWindow w(program);
      w.show();
      w.findChild<QPushButton*>("cmdCalcola")->click();
      w.grab().save(QString("/tmp/extras_pics/board-%1-%2.png").arg(lang, Appearance::nameOf(c)));
      AzInstructions a(w.board(), [&](std::string_view t) { return program.T(t); });
      a.setAttribute(Qt::WA_DeleteOnClose, false);
      a.show();
      a.grab().save(QString("/tmp/extras_pics/az-%1-%2.png").arg(lang, Appearance::nameOf(c)));
    }
  }
}
}  // namespace dialwright
