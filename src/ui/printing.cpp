// Puts the sheet on the toolkit's printer.
#include "ui/printing.hpp"

#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <memory>

#include "paper/page_writer.hpp"
#include "paper/target_printer.hpp"
#include "ui/painter_target.hpp"
#include "ui/text.hpp"

namespace dialwright {

namespace {

constexpr double kMetresOfInch = 0.0254;

// A painter on a printer that maps twips, from the corner of the printable part of A4.
class PaperPainter {
 public:
  explicit PaperPainter(QPrinter& printer) : printer_(printer) {
    printer.setFullPage(true);  // whatever was chosen in a dialog
    begun_ = painter_.begin(&printer);
    if (!begun_) return;
    const double dots = printer.resolution() / kMetresOfInch / kTwipsPerMeter;  // of a twip
    painter_.scale(dots, dots);
    painter_.translate(kMarginX * kTwipsPerMeter, kMarginY * kTwipsPerMeter);
  }

  QPainter& painter() { return painter_; }
  void newPage() { failed_ = !printer_.newPage() || failed_; }

  // What went wrong, in the user's language.
  QString end(const Program& program) {
    if (begun_) failed_ = !painter_.end() || failed_;
    const QPrinter::PrinterState state = printer_.printerState();
    if (begun_ && !failed_ && state != QPrinter::Error && state != QPrinter::Aborted)
      return wordOnPaper(program, printer_);
    return shown(
        program.T("The printer takes no pages: check that it is on and connected, or print to a "
                  "file. Nothing of the drawing is lost."));
  }

  bool begun() const { return begun_; }

 private:
  QPrinter& printer_;
  QPainter painter_;
  bool begun_ = false;
  bool failed_ = false;
};

class PaintedPrinter : public TargetPrinter<PainterTarget> {
 public:
  explicit PaintedPrinter(PaperPainter& paper) : TargetPrinter(paper.painter()), paper_(paper) {}

  void newPage() override { paper_.newPage(); }
  void endDocument() override {}

 private:
  PaperPainter& paper_;
};

class PaintedDocument : public PaperDocument {
 public:
  explicit PaintedDocument(PaperPainter& paper) : paper_(paper) {}

  std::unique_ptr<DrawTarget> target(const StrokeLook& look, bool cut) override {
    const QRectF page(0, 0, kPageW * kTwipsPerMeter, kPageH * kTwipsPerMeter);
    return std::make_unique<PainterTarget>(paper_.painter(), look, cut ? page : QRectF());
  }
  void newPage() override { paper_.newPage(); }

 private:
  PaperPainter& paper_;
};

}  // namespace

void prepare(QPrinter& printer) {
  printer.setFullPage(true);
  printer.setPageSize(QPageSize(QPageSize::A4));
  printer.setPageOrientation(QPageLayout::Portrait);
  printer.setPageMargins(QMarginsF());
}

QString wordOnPaper(const Program& program, const QPrinter& printer) {
  constexpr double kLost = 0.0005;  // metres that sizes in whole points may take away
  const QSizeF paper = printer.pageLayout().fullRect(QPageLayout::Millimeter).size() / 1000;
  if (paper.width() > kPaperW - kLost && paper.height() > kPaperH - kLost) return {};
  return shown(
      program.T("The paper is smaller than an upright A4 page: the drawing keeps its true size and "
                "is cut at the paper's edge."));
}

QString printJob(const Program& program, QPrinter& printer, const PrintJob& job) {
  PaperPainter paper(printer);
  if (paper.begun()) {
    PaintedPrinter pages(paper);
    job(pages);
  }
  return paper.end(program);
}

QString printPages(const Program& program, QPrinter& printer, const std::vector<int>& numbers) {
  PaperPainter paper(printer);
  std::string problem;
  if (paper.begun()) {
    PaintedDocument document(paper);
    problem = layPages(program.sheet(), document, {.numbers = numbers});
  }
  const QString word = paper.end(program);
  return problem.empty() ? word : shown(problem);
}

QString preview(QWidget* parent, const QString& title, QPrinter& printer,
                const PrintDocument& document) {
  QPrintPreviewDialog dialog(&printer, parent);
  dialog.setWindowTitle(title);
  dialog.resize(800, 640);
  QString problem;
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                   [&](QPrinter* paper) { problem = document(*paper); });
  dialog.exec();
  return problem;
}

}  // namespace dialwright
