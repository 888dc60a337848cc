// A window with its program in a folder of its own, driven as by a user whose answers to boxes are
// given beforehand.
#pragma once

#include <QLineEdit>
#include <QStringList>

#include "ui/application.hpp"
#include "ui/main_window.hpp"

namespace dialwright {

struct Desk : Workplace {
  Desk() {
    Dialogs& dialogs = window.dialogs();
    dialogs.message = [this](const QString& text) { said << text; };
    dialogs.yes = [this](const QString& question) {
      asked << question;
      return yes;
    };
    dialogs.changes = [this](const QString& question) {
      asked << question;
      return changes;
    };
    dialogs.openName = dialogs.saveName = [this](const QString&) { return name; };
    window.show();
  }

  template <class Widget>
  Widget* widget(Field field) {
    return qobject_cast<Widget*>(window.inputs().widgetOf(field));
  }
  QLineEdit* edit(Field field) { return widget<QLineEdit>(field); }

  void choose(Item item) { window.menus().actionOf(item)->trigger(); }
  void type(Field field, const QString& text) {
    edit(field)->selectAll();
    QTest::keyClicks(edit(field), text);
  }
  void press(Field button) {
    widget<QAbstractButton>(button)->click();
    settle();
  }
  // Until no run is due or under way.
  void settle() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.runner().busy(); }, 60000));
  }
  std::size_t drawn() const { return program.sheet().list().size(); }

  MainWindow window{program};
  QStringList said;   // by message boxes
  QStringList asked;  // by questions
  bool yes = true;
  Changes changes = Changes::Keep;
  QString name;  // of a file
};

class DeskTest : public ::testing::Test {
 protected:
  Desk desk;
};

}  // namespace dialwright
