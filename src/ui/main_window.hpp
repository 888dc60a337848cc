// The main window: the menus, the input panel and the catalogue on the left, the sheet on the
// right.
#pragma once

#include <QMainWindow>
#include <filesystem>

#include "app/program.hpp"

namespace dialwright {

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // The program outlives its window.
  explicit MainWindow(Program& program, QWidget* parent = nullptr);

  // Opens a project as the menu does, without the dialog.
  void openProject(const std::filesystem::path& path);

 private:
  Program& program_;
};

}  // namespace dialwright
