// The desktop's entry point.
#include <QApplication>

#include "ui/main_window.hpp"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  dialwright::Program program({".", DIALWRIGHT_DATA_DIR, ""});
  dialwright::MainWindow window(program);
  window.show();
  return QApplication::exec();
}
