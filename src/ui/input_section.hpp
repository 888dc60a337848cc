// A section of the input panel: rows of widgets under a heading, closed up around what is hidden.
#pragma once

#include <QGridLayout>
#include <QWidget>
#include <functional>

#include "shell/panel.hpp"
#include "ui/input_layout.hpp"

namespace dialwright {

class InputSectionBox : public QWidget {
 public:
  using WidgetOf = std::function<QWidget*(Field)>;

  // Takes the widgets of its fields as its children.
  InputSectionBox(const InputSection& section, const WidgetOf& widgetOf, QWidget* parent);

  // Lays out what the panel shows; a section without anything but its heading hides.
  void arrange(const Panel& panel);

  // The width that each of its two columns needs, and the width that both shall have.
  int columnWidth() const;
  void setColumnWidth(int width);

 private:
  struct Line {
    const InputRow* row;
    QWidget* label;                                 // in the left column
    QWidget* rest;                                  // the others, side by side
    std::vector<std::pair<Field, QWidget*>> cells;  // of a row that flows
  };

  Line makeLine(const InputRow& row, const WidgetOf& widgetOf);
  int arrangeFlow(const Panel& panel, const Line& line, int at);

  const InputSection& section_;
  QGridLayout* grid_;
  std::vector<Line> lines_;
};

}  // namespace dialwright
