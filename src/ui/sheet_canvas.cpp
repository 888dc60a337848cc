// Lays pictures of the sheet into the window.
#include "ui/sheet_canvas.hpp"

#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "ui/text.hpp"

namespace dialwright {

namespace {

constexpr double kInch = 0.0254;
constexpr double kMostZoom = 100000;      // a hundred pixels a millimetre
constexpr double kLeastOfFit = 0.25;      // the farthest zoom, as a part of the one that fits
constexpr double kOverviewPixels = 1600;  // of the longer side
constexpr double kMargin = 0.3;           // painted beyond what is seen, as a part of it
constexpr int kPause = 25;                // ms without a new zoom before it is painted sharply

// Pixels that a length takes; what is only a rounding more needs none of its own.
int pixelsOf(double length) { return static_cast<int>(std::ceil(length - 1e-6)); }

bool same(double a, double b) { return std::abs(a - b) <= 1e-9 * std::abs(b); }

}  // namespace

SheetCanvas::SheetCanvas(Program& program, QWidget* parent)
    : QAbstractScrollArea(parent), program_(program) {
  setAccessibleName(shown(program.T("Drawing of the dial")));
  setAccessibleDescription(shown(program.T(
      "Plus and minus zoom, 0 shows all, arrows move; with Ctrl they move a cross, Enter clicks.")));
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setMouseTracking(true);
  viewport()->setCursor(Qt::CrossCursor);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  orderTimer_.setSingleShot(true);
  connect(&orderTimer_, &QTimer::timeout, this, &SheetCanvas::order);
  connect(&sharpMaker_, &ShotMaker::made, this, &SheetCanvas::take);
  connect(&overviewMaker_, &ShotMaker::made, this, [this](const Shot& shot) {
    overview_ = shot;
    viewport()->update();
  });
  renew();
}

// A copy, so that it can be painted while the program goes on.
void SheetCanvas::renew() {
  const QSizeF before = sheet_ ? size() : QSizeF();
  auto copy = std::make_shared<SheetPlot>(program_.sheet());
  copy->attach(nullptr);
  copy->watch(nullptr);
  copy->judge(nullptr);
  sheet_ = std::move(copy);
  grid_.reset();
  if (size() != before) grew();
  orderTimer_.start(0);
  viewport()->update();
}

void SheetCanvas::grew() {
  if (fitting_) {
    showFit();
  } else {
    layBars();
  }
}

// --- Where things are

QSizeF SheetCanvas::size() const { return {sheet_->QuadranteL(), sheet_->QuadranteH()}; }

double SheetCanvas::screenZoom() const {
  if (givenScreenZoom_ > 0) return givenScreenZoom_;
  constexpr double kLeast = 40, kMost = 1000, kUsual = 96;
  const double dots = screen()->physicalDotsPerInch();
  return (dots > kLeast && dots < kMost ? dots : kUsual) / kInch;
}

void SheetCanvas::setScreenZoom(double pixelsPerMeter) {
  const double n = scale();
  givenScreenZoom_ = pixelsPerMeter;
  if (!fitting_) setZoom(screenZoom() / n, viewport()->rect().center());
  emit zoomed();
}

QPoint SheetCanvas::corner() const {
  const auto place = [](double content, int window, int scrolled) {
    const int pixels = pixelsOf(content);
    return pixels < window ? (window - pixels) / 2 : -scrolled;
  };
  return {place(size().width() * zoom_, viewport()->width(), horizontalScrollBar()->value()),
          place(size().height() * zoom_, viewport()->height(), verticalScrollBar()->value())};
}

QPointF SheetCanvas::toSheet(const QPointF& pixel) const { return (pixel - corner()) / zoom_; }
QPointF SheetCanvas::toPixel(const QPointF& place) const { return place * zoom_ + corner(); }

QRectF SheetCanvas::seen() const {
  const QRectF window(toSheet({0, 0}), QSizeF(viewport()->size()) / zoom_);
  return window & QRectF({0, 0}, size());
}

double SheetCanvas::fit() const {
  const QSizeF sheet = size();
  if (sheet.isEmpty()) return zoom_;
  return std::min(viewport()->width() / sheet.width(), viewport()->height() / sheet.height());
}

// --- Zoom and place

void SheetCanvas::showFit() {
  fitting_ = true;
  zoom_ = std::min(fit(), kMostZoom);
  layBars();
  emit zoomed();
}

void SheetCanvas::showScale() {
  fitting_ = false;
  zoom_ = std::min(screenZoom() / program_.sheet().Scala(), kMostZoom);
  const double pixels = zoom_ * program_.sheet().Scala() / kTwipsPerMeter;  // of a twip
  const double left = program_.view().HScroll1().value * pixels;
  const double top = program_.view().VScroll1().value * pixels;
  layBars();
  horizontalScrollBar()->setValue(static_cast<int>(std::lround(left)));
  verticalScrollBar()->setValue(static_cast<int>(std::lround(top)));
  emit zoomed();
}

void SheetCanvas::zoomBy(double factor) {
  const QPointF cursor = viewport()->mapFromGlobal(QCursor::pos());
  const QRect window = viewport()->rect();
  setZoom(zoom_ * factor, window.contains(cursor.toPoint()) ? cursor : window.center());
}

// The place under the anchor stays there.
void SheetCanvas::setZoom(double zoom, const QPointF& anchor) {
  const QPointF place = toSheet(anchor);
  fitting_ = false;
  zoom_ = std::clamp(zoom, std::min(fit() * kLeastOfFit, kMostZoom), kMostZoom);
  layBars();
  const QPointF scrolled = place * zoom_ - anchor;
  horizontalScrollBar()->setValue(static_cast<int>(std::lround(scrolled.x())));
  verticalScrollBar()->setValue(static_cast<int>(std::lround(scrolled.y())));
  emit zoomed();
}

void SheetCanvas::layBars() {
  const auto lay = [this](QScrollBar* bar, double content, int window) {
    bar->setRange(0, std::max(0, pixelsOf(content * zoom_) - window));
    bar->setPageStep(window);
    bar->setSingleStep(std::max(1, window / 20));
  };
  lay(horizontalScrollBar(), size().width(), viewport()->width());
  lay(verticalScrollBar(), size().height(), viewport()->height());
  tellView();
  orderTimer_.start(kPause);
  viewport()->update();
}

// The view knows the place in twips of the sheet's scale.
void SheetCanvas::tellView() {
  const double twips = kTwipsPerMeter / program_.sheet().Scala() / zoom_;  // of a pixel
  scrolling_ = true;
  program_.view().scrollTo(horizontalScrollBar()->value() * twips,
                           verticalScrollBar()->value() * twips);
  scrolling_ = false;
}

void SheetCanvas::scrollContentsBy(int, int) {
  tellView();
  if (!sharp() && !orderTimer_.isActive()) orderTimer_.start(0);
  viewport()->update();
}

void SheetCanvas::resizeEvent(QResizeEvent*) {
  const double twips = kTwipsPerMeter / screenZoom();  // of a pixel on a screen of the scale 1:1
  program_.view().resizeControl(viewport()->width() * twips,
                                viewport()->height() * twips + kHeadHeight);
  grew();
}

// --- Pictures

bool SheetCanvas::sharp() const {
  const QRectF part = seen();
  const double rim = 1 / zoom_;
  return sharp_.sheet == sheet_ && same(sharp_.pixelsPerMeter, zoom_ * devicePixelRatioF()) &&
         (part.isEmpty() || sharp_.part.adjusted(-rim, -rim, rim, rim).contains(part));
}

void SheetCanvas::order() {
  const QRectF part = seen();
  if (part.isEmpty() || sharp()) return;
  const double dx = part.width() * kMargin;
  const double dy = part.height() * kMargin;
  const QRectF sheet({0, 0}, size());
  sharpMaker_.order(sheet_, zoom_ * devicePixelRatioF(), part.adjusted(-dx, -dy, dx, dy) & sheet);
}

void SheetCanvas::take(const Shot& shot) {
  sharp_ = shot;
  viewport()->update();
  if (!sharp()) orderTimer_.start(0);  // the window has moved on meanwhile
  if (overview_.sheet == sheet_ || overviewMaker_.busy()) return;
  const double longer = std::max(size().width(), size().height());
  overviewMaker_.order(sheet_, kOverviewPixels / longer, QRectF({0, 0}, size()));
}

void SheetCanvas::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  const QRect sheet(corner(),
                    QSize(pixelsOf(size().width() * zoom_), pixelsOf(size().height() * zoom_)));
  for (const QRect& beside : QRegion(viewport()->rect()) - sheet) {
    painter.fillRect(beside, palette().mid());
  }
  if (!sharp()) {
    const Rgb ground = sheet_->BackColor;
    painter.fillRect(sheet & viewport()->rect(),
                     QColor(redOf(ground), greenOf(ground), blueOf(ground)));
    draw(painter, overview_);
  }
  draw(painter, sharp_);
  drawShadow(painter);
  drawCross(painter);
}

