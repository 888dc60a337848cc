// The utility board's window, frmDeclin: the controls of a `Board`.
#pragma once

#include <QDialog>
#include <array>

#include "app/program.hpp"
#include "board/board.hpp"

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace dialwright {

class BoardWindow : public QDialog {
  Q_OBJECT

 public:
  // Opens on the program's panel, at the present moment.
  explicit BoardWindow(Program& program, QWidget* parent = nullptr);

  Board& board() { return board_; }

  // Shows what the board holds.
  void refresh();

 signals:
  // Fields of the main panel were written.
  void transferred();

 protected:
  // Keys that a number can't have are swallowed; a field that is entered is selected whole.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void makeWidgets();
  QWidget* make(BoardField field);
  QWidget* makeText(BoardField field);
  void layOut();
  void leave(BoardField field);
  void press(BoardField button);

  QWidget* widget(BoardField field) const { return widgets_[static_cast<std::size_t>(field)]; }

  Translator T_;
  Board board_;
  std::array<QWidget*, kBoardFieldCount> widgets_{};
};

}  // namespace dialwright
