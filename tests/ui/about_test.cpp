// The about window, the splash, the icon, and the colours of light and dark.
#include "ui/about_window.hpp"

#include <QColorSpace>
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

// The contrast of the Web Content Accessibility Guidelines, 1 to 21.
double contrast(const QColor& a, const QColor& b) {
  const auto linear = QColorSpace(QColorSpace::SRgb)
                          .transformationToColorSpace(QColorSpace(QColorSpace::SRgbLinear));
  const auto luminance = [&linear](const QColor& colour) {
    const QColor light = linear.map(colour);
    return 0.2126 * light.redF() + 0.7152 * light.greenF() + 0.0722 * light.blueF();
  };
  const double one = luminance(a) + 0.05, other = luminance(b) + 0.05;
  return std::max(one, other) / std::min(one, other);
}

TEST(Palettes, EveryTextStandsOutFromItsGround) {
  using P = QPalette;
  constexpr std::pair<P::ColorRole, P::ColorRole> kPairs[] = {
      {P::WindowText, P::Window},       {P::Text, P::Base},
      {P::Text, P::AlternateBase},      {P::PlaceholderText, P::Base},
      {P::ButtonText, P::Button},       {P::HighlightedText, P::Highlight},
      {P::ToolTipText, P::ToolTipBase}, {P::Link, P::Base}};
  for (const QPalette& palette : {lightPalette(), darkPalette()}) {
    for (const auto& [text, ground] : kPairs) {
      EXPECT_GE(contrast(palette.color(text), palette.color(ground)), 4.5) << text;
      EXPECT_GE(contrast(palette.color(P::Disabled, text), palette.color(P::Disabled, ground)), 3);
    }
  }
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
