// The pen: a curve is a run of samples joined by short segments, and each sample comes with a
// verdict.
#pragma once

#include <cmath>
#include <limits>
#include <numbers>

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
  CurveFamily family = CurveFamily::None;
};

// Which end of a segment comes first.
enum class Stroke { ToPrevious, FromPrevious };

// Joins the samples of a routine's curves. The previous point starts at the origin and runs on
// through all loops of the routine, since the first sample of a loop is a Move. Segments that reach
// the gap limit are left out: that keeps jumps and chords across infinity off the sheet. On a sheet
// with a judge, a sample of a known sun whose shadow does not fall there ends the line: the next
// one that is kept begins a new line.
class Pen {
 public:
  static constexpr double kNoLimit = std::numeric_limits<double>::infinity();

  explicit Pen(SheetPlot& sheet, double gapLimit = kNoLimit, Stroke stroke = Stroke::ToPrevious)
      : sheet_(sheet),
        limit_(gapLimit),
        stroke_(stroke),
        judge_(sheet.judge()),
        ended_(judge_ != nullptr) {}

  void dip(const Ink& ink) {
    colour_ = ink.colour;
    family_ = ink.family;
    style_ = {.width = ink.width, .store = true, .layer = ink.layer};
  }

  void visit(Punto p, Verdict verdict, const Sun& sun = {}) {
    if (judge_ != nullptr) verdict = judged(p, verdict, sun);
    if (verdict == Verdict::Drop) return;
    if (verdict == Verdict::Draw) join(p, sun);
    previous_ = p;
    previousSun_ = sun;
  }

  Punto previous() const { return previous_; }

 private:
  Verdict judged(Punto p, Verdict verdict, const Sun& sun) {
    const bool kept =
        verdict != Verdict::Drop && (!sun.known() || judge_->isShadow(p, family_, sun));
    const bool first = ended_;
    ended_ = !kept;
    return !kept ? Verdict::Drop : first ? Verdict::Move : verdict;
  }

  void join(Punto p, const Sun& sun) {
    const double dx = p.x - previous_.x;
    const double dy = p.y - previous_.y;
    if (!(std::sqrt(dx * dx + dy * dy) < limit_)) return;
    if (stroke_ == Stroke::ToPrevious) {
      segment(p, previous_, {family_, sun, previousSun_});
    } else {
      segment(previous_, p, {family_, previousSun_, sun});
    }
  }

  void segment(Punto from, Punto to, const Meaning& meaning) {
    const bool known = meaning.first.known() || meaning.second.known();
    if (known && judge_ != nullptr && !judge_->isTrack(from, to, meaning)) return;
    sheet_.xLine(from.x, sheetY(from.y), to.x, sheetY(to.y), colour_, style_);
    if (known && sheet_.list().keepsMeanings()) sheet_.list().meanLine(meaning);
  }

  SheetPlot& sheet_;
  double limit_;
  Stroke stroke_;
  ShadowJudge* judge_;
  bool ended_;  // with a judge: the next sample that is kept begins a line
  Rgb colour_ = kWhite;
  CurveFamily family_ = CurveFamily::None;
  LineStyle style_;
  Punto previous_;
  Sun previousSun_;
};

// The verdict of a sample that passed its tests: the first of a loop never draws.
inline Verdict drawIf(bool condition) { return condition ? Verdict::Draw : Verdict::Move; }