// A picture of this zoom is copied, any other is stretched: of it only what is seen.
void SheetCanvas::draw(QPainter& painter, const Shot& shot) const {
  const QRectF part = shot.part & seen();
  if (shot.image.isNull() || part.isEmpty()) return;
  const double zoom = shot.pixelsPerMeter;
  if (same(zoom, zoom_ * devicePixelRatioF())) {
    const QPointF from = (part.topLeft() - shot.part.topLeft()) * zoom;
    const QPoint whole(static_cast<int>(from.x()), static_cast<int>(from.y()));
    const QSize size(static_cast<int>(std::ceil(part.width() * zoom)) + 1,
                     static_cast<int>(std::ceil(part.height() * zoom)) + 1);
    const QPointF at = toPixel(shot.part.topLeft() + QPointF(whole) / zoom);
    const double dots = devicePixelRatioF();
    const QPointF onDots(std::round(at.x() * dots) / dots, std::round(at.y() * dots) / dots);
    const QRect source = QRect(whole, size) & shot.image.rect();
    painter.drawImage(QRectF(onDots, QSizeF(source.size()) / dots), shot.image, source);
    return;
  }
  const QRectF source((part.topLeft() - shot.part.topLeft()) * zoom, part.size() * zoom);
  painter.drawImage(QRectF(toPixel(part.topLeft()), part.size() * zoom_), shot.image, source);
}

}  // namespace dialwright
