// The line to measure and the field for what it measures.
#include "ui/calibration.hpp"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>

#include "ui/text.hpp"

namespace dialwright {

namespace {

constexpr double kLine = 0.1;  // metres

class Line : public QWidget {
 public:
  Line(double pixels, QWidget* parent) : QWidget(parent), pixels_(pixels) {
    setFixedSize(static_cast<int>(std::ceil(pixels)) + 2 * kRim, 3 * kRim);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(QPen(palette().windowText(), 1));
    const double middle = height() / 2.0;
    for (int tick = 0; tick <= 10; ++tick) {
      const double x = kRim + pixels_ * tick / 10;
      const double length = tick % 5 == 0 ? kRim : kRim / 2.0;
      painter.drawLine(QPointF(x, middle - length), QPointF(x, middle + length));
    }
    painter.drawLine(QPointF(kRim, middle), QPointF(kRim + pixels_, middle));
  }

 private:
  static constexpr int kRim = 12;
  double pixels_;
};

}  // namespace

Calibration::Calibration(const Program& program, double pixelsPerMeter, QWidget* parent)
    : QDialog(parent), assumed_(pixelsPerMeter), measured_(new QDoubleSpinBox(this)) {
  setWindowTitle(shown(program.T("True size on the screen")));
  auto* column = new QVBoxLayout(this);
  auto* text = new QLabel(
      shown(program.T("Hold a ruler to the line and type how long it is, in millimetres.")), this);
  text->setWordWrap(true);
  measured_->setRange(20, 500);
  measured_->setDecimals(1);
  measured_->setSuffix(" mm");
  measured_->setValue(kLine * 1000);
  measured_->setAccessibleName(text->text());
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(shown(program.T("OK")), QDialogButtonBox::AcceptRole);
  buttons->addButton(shown(program.T("Cancel")), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(text);
  column->addWidget(new Line(kLine * pixelsPerMeter, this), 0, Qt::AlignCenter);
  column->addWidget(measured_);
  column->addWidget(buttons);
  measured_->selectAll();
  measured_->setFocus();
}

double Calibration::pixelsPerMeter() const { return assumed_ * kLine * 1000 / measured_->value(); }

}  // namespace dialwright
