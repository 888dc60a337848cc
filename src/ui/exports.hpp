// Saving the sheet in a file of the user's choice, by the same writers as the command line.
#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <vector>

#include "app/exporting.hpp"
#include "persist/safe_file.hpp"

class QWidget;

namespace dialwright {

// A kind of file that the save dialog offers.
struct ExportKind {
  std::string title;  // in the program's language
  std::string ending;
  ExportOptions options;
  bool pages = false;  // A4 pages of a PDF, each with its marks
};

std::vector<ExportKind> exportKinds(const Program& program);

class Exports {
 public:
  Exports(Program& program, QWidget* parent) : program_(program), parent_(parent) {}

  // Asks for a path: the title of the dialog, the path that it starts with, its filters, and the
  // filter that the user takes. An empty text for a cancel. The system's dialog, unless a test has
  // put its own answer here.
  using Ask = std::function<QString(const QString& title, const QString& start,
                                    const QString& filters, QString& chosen)>;
  Ask ask;

  // These ask for a path and write; a failure is shown in a message box. False when nothing was
  // written.
  bool exportAs();
  bool exportDxf();   // under the name of the moment, and on to the viewer
  bool saveBitmap();  // the sheet as it stands on the screen
  bool exportPages();

  // Writes without asking. Empty, or the sentence that tells what went wrong.
  QString write(const ExportKind& kind, const std::filesystem::path& path);

 private:
  bool save(const std::vector<ExportKind>& kinds, const std::filesystem::path& start);
  bool mayReplace(const std::filesystem::path& path) const;
  QString askPath(const QString& title, const QString& start, const QString& filters,
                  QString& chosen) const;

  Program& program_;
  QWidget* parent_;
};

}  // namespace dialwright