// The sheet's primitives in dial coordinates.
inline void line(SheetPlot& sheet, Punto from, Punto to, const Ink& ink) {
  sheet.xLine(from.x, sheetY(from.y), to.x, sheetY(to.y), ink.colour,
              {.width = ink.width, .store = true, .layer = ink.layer});
}
// A straight line between the shadows of two suns, which a judge may refuse.
inline void line(SheetPlot& sheet, Punto from, Punto to, const Ink& ink, const Sun& sunFrom,
                 const Sun& sunTo) {
  const Meaning meaning{ink.family, sunFrom, sunTo};
  if (ShadowJudge* judge = sheet.judge()) {
    if (!judge->isShadow(from, ink.family, sunFrom) || !judge->isShadow(to, ink.family, sunTo) ||
        !judge->isTrack(from, to, meaning))
      return;
  }
  line(sheet, from, to, ink);
  if (sheet.list().keepsMeanings()) sheet.list().meanLine(meaning);
}
// False for a mark or a numeral of a sun whose shadow, as a judge finds, does not fall there.
inline bool isShown(const SheetPlot& sheet, Punto at, CurveFamily family, const Sun& sun) {
  return sheet.judge() == nullptr || sheet.judge()->isShadow(at, family, sun);
}
// True when someone asks which suns the strokes stand for: what is dear to work out can wait for
// that.
inline bool asksForSuns(const SheetPlot& sheet) {
  return sheet.judge() != nullptr || sheet.list().keepsMeanings();
}
inline void line(SheetPlot& sheet, Punto from, Punto to, Rgb colour) {
  line(sheet, from, to, Ink{colour});
}
inline void dot(SheetPlot& sheet, Punto at, Rgb colour, LayerId layer = {}) {
  sheet.xPset(at.x, sheetY(at.y), colour, layer);
}
// The shadow of a sun as a point, which a judge may refuse.
inline void dot(SheetPlot& sheet, Punto at, const Ink& ink, const Sun& sun) {
  ShadowJudge* judge = sheet.judge();
  if (judge != nullptr && !judge->isShadow(at, ink.family, sun)) return;
  const std::size_t before = sheet.list().points.size();
  dot(sheet, at, ink.colour, ink.layer);
  if (sheet.list().keepsMeanings() && sheet.list().points.size() > before)
    sheet.list().meanPoint({ink.family, sun, sun});
}
inline void circle(SheetPlot& sheet, Punto centre, double radius, Rgb colour,
                   const CircleStyle& style = {}) {
  sheet.xCircle(centre.x, sheetY(centre.y), radius, colour, style);
}

// Points of a circle's arc, evenly and counter-clockwise from its start to its end: those that
// stand for it where it is held against a shadow. Calls visitor(point) in dial coordinates.
template <class Visitor>
void alongArc(const CircleRecord& arc, Visitor visitor) {
  constexpr int kPieces = 32;
  const double turn = 2 * std::numbers::pi;
  const double sweep = arc.endAngle - arc.startAngle + (arc.endAngle > arc.startAngle ? 0 : turn);
  for (int i = 0; i <= kPieces; ++i) {
    const double angle = arc.startAngle + sweep * i / kPieces;
    visitor(Punto{arc.x + arc.radius * std::cos(angle), -arc.y + arc.radius * std::sin(angle)});
  }
}

// The arc of a circle that a shadow follows, which a judge may refuse.
inline void arc(SheetPlot& sheet, Punto centre, double radius, Rgb colour, const CircleStyle& style,
                const Meaning& meaning) {
  if (ShadowJudge* judge = sheet.judge()) {
    const CircleRecord record{centre.x,   sheetY(centre.y), radius,         style.aspect, colour,
                              style.fill, style.startAngle, style.endAngle, style.layer};
    bool all = true;
    alongArc(record,
             [&](Punto p) { all = all && judge->isShadow(p, meaning.family, meaning.first); });
    if (!all) return;
  }
  const std::size_t before = sheet.list().circles.size();
  circle(sheet, centre, radius, colour, style);
  if (sheet.list().keepsMeanings() && sheet.list().circles.size() > before)
    sheet.list().meanCircle(meaning);
}

// A line of text in a colour, which stays the sheet's ForeColor.
inline void write(SheetPlot& sheet, std::string_view text, Rgb colour) {
  sheet.ForeColor = colour;
  sheet.Dati(text);
}

}  // namespace dialwright
