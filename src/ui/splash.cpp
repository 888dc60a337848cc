// Builds the splash and lets it go.
#include "ui/splash.hpp"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/text.hpp"
#include "ui/title.hpp"

namespace dialwright {

namespace {

constexpr int kLogo = 128;
constexpr double kTitleGrowth = 2.2;

}  // namespace

void Splash::show(const Program& program) {
  auto* splash = new Splash(program);
  splash->adjustSize();
  if (const QScreen* screen = QApplication::primaryScreen()) {
    splash->move(screen->availableGeometry().center() - splash->rect().center());
  }
  splash->setVisible(true);
  QTimer::singleShot(kMilliseconds, splash, &QWidget::close);
}

Splash::Splash(const Program& program)
    : QWidget(nullptr, Qt::SplashScreen | Qt::WindowStaysOnTopHint) {
  setObjectName("frmSplash");
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setWindowTitle(shown(Program::kTitle));

  QLabel* logo = logoLabel(kLogo, this);
  logo->setObjectName("imgLogo");
  QLabel* title = titleLabel(kTitleGrowth, this);
  title->setObjectName("lblProductName");
  auto* release = new QLabel(shown(program.T("Release ") + DIALWRIGHT_VERSION), this);
  release->setObjectName("lblVersion");

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(48, 32, 48, 32);
  column->setSpacing(12);
  for (QLabel* label : {logo, title, release}) column->addWidget(label, 0, Qt::AlignHCenter);
  qApp->installEventFilter(this);
}

void Splash::mousePressEvent(QMouseEvent*) { close(); }

bool Splash::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::KeyPress) close();
  return false;
}

}  // namespace dialwright
