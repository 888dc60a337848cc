// What mouse and keyboard do to the sheet's surface.
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <array>
#include <cmath>

#include "ui/sheet_canvas.hpp"
#include "ui/text.hpp"

namespace dialwright {

namespace {

constexpr double kStep = 1.25;       // of a key's zoom
constexpr double kNotch = 1.2;       // of a wheel's
constexpr double kNotchAngle = 120;  // in eighths of a degree
constexpr double kReach = 4;         // pixels from the cursor to a stroke
constexpr int kLargeCrossStep = 10;  // pixels, with Shift

struct Arrow {
  int key = 0;
  QPoint way;
};
const std::array kArrows = {Arrow{Qt::Key_Left, {-1, 0}}, Arrow{Qt::Key_Right, {1, 0}},
                            Arrow{Qt::Key_Up, {0, -1}}, Arrow{Qt::Key_Down, {0, 1}}};

}  // namespace

void SheetCanvas::moveBy(const QPoint& pixels) {
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + pixels.x());
  verticalScrollBar()->setValue(verticalScrollBar()->value() + pixels.y());
}

void SheetCanvas::wheelEvent(QWheelEvent* event) {
  const QPoint turn = event->angleDelta();
  if ((event->modifiers() & Qt::ShiftModifier) != 0) {
    moveBy({-turn.y() - turn.x(), 0});
  } else {
    setZoom(zoom_ * std::pow(kNotch, turn.y() / kNotchAngle), event->position());
  }
  event->accept();
}

void SheetCanvas::mousePressEvent(QMouseEvent* event) {
  pressedAt_ = event->position().toPoint();
  lastAt_ = *pressedAt_;
  dragging_ = false;
}

void SheetCanvas::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (!pressedAt_) return hover(event->position());
  if (!dragging_ && (at - *pressedAt_).manhattanLength() >= QApplication::startDragDistance()) {
    dragging_ = true;
    viewport()->setCursor(Qt::ClosedHandCursor);
  }
  if (!dragging_) return;
  moveBy(lastAt_ - at);
  lastAt_ = at;
}

void SheetCanvas::mouseReleaseEvent(QMouseEvent* event) {
  if (!pressedAt_) return;
  pressedAt_.reset();
  viewport()->setCursor(Qt::CrossCursor);
  if (!dragging_) click(toSheet(event->position()));
  dragging_ = false;
}

void SheetCanvas::click(const QPointF& place) {
  if (!QRectF({0, 0}, size()).contains(place)) return;
  const double twips = kTwipsPerMeter / program_.sheet().Scala();  // of a metre
  program_.view().click(place.x() * twips, place.y() * twips);
  emit clicked();
}

void SheetCanvas::keyPressEvent(QKeyEvent* event) {
  const bool control = (event->modifiers() & Qt::ControlModifier) != 0;
  for (const Arrow& arrow : kArrows) {
    if (event->key() != arrow.key) continue;
    const bool large = (event->modifiers() & Qt::ShiftModifier) != 0;
    if (control) return moveCross(arrow.way * (large ? kLargeCrossStep : 1));
    return moveBy({arrow.way.x() * horizontalScrollBar()->singleStep(),
                   arrow.way.y() * verticalScrollBar()->singleStep()});
  }
  switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: return zoomBy(kStep);
    case Qt::Key_Minus: return zoomBy(1 / kStep);
    case Qt::Key_0: return showFit();
    case Qt::Key_PageUp: return moveBy({0, -verticalScrollBar()->pageStep()});
    case Qt::Key_PageDown: return moveBy({0, verticalScrollBar()->pageStep()});
    case Qt::Key_Home: return moveBy(-QPoint(1, 1) * kTwipsPerMeter);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (cross_) return click(*cross_);
      break;
    default: break;
  }
  event->ignore();
}

// The first step sets the cross into the middle.
void SheetCanvas::moveCross(const QPoint& pixels) {
  const QPointF from = cross_ ? toPixel(*cross_) : QPointF(viewport()->rect().center());
  const QRectF window = viewport()->rect();
  QPointF at = from + pixels;
  at = {std::clamp(at.x(), window.left(), window.right()),
        std::clamp(at.y(), window.top(), window.bottom())};
  cross_ = toSheet(at);
  hover(at);
  viewport()->update();
}

std::optional<Hit> SheetCanvas::strokeAt(const QPointF& pixel) {
  if (!grid_) grid_.emplace(*sheet_);
  const QPointF place = toSheet(pixel);
  return grid_->at(place.x(), place.y(), kReach / zoom_);
}

void SheetCanvas::hover(const QPointF& pixel) {
  const QPointF place = toSheet(pixel);
  if (!QRectF({0, 0}, size()).contains(place)) {
    emit hovered({});
    return;
  }
  const double x = (place.x() - sheet_->ShiftX()) * 1000;
  const double y = (place.y() - sheet_->ShiftY()) * 1000;
  QString text = QString("x %1   y %2 mm").arg(x, 0, 'f', 1).arg(y, 0, 'f', 1);
  if (const std::optional<Hit> hit = strokeAt(pixel)) {
    text += "   " + describe(program_, sheet_->list(), *hit);
  }
  emit hovered(text);
}

bool SheetCanvas::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Leave) emit hovered({});
  return QAbstractScrollArea::viewportEvent(event);
}

}  // namespace dialwright
