// The drawing of stroke glyphs.
#include "lettering/glyph.hpp"

#include <cmath>

#include "numerics/fault.hpp"
#include "sheet/pen.hpp"

namespace dialwright {
namespace {

struct Place {
  double x, y;
};

class Engraver {
 public:
  Engraver(Run& run, const GlyphFrame& frame)
      : run_(run), frame_(frame), sin_(std::sin(frame.theta)), cos_(std::cos(frame.theta)) {}

  void draw(const GlyphStroke& stroke) const {
    line(place(stroke.p1, stroke.q1), place(stroke.p2, stroke.q2), stroke.ink);
  }

  void draw(const Arc& arc) const {
    const Place centre = place(arc.p, arc.q);
    const double radius = arc.radius * frame_.unit;
    const double from = run_.params.radians(arc.from);
    const double to = run_.params.radians(arc.to);
    if (arc.chords == kCircle) {
      circle(centre, radius, from, to, arc.ink);
    } else {
      chords(centre, radius, from, to, arc);
    }
  }

 private:
  Place place(double p, double q) const {
    const double side = q * frame_.up;
    return {frame_.x + frame_.unit * (p * sin_ + side * cos_),
            frame_.y + frame_.unit * (side * sin_ - p * cos_)};
  }

  void line(Place a, Place b, int ink) const {
    if (!sound(a.x + a.y) || !sound(b.x + b.y)) return;
    run_.sheet.xLine(a.x, sheetY(a.y), b.x, sheetY(b.y), palette(ink));
  }

  void chords(Place centre, double radius, double from, double to, const Arc& arc) const {
    const bool backwards = from > to;
    const double start = backwards ? to : from;
    const double sweep = backwards ? -(2 * run_.params.PiGreco - (from - to)) : to - from;
    const auto point = [&](int k) {
      const double angle = start + k * sweep / arc.chords + frame_.zero;
      return Place{centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
    };
    for (int k = 0; k < arc.chords; ++k) line(point(k), point(k + 1), arc.ink);
  }

  // The angle brought into the circle's one turn.
  double turned(double angle) const {
    const double turn = 2 * run_.params.PiGreco;
    angle += frame_.zero;
    if (angle > turn) angle -= turn;
    if (angle < 0) angle += turn;
    return angle;
  }

  void circle(Place centre, double radius, double from, double to, int ink) const {
    if (!sound(centre.x + centre.y) || !sound(radius)) return;
    CircleStyle style;
    const bool whole = to - from >= 2 * run_.params.PiGreco;
    if (!whole) {
      style.startAngle = turned(from);
      style.endAngle = turned(to);
      // An end angle of 0 would stand for the whole circle.
      if (style.endAngle == 0) style.endAngle = 2 * run_.params.PiGreco;
    }
    run_.sheet.xCircle(centre.x, sheetY(centre.y), radius, palette(ink), style);
  }

  Run& run_;
  const GlyphFrame& frame_;
  double sin_, cos_;
};

}  // namespace

void draw(Run& run, const GlyphFrame& frame, const Glyph& glyph) {
  const Engraver engraver(run, frame);
  for (const Arc& arc : glyph.arcs) engraver.draw(arc);
  for (const GlyphStroke& stroke : glyph.strokes) engraver.draw(stroke);
}

}  // namespace dialwright
