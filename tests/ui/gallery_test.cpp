#include "ui/gallery.hpp"
#include <gtest/gtest.h>
#include "ui/application.hpp"
#include <QTest>
namespace dialwright {
TEST(Look, Gallery) {
  int argc = 1;
  char name[] = "t";
  char* argv[] = {name, nullptr};

  for (const char* lang : {"en", "it", "fr", "es"}) {
    Program program({.workingFolder = "/tmp/extras_pics/w",
                     .dataFolder = DIALWRIGHT_DATA_DIR,
                     .language = lang});
    Gallery g(program, {"/tmp/extras_pics/cache", "1.0.0", DIALWRIGHT_DATA_DIR});
    g.resize(1000, 700);
    g.show();
    QTest::qWait(3000);
    g.grab().save(QString("/tmp/extras_pics/gallery-%1.png").arg(lang));
  }
}
}  // namespace dialwright
