// The input panel: a widget for each field of the table, in a column that scrolls, over the
// buttons. It mirrors the program's panel and tells what the user does; it changes nothing by
// itself.
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QScrollArea>
#include <QWidget>
#include <array>
#include <map>

#include "app/program.hpp"
#include "ui/input_section.hpp"

namespace dialwright {

class InputPanel : public QWidget {
  Q_OBJECT

 public:
  explicit InputPanel(const Program& program, QWidget* parent = nullptr);

  // Shows the state of the program's panel.
  void refresh();

  QWidget* widgetOf(Field field) const { return widgets_[static_cast<std::size_t>(field)]; }
  QCheckBox* live() const { return live_; }

 signals:
  void typed(Field field, const QString& text);
  void clicked(Field field, bool state);  // a box or an option
  void pressed(Field field);              // a button
  void beep();

 protected:
  // The filter of the number fields' keys.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* make(Field field);
  QWidget* makeText(Field field);
  QWidget* makeOption(Field field);
  QWidget* makeCombo(Field field);
  QWidget* makeButton(Field field);
  void build();
  QLayout* buildButtons();
  void chainTabs();
  void refresh(Field field);
  void refreshCountries();
  void name(Field field);
  void refreshOptions();

  const Program& program_;
  std::array<QWidget*, kFieldCount> widgets_{};
  std::vector<InputSectionBox*> sections_;
  std::map<OptionGroup, QButtonGroup*> groups_;
  QWidget* column_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  QLabel* dial_;
  QCheckBox* live_;
};

}  // namespace dialwright
