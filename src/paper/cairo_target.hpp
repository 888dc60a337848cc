// A drawing target on Cairo: consecutive strokes of one style become one path, texts stand in
// DejaVu Sans.
#pragma once

#include <cairo.h>

#include "paper/stroke_look.hpp"
#include "sheet/draw_target.hpp"

namespace dialwright {

// The colour of what is painted next.
void setSource(cairo_t* cairo, Rgb colour);

// The context maps twips to the surface; whoever made it owns it. What was drawn is on the surface
// after `flush` or at the end of this target's life.
class CairoTarget : public DrawTarget {
 public:
  CairoTarget(cairo_t* cairo, const StrokeLook& look);
  ~CairoTarget() override { flush(); }
  CairoTarget(const CairoTarget&) = delete;
  CairoTarget& operator=(const CairoTarget&) = delete;

  void clear() override {}
  void line(double x1, double y1, double x2, double y2, Rgb colour, int width) override;
  void dotted(bool on) override;
  void point(double x, double y, Rgb colour) override;
  void circle(const TargetCircle& circle) override;
  void box(double x1, double y1, double x2, double y2, Rgb colour, bool filled) override;
  void text(double x, double y, std::string_view text, Rgb colour) override;

  void flush();

  // How far a text reaches to the right and down from where it stands.
  double widthOf(std::string_view text) const;
  double heightOfText() const { return fontHeight_; }

 private:
  struct Pen {
    Rgb colour = kBlack;
    int width = 1;
    bool dots = false;
    friend bool operator==(const Pen&, const Pen&) = default;
  };

  struct Spot {
    double x, y;
    friend bool operator==(const Spot&, const Spot&) = default;
  };

  void take(const Pen& pen);
  void settle();
  double snap(double at) const;
  void arcPath(const TargetCircle& circle) const;

  cairo_t* cairo_;
  StrokeLook look_;
  Pen pen_;
  bool dotted_ = false;
  int pieces_ = 0;  // strokes in the open path
  // The ends of the last run of joined strokes. A stroke waits for the next one, which tells which
  // way the run goes: a curve may be drawn from each new point back to the one before.
  Spot first_{};
  Spot tail_{};
  bool waiting_ = false;
  bool running_ = false;
  double ascent_ = 0;
  double fontHeight_ = 0;
};

}  // namespace dialwright
