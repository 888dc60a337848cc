// The pen: a curve is a run of samples joined by short segments, and each sample comes with a
// verdict.
#pragma once

#include <cmath>
#include <limits>

#include "numerics/projection.hpp"
#include "sheet/sheet_plot.hpp"

namespace dialwright {

// A dial's ordinate on the sheet, whose y grows downwards; never a negative zero.
inline double sheetY(double y) { return 0.0 - y; }

// What becomes of a sample: it is joined to the previous point and then is the previous point; it
// only becomes the previous point; it never was.
enum class Verdict { Draw, Move, Drop };

struct Ink {
  Rgb colour = kWhite;
  LayerId layer{};
  int width = 1;
};

// Which end of a segment comes first.
enum class Stroke { ToPrevious, FromPrevious };

// Joins the samples of a routine's curves. The previous point starts at the origin and runs on
// through all loops of the routine, since the first sample of a loop is a Move. Segments that reach
// the gap limit are left out: that keeps jumps and chords across infinity off the sheet.
class Pen {
 public:
  static constexpr double kNoLimit = std::numeric_limits<double>::infinity();

  explicit Pen(SheetPlot& sheet, double gapLimit = kNoLimit, Stroke stroke = Stroke::ToPrevious)
      : sheet_(sheet), limit_(gapLimit), stroke_(stroke) {}

  void dip(const Ink& ink) {
    colour_ = ink.colour;
    style_ = {.width = ink.width, .store = true, .layer = ink.layer};
  }

  void visit(Punto p, Verdict verdict) {
    if (verdict == Verdict::Drop) return;
    if (verdict == Verdict::Draw) join(p);
    previous_ = p;
  }

  Punto previous() const { return previous_; }

 private:
  void join(Punto p) {
    const double dx = p.x - previous_.x;
    const double dy = p.y - previous_.y;
    if (!(std::sqrt(dx * dx + dy * dy) < limit_)) return;
    if (stroke_ == Stroke::ToPrevious) {
      sheet_.xLine(p.x, sheetY(p.y), previous_.x, sheetY(previous_.y), colour_, style_);
    } else {
      sheet_.xLine(previous_.x, sheetY(previous_.y), p.x, sheetY(p.y), colour_, style_);
    }
  }

  SheetPlot& sheet_;
  double limit_;
  Stroke stroke_;
  Rgb colour_ = kWhite;
  LineStyle style_;
  Punto previous_;
};

// The verdict of a sample that passed its tests: the first of a loop never draws.
inline Verdict drawIf(bool condition) { return condition ? Verdict::Draw : Verdict::Move; }

// The sheet's primitives in dial coordinates.
inline void line(SheetPlot& sheet, Punto from, Punto to, const Ink& ink) {
  sheet.xLine(from.x, sheetY(from.y), to.x, sheetY(to.y), ink.colour,
              {.width = ink.width, .store = true, .layer = ink.layer});
}
inline void line(SheetPlot& sheet, Punto from, Punto to, Rgb colour) {
  line(sheet, from, to, Ink{colour});
}
inline void dot(SheetPlot& sheet, Punto at, Rgb colour, LayerId layer = {}) {
  sheet.xPset(at.x, sheetY(at.y), colour, layer);
}
inline void circle(SheetPlot& sheet, Punto centre, double radius, Rgb colour,
                   const CircleStyle& style = {}) {
  sheet.xCircle(centre.x, sheetY(centre.y), radius, colour, style);
}

// A line of text in a colour, which stays the sheet's ForeColor.
inline void write(SheetPlot& sheet, std::string_view text, Rgb colour) {
  sheet.ForeColor = colour;
  sheet.Dati(text);
}

}  // namespace dialwright
