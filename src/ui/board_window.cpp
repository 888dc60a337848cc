// Makes the board's widgets from its table and passes on what the user does.
#include "ui/board_window.hpp"

#include <QCheckBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <vector>

#include "board/conversions.hpp"
#include "ui/az_instructions.hpp"
#include "ui/text.hpp"

namespace dialwright {

namespace {

using F = BoardField;

// A row of the window: a label and what stands beside it, widths in digits.
struct Row {
  F label;
  struct Cell {
    F field;
    int digits = 0;
  };
  std::vector<Cell> cells;
};

const std::vector<Row>& rows() {
  static const std::vector<Row> kRows = {
      {F::None, {{F::optModoDec}, {F::OptModoSess}}},
      {F::lblLAT,
       {{F::txtLAT, 10}, {F::cmdSignLAT}, {F::txtLatG, 4}, {F::txtLatP, 3}, {F::txtLATS, 8}}},
      {F::lblLON,
       {{F::txtLON, 10}, {F::cmdSignLON}, {F::txtLonG, 4}, {F::txtLonP, 3}, {F::txtLonS, 8}}},
      {F::None, {{F::cmdTrans}}},
      {F::lblDate, {{F::txtDay, 4}, {F::txtMonth, 4}, {F::txtYear, 6}}},
      {F::lblUT, {{F::txtHH, 4}, {F::txtMM, 4}, {F::txtSS, 6}}},
      {F::lblFuso, {{F::TxtFuso, 4}, {F::ckDst}}},
      {F::lblAngle, {{F::txtAngle, 10}, {F::cmdInfo}}},
  };
  return kRows;
}

constexpr int kGap = 6;
// What the results take in any language.
constexpr int kResultColumns = 66, kResultLines = 26;

bool isSign(F field) { return field == F::cmdSignLAT || field == F::cmdSignLON; }

void setDigits(QWidget* widget, int digits) {
  const QFontMetrics font = widget->fontMetrics();
  widget->setFixedWidth(font.horizontalAdvance('0') * digits + font.height());
}

// A single character that was typed, not a shortcut; 0 for anything else.
char typedKey(const QKeyEvent& key) {
  const bool shortcut =
      key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  const QString text = key.text();
  if (shortcut || text.size() != 1 || !text[0].isPrint()) return 0;
  const char letter = text[0].toLatin1();
  return letter == 0 ? '?' : letter;  // no letter beyond Latin-1 is part of a number
}

}  // namespace

BoardWindow::BoardWindow(Program& program, QWidget* parent)
    : QDialog(parent),
      T_([&program](std::string_view text) { return program.T(text); }),
      board_(program.openBoard()) {
  setObjectName(shown(rowOf(F::frmDeclin).name));
  setWindowTitle(shown(board_[F::frmDeclin].caption));
  setModal(true);
  board_.setMoment(std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()));
  makeWidgets();
  layOut();
  refresh();
}

void BoardWindow::makeWidgets() {
  for (std::size_t i = 0; i < kBoardFieldCount; ++i) {
    const F field = boardFieldAt(i);
    QWidget* made = make(field);
    if (made == nullptr) continue;
    const BoardRow& row = rowOf(field);
    made->setObjectName(shown(row.name));
    made->setToolTip(shown(board_[field].tip));
    widgets_[i] = made;
  }
}

QWidget* BoardWindow::make(BoardField field) {
  const QString caption = shown(board_[field].caption);
  switch (rowOf(field).kind) {
    case FieldKind::Label: return new QLabel(caption, this);
    case FieldKind::Text: return makeText(field);
    case FieldKind::Check:
    case FieldKind::Option: {
      QAbstractButton* box = nullptr;
      if (rowOf(field).kind == FieldKind::Check) {
        box = new QCheckBox(caption, this);
      } else {
        box = new QRadioButton(caption, this);
      }
      connect(box, &QAbstractButton::clicked, this, [this, field](bool state) {
        board_.click(field, state);
        refresh();
      });
      return box;
    }
    case FieldKind::Button: {
      auto* button = new QPushButton(caption, this);
      button->setAutoDefault(false);
      connect(button, &QPushButton::clicked, this, [this, field] { press(field); });
      return button;
    }
    default: return nullptr;  // the windows themselves
  }
}

