// Joins bar, surface and the sheet's view.
#include "ui/sheet_widget.hpp"

#include <QAction>
#include <QLabel>
#include <QPageSetupDialog>
#include <QVBoxLayout>

#include "ui/calibration.hpp"
#include "ui/shadow_bar.hpp"
#include "ui/sheet_bar.hpp"
#include "ui/sheet_canvas.hpp"
#include "ui/text.hpp"

namespace dialwright {

SheetWidget::SheetWidget(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      exports_(program, this),
      bar_(new SheetBar(program, this)),
      shadow_(new ShadowBar(program, this)),
      p_mess_(new QLabel(this)),
      canvas_(new SheetCanvas(program, this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(bar_);
  column->addWidget(shadow_);
  column->addWidget(p_mess_);
  column->addWidget(canvas_, 1);
  p_mess_->setObjectName("p_mess");
  p_mess_->setContentsMargins(6, 2, 6, 2);
  p_mess_->setWordWrap(true);

  connect(bar_, &SheetBar::scaleChosen, canvas_, &SheetCanvas::showScale);
  connect(bar_, &SheetBar::fitWanted, canvas_, &SheetCanvas::showFit);
  connect(bar_, &SheetBar::zoomWanted, canvas_, &SheetCanvas::zoomBy);
  connect(bar_, &SheetBar::exportWanted, this, &SheetWidget::exportAs);
  connect(bar_, &SheetBar::pagesWanted, this, &SheetWidget::previewPages);
  connect(bar_, &SheetBar::calibrationWanted, this, &SheetWidget::calibrate);
  shadow_->hide();
  connect(bar_->shadow(), &QAction::toggled, shadow_, &QWidget::setVisible);
  connect(shadow_, &ShadowBar::moved, canvas_, &SheetCanvas::showShadow);
  connect(canvas_, &SheetCanvas::hovered, this, &SheetWidget::hovered);
  connect(canvas_, &SheetCanvas::zoomed, this, [this] { bar_->showScale(canvas_->scale()); });

  showPreview = [this](const QString& title, const PrintDocument& document) {
    return preview(this, title, printer(), document);
  };
  fillPorts();
  refresh();
}

SheetWidget::~SheetWidget() {
  ViewPorts& ports = program_.view().ports;
  ports.exportDxf = {};
  ports.saveBitmap = {};
  ports.print = {};
  ports.changed = {};
}

void SheetWidget::fillPorts() {
  ViewPorts& ports = program_.view().ports;
  ports.exportDxf = [this] { exports_.exportDxf(); };
  ports.saveBitmap = [this] { exports_.saveBitmap(); };
  ports.print = [this](const PrintJob& job) {
    print(shown(program_.T("Print")),
          [&](QPrinter& printer) { return printJob(program_, printer, job); });
  };
  ports.changed = [this] { viewChanged(); };
}

// An operation of the view may tell of several changes, and from within a run: they are shown
// together when it is over.
void SheetWidget::viewChanged() {
  if (canvas_->scrolling() || awaited_) return;
  awaited_ = true;
  QMetaObject::invokeMethod(this, &SheetWidget::refresh, Qt::QueuedConnection);
}

void SheetWidget::refresh() {
  awaited_ = false;
  program_.sheet().list().keepMeanings(true);  // for what lies under the cursor
  bar_->refresh();
  bar_->showScale(canvas_->scale());
  p_mess_->setText(shown(program_.sheet().caption()));
  p_mess_->setVisible(!program_.sheet().caption().empty());
  canvas_->renew();
  shadow_->inputsChanged();
}

void SheetWidget::inputsChanged() { shadow_->inputsChanged(); }

QAction* SheetWidget::shadowAction() const { return bar_->shadow(); }

void SheetWidget::showFit() { canvas_->showFit(); }

void SheetWidget::setScreenZoom(double pixelsPerMeter) { canvas_->setScreenZoom(pixelsPerMeter); }

void SheetWidget::calibrate() {
  Calibration dialog(program_, canvas_->screenZoom(), this);
  if (dialog.exec() != QDialog::Accepted) return;
  setScreenZoom(dialog.pixelsPerMeter());
  emit calibrated(dialog.pixelsPerMeter());
}

// The pages that the user selected, or all that carry ink.
void SheetWidget::previewPages() {
  std::vector<int> numbers;
  for (const SelectedPage& page : program_.view().selectedPages()) numbers.push_back(page.number);
  print(shown(program_.T("A4 pages")),
        [&](QPrinter& printer) { return printPages(program_, printer, numbers); });
}

QPrinter& SheetWidget::printer() {
  if (!printer_) {
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    prepare(*printer_);
  }
  return *printer_;
}

// A printer that last printed to a file is a printer again; the system's dialog is for no other.
void SheetWidget::setUpPrinter() {
  printer().setOutputFormat(QPrinter::NativeFormat);
  if (printer().outputFormat() != QPrinter::NativeFormat) {
    emit message(shown(program_.T("There is no printer to set up; the preview prints to a file.")));
    return;
  }
  QPageSetupDialog dialog(&printer(), this);
  dialog.setWindowTitle(shown(program_.T("Printer setup")));
  if (dialog.exec() != QDialog::Accepted) return;
  const QString cut = wordOnPaper(program_, printer());
  if (!cut.isEmpty()) emit message(cut);
}

void SheetWidget::print(const QString& title, const PrintDocument& document) {
  const QString problem = showPreview(title, document);
  if (!problem.isEmpty()) emit message(problem);
}

}  // namespace dialwright
