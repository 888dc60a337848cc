// Rows, and boxes that flow.
#include "ui/input_section.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>

#include "ui/text.hpp"

namespace dialwright {

namespace {

constexpr int kGap = 6;

bool isShown(const Panel& panel, Field field) {
  return field != Field::None && panel[field].visible && rowOf(field).kind != FieldKind::Frame;
}

// A field that only its tip names ("x1") shows that name before it.
void addWithName(QHBoxLayout& layout, Field field, QWidget* widget, QWidget* parent) {
  constexpr std::size_t kShortName = 2;
  const FieldRow& row = rowOf(field);
  const bool named = row.kind == FieldKind::Text && row.label == Field::None && !row.tip.empty() &&
                     row.tip.size() <= kShortName;
  if (named) {
    auto* name = new QLabel(shown(row.tip), parent);
    name->setBuddy(widget);
    layout.addWidget(name);
  }
  layout.addWidget(widget, row.kind == FieldKind::Text || row.kind == FieldKind::Combo ? 1 : 0);
}

}  // namespace

InputSectionBox::InputSectionBox(const InputSection& section, const WidgetOf& widgetOf,
                                 QWidget* parent)
    : QWidget(parent), section_(section), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(kGap);
  grid_->setVerticalSpacing(kGap);
  grid_->setColumnStretch(0, 1);
  grid_->setColumnStretch(1, 1);
  if (section.heading != Field::None) {
    QWidget* heading = widgetOf(section.heading);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    grid_->addWidget(heading, 0, 0, 1, 2);
  }
  for (const InputRow& row : section.rows) lines_.push_back(makeLine(row, widgetOf));
}

InputSectionBox::Line InputSectionBox::makeLine(const InputRow& row, const WidgetOf& widgetOf) {
  Line line{&row, nullptr, nullptr, {}};
  if (row.flows) {
    for (const Field field : row.fields) {
      line.cells.emplace_back(field, widgetOf(field));
      widgetOf(field)->setParent(this);
    }
    return line;
  }
  line.rest = new QWidget(this);
  auto* layout = new QHBoxLayout(line.rest);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  QHBoxLayout* inner = layout;
  for (std::size_t i = 0; i < row.fields.size(); ++i) {
    const Field field = row.fields[i];
    if (field == Field::None) continue;
    QWidget* widget = widgetOf(field);
    const FieldKind kind = rowOf(field).kind;
    if (i == 0 && (kind == FieldKind::Label || kind == FieldKind::Check)) {
      line.label = widget;
      widget->setParent(this);
      continue;
    }
    addWithName(kind == FieldKind::Option ? *inner : *layout, field, widget, line.rest);
    if (kind == FieldKind::Frame) {  // it holds the options that follow
      inner = new QHBoxLayout(widget);
      inner->setContentsMargins(kGap, 0, kGap, 0);
    }
  }
  return line;
}

void InputSectionBox::arrange(const Panel& panel) {
  int at = 1;
  bool any = false;
  for (const Line& line : lines_) {
    const auto& fields = line.row->fields;
    if (!std::any_of(fields.begin(), fields.end(),
                     [&](Field field) { return isShown(panel, field); })) {
      if (line.rest != nullptr) line.rest->hide();
      continue;
    }
    any = true;
    if (line.row->flows) {
      at = arrangeFlow(panel, line, at);
      continue;
    }
    line.rest->show();
    const bool labelled = line.label != nullptr || fields.front() == Field::None;
    if (line.label != nullptr) grid_->addWidget(line.label, at, 0);
    grid_->addWidget(line.rest, at++, labelled ? 1 : 0, 1, labelled ? 1 : 2);
  }
  setVisible(any);
}

int InputSectionBox::columnWidth() const {
  int width = 0;
  for (int i = 0; i < grid_->count(); ++i) {
    int row = 0, column = 0, rows = 0, columns = 0;
    grid_->getItemPosition(i, &row, &column, &rows, &columns);
    if (columns == 1) width = std::max(width, grid_->itemAt(i)->minimumSize().width());
  }
  return width;
}

void InputSectionBox::setColumnWidth(int width) {
  grid_->setColumnMinimumWidth(0, width);
  grid_->setColumnMinimumWidth(1, width);
}

int InputSectionBox::arrangeFlow(const Panel& panel, const Line& line, int at) {
  int column = 0;
  for (const auto& [field, widget] : line.cells) {
    if (!isShown(panel, field)) continue;
    grid_->addWidget(widget, at, column);
    column = 1 - column;
    if (column == 0) ++at;
  }
  return column == 0 ? at : at + 1;
}

}  // namespace dialwright
