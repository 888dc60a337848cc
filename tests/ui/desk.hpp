// A window with its program in a folder of its own, driven as by a user whose answers to boxes are
// given beforehand.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QStringList>
#include <QTest>
#include <string>

#include "sheet/entity_list.hpp"
#include "support/folder.hpp"
#include "ui/main_window.hpp"
#include "ui/text.hpp"

namespace dialwright {

inline std::string entitiesOf(const Program& program) {
  std::string list;
  if (program.sheet().list().size() == 0) return list;
  writeEntityList(program.sheet().list(), [&](std::string_view chunk) { list += chunk; });
  return list;
}

struct Desk {
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
    dialogs.openName = [this](const QString&) { return name; };
    dialogs.saveName = [this](const QString&) { return name; };
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
  static void paste(QLineEdit* edit, const QString& text) {
    QApplication::clipboard()->setText(text);
    edit->paste();
  }
  void press(Field button) {
    widget<QAbstractButton>(button)->click();
    settle();
  }
  // Until no run is due or under way.
  void settle() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.runner().busy(); }, 60000));
  }
  QString in(const char* file) { return shown((folder / file).string()); }

  Folder folder;
  Program program{ProgramConfig{folder.path(), DIALWRIGHT_DATA_DIR, "en"}};
  MainWindow window{program};
  QStringList said;   // by message boxes
  QStringList asked;  // by questions
  bool yes = true;
  Changes changes = Changes::Keep;
  QString name;  // of a file
};

}  // namespace dialwright
