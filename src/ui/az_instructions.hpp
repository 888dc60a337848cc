// The window frmInfoDec: how az is measured, as a drawing and as a text, and how the board is
// filled.
#pragma once

#include <QDialog>

#include "board/board.hpp"
#include "shell/clicks.hpp"

namespace dialwright {

class AzInstructions : public QDialog {
 public:
  AzInstructions(const Board& board, const Translator& T, QWidget* parent = nullptr);
};

}  // namespace dialwright
