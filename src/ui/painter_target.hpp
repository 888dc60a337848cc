// The drawing target on the toolkit's painter, for paper.
#pragma once

#include <QPainter>

#include "paper/stroke_look.hpp"
#include "sheet/draw_target.hpp"

namespace dialwright {

// The painter maps twips to the device and lives longer than this; it is afterwards as it was.
class PainterTarget : public DrawTarget {
 public:
  // A rectangle that is not empty cuts the drawing.
  PainterTarget(QPainter& painter, const StrokeLook& look, const QRectF& cut = {});
  ~PainterTarget() override { painter_.restore(); }
  PainterTarget(const PainterTarget&) = delete;
  PainterTarget& operator=(const PainterTarget&) = delete;

  void clear() override {}
  void line(double x1, double y1, double x2, double y2, Rgb colour, int width) override;
  void dotted(bool on) override { dotted_ = on; }
  void point(double x, double y, Rgb colour) override;
  void circle(const TargetCircle& circle) override;
  void box(double x1, double y1, double x2, double y2, Rgb colour, bool filled) override;
  void text(double x, double y, std::string_view text, Rgb colour) override;

 private:
  QPen pen(Rgb colour, int width = 1) const;

  QPainter& painter_;
  StrokeLook look_;
  double ascent_ = 0;
  bool dotted_ = false;
};

}  // namespace dialwright
