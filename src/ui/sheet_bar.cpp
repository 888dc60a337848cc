// Builds the bar and its panels from the table of the sheet's commands.
#include "ui/sheet_bar.hpp"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>
#include <cmath>

#include "ui/flow_layout.hpp"
#include "ui/text.hpp"

namespace dialwright {

namespace {

using enum SheetCommand;

constexpr std::array kOfBar = {cmdInvX,    cmdInvY,    cmdDxf,  cmdSave,  cmdDim,
                               cmdPulisci, CmdGriglia, cmdAssi, cmdStampa};
constexpr std::array kOfAxes = {cmdAssiAgg, cmdAssiChiudi};
constexpr std::array kOfDimensions = {cmdQAggiorna, cmdQAnnulla};
constexpr std::array kOfPrint = {optAll, optSelected, cmdPOk, cmdPCancel};
constexpr std::array kAxesFields = {SheetField::txtX, SheetField::txtY};
constexpr std::array kDimensionFields = {SheetField::txtQL, SheetField::txtQH};

constexpr double kZoomStep = 1.25;
constexpr int kLongestNumber = 32;
constexpr int kFieldCharacters = 12;

const SheetCommandRow& rowOf(SheetCommand command) {
  return kSheetCommands[static_cast<std::size_t>(command)];
}

// A caption: an "&" in it is no mnemonic.
QString caption(std::string_view text) { return shown(text).replace('&', "&&"); }

// Label and widget, which stay beside each other.
QWidget* pair(QWidget* parent, const QString& label, QWidget* widget) {
  auto* both = new QWidget(parent);
  auto* row = new QHBoxLayout(both);
  row->setContentsMargins(0, 0, 0, 0);
  auto* text = new QLabel(label, both);
  text->setBuddy(widget);
  row->addWidget(text);
  row->addWidget(widget);
  return both;
}

}  // namespace

struct SheetBar::PanelRow {
  std::string_view name, title;
  std::span<const SheetField> fields;
  std::span<const SheetCommand> commands;
};

SheetBar::SheetBar(Program& program, QWidget* parent)
    : QWidget(parent), program_(program), view_(program.view()), head_(new QWidget(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  auto* head = new FlowLayout(head_);
  head->setContentsMargins(4, 4, 4, 2);
  head->setSpacing(4);
  column->addWidget(head_);

  addScale();
  addAction("\u2212", program.T("Smaller"), [this] { emit zoomWanted(1 / kZoomStep); });
  addAction("+", program.T("Larger"), [this] { emit zoomWanted(kZoomStep); });
  addAction(program.T("Whole sheet"), program.T("Shows the whole sheet"),
            [this] { emit fitWanted(); });
  addCommands(head_, kOfBar);
  addAction(program.T("Export..."), program.T("Saves the drawing in a format of your choice"),
            [this] { emit exportWanted(); });
  addAction(program.T("A4 pages..."),
            program.T("Shows and prints the pages at true size, with marks to join them"),
            [this] { emit pagesWanted(); });
  addAction(program.T("True size..."), program.T("Makes 1:1 on this screen as long as on a ruler"),
            [this] { emit calibrationWanted(); });
  addShadow();
  lblDimVal_ = addReadOut("lblDimVal", sheet_caption::lblDim);
  lblXYval_ = addReadOut("lblXYval", sheet_caption::Label1);

  axes_ = addPanel({"PicAssi", sheet_caption::PicAssi, kAxesFields, kOfAxes});
  dimensions_ =
      addPanel({"picDimensioni", sheet_caption::picDimensioni, kDimensionFields, kOfDimensions});
  print_ = addPanel({"picPrint", sheet_caption::picPrint, {}, kOfPrint});
  refresh();
}

void SheetBar::addScale() {
  cmbScala_ = new QComboBox(head_);
  cmbScala_->setObjectName("cmbScala");
  cmbScala_->setAccessibleName(shown(program_.T(sheet_caption::cmbScala)));
  cmbScala_->setMinimumContentsLength(6);
  colourScale();
  connect(cmbScala_, &QComboBox::activated, this, [this](int index) {
    view_.chooseScale(static_cast<std::size_t>(index));
    emit scaleChosen();
  });
  head_->layout()->addWidget(pair(head_, shown(program_.T(sheet_caption::cmbScala)), cmbScala_));
}

// A scale between those of the list is no less valid.
void SheetBar::colourScale() {
  QPalette look;
  look.setColor(QPalette::PlaceholderText, palette().color(QPalette::Text));
  cmbScala_->setPalette(look);
}

void SheetBar::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) colourScale();
}

void SheetBar::addShadow() {
  shadow_ = new QAction(shown(program_.T("Shadow")), this);
  shadow_->setCheckable(true);
  shadow_->setToolTip(shown(program_.T("Moves the shadow over the dial by day and hour")));
  auto* button = new QToolButton(head_);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setObjectName("shadow");
  button->setDefaultAction(shadow_);
  head_->layout()->addWidget(button);
}

void SheetBar::addCommands(QWidget* to, std::span<const SheetCommand> commands) {
  for (const SheetCommand command : commands) {
    const SheetCommandRow& row = rowOf(command);
    QAbstractButton* button = nullptr;
    if (command == optAll || command == optSelected) {
      button = new QRadioButton(to);
    } else {
      button = new QToolButton(to);
      button->setFocusPolicy(Qt::StrongFocus);
    }
    button->setObjectName(shown(row.name));
    button->setText(caption(program_.T(row.caption)));
    if (!row.tip.empty()) button->setToolTip(shown(program_.T(row.tip)));
    connect(button, &QAbstractButton::clicked, this, [this, command] { view_.press(command); });
    to->layout()->addWidget(button);
    buttons_[command] = button;
  }
  const auto dots = buttons_.find(cmdDim);
  if (dots == buttons_.end()) return;
  dots->second->setAccessibleName(shown(program_.T(sheet_caption::picDimensioni)).trimmed());
  dots->second->setToolTip(dots->second->accessibleName());
}

