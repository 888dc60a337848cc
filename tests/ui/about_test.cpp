#include <QFile>
#include "ui/about_window.hpp"
#include "ui/appearance.hpp"
#include "ui/application.hpp"
#include "ui/icon.hpp"
#include "ui/splash.hpp"
namespace dialwright {
TEST(LookAbout, Windows) {
  QFile f(DIALWRIGHT_SOURCE_DIR "/packaging/icons/dialwright.svg");
  f.open(QIODevice::WriteOnly);
  f.write(iconSvg().toUtf8());
  f.close();
  Appearance ap;
  for (auto c : {Appearance::Choice::Light, Appearance::Choice::Dark}) {
    ap.choose(c);
    for (const char* lang : {"en", "it", "fr", "es"}) {
      Program program({.workingFolder = "/tmp/extras_pics/w",
                       .dataFolder = DIALWRIGHT_DATA_DIR,
                       .language = lang});
      AboutWindow w(program);
      w.show();
      w.grab().save(QString("/tmp/extras_pics/about-%1-%2.png").arg(lang, Appearance::nameOf(c)));
      Splash::show(program);
      for (QWidget* s : QApplication::topLevelWidgets())
        if (s->objectName() == "frmSplash") {
          s->grab().save("/tmp/extras_pics/splash.png");
          s->close();
        }
    }
  }
  for (int s : {16, 32, 128}) iconPixmap(s).save(QString("/tmp/extras_pics/i%1.png").arg(s));
}
}  // namespace dialwright
