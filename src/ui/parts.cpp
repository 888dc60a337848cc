// Plugging the parts together.
#include "ui/parts.hpp"

#include "ui/about_window.hpp"
#include "ui/board_window.hpp"
#include "ui/gallery.hpp"
#include "ui/sheet_widget.hpp"

namespace dialwright {

SheetPart makeSheetPart(Program& program, Settings& settings, QWidget* parent,
                        const std::function<void(const QString&)>& hovered,
                        const std::function<void(const QString&)>& message) {
  auto* sheet = new SheetWidget(program, parent);
  QObject::connect(sheet, &SheetWidget::hovered, parent, hovered);
  QObject::connect(sheet, &SheetWidget::message, parent, message);
  QObject::connect(sheet, &SheetWidget::calibrated, parent,
                   [&settings](double zoom) { settings.keepScreenZoom(zoom); });
  sheet->setScreenZoom(settings.screenZoom());
  return {.widget = sheet,
          .refresh = [sheet] { sheet->refresh(); },
          .showFit = [sheet] { sheet->showFit(); },
          .exportAs = [sheet] { sheet->exportAs(); },
          .previewPages = [sheet] { sheet->previewPages(); },
          .setUpPrinter = [sheet] { sheet->setUpPrinter(); },
          .inputsChanged = [sheet] { sheet->inputsChanged(); },
          .shadow = sheet->shadowAction()};
}

QWidget* makeGallery(const Program& program, QWidget* parent,
                     const std::function<void(Item)>& chosen) {
  auto* gallery = new Gallery(program, parent);
  QObject::connect(gallery, &Gallery::chosen, parent, chosen);
  return gallery;
}

void openBoard(Program& program, QWidget* parent, const std::function<void()>& transferred) {
  BoardWindow board(program, parent);
  QObject::connect(&board, &BoardWindow::transferred, parent, transferred);
  board.exec();
}

void openAbout(const Program& program, QWidget* parent) { AboutWindow(program, parent).exec(); }

}  // namespace dialwright
