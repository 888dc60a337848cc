// The about window, the splash, the icon, and the choice of light or dark.
#include "ui/about_window.hpp"

#include <QFile>
#include <QMenu>
#include <QPointer>

#include "ui/appearance.hpp"
#include "ui/application.hpp"
#include "ui/icon.hpp"
#include "ui/splash.hpp"

namespace dialwright {
namespace {

class AboutTest : public ::testing::Test, protected Workplace {};

TEST_F(AboutTest, SaysThatThereIsNoToolOfTheSystem) {
  std::string said;
  program.ports.message = [&said](std::string_view text) { said = text; };
  AboutWindow window(program);
  EXPECT_EQ(named<QLabel>("lblVersion", window).text(), "Version " DIALWRIGHT_VERSION);
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", QByteArray::fromStdString(folder.path().string()));
  named<QAbstractButton>("cmdSysInfo", window).click();
  qputenv("PATH", path);
  EXPECT_EQ(said, "System Information Is Unavailable At This Time");
}

TEST_F(AboutTest, TheSplashGoesByAClickOrByItself) {
  QPointer<QWidget> splash;
  const auto show = [&] {
    Splash::show(program);
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == "frmSplash" && window->isVisible()) splash = window;
    }
  };
  const auto visible = [&] { return splash && splash->isVisible(); };
  show();
  ASSERT_TRUE(visible());
  EXPECT_EQ(named<QLabel>("lblVersion", *splash).text(), "Release " DIALWRIGHT_VERSION);
  QTest::mouseClick(splash, Qt::LeftButton);
  EXPECT_FALSE(visible());
  show();
  EXPECT_TRUE(visible());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !splash; }, 10 * Splash::kMilliseconds));
}

TEST(Icon, IsTheOneThatPackagesInstall) {
  QFile file(DIALWRIGHT_SOURCE_DIR "/packaging/icons/dialwright.svg");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(file.readAll()), iconSvg());
}

TEST_F(AboutTest, LightAndDarkAreChosenInAMenu) {
  Appearance appearance;
  QSignalSpy chosen(&appearance, &Appearance::chosen);
  QMenu menu;
  appearance.fillMenu(menu, program);
  EXPECT_TRUE(menu.actions().first()->isChecked());
  menu.actions().last()->trigger();
  EXPECT_EQ(chosen.size(), 1);
  EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 100);
  EXPECT_TRUE(appearance.dark());
  appearance.choose(Appearance::choiceOf(Appearance::nameOf(Appearance::Choice::Light)));
  EXPECT_FALSE(appearance.dark());
}

}  // namespace
}  // namespace dialwright
