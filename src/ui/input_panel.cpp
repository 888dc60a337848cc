// Making the widgets and mirroring the panel.
#include "ui/input_panel.hpp"

#include <QComboBox>
#include <QCoreApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/text.hpp"

namespace dialwright {

namespace {

constexpr int kLongestText = 400;  // characters
constexpr int kFieldWidth = 52;

// An ampersand in a caption is no mnemonic.
QString captionOf(const Control& control) {
  return shown(control.caption).trimmed().replace('&', "&&");
}

// The list of countries is no text, yet it has a label.
Field labelOf(Field field) {
  return field == Field::cmbStati ? Field::LabelCombo : rowOf(field).label;
}

QString tipOf(const Panel& panel, Field field) {
  const Field label = labelOf(field);
  const bool own = !panel[field].tip.empty() || label == Field::None;
  return shown(panel[own ? field : label].tip);
}

}  // namespace

InputPanel::InputPanel(const Program& program, QWidget* parent)
    : QWidget(parent), program_(program), dial_(new QLabel(this)), live_(new QCheckBox(this)) {
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    widgets_[i] = make(fieldAt(i));
    widgets_[i]->setObjectName(shown(fieldTable()[i].name));
  }
  build();
  chainTabs();
  refresh();
}

QWidget* InputPanel::make(Field field) {
  switch (rowOf(field).kind) {
    case FieldKind::Text: return makeText(field);
    case FieldKind::Option: return makeOption(field);
    case FieldKind::Button: return makeButton(field);
    case FieldKind::Combo: return makeCombo(field);
    case FieldKind::Frame: return new QFrame(this);
    case FieldKind::Label: {
      auto* label = new QLabel(this);
      label->setTextFormat(Qt::PlainText);
      label->setWordWrap(true);
      return label;
    }
    case FieldKind::Check: break;
  }
  auto* box = new QCheckBox(this);
  connect(box, &QCheckBox::clicked, this, [this, field](bool on) { emit clicked(field, on); });
  return box;
}

QWidget* InputPanel::makeText(Field field) {
  auto* edit = new QLineEdit(this);
  edit->setMaxLength(kLongestText);
  edit->setMinimumWidth(kFieldWidth);
  if (isFiltered(field)) {
    edit->setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    edit->installEventFilter(this);
  }
  connect(edit, &QLineEdit::textEdited, this,
          [this, field](const QString& text) { emit typed(field, text); });
  return edit;
}

QWidget* InputPanel::makeOption(Field field) {
  const OptionGroup group = rowOf(field).group;
  if (group == OptionGroup::Point) {  // "P" needs less room than a button likes to take
    QWidget* button = makeButton(field);
    button->setMaximumWidth(kFieldWidth);
    return button;
  }
  auto* option = new QRadioButton(this);
  QButtonGroup*& buttons = groups_[group];
  if (buttons == nullptr) buttons = new QButtonGroup(this);
  buttons->addButton(option);
  connect(option, &QRadioButton::clicked, this, [this, field] { emit clicked(field, true); });
  return option;
}

QWidget* InputPanel::makeButton(Field field) {
  auto* button = new QPushButton(this);
  connect(button, &QPushButton::clicked, this, [this, field] { emit pressed(field); });
  return button;
}

QWidget* InputPanel::makeCombo(Field field) {
  auto* combo = new QComboBox(this);
  combo->setMinimumContentsLength(12);
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(combo, &QComboBox::textActivated, this,
          [this, field](const QString& text) { emit typed(field, text); });
  return combo;
}

void InputPanel::build() {
  column_ = new QWidget(this);
  auto* rows = new QVBoxLayout(column_);
  rows->setSpacing(12);
  for (const InputSection& section : inputSections()) {
    sections_.push_back(new InputSectionBox(
        section, [this](Field field) { return widgetOf(field); }, column_));
    rows->addWidget(sections_.back());
  }
  rows->addStretch();
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field label = labelOf(fieldAt(i));
    if (label != Field::None) static_cast<QLabel*>(widgetOf(label))->setBuddy(widgets_[i]);
  }

  scroll_ = new QScrollArea(this);
  scroll_->setWidget(column_);
  scroll_->setWidgetResizable(true);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll_->setFocusPolicy(Qt::NoFocus);

  dial_->setWordWrap(true);
  dial_->setTextFormat(Qt::PlainText);
  dial_->setContentsMargins(9, 6, 9, 0);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->addWidget(dial_);
  all->addWidget(scroll_, 1);
  all->addLayout(buildButtons());
}

QLayout* InputPanel::buildButtons() {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(9, 0, 9, 9);
  for (const Field field : inputButtons()) row->addWidget(widgetOf(field));
  auto* run = static_cast<QPushButton*>(widgetOf(Field::cmdRun));
  run->setDefault(true);
  // Its caption is empty: the tip names it.
  auto* save = static_cast<QPushButton*>(widgetOf(Field::cmdSave));
  save->setIcon(style()->standardIcon(QStyle::SP_DialogSaveButton));
  live_->setText(shown(program_.T("Live")));
  live_->setToolTip(shown(program_.T("Draws again after each change")));
  row->addStretch();
  row->addWidget(live_);
  return row;
}