QWidget* BoardWindow::makeText(BoardField field) {
  if (field == F::txtResult) {
    auto* result = new QPlainTextEdit(this);
    result->setReadOnly(true);
    result->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    result->setLineWrapMode(QPlainTextEdit::NoWrap);
    return result;
  }
  auto* edit = new QLineEdit(this);
  connect(edit, &QLineEdit::textEdited, this,
          [this, field](const QString& text) { board_.type(field, text.toStdString()); });
  connect(edit, &QLineEdit::editingFinished, this, [this, field] { leave(field); });
  edit->installEventFilter(this);
  if (const F label = rowOf(field).label; label != F::None) {
    const QString name = shown(board_[label].caption).trimmed();
    const QString part = shown(board_[field].tip);
    edit->setAccessibleName(part.isEmpty() ? name : name + ", " + part);
  }
  return edit;
}

void BoardWindow::layOut() {
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(10);
  for (const Row& row : rows()) {
    const int at = grid->rowCount();
    auto* line = new QHBoxLayout;
    line->setSpacing(kGap);
    for (const Row::Cell& cell : row.cells) {
      QWidget* made = widget(cell.field);
      if (cell.digits > 0) setDigits(made, cell.digits);
      if (isSign(cell.field)) setDigits(made, 2);
      line->addWidget(made);
    }
    line->addStretch();
    grid->addLayout(line, at, 1);
    if (row.label == F::None) continue;
    auto* label = static_cast<QLabel*>(widget(row.label));
    label->setBuddy(widget(row.cells.front().field));
    grid->addWidget(label, at, 0);
  }
  auto* last = new QHBoxLayout;
  last->setSpacing(kGap);
  last->addWidget(widget(F::cmdCalcola));
  last->addWidget(widget(F::cmdExit));
  last->addStretch();
  static_cast<QPushButton*>(widget(F::cmdCalcola))->setDefault(true);

  auto* left = new QVBoxLayout;
  left->addLayout(grid);
  left->addStretch();
  left->addLayout(last);
  auto* result = widget(F::txtResult);
  result->setAccessibleName(shown(T_("Results")));
  const QFontMetrics type = result->fontMetrics();
  result->setMinimumSize(type.horizontalAdvance('0') * kResultColumns,
                         type.lineSpacing() * kResultLines);
  auto* window = new QHBoxLayout(this);
  window->setSpacing(16);
  window->addLayout(left);
  window->addWidget(result, 1);
  widget(F::txtLAT)->setFocus();
}

void BoardWindow::refresh() {
  for (std::size_t i = 0; i < kBoardFieldCount; ++i) {
    const Control& control = board_[boardFieldAt(i)];
    if (widgets_[i] == nullptr) continue;
    widgets_[i]->setEnabled(control.enabled);
    if (auto* edit = qobject_cast<QLineEdit*>(widgets_[i])) {
      if (edit->text() != shown(control.text)) edit->setText(shown(control.text));
    } else if (auto* button = qobject_cast<QAbstractButton*>(widgets_[i])) {
      button->setText(shown(control.caption).replace('&', "&&"));
      button->setChecked(control.state);
    } else if (auto* result = qobject_cast<QPlainTextEdit*>(widgets_[i])) {
      result->setPlainText(shown(control.text));
    }
  }
}

void BoardWindow::leave(BoardField field) {
  board_.leave(field);
  refresh();
}

void BoardWindow::press(BoardField button) {
  if (button == F::cmdExit) {
    close();
  } else if (button == F::cmdInfo) {
    (new AzInstructions(board_, T_, this))->show();
  } else {
    board_.press(button);
    refresh();
    if (!isSign(button)) emit transferred();
  }
}

bool BoardWindow::eventFilter(QObject* watched, QEvent* event) {
  const auto field = findBoardField(watched->objectName().toStdString());
  if (!field) return false;
  if (event->type() == QEvent::FocusIn) {
    // After the click that brought the focus, which would take the selection away.
    QTimer::singleShot(0, watched, [watched] { static_cast<QLineEdit*>(watched)->selectAll(); });
  } else if (event->type() == QEvent::KeyPress) {
    const char key = typedKey(static_cast<QKeyEvent&>(*event));
    return key != 0 && SoloNumeri(key, rowOf(*field).sign) == 0;
  }
  return false;
}

}  // namespace dialwright
