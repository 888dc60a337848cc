// Pictures of parts of the sheet, painted beside the window's own thread.
#pragma once

#include <QImage>
#include <QObject>
#include <QRectF>
#include <QThreadPool>
#include <atomic>
#include <functional>
#include <memory>

#include "sheet/sheet_plot.hpp"

namespace dialwright {

// A painted part of the sheet and where it belongs.
struct Shot {
  QImage image;
  QRectF part;                // metres from the sheet's corner
  double pixelsPerMeter = 0;  // of the image
  std::shared_ptr<const SheetPlot> sheet;
};

// Paints at once, in the calling thread. The part is grown to whole pixels.
Shot paintShot(std::shared_ptr<const SheetPlot> sheet, double pixelsPerMeter, const QRectF& part,
               const std::function<bool()>& stopped = {});

// Paints one shot at a time in a thread of its own; a new order takes the place of the one that is
// not done yet.
class ShotMaker : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;
  ~ShotMaker() override;

  void order(std::shared_ptr<const SheetPlot> sheet, double pixelsPerMeter, const QRectF& part);
  bool busy() const { return order_ != nullptr; }

 signals:
  void made(const dialwright::Shot& shot);

 private:
  using Stop = std::atomic<bool>;

  void cancel();

  QThreadPool thread_;
  std::shared_ptr<Stop> order_;  // of the shot that is awaited
};

}  // namespace dialwright
