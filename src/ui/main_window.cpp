// Putting the window together: who is told of what.
#include "ui/main_window.hpp"

#include <QApplication>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

#include "ui/text.hpp"

namespace dialwright {

MainWindow::MainWindow(Program& program, QWidget* parent)
    : QMainWindow(parent),
      program_(program),
      settings_(program.config().workingFolder),
      dialogs_(dialogsOver(this, program)),
      history_(new History(program, this)),
      projects_(new Projects(program, *history_, settings_, dialogs_, this)),
      runner_(new Runner(program, this)),
      menus_(new Menus(program, *menuBar())),
      panel_(new InputPanel(program, this)),
      progress_(new ProgressBox(program, this)) {
  fillPorts();
  layOut();
  addEditMenu();
  addFileItems();
  connectInputs();
  connectRuns();
  connectProjects();
  setAcceptDrops(true);
  refresh();
  refreshTitle();
}

QString MainWindow::T(std::string_view text) const { return shown(program_.T(text)); }

// What the program itself asks for: outside of a run, which has ports of its own.
void MainWindow::fillPorts() {
  program_.ports.message = [this](std::string_view text) { dialogs_.message(shown(text)); };
  program_.ports.beep = [] { QApplication::beep(); };
  program_.ports.hourglass = [](bool busy) {
    if (busy) {
      QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
      QApplication::restoreOverrideCursor();
    }
  };
}

void MainWindow::layOut() {
  under_ = new QLabel(this);
  sheet_ = makeSheetPart(
      program_, settings_, this, [this](const QString& text) { under_->setText(text); },
      [this](const QString& text) { dialogs_.message(text); });
  tabs_ = new QTabWidget(this);
  tabs_->setDocumentMode(true);
  tabs_->addTab(panel_, T("Inputs"));
  tabs_->addTab(makeGallery(program_, this, [this](Item dial) { chooseDial(dial); }),
                T("Catalogue"));
  split_ = new QSplitter(this);
  split_->addWidget(tabs_);
  split_->addWidget(sheet_.widget);
  split_->setStretchFactor(1, 1);
  split_->setChildrenCollapsible(false);
  setCentralWidget(split_);
  statusBar()->addPermanentWidget(under_);
  statusBar()->addPermanentWidget(progress_);
  progress_->hide();
  resize(1280, 720);
  split_->setSizes({panel_->minimumSizeHint().width(), width()});
  restoreGeometry(settings_.geometry());
  split_->restoreState(settings_.split());
}

void MainWindow::addEditMenu() {
  auto* edit = new QMenu(menuBar());
  QAction* undo = history_->createUndoAction(this, '&' + T("Undo"));
  undo->setShortcut(QKeySequence::Undo);
  QAction* redo = history_->createRedoAction(this, '&' + T("Redo"));
  redo->setShortcuts({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")});
  edit->addActions({undo, redo});
  edit->addSeparator();
  edit->addAction(T("Run"), QKeySequence("F5"), this, [this] { press(Field::cmdRun); });
  edit->addAction(T("Data"), QKeySequence("F6"), this, [this] { press(Field::cmdData); });
  QAction* live = edit->addAction(T("Live"));
  live->setShortcut(QKeySequence("Ctrl+L"));
  live->setCheckable(true);
  connect(live, &QAction::toggled, panel_->live(), &QCheckBox::setChecked);
  connect(panel_->live(), &QCheckBox::toggled, live, &QAction::setChecked);
  edit->setTitle(T("Edit"));
  giveMnemonics(*edit);
  menuBar()->insertMenu(menus_->actionOf(Item::M_Quadranti), edit);
  giveMnemonics(*menuBar());
}

void MainWindow::addFileItems() {
  QMenu* file = menus_->menu(Item::nome);
  file->insertMenu(menus_->actionOf(Item::MnuSalva), projects_->recentMenu());
  auto* save = new QAction(T("Save the project"), this);
  save->setShortcut(QKeySequence::Save);
  connect(save, &QAction::triggered, projects_, &Projects::save);
  file->insertAction(menus_->actionOf(Item::MnuSalva), save);
  auto* exporting = new QAction(T("Export..."), this);
  exporting->setShortcut(QKeySequence("Ctrl+E"));
  connect(exporting, &QAction::triggered, this, [this] { sheet_.exportAs(); });
  auto* pages = new QAction(T("A4 pages..."), this);
  pages->setShortcut(QKeySequence::Print);
  connect(pages, &QAction::triggered, this, [this] { sheet_.previewPages(); });
  file->insertActions(menus_->actionOf(Item::mnuSep2), {exporting, pages});
  giveMnemonics(*file);
  QMenu* tools = menus_->menu(Item::mnuTools);
  sheet_.shadow->setShortcut(QKeySequence("F7"));
  tools->addAction(sheet_.shadow);
  giveMnemonics(*tools);
}

void MainWindow::offer(Appearance& appearance) {
  appearance.choose(Appearance::choiceOf(settings_.appearance()));
  auto* menu = new QMenu(T("Colours"), this);
  appearance.fillMenu(*menu, program_);
  giveMnemonics(*menu);
  menus_->menu(Item::mnuTools)->addMenu(menu);
  giveMnemonics(*menus_->menu(Item::mnuTools));
  connect(&appearance, &Appearance::chosen, this, [this](Appearance::Choice choice) {
    settings_.keepAppearance(Appearance::nameOf(choice));
  });
}

void MainWindow::connectInputs() {
  connect(panel_, &InputPanel::typed, this, [this](Field field, const QString& text) {
    change(
        nameOf(field), [&] { program_.type(field, text.toStdString()); }, field);
  });
  connect(panel_, &InputPanel::clicked, this, [this](Field field, bool state) {
    change(nameOf(field), [&] { program_.click(field, state); });
    if (field == Field::ckFrame) sheet_.refresh();
  });
  connect(panel_, &InputPanel::pressed, this, &MainWindow::press);
  connect(panel_, &InputPanel::beep, this, [] { QApplication::beep(); });
  connect(menus_, &Menus::chosen, this, &MainWindow::choose);
  connect(history_, &History::restored, this, &MainWindow::inputsChanged);
}

void MainWindow::connectRuns() {
  connect(panel_->live(), &QCheckBox::toggled, this, [this](bool live) {
    settings_.keepLive(live);
    runner_->setLive(live);
  });
  const QSignalBlocker quiet(panel_->live());
  panel_->live()->setChecked(settings_.live());
  runner_->makeLive(settings_.live());
  connect(runner_, &Runner::drawn, this, &MainWindow::refresh);
  connect(runner_, &Runner::message, this, [this](const QString& text) { dialogs_.message(text); });
  connect(runner_, &Runner::remark, this,
          [this](const QString& text) { statusBar()->showMessage(text); });
  connect(runner_, &Runner::beep, this, [] { QApplication::beep(); });
  connect(runner_, &Runner::slow, progress_, &QWidget::setVisible);
  connect(runner_, &Runner::progress, progress_, &ProgressBox::setSamples);
  connect(progress_, &ProgressBox::cancelled, runner_, &Runner::cancel);
}

void MainWindow::connectProjects() {
  connect(projects_, &Projects::loaded, this, [this] {
    refresh();
    runner_->runLoaded();
    sheet_.showFit();
  });
  connect(projects_, &Projects::emptied, this, [this] {
    runner_->cancel();
    refresh();
  });
  connect(projects_, &Projects::titleChanged, this, &MainWindow::refreshTitle);
  connect(projects_, &Projects::remark, this,
          [this](const QString& text) { statusBar()->showMessage(text, 5000); });
}

void MainWindow::refresh() {
  panel_->refresh();
  menus_->refresh();
  sheet_.refresh();
}

void MainWindow::refreshTitle() {
  const QString name = shown(projects_->file().filename().string());
  setWindowTitle((name.isEmpty() ? QString() : name + "[*] - ") + shown(Program::kTitle) +
                 (name.isEmpty() ? "[*]" : ""));
  setWindowModified(projects_->changed());
}

}  // namespace dialwright
