// The bar over the sheet with its commands, its list of scales and its read-outs, and the three
// small panels below it. It shows what the sheet's view holds and acts through it alone.
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <span>

#include "app/program.hpp"

class QAbstractButton;
class QAction;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;

namespace dialwright {

class SheetBar : public QWidget {
  Q_OBJECT

 public:
  explicit SheetBar(Program& program, QWidget* parent = nullptr);

  // Shows the view's state.
  void refresh();
  // The scale 1:n that the sheet is seen in, which need not be one of the list.
  void showScale(double n);
  // Shows and hides the moving shadow.
  QAction* shadow() const { return shadow_; }

 signals:
  void scaleChosen();  // the sheet has it now
  void fitWanted();
  void zoomWanted(double factor);
  void exportWanted();
  void pagesWanted();
  void calibrationWanted();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct PanelRow;

  void addScale();
  void colourScale();
  void addShadow();
  void addCommands(QWidget* to, std::span<const SheetCommand> commands);
  void addAction(const std::string& text, const std::string& tip, const std::function<void()>& act);
  QLabel* addReadOut(std::string_view name, std::string_view label);
  QFrame* addPanel(const PanelRow& row);
  void addField(QWidget* panel, SheetField field, SheetCommand update);
  void showLook(SheetCommand command, std::optional<Rgb> look);

  Program& program_;
  SheetView& view_;
  QWidget* head_;
  QAction* shadow_ = nullptr;
  QComboBox* cmbScala_ = nullptr;
  QLabel* lblDimVal_ = nullptr;
  QLabel* lblXYval_ = nullptr;
  QFrame* axes_ = nullptr;
  QFrame* dimensions_ = nullptr;
  QFrame* print_ = nullptr;
  std::map<SheetCommand, QAbstractButton*> buttons_;
  std::map<SheetField, QLineEdit*> fields_;
};

}  // namespace dialwright
