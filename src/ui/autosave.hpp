// A copy of the unsaved inputs beside their project, for the start after a crash.
#pragma once

#include <QLockFile>
#include <QObject>
#include <QTimer>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "app/program.hpp"

namespace dialwright {

// A copy that a program has left behind.
struct LeftCopy {
  std::filesystem::path copy;
  std::filesystem::path project;  // empty for inputs that had no file yet
};

class Autosave : public QObject {
  Q_OBJECT

 public:
  static constexpr int kSeconds = 30;

  Autosave(const Program& program, QObject* parent);
  // A clean end leaves no copy.
  ~Autosave() override;

  // The inputs now belong to that project, or to none. The copy beside the former one goes.
  void setProject(const std::filesystem::path& project);

  // The inputs have changed since they were saved, or are safe in their project's file.
  void setChanged(bool changed);

  // Writes the copy, if something is to be kept that it doesn't hold yet.
  void write();

  // The copies of programs that have ended without removing them: of inputs without a file, and
  // of the given projects.
  std::vector<LeftCopy> leftCopies(const std::vector<std::filesystem::path>& projects) const;
  static void discard(const LeftCopy& left);

 signals:
  void failed(const QString& why);  // told once until a copy succeeds

 private:
  std::vector<std::filesystem::path> places() const;
  void claim();
  void remove();

  const Program& program_;
  QTimer timer_;
  std::filesystem::path project_;
  std::filesystem::path copy_;
  std::unique_ptr<QLockFile> claim_;  // says that the copy has a living program
  std::string written_;
  bool changed_ = false;
  bool failing_ = false;
};

}  // namespace dialwright
