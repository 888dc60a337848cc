// The drawing of how az is measured: a wall, a plumb line and its shadow, seen from above.
#pragma once

#include <QWidget>
#include <array>

#include "shell/clicks.hpp"

namespace dialwright {

class AzDrawing : public QWidget {
 public:
  explicit AzDrawing(const Translator& T, QWidget* parent = nullptr);

  QSize sizeHint() const override { return {520, 380}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString wall_, shadow_, perpendicular_, plumb_, sun_, north_;
};

}  // namespace dialwright
