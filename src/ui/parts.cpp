// Plugging the parts together.
#include "ui/parts.hpp"

#include <QMessageBox>

#include "ui/text.hpp"

#if __has_include("ui/sheet_widget.hpp")
#include "ui/sheet_widget.hpp"
#endif
#if __has_include("ui/gallery.hpp")
#include "ui/gallery.hpp"
#endif
#if __has_include("ui/board_window.hpp")
#include "ui/board_window.hpp"
#endif
#if __has_include("ui/about_window.hpp")
#include "ui/about_window.hpp"
#endif
#include <QPageSetupDialog>
#include <QPrinter>

namespace dialwright {

SheetPart makeSheetPart(Program& program, QWidget* parent,
                        const std::function<void(const QString&)>& hovered,
                        const std::function<void(const QString&)>& message) {
#if __has_include("ui/sheet_widget.hpp")
  auto* sheet = new SheetWidget(program, parent);
  QObject::connect(sheet, &SheetWidget::hovered, parent, hovered);
  QObject::connect(sheet, &SheetWidget::message, parent, message);
  return {sheet, [sheet] { sheet->refresh(); }, [sheet] { sheet->showFit(); }};
#else
  static_cast<void>(program), static_cast<void>(hovered), static_cast<void>(message);
  return {new QWidget(parent), [] {}, [] {}};
#endif
}

QWidget* makeGallery(Program& program, QWidget* parent, const std::function<void(Item)>& chosen) {
#if __has_include("ui/gallery.hpp")
  auto* gallery = new Gallery(program, parent);
  QObject::connect(gallery, &Gallery::chosen, parent, chosen);
  return gallery;
#else
  static_cast<void>(program), static_cast<void>(chosen);
  return new QWidget(parent);
#endif
}

void openBoard(Program& program, QWidget* parent, const std::function<void()>& transferred) {
#if __has_include("ui/board_window.hpp")
  BoardWindow board(program, parent);
  QObject::connect(&board, &BoardWindow::transferred, parent, transferred);
  board.exec();
#else
  static_cast<void>(program), static_cast<void>(parent), static_cast<void>(transferred);
#endif
}

void openAbout(const Program& program, QWidget* parent) {
#if __has_include("ui/about_window.hpp")
  AboutWindow(program, parent).exec();
#else
  QMessageBox::about(parent, shown(program.T("About Dialwright")), shown(Program::kTitle));
#endif
}

void setUpPrinter(Program& program, QWidget* parent) {
  QPrinter printer(QPrinter::HighResolution);
  QPageSetupDialog dialog(&printer, parent);
  dialog.setWindowTitle(shown(program.T("Printer setup")));
  dialog.exec();
}

}  // namespace dialwright