// The keyboard goes through the fields as they stand.
void InputPanel::chainTabs() {
  std::vector<QWidget*> chain;
  const auto take = [&](Field field) {
    if (field != Field::None && widgetOf(field)->focusPolicy() != Qt::NoFocus)
      chain.push_back(widgetOf(field));
  };
  for (const InputSection& section : inputSections()) {
    for (const InputRow& row : section.rows) std::ranges::for_each(row.fields, take);
  }
  std::ranges::for_each(inputButtons(), take);
  chain.push_back(live_);
  for (std::size_t i = 1; i < chain.size(); ++i) setTabOrder(chain[i - 1], chain[i]);
}

// --- Mirroring

void InputPanel::refresh() {
  const Item chosen = program_.panel().chosen();
  dial_->setText(chosen == Item::None ? QString() : shown(program_.panel()[chosen].caption));
  for (std::size_t i = 0; i < kFieldCount; ++i) refresh(fieldAt(i));
  refreshOptions();
  // One line runs down between the columns of all sections.
  int width = 0;
  for (InputSectionBox* section : sections_) {
    section->arrange(program_.panel());
    width = std::max(width, section->columnWidth());
  }
  for (InputSectionBox* section : sections_) section->setColumnWidth(width);
  // Nothing is cut at the side; a dial that needs less room leaves the panel as wide as it was.
  column_->layout()->activate();
  const int whole =
      column_->minimumSizeHint().width() + scroll_->verticalScrollBar()->sizeHint().width();
  scroll_->setMinimumWidth(std::max(scroll_->minimumWidth(), whole));
}

void InputPanel::refresh(Field field) {
  const Control& control = program_.panel()[field];
  QWidget* widget = widgetOf(field);
  widget->setVisible(control.visible);
  widget->setEnabled(control.enabled);
  widget->setToolTip(tipOf(program_.panel(), field));
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
    const QString text = shown(control.text).left(kLongestText);
    if (edit->text() != text) edit->setText(text);
  } else if (auto* label = qobject_cast<QLabel*>(widget)) {
    label->setText(shown(control.caption).trimmed());
  } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
    button->setText(captionOf(control));
    if (qobject_cast<QCheckBox*>(widget) != nullptr) button->setChecked(control.state);
  } else if (field == Field::cmbStati) {
    refreshCountries();
  }
  name(field);
}

// What a screen reader says: the label, or the caption; where there is none, the tip.
void InputPanel::name(Field field) {
  const Field label = labelOf(field);
  const Panel& panel = program_.panel();
  QString text = shown(panel[label == Field::None ? field : label].caption).trimmed();
  if (text.isEmpty()) text = tipOf(panel, field);
  widgetOf(field)->setAccessibleName(text);
}

// Of a group at most one option is selected; it may be none.
void InputPanel::refreshOptions() {
  for (const auto& [group, buttons] : groups_) buttons->setExclusive(false);
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    if (auto* option = qobject_cast<QRadioButton*>(widgets_[i]))
      option->setChecked(program_.panel().on(fieldAt(i)));
  }
  for (const auto& [group, buttons] : groups_) buttons->setExclusive(true);
}

void InputPanel::refreshCountries() {
  auto* combo = static_cast<QComboBox*>(widgetOf(Field::cmbStati));
  const std::vector<std::string>& countries = program_.world().countries;
  const QString chosen = shown(program_.panel().text(Field::cmbStati));
  const bool loaded = !chosen.isEmpty() || !countries.empty();
  const int wanted = loaded ? static_cast<int>(countries.size()) + 1 : 0;
  if (combo->count() != wanted) {
    combo->clear();
    if (loaded) combo->addItem(shown(kWholeWorld));
    for (const std::string& country : countries) combo->addItem(shown(country));
  }
  combo->setCurrentIndex(combo->findText(chosen));
}

// --- Keys

bool InputPanel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  const QString text = key->text();
  const bool command = (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
  if (command || text.size() != 1 || !text.front().isPrint()) {
    return QWidget::eventFilter(watched, event);
  }
  const char16_t typed = text.front().unicode();
  const char taken = typed < 0x80 ? FiltroNumerico(static_cast<char>(typed)) : '\0';
  if (taken == '\0') {
    emit beep();
    return true;
  }
  if (taken == static_cast<char>(typed)) return QWidget::eventFilter(watched, event);
  QKeyEvent replaced(QEvent::KeyPress, key->key(), key->modifiers(), QString(QLatin1Char(taken)));
  QCoreApplication::sendEvent(watched, &replaced);
  return true;
}

}  // namespace dialwright
