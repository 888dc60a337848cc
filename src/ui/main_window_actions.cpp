// What the user does in the window, and what becomes of it.
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "persist/safe_file.hpp"
#include "ui/main_window.hpp"
#include "ui/text.hpp"

namespace dialwright {

void MainWindow::begin(const std::filesystem::path& file) {
  if (!file.empty()) {
    projects_->openPath(file);
  } else {
    projects_->offerRecovery();
  }
}

void MainWindow::choose(Item item) {
  switch (item) {
    case Item::mnu_Nuovo: projects_->newSheet(); break;
    case Item::mnuLoad: projects_->open(); break;
    case Item::MnuSalva: projects_->saveAs(); break;
    case Item::mnuPrinter: sheet_.setUpPrinter(); break;
    case Item::mnuExit: close(); break;
    case Item::mnu_Decl: openBoard(program_, this, [this] { inputsChanged(); }); break;
    case Item::M_About: openAbout(program_, this); break;
    case Item::mnuInglese:
    case Item::mnuItalian:
    case Item::mnuFrancais:
    case Item::mnuEspanol: {
      const std::string answer = program_.chooseLanguage(item);
      menus_->refresh();
      dialogs_.message(shown(answer));
      break;
    }
    default: chooseDial(item); break;
  }
}

void MainWindow::chooseDial(Item dial) {
  change(T("Dial"), [&] { program_.click(dial); });
  tabs_->setCurrentWidget(panel_);
}

void MainWindow::press(Field button) {
  const Control& control = program_.panel()[button];
  if (!control.visible || !control.enabled) return;
  if (button == Field::cmdRun) {
    runner_->run();
    return;
  }
  if (button == Field::cmdSave) {
    try {
      program_.SalvaDefault();
      emit projects_->remark(T("Saved: ") + shown(program_.store().NomeFile().string()));
    } catch (const FileError& error) {
      dialogs_.message(shown(error.what()));
    }
    panel_->widgetOf(Field::cmdRun)->setFocus();
    return;
  }
  runner_->draw([this, button] {
    history_->make(nameOf(button), [&] { program_.press(rowOf(button).name); });
    refresh();
  });
}

void MainWindow::change(const QString& name, const std::function<void()>& action, Field field) {
  history_->make(name, action, field);
  inputsChanged();
}

// The sheet follows once it has been drawn.
void MainWindow::inputsChanged() {
  panel_->refresh();
  menus_->refresh();
  sheet_.inputsChanged();
  runner_->inputsChanged();
}

// --- Ends and drops

void MainWindow::closeEvent(QCloseEvent* event) {
  if (projects_->changed() && !projects_->mayLeave()) {
    event->ignore();
    return;
  }
  runner_->cancel();
  projects_->autosave().setChanged(false);
  settings_.keepWindow(saveGeometry(), split_->saveState());
  event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls() && event->mimeData()->urls().size() == 1 &&
      event->mimeData()->urls().front().isLocalFile())
    event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  projects_->openPath(event->mimeData()->urls().front().toLocalFile().toStdString());
}

}  // namespace dialwright
