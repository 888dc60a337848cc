// Makes the scale 1:1 true on the user's own screen.
#pragma once

#include <QDialog>

#include "app/program.hpp"

class QDoubleSpinBox;

namespace dialwright {

// Shows a line that should be 100 mm long; the user types what a ruler on the screen says.
class Calibration : public QDialog {
  Q_OBJECT

 public:
  // Pixels a metre as they have been taken for true.
  Calibration(const Program& program, double pixelsPerMeter, QWidget* parent = nullptr);

  // Pixels a metre by the ruler.
  double pixelsPerMeter() const;

 private:
  double assumed_;
  QDoubleSpinBox* measured_;
};

}  // namespace dialwright
