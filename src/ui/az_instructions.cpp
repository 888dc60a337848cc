// Puts the instructions into one scrolling page.
#include "ui/az_instructions.hpp"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "ui/az_drawing.hpp"
#include "ui/text.hpp"

namespace dialwright {

namespace {

// What the board itself tells first; then what makes the work easier and surer.
QStringList paragraphs(const Board& board, const Translator& T) {
  QStringList texts = shown(board.instructions()).split('\n', Qt::SkipEmptyParts);
  texts << shown(
      T("With a nail instead: drive a straight nail into the wall at a right angle, so that it "
        "stands out by a length a. Mark the tip of its shadow on the wall and measure, level, how "
        "far it lies to the side of the nail: b. Then az is the angle whose tangent is b / a, with "
        "the same sign."));
  texts << shown(
      T("Put in the latitude, the longitude, the date, the time in UT and az, and press Calculate: "
        "the declination of the dial is positive towards West, negative towards East."));
  texts << shown(
      T("Take several measures, in the morning and in the afternoon, when the shadow is long and "
        "sharp, and use their mean: an error of one minute in the time makes about a quarter of a "
        "degree or more."));
  return texts;
}

}  // namespace

AzInstructions::AzInstructions(const Board& board, const Translator& T, QWidget* parent)
    : QDialog(parent) {
  setObjectName("frmInfoDec");
  setWindowTitle(shown(board[BoardField::frmInfoDec].caption));
  setAttribute(Qt::WA_DeleteOnClose);
  setModal(true);

  auto* page = new QWidget;
  page->setBackgroundRole(QPalette::Base);
  auto* text = new QVBoxLayout(page);
  text->setContentsMargins(20, 16, 20, 16);
  text->setSpacing(12);
  text->addWidget(new AzDrawing(T, page));
  int number = 0;
  for (const QString& paragraph : paragraphs(board, T)) {
    auto* label = new QLabel(QStringLiteral("%1.  %2").arg(++number).arg(paragraph), page);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->addWidget(label);
  }
  text->addStretch();

  auto* scroll = new QScrollArea(this);
  scroll->setWidget(page);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(shown(T("OK")), QDialogButtonBox::AcceptRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  auto* column = new QVBoxLayout(this);
  column->addWidget(scroll, 1);
  column->addWidget(buttons);
  resize(600, 660);
}

}  // namespace dialwright
