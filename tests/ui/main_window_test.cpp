// The main window as a user drives it.
#include "ui/main_window.hpp"

#include "support/folder.hpp"
#include "ui/application.hpp"

namespace dialwright {
namespace {

TEST(MainWindow, BearsTheProgramsName) {
  const Folder folder;
  Program program({folder.path(), DIALWRIGHT_DATA_DIR, "en"});
  MainWindow window(program);
  EXPECT_TRUE(window.windowTitle().contains("Dialwright"));
}

}  // namespace
}  // namespace dialwright
