// The about window, the splash, the icon, and the colours of light and dark.
#include "ui/about_window.hpp"

#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <cmath>

#include "support/folder.hpp"
#include "ui/appearance.hpp"
#include "ui/application.hpp"
#include "ui/icon.hpp"
#include "ui/splash.hpp"

namespace dialwright {
namespace {

// What is set in the environment, until the end of a test.
class Setting {
 public:
  Setting(const char* name, const QByteArray& value) : name_(name), old_(qgetenv(name)) {
    qputenv(name, value);
  }
  ~Setting() { qputenv(name_, old_); }

 private:
  const char* name_;
  QByteArray old_;
};

class AboutTest : public ::testing::Test {
 protected:
  const Folder folder;
  Program program{{folder.path(), DIALWRIGHT_DATA_DIR, "en"}};
};

TEST_F(AboutTest, SaysTitleVersionAndDescription) {
  AboutWindow window(program);
  window.show();
  EXPECT_EQ(window.windowTitle(), "About Dialwright");
  EXPECT_EQ(window.findChild<QLabel*>("lblTitle")->text(), "Dialwright");
  EXPECT_EQ(window.findChild<QLabel*>("lblVersion")->text(), "Version " DIALWRIGHT_VERSION);
  EXPECT_FALSE(window.findChild<QLabel*>("lblDescription")->text().isEmpty());
  window.findChild<QPushButton*>("cmdOK")->click();
  EXPECT_FALSE(window.isVisible());
}

TEST_F(AboutTest, StartsTheSystemsToolOrSaysThatThereIsNone) {
  std::vector<std::string> said;
  program.ports.message = [&](std::string_view text) { said.emplace_back(text); };
  AboutWindow window(program);
  QPushButton& system = *window.findChild<QPushButton*>("cmdSysInfo");
  const Setting path("PATH", QByteArray::fromStdString(folder.path().string()));
  system.click();
  EXPECT_EQ(said, std::vector<std::string>{"System Information Is Unavailable At This Time"});

  folder.put("hardinfo", "#!/bin/sh\n: > \"$0.started\"\n");
  std::filesystem::permissions(folder / "hardinfo", std::filesystem::perms::owner_all);
  system.click();
  EXPECT_EQ(said.size(), 1u);
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return std::filesystem::exists(folder / "hardinfo.started"); }));
}

QPointer<QWidget> shownSplash(const Program& program) {
  Splash::show(program);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "frmSplash" && window->isVisible()) return window;
  }
  return {};
}

TEST_F(AboutTest, TheSplashGoesByAKeyAClickOrByItself) {
  QPointer<QWidget> splash = shownSplash(program);
  ASSERT_TRUE(splash);
  EXPECT_EQ(splash->findChild<QLabel*>("lblVersion")->text(), "Release " DIALWRIGHT_VERSION);
  EXPECT_EQ(splash->findChild<QLabel*>("lblProductName")->text(), "Dialwright");
  QTest::mouseClick(splash, Qt::LeftButton);
  EXPECT_TRUE(!splash || !splash->isVisible());

  splash = shownSplash(program);
  QWidget other;  // a key pressed anywhere
  QTest::keyClick(&other, Qt::Key_A);
  EXPECT_TRUE(!splash || !splash->isVisible());

  splash = shownSplash(program);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !splash; }, 2 * Splash::kMilliseconds));
}

TEST(Icon, IsTheOneThatPackagesInstall) {
  QFile file(DIALWRIGHT_SOURCE_DIR "/packaging/icons/dialwright.svg");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(file.readAll()), iconSvg());
  const QImage small = applicationIcon().pixmap(16).toImage();
  EXPECT_EQ(small.size(), QSize(16, 16));
  EXPECT_EQ(small.pixelColor(0, 0).alpha(), 0);     // around the plate
  EXPECT_GT(small.pixelColor(8, 14).alpha(), 200);  // the plate
  EXPECT_LT(small.pixelColor(8, 11).lightness(), small.pixelColor(11, 12).lightness());  // noon
}

// The contrast of the Web Content Accessibility Guidelines, 1 to 21.
double contrast(const QColor& a, const QColor& b) {
  const auto luminance = [](const QColor& colour) {
    const auto linear = [](double c) {
      return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
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
      EXPECT_GE(contrast(palette.color(text), palette.color(ground)), 4.5)
          << text << " on " << ground << " of " << palette.color(P::Window).name().toStdString();
      EXPECT_GE(contrast(palette.color(P::Disabled, text), palette.color(P::Disabled, ground)), 3);
    }
  }
}

TEST_F(AboutTest, LightAndDarkAreChosenInAMenu) {
  Appearance appearance;
  QSignalSpy chosen(&appearance, &Appearance::chosen);
  QMenu menu;
  appearance.fillMenu(menu, program);
  ASSERT_EQ(menu.actions().size(), 3);
  EXPECT_TRUE(menu.actions()[0]->isChecked());
  menu.actions()[2]->trigger();
  EXPECT_EQ(chosen.size(), 1);
  EXPECT_TRUE(appearance.dark());
  EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 100);
  EXPECT_EQ(Appearance::choiceOf(Appearance::nameOf(appearance.choice())),
            Appearance::Choice::Dark);
  EXPECT_EQ(Appearance::choiceOf("nonsense"), Appearance::Choice::System);
  appearance.choose(Appearance::Choice::Light);
  EXPECT_FALSE(appearance.dark());
}

}  // namespace
}  // namespace dialwright
