// The sheet's surface in a window: zoomed, scrolled, clicked, and asked what lies under the cursor.
#pragma once

#include <QAbstractScrollArea>
#include <QTimer>
#include <memory>
#include <optional>

#include "app/program.hpp"
#include "proof/shade.hpp"
#include "ui/hit_test.hpp"
#include "ui/sheet_shot.hpp"

namespace dialwright {

// It shows a copy of the sheet, taken by `renew`, in pictures that are painted once for each zoom:
// moving lays the picture elsewhere, and while one zooms the last picture is stretched until the
// sharp one is there.
//
// Places are metres from the sheet's corner; a zoom is pixels of the window a metre.
class SheetCanvas : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit SheetCanvas(Program& program, QWidget* parent = nullptr);

  // The sheet is new: its drawing, its size or how it lies.
  void renew();

  void showFit();              // the whole sheet, also when the window grows or shrinks
  void showScale();            // in the sheet's scale, and where its view is scrolled to
  void zoomBy(double factor);  // at the cursor, or at the middle when the cursor is elsewhere
  double zoom() const { return zoom_; }
  // What the zoom is as a scale 1:n.
  double scale() const { return screenZoom() / zoom_; }

  // The zoom of the scale 1:1. 0 goes back to what the screen says of itself.
  void setScreenZoom(double pixelsPerMeter);
  double screenZoom() const;

  QPointF toSheet(const QPointF& pixel) const;
  QPointF toPixel(const QPointF& place) const;
  // True when what is seen is painted for this zoom and this sheet.
  bool sharp() const;
  // True while this tells the view of a new place, which is nothing new to show.
  bool scrolling() const { return scrolling_; }
  // Lines of the dial that stand over the sheet, and may move at each frame: no picture is painted
  // for them.
  void showShadow(const std::vector<proof::Polyline>& shadow);
  const std::vector<proof::Polyline>& shadow() const { return shadow_; }

  std::optional<Hit> strokeAt(const QPointF& pixel);

 signals:
  void hovered(const QString& text);
  void clicked();
  void zoomed();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  QSizeF size() const;    // of the sheet
  QPoint corner() const;  // of the sheet, in the window
  QRectF seen() const;    // the sheet's part in the window
  double fit() const;
  void setZoom(double zoom, const QPointF& anchor);
  void layBars();
  void tellView();
  void order();
  void take(const Shot& shot);
  void draw(QPainter& painter, const Shot& shot) const;
  QRectF shadowArea() const;  // pixels of the window
  QPointF placeOf(Punto ofDial) const;
  void drawShadow(QPainter& painter) const;
  void drawCross(QPainter& painter) const;
  void moveBy(const QPoint& pixels);
  void moveCross(const QPoint& pixels);
  void click(const QPointF& place);
  void hover(const QPointF& pixel);
  void grew();

  Program& program_;
  std::shared_ptr<const SheetPlot> sheet_;
  std::optional<HitGrid> grid_;  // made when it is first asked
  ShotMaker sharpMaker_;
  ShotMaker overviewMaker_;
  Shot sharp_;     // what is seen and some more
  Shot overview_;  // the whole sheet, coarse: what stands where nothing is painted yet
  std::vector<proof::Polyline> shadow_;
  QTimer orderTimer_;
  double zoom_ = 1000;
  double givenScreenZoom_ = 0;
  bool fitting_ = true;
  bool scrolling_ = false;
  bool dragging_ = false;
  std::optional<QPoint> pressedAt_;
  QPoint lastAt_;
  std::optional<QPointF> cross_;  // the place that the keyboard works on
};

}  // namespace dialwright
