// Paints shots and brings them home.
#include "ui/sheet_shot.hpp"

#include <cmath>

#include "paper/screen.hpp"

namespace dialwright {

Shot paintShot(std::shared_ptr<const SheetPlot> sheet, double pixelsPerMeter, const QRectF& part,
               const std::function<bool()>& stopped) {
  const double left = std::floor(part.left() * pixelsPerMeter);
  const double top = std::floor(part.top() * pixelsPerMeter);
  const int width = static_cast<int>(std::ceil(part.right() * pixelsPerMeter) - left);
  const int height = static_cast<int>(std::ceil(part.bottom() * pixelsPerMeter) - top);
  QImage image(width, height, QImage::Format_RGB32);
  if (image.isNull()) return {};  // no memory for it
  paintScreen(
      *sheet, {pixelsPerMeter, left, top, width, height},
      {reinterpret_cast<std::uint32_t*>(image.bits()), static_cast<int>(image.bytesPerLine())},
      stopped);
  const QRectF painted(left / pixelsPerMeter, top / pixelsPerMeter, width / pixelsPerMeter,
                       height / pixelsPerMeter);
  return {std::move(image), painted, pixelsPerMeter, std::move(sheet)};
}

ShotMaker::~ShotMaker() {
  cancel();
  thread_.waitForDone();
}

void ShotMaker::cancel() {
  if (order_ != nullptr) order_->store(true);
  order_.reset();
}

void ShotMaker::order(std::shared_ptr<const SheetPlot> sheet, double pixelsPerMeter,
                      const QRectF& part) {
  cancel();
  order_ = std::make_shared<Stop>(false);
  thread_.setMaxThreadCount(1);
  thread_.start([this, stop = order_, sheet = std::move(sheet), pixelsPerMeter, part] {
    if (stop->load()) return;
    const Shot shot = paintShot(sheet, pixelsPerMeter, part, [&stop] { return stop->load(); });
    QMetaObject::invokeMethod(this, [this, stop, shot] {
      if (stop->load()) return;
      order_.reset();
      emit made(shot);
    });
  });
}

}  // namespace dialwright
