// Says which program and which version this is.
#include "ui/about_window.hpp"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <array>

#include "ui/text.hpp"
#include "ui/title.hpp"

namespace dialwright {

namespace {

constexpr int kLogo = 64;
constexpr double kTitleGrowth = 1.6;

// The desktops' tools about the system, each as it is started.
struct SystemTool {
  const char* program;
  const char* argument;
};
constexpr std::array kSystemTools = {
    SystemTool{"kinfocenter", nullptr},
    SystemTool{"gnome-control-center", "info-overview"},
    SystemTool{"hardinfo", nullptr},
    SystemTool{"mate-system-monitor", "--show-system-tab"},
};

bool startSystemTool() {
  for (const SystemTool& tool : kSystemTools) {
    const QString path = QStandardPaths::findExecutable(tool.program);
    const QStringList arguments =
        tool.argument == nullptr ? QStringList() : QStringList(tool.argument);
    if (!path.isEmpty() && QProcess::startDetached(path, arguments)) return true;
  }
  return false;
}

}  // namespace

AboutWindow::AboutWindow(const Program& program, QWidget* parent)
    : QDialog(parent), program_(program) {
  setObjectName("frmAbout");
  setWindowTitle(shown(program.T("About ")) + shown(Program::kTitle));

  QLabel* logo = logoLabel(kLogo, this);
  QLabel* title = titleLabel(kTitleGrowth, this);
  title->setObjectName("lblTitle");
  auto* version = new QLabel(shown(program.T("Version ") + DIALWRIGHT_VERSION), this);
  version->setObjectName("lblVersion");
  auto* description = new QLabel(shown(program.T("The sundial design tool")), this);
  description->setObjectName("lblDescription");

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
  ok->setObjectName("cmdOK");
  ok->setText(shown(program.T("OK")));
  QPushButton* system =
      buttons->addButton(shown(program.T("System Info...")), QDialogButtonBox::ActionRole);
  system->setObjectName("cmdSysInfo");
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(system, &QPushButton::clicked, this, &AboutWindow::cmdSysInfo_Click);

  auto* texts = new QVBoxLayout;
  for (QLabel* label : {title, version, description}) texts->addWidget(label);
  auto* head = new QHBoxLayout;
  head->setSpacing(20);
  head->addWidget(logo, 0, Qt::AlignTop);
  head->addLayout(texts, 1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(24, 24, 24, 16);
  column->setSpacing(20);
  column->addLayout(head);
  column->addWidget(buttons);
  column->setSizeConstraint(QLayout::SetFixedSize);
}

void AboutWindow::cmdSysInfo_Click() {
  if (startSystemTool() || !program_.ports.message) return;
  program_.ports.message(program_.T("System Information Is Unavailable At This Time"));
}

}  // namespace dialwright
