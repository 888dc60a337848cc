// The main window: the menus, the input panel and the catalogue on the left, the sheet on the
// right.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QSplitter>
#include <QTabWidget>
#include <filesystem>

#include "app/program.hpp"
#include "ui/appearance.hpp"
#include "ui/dialogs.hpp"
#include "ui/input_panel.hpp"
#include "ui/menus.hpp"
#include "ui/parts.hpp"
#include "ui/progress_box.hpp"
#include "ui/projects.hpp"
#include "ui/runner.hpp"
#include "ui/settings.hpp"
#include "ui/undo.hpp"

namespace dialwright {

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // The program, which must be the window's alone, outlives it.
  explicit MainWindow(Program& program, QWidget* parent = nullptr);

  // What a start does once the window is there: offers what a crash has left, or opens the file.
  void begin(const std::filesystem::path& file);

  // Adds the choice of light or dark to the menus, and takes the one that is stored.
  void offer(Appearance& appearance);

  InputPanel& inputs() { return *panel_; }
  Menus& menus() { return *menus_; }
  Projects& projects() { return *projects_; }
  Runner& runner() { return *runner_; }
  History& history() { return *history_; }
  Dialogs& dialogs() { return dialogs_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void fillPorts();
  void layOut();
  void addEditMenu();
  void addFileItems();
  void connectInputs();
  void connectRuns();
  void connectProjects();

  void choose(Item item);
  void chooseDial(Item dial);
  void press(Field button);
  void change(const QString& name, const std::function<void()>& action, Field field = Field::None);
  void inputsChanged();
  void refresh();
  void refreshTitle();
  QString T(std::string_view text) const;
  // What the user calls a field.
  QString nameOf(Field field) const { return panel_->widgetOf(field)->accessibleName(); }

  Program& program_;
  Settings settings_;
  Dialogs dialogs_;
  History* history_;
  Projects* projects_;
  Runner* runner_;
  Menus* menus_;
  InputPanel* panel_;
  QTabWidget* tabs_ = nullptr;
  QSplitter* split_ = nullptr;
  SheetPart sheet_;
  ProgressBox* progress_;
  QLabel* under_ = nullptr;  // what lies under the cursor on the sheet
};

}  // namespace dialwright
