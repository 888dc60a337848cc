// Hands strokes to the painter.
#include "ui/painter_target.hpp"

#include <QFontMetricsF>
#include <QPainterPath>
#include <cmath>
#include <numbers>

#include "ui/text.hpp"

namespace dialwright {

namespace {

// Twips beyond which a device's numbers end: more than a kilometre of paper.
constexpr double kFarthest = 1e8;

bool reachable(double x, double y) { return std::abs(x) <= kFarthest && std::abs(y) <= kFarthest; }

QColor colourOf(Rgb colour) { return {redOf(colour), greenOf(colour), blueOf(colour)}; }

}  // namespace

PainterTarget::PainterTarget(QPainter& painter, const StrokeLook& look, const QRectF& cut)
    : painter_(painter), look_(look) {
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
  if (!cut.isEmpty()) painter_.setClipRect(cut);
  QFont font("DejaVu Sans");
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(look_.textSize))));
  painter_.setFont(font);
  ascent_ = QFontMetricsF(font, painter_.device()).ascent();
}

QPen PainterTarget::pen(Rgb colour, int width) const {
  QPen pen(colourOf(look_.ink(colour)), look_.width * std::max(width, 1));
  pen.setCapStyle(Qt::RoundCap);
  pen.setJoinStyle(Qt::RoundJoin);
  if (dotted_) pen.setDashPattern({0.01, 3});
  return pen;
}

void PainterTarget::line(double x1, double y1, double x2, double y2, Rgb colour, int width) {
  painter_.setPen(pen(colour, width));
  painter_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void PainterTarget::point(double x, double y, Rgb colour) {
  painter_.setPen(pen(colour));
  painter_.drawPoint(QPointF(x, y));
}

void PainterTarget::circle(const TargetCircle& circle) {
  const bool mapped = circle.aspect >= 1e-6 && circle.aspect <= 1e6 &&
                      std::isfinite(circle.startAngle) && std::isfinite(circle.endAngle);
  if (!mapped || !reachable(circle.x, circle.y) || !(circle.radius >= 0)) return;
  if (circle.radius > kFarthest) return;
  const double radiusX = circle.radiusX();
  const double radiusY = circle.radiusY();
  const QRectF frame(circle.x - radiusX, circle.y - radiusY, 2 * radiusX, 2 * radiusY);
  const double degrees = 180 / std::numbers::pi;
  QPainterPath path;
  if (circle.whole()) {
    path.addEllipse(frame);
  } else {
    const double start = circle.start() * degrees;
    if (circle.startAngle < 0) {
      path.moveTo(circle.x, circle.y);
    } else {
      path.arcMoveTo(frame, start);
    }
    path.arcTo(frame, start, circle.sweep() * degrees);
    if (circle.endAngle < 0) path.lineTo(circle.x, circle.y);
  }
  const bool fills = circle.fill >= 0 && circle.closed();
  painter_.setPen(pen(circle.colour));
  painter_.setBrush(fills ? QBrush(colourOf(look_.fillInk(circle.fill))) : QBrush(Qt::NoBrush));
  painter_.drawPath(path);
}

void PainterTarget::box(double x1, double y1, double x2, double y2, Rgb colour, bool filled) {
  const auto edge = [](double at) { return std::clamp(at, -kFarthest, kFarthest); };
  const QRectF rectangle(QPointF(edge(x1), edge(y1)), QPointF(edge(x2), edge(y2)));
  painter_.setPen(pen(colour));
  painter_.setBrush(filled ? QBrush(colourOf(look_.ink(colour))) : QBrush(Qt::NoBrush));
  painter_.drawRect(rectangle.normalized());
}

void PainterTarget::text(double x, double y, std::string_view text, Rgb colour) {
  if (!reachable(x, y)) return;
  painter_.setPen(colourOf(look_.ink(colour)));
  painter_.drawText(QPointF(x, y + ascent_), shown(text));
}

}  // namespace dialwright
