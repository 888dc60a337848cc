// Projects in the window: new, open, save, recent ones, and nothing is lost unasked.
#pragma once

#include <QMenu>
#include <QObject>
#include <filesystem>

#include "ui/autosave.hpp"
#include "ui/dialogs.hpp"
#include "ui/settings.hpp"
#include "ui/undo.hpp"

namespace dialwright {

class Projects : public QObject {
  Q_OBJECT

 public:
  Projects(Program& program, History& history, Settings& settings, Dialogs& dialogs,
           QObject* parent);

  // The items of the menu.
  void open();
  void newSheet();
  // Asks for a name. With a project in use the file is a copy beside it.
  bool saveAs();
  // Into the file that the inputs belong to; asks for a name where there is none.
  bool save();

  // Opens that file, once what is in the window may go.
  void openPath(const std::filesystem::path& path);

  // False when the user keeps the inputs in the window; after a wish to save, when that has failed.
  bool mayLeave();

  // Offers what a crashed program has left behind. True when it was taken.
  bool offerRecovery();

  bool changed() const { return !history_.isClean(); }
  // Where the inputs were opened or saved; empty for new ones.
  const std::filesystem::path& file() const { return file_; }

  QMenu* recentMenu() const { return recentMenu_.get(); }
  Autosave& autosave() { return autosave_; }

 signals:
  void loaded();        // the program has another project's inputs, which wait for their run
  void emptied();       // the sheet is a new one
  void titleChanged();  // file() or changed()
  void remark(const QString& text);

 private:
  bool load(const std::filesystem::path& path, const std::filesystem::path& project);
  bool offerRecoveryOf(const std::filesystem::path& project);
  bool recover(const LeftCopy& left);
  bool write(const std::filesystem::path& path);
  bool savedOrDiscarded(const QString& question);
  void belongTo(const std::filesystem::path& file);
  void remember(const std::filesystem::path& path);
  void fillRecent();

  Program& program_;
  History& history_;
  Settings& settings_;
  Dialogs& dialogs_;
  Autosave autosave_;
  std::unique_ptr<QMenu> recentMenu_;
  std::filesystem::path file_;
};

}  // namespace dialwright
