// Putting the window together.
#include "ui/main_window.hpp"

#include "ui/text.hpp"

namespace dialwright {

MainWindow::MainWindow(Program& program, QWidget* parent) : QMainWindow(parent), program_(program) {
  setWindowTitle(shown(Program::kTitle));
}

void MainWindow::openProject(const std::filesystem::path& path) { program_.CaricaProgetto(path); }

}  // namespace dialwright
