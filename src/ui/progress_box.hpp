// The status bar's word about a long run, with the button that cancels it.
#pragma once

#include <QLabel>
#include <QWidget>

#include "app/program.hpp"

namespace dialwright {

class ProgressBox : public QWidget {
  Q_OBJECT

 public:
  explicit ProgressBox(const Program& program, QWidget* parent = nullptr);

  void setSamples(double samples);

 signals:
  void cancelled();

 private:
  const Program& program_;
  QLabel* samples_;
};

}  // namespace dialwright
