// The sheet in a window: the bar with its panels over the surface.
#pragma once

#include <QWidget>
#include <memory>

#include "app/program.hpp"
#include "ui/exports.hpp"
#include "ui/printing.hpp"

class QAction;
class QLabel;

namespace dialwright {

class ShadowBar;
class SheetBar;
class SheetCanvas;

// It fills the ports of the program's sheet view as long as it lives, which is not longer than the
// program does. Without a word from outside it shows what the view's own operations change; after
// a run or a loaded project `refresh` is to be called.
class SheetWidget : public QWidget {
  Q_OBJECT

 public:
  explicit SheetWidget(Program& program, QWidget* parent = nullptr);
  ~SheetWidget() override;

  // The display list or the view is new.
  void refresh();
  void showFit();

  // Pixels of the screen a metre, measured by the user; 0 for what the screen says of itself.
  void setScreenZoom(double pixelsPerMeter);

  // The dial of the panel is new, and not drawn yet.
  void inputsChanged();
  // The check of a menu or a button that shows and hides the moving shadow.
  QAction* shadowAction() const;

  void exportAs() { exports_.exportAs(); }
  void previewPages();
  void setUpPrinter();
  void calibrate();

  Exports& exports() { return exports_; }
  SheetCanvas& canvas() { return *canvas_; }
  ShadowBar& shadowBar() { return *shadow_; }
  // What the set-up chose, the preview shows and the pages are printed on.
  QPrinter& printer();

  // Shows a document before it is printed, and gives the sentence of a failure; a test puts its own
  // printer here.
  std::function<QString(const QString& title, const PrintDocument& document)> showPreview;

 signals:
  void hovered(const QString& text);  // what lies under the cursor
  void message(const QString& text);  // a sentence for the user
  void calibrated(double pixelsPerMeter);

 private:
  void fillPorts();
  void viewChanged();
  void print(const QString& title, const PrintDocument& document);

  Program& program_;
  Exports exports_;
  SheetBar* bar_;
  ShadowBar* shadow_;
  QLabel* p_mess_;
  SheetCanvas* canvas_;
  std::unique_ptr<QPrinter>
      printer_;           // once it is first asked for: a system's printers may be slow
  bool awaited_ = false;  // a refresh is on its way
};

}  // namespace dialwright
