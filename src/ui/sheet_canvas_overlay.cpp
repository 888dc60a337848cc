// What stands over the sheet's pictures and moves without a new one: the shadow, the keyboard's
// cross.
#include <QPainter>
#include <algorithm>

#include "app/moment.hpp"
#include "ui/sheet_canvas.hpp"

namespace dialwright {

namespace {

constexpr double kLeastEnd = 5;  // pixels; the circle around the end is seen at any zoom

double endRadius(double zoom) { return std::max(kShadowEnd, kLeastEnd / zoom); }  // metres

}  // namespace

void SheetCanvas::showShadow(const std::vector<proof::Polyline>& shadow) {
  viewport()->update(shadowArea().toAlignedRect());
  shadow_ = shadow;
  viewport()->update(shadowArea().toAlignedRect());
}

// A dial's y axis grows upwards.
QPointF SheetCanvas::placeOf(Punto ofDial) const {
  const SheetFrame& frame = sheet_->frame();
  return {ofDial.x * frame.signX + frame.shiftX, -ofDial.y * frame.signY + frame.shiftY};
}

QRectF SheetCanvas::shadowArea() const {
  QRectF area;
  const double rim = endRadius(zoom_) + kShadowWidth / zoom_;
  for (const proof::Polyline& line : shadow_) {
    for (const Punto each : line) {
      const QPointF place = placeOf(each);
      area |= QRectF(place - QPointF(rim, rim), place + QPointF(rim, rim));
    }
  }
  area &= QRectF({0, 0}, size());
  return {toPixel(area.topLeft()), toPixel(area.bottomRight())};
}

// Clipped as the sheet clips its own lines, so that none goes to where a painter can't follow.
void SheetCanvas::drawShadow(QPainter& painter) const {
  if (shadow_.empty()) return;
  const SheetFrame& frame = sheet_->frame();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(redOf(kShadowBlue), greenOf(kShadowBlue), blueOf(kShadowBlue)),
                      kShadowWidth, Qt::SolidLine, Qt::RoundCap));
  const auto pixel = [&](double x, double y) {
    return toPixel({x + frame.shiftX, y + frame.shiftY});
  };
  for (const proof::Polyline& line : shadow_) {
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
      Segment piece{line[i].x * frame.signX, -line[i].y * frame.signY, line[i + 1].x * frame.signX,
                    -line[i + 1].y * frame.signY};
      if (frame.clip(piece) == 0) continue;
      painter.drawLine(pixel(piece.x1, piece.y1), pixel(piece.x2, piece.y2));
    }
    const Punto first = line.front(), last = line.back();
    const bool closed = first.x == last.x && first.y == last.y;
    const QPointF end = placeOf(last);
    if (!closed && QRectF({0, 0}, size()).contains(end))
      painter.drawEllipse(toPixel(end), endRadius(zoom_) * zoom_, endRadius(zoom_) * zoom_);
  }
  painter.restore();
}

void SheetCanvas::drawCross(QPainter& painter) const {
  if (!cross_ || !hasFocus()) return;
  constexpr double kArm = 12;
  const QPointF at = toPixel(*cross_);
  painter.setPen(QPen(palette().highlight(), 2));
  painter.drawLine(at - QPointF(kArm, 0), at + QPointF(kArm, 0));
  painter.drawLine(at - QPointF(0, kArm), at + QPointF(0, kArm));
}

}  // namespace dialwright
