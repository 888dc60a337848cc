// The roads that a project takes into the window and out of it.
#include "ui/projects.hpp"

#include <QDir>
#include <system_error>

#include "persist/project.hpp"
#include "persist/safe_file.hpp"
#include "ui/text.hpp"

namespace dialwright {

namespace fs = std::filesystem;

namespace {

fs::path pathOf(const QString& text) { return {text.toStdString()}; }
QString textOf(const fs::path& path) { return shown(path.string()); }

}  // namespace

Projects::Projects(Program& program, History& history, Settings& settings, Dialogs& dialogs,
                   QObject* parent)
    : QObject(parent),
      program_(program),
      history_(history),
      settings_(settings),
      dialogs_(dialogs),
      autosave_(program, nullptr),
      recentMenu_(std::make_unique<QMenu>(shown(program.T("Recent projects")))) {
  connect(&history_, &QUndoStack::cleanChanged, this, [this](bool clean) {
    autosave_.setChanged(!clean);
    emit titleChanged();
  });
  connect(&autosave_, &Autosave::failed, this, &Projects::remark);
  // The program's own question whether the project in use may be closed.
  program_.ports.ask = [this](std::string_view question) {
    return changed() ? savedOrDiscarded(shown(question)) : dialogs_.yes(shown(question));
  };
  fillRecent();
}

void Projects::open() {
  if (!mayLeave()) return;
  const QString folder = textOf(file_.empty() ? fs::current_path() : file_.parent_path());
  const QString name = dialogs_.openName(folder);
  if (!name.isEmpty()) load(pathOf(name), pathOf(name));
}

void Projects::openPath(const fs::path& path) {
  if (mayLeave()) load(path, path);
}

bool Projects::load(const fs::path& path, const fs::path& project) {
  if (path == project && offerRecoveryOf(project)) return true;
  const LoadResult result = program_.CaricaProgetto(path, project.filename().string());
  if (result.outcome != LoadResult::Outcome::Loaded) {
    dialogs_.message(shown(result.message));
    return false;
  }
  history_.clear();
  belongTo(project);
  if (!project.empty()) remember(project);
  emit loaded();
  return true;
}

void Projects::newSheet() {
  if (!program_.NuovoFoglio()) return;
  belongTo({});
  emit emptied();
}

bool Projects::saveAs() {
  const fs::path start = file_.empty() ? fs::current_path() / "*.sun" : file_;
  const QString name = dialogs_.saveName(textOf(start));
  if (name.isEmpty()) return false;
  const fs::path path = pathOf(name);
  if (!write(path)) return false;
  if (file_.empty()) belongTo(path);
  if (path == file_) history_.setClean();
  return true;
}

bool Projects::save() {
  if (file_.empty()) return saveAs();
  if (!write(file_)) return false;
  history_.setClean();
  return true;
}

bool Projects::write(const fs::path& path) {
  try {
    SalvaProgetto(path, program_.panel(), program_.sheet());
  } catch (const FileError& error) {
    dialogs_.message(shown(error.what()));
    return false;
  }
  remember(path);
  emit remark(shown(program_.T("Saved: ")) + textOf(path));
  return true;
}

bool Projects::mayLeave() {
  // With a project in use the program asks its own question.
  if (!program_.projectTitle().empty()) return program_.mayClose();
  return !changed() || savedOrDiscarded(shown(program_.T("Save the project first?")));
}

bool Projects::savedOrDiscarded(const QString& question) {
  switch (dialogs_.changes(question)) {
    case Changes::Save: return save();
    case Changes::Discard: return true;
    case Changes::Keep: break;
  }
  return false;
}

void Projects::belongTo(const fs::path& file) {
  file_ = file;
  autosave_.setProject(file);
  autosave_.setChanged(changed());
  emit titleChanged();
}

// --- Recovery

bool Projects::offerRecovery() {
  std::vector<fs::path> projects;
  for (const QString& path : settings_.recent()) projects.push_back(pathOf(path));
  for (const LeftCopy& left : autosave_.leftCopies(projects)) {
    if (recover(left)) return true;
  }
  return false;
}

bool Projects::offerRecoveryOf(const fs::path& project) {
  for (const LeftCopy& left : autosave_.leftCopies({project})) {
    if (left.project == project) return recover(left);
  }
  return false;
}

// The recovered inputs are changes of their project. A copy that can't be read stays where it is.
bool Projects::recover(const LeftCopy& left) {
  const QString name = left.project.empty() ? shown(program_.T("a project without a name"))
                                            : textOf(left.project.filename());
  const bool wanted = dialogs_.yes(
      shown(program_.T("The program has ended without saving. Take back the changes of ")) + name +
      "?");
  if (wanted && !load(left.copy, left.project)) return false;
  Autosave::discard(left);
  if (!wanted) return false;
  history_.forgetSaved();
  autosave_.write();
  return true;
}

// --- Recent projects

void Projects::remember(const fs::path& path) {
  std::error_code ignored;
  settings_.addRecent(textOf(fs::absolute(path, ignored)));
  fillRecent();
}

void Projects::fillRecent() {
  recentMenu_->clear();
  for (const QString& path : settings_.recent()) {
    const QString name = QDir::toNativeSeparators(path).replace('&', "&&");
    recentMenu_->addAction(name, this, [this, path] { openPath(pathOf(path)); });
  }
  recentMenu_->setEnabled(!recentMenu_->isEmpty());
}

}  // namespace dialwright
