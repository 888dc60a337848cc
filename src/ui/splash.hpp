// The splash window: title and release, for two seconds or until a key or a click. It blocks
// nothing.
#pragma once

#include <QWidget>

#include "app/program.hpp"

namespace dialwright {

class Splash : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kMilliseconds = 2000;

  // Shows itself in the middle of the screen, and deletes itself once it is closed.
  static void show(const Program& program);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  // A key pressed in any window of the program dismisses the splash and still does its work there.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  explicit Splash(const Program& program);
};

}  // namespace dialwright
