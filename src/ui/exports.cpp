// Asks for a file and has it written.
#include "ui/exports.hpp"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <algorithm>
#include <ctime>
#include <new>

#include "app/viewer.hpp"
#include "paper/page_writer.hpp"
#include "sheet/dxf.hpp"
#include "shell/names.hpp"
#include "ui/text.hpp"

namespace dialwright {

namespace {

// A drawing that can't be made; the old file stays.
struct Refusal : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The hourglass as long as this lives.
class Waiting {
 public:
  Waiting() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~Waiting() { QApplication::restoreOverrideCursor(); }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
};

QString filterOf(const ExportKind& kind) {
  return shown(kind.title) + " (*." + shown(kind.ending) + ")";
}

std::filesystem::path pathOf(const QString& name) {
  const QByteArray bytes = name.toUtf8();
  return {std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()))};
}

QString nameOf(const std::filesystem::path& path) { return shown(path.string()); }

// An ending that the user typed chooses the kind, whatever the filter says; without one the kind
// gives its own.
const ExportKind& kindOf(const std::vector<ExportKind>& kinds, const QString& filter,
                         std::filesystem::path& path) {
  const auto filtered = std::ranges::find(kinds, filter, filterOf);
  const ExportKind& wanted = filtered == kinds.end() ? kinds.front() : *filtered;
  const std::string typed = path.extension().string();
  const auto endsSo = [&](const ExportKind& kind) {
    return equalIgnoringCase("." + kind.ending, typed);
  };
  if (endsSo(wanted)) return wanted;
  const auto other = std::ranges::find_if(kinds, endsSo);
  if (other != kinds.end()) return *other;
  path += "." + wanted.ending;
  return wanted;
}

}  // namespace

std::vector<ExportKind> exportKinds(const Program& program) {
  const ExportOptions paper;
  const ExportOptions screen{.scale = {}, .dark = true};
  return {
      {program.T("DXF drawing in millimetres"), "dxf", paper},
      {program.T("SVG drawing"), "svg", paper},
      {program.T("SVG drawing, colours of the screen"), "svg", screen},
      {program.T("PDF at true size"), "pdf", paper},
      {program.T("PDF at true size, colours of the screen"), "pdf", screen},
      {program.T("PDF of A4 pages with marks"), "pdf", paper, true},
      {program.T("PNG picture"), "png", paper},
      {program.T("PNG picture, colours of the screen"), "png", screen},
      {program.T("Bitmap, as on the screen"), "bmp", paper},
      {program.T("Table of all entities"), "csv", paper},
      {program.T("Texts of the sheet"), "txt", paper},
  };
}

QString Exports::write(const ExportKind& kind, const std::filesystem::path& path) {
  const Waiting waiting;
  try {
    replaceFile(path, [&](const Sink& sink) {
      const std::string problem =
          kind.pages ? writePages(program_.sheet(), sink)
                     : findExportFormat(kind.ending)->write(program_, kind.options, sink);
      if (!problem.empty()) throw Refusal(problem);
    });
  } catch (const std::bad_alloc&) {
    return shown(program_.T("There is not enough memory for this file; a smaller scale may do."));
  } catch (const std::runtime_error& error) {  // the file's or the drawing's
    return shown(error.what());
  }
  if (kind.ending == "dxf") openViewer(program_.viewer(), path.string());
  return {};
}

QString Exports::askPath(const QString& title, const QString& start, const QString& filters,
                         QString& chosen) const {
  if (ask) return ask(title, start, filters, chosen);
  return QFileDialog::getSaveFileName(parent_, title, start, filters, &chosen);
}

bool Exports::save(const std::vector<ExportKind>& kinds, const std::filesystem::path& start) {
  QStringList filters;
  for (const ExportKind& kind : kinds) filters += filterOf(kind);
  QString chosen = filters.front();
  const QString title = shown(program_.T("Export"));
  const QString answer = askPath(title, nameOf(start), filters.join(";;"), chosen).trimmed();
  if (answer.isEmpty()) return false;
  std::filesystem::path path = pathOf(answer);
  const ExportKind& kind = kindOf(kinds, chosen, path);
  // The dialog has asked for the name that the user typed, not for the one with its ending.
  if (path != pathOf(answer) && std::filesystem::exists(path) && !mayReplace(path)) return false;
  const QString problem = write(kind, path);
  if (problem.isEmpty()) return true;
  QMessageBox::warning(parent_, title, problem);
  return false;
}

bool Exports::mayReplace(const std::filesystem::path& path) const {
  const QString question = shown(program_.T("Replace the file ")) + nameOf(path) + "?";
  return QMessageBox::question(parent_, shown(program_.T("Export")), question) == QMessageBox::Yes;
}

bool Exports::exportAs() {
  const std::filesystem::path project(program_.projectTitle());
  const std::string stem = project.empty() ? "dial" : project.stem().string();
  return save(exportKinds(program_), program_.CartellaDXF() / stem);
}

bool Exports::exportDxf() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return save({exportKinds(program_).front()},
              program_.config().workingFolder / (DXF_DefaultName(local) + ".dxf"));
}

bool Exports::saveBitmap() {
  const std::vector<ExportKind> kinds = exportKinds(program_);
  return save({*std::ranges::find(kinds, "bmp", &ExportKind::ending)},
              program_.config().workingFolder / "Image.bmp");
}

bool Exports::exportPages() {
  const std::vector<ExportKind> kinds = exportKinds(program_);
  return save({*std::ranges::find(kinds, true, &ExportKind::pages)},
              program_.CartellaDXF() / "pages.pdf");
}

}  // namespace dialwright