void SheetBar::addAction(const std::string& text, const std::string& tip,
                         const std::function<void()>& act) {
  auto* button = new QToolButton(head_);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setText(caption(text));
  button->setToolTip(shown(tip));
  button->setAccessibleName(shown(tip));
  connect(button, &QAbstractButton::clicked, this, act);
  head_->layout()->addWidget(button);
}

QLabel* SheetBar::addReadOut(std::string_view name, std::string_view label) {
  auto* value = new QLabel(head_);
  value->setObjectName(shown(name));
  value->setFrameShape(QFrame::StyledPanel);
  value->setTextInteractionFlags(Qt::TextSelectableByMouse);
  const QString text = shown(program_.T(label));
  value->setAccessibleName(text);
  head_->layout()->addWidget(pair(head_, text, value));
  return value;
}

QFrame* SheetBar::addPanel(const PanelRow& row) {
  auto* panel = new QFrame(this);
  panel->setObjectName(shown(row.name));
  panel->setFrameShape(QFrame::StyledPanel);
  const QString title = shown(program_.T(row.title)).trimmed();
  panel->setAccessibleName(title);
  auto* flow = new FlowLayout(panel);
  flow->setContentsMargins(6, 3, 6, 3);
  flow->setSpacing(8);
  auto* label = new QLabel(title, panel);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  flow->addWidget(label);
  for (const SheetField field : row.fields) addField(panel, field, row.commands.front());
  addCommands(panel, row.commands);
  layout()->addWidget(panel);
  return panel;
}

void SheetBar::addField(QWidget* panel, SheetField field, SheetCommand update) {
  const SheetFieldRow& row = kSheetFields[static_cast<std::size_t>(field)];
  auto* line = new QLineEdit(panel);
  line->setObjectName(shown(row.name));
  line->setMaxLength(kLongestNumber);
  line->setFixedWidth(line->fontMetrics().averageCharWidth() * kFieldCharacters + 16);
  line->installEventFilter(this);
  const QString label = shown(program_.T(row.label));
  line->setAccessibleName(label);
  connect(line, &QLineEdit::textChanged, this,
          [this, field](const QString& text) { view_.setText(field, text.toStdString()); });
  connect(line, &QLineEdit::returnPressed, this, [this, update] { view_.press(update); });
  panel->layout()->addWidget(pair(panel, label, line));
  fields_[field] = line;
}

// The key filter of the number fields. Keys that move or end something pass.
bool SheetBar::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  auto* key = static_cast<QKeyEvent*>(event);
  constexpr auto kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const QString typed = key->text();
  if ((key->modifiers() & kCommands) != 0 || typed.isEmpty() || !typed.at(0).isPrint())
    return false;
  const auto taken = InputSoloNumeri(typed.toUcs4().front(), [] { QApplication::beep(); });
  if (taken) static_cast<QLineEdit*>(object)->insert(QString(QChar(static_cast<char16_t>(*taken))));
  return true;
}

void SheetBar::refresh() {
  axes_->setVisible(view_.axesPanel());
  dimensions_->setVisible(view_.dimensionsPanel());
  print_->setVisible(view_.printPanel());
  for (const auto& [field, line] : fields_) {
    const QString text = shown(view_.text(field));
    if (line->text() == text) continue;
    line->setText(text);
    line->setCursorPosition(0);  // the front of a long number
  }
  buttons_[optAll]->setChecked(view_.wholeArea());
  buttons_[optSelected]->setChecked(!view_.wholeArea());
  showLook(cmdInvX, view_.lookOfInvX());
  showLook(cmdInvY, view_.lookOfInvY());
  lblDimVal_->setText(shown(view_.lblDimVal()));
  lblXYval_->setText(shown(view_.lblXYval()));
  lblXYval_->parentWidget()->setVisible(!view_.lblXYval().empty());
  head_->updateGeometry();
}

void SheetBar::showLook(SheetCommand command, std::optional<Rgb> look) {
  const QString name =
      look ? QColor(redOf(*look), greenOf(*look), blueOf(*look)).name() : QString();
  const QString style =
      look ? QString(
                 "QToolButton { background: %1; color: black; border: 1px solid #808040; "
                 "border-radius: 3px; padding: 3px 7px; }")
                 .arg(name)
           : QString();
  QAbstractButton* button = buttons_[command];
  if (button->styleSheet() != style) button->setStyleSheet(style);
}

// A scale between those of the list stands in its place, without being one of them.
void SheetBar::showScale(double n) {
  QStringList texts;
  int current = -1;
  for (const ScaleItem& item : view_.scaleItems()) {
    if (std::abs(n - item.n) < 1e-6 * n) current = static_cast<int>(texts.size());
    texts += shown(item.text);
  }
  const QSignalBlocker silent(cmbScala_);
  cmbScala_->clear();
  cmbScala_->addItems(texts);
  const QString between = n >= 1 ? QString("1:%1").arg(n, 0, 'f', n < 10 ? 2 : 1)
                                 : QString("%1:1").arg(1 / n, 0, 'f', 2);
  cmbScala_->setPlaceholderText(between);
  cmbScala_->setCurrentIndex(current);
}

}  // namespace dialwright
