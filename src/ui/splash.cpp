// Builds the splash and lets it go.
#include "ui/splash.hpp"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/icon.hpp"
#include "ui/text.hpp"

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

  auto* logo = new QLabel(this);
  logo->setObjectName("imgLogo");
  logo->setPixmap(iconPixmap(kLogo));
  auto* title = new QLabel(shown(Program::kTitle), this);
  title->setObjectName("lblProductName");
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * kTitleGrowth);
  title->setFont(large);
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
