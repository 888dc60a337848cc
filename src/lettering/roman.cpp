// The keystone cell of the Roman numerals, and the strokes of I, V, X and their caps.
#include "lettering/roman.hpp"

#include <array>
#include <cmath>

#include "numerics/fault.hpp"
#include "sheet/pen.hpp"

namespace dialwright {
namespace {

constexpr int kInk = 7;

// The cell's corners lean 1 in 2 from its axis; a stroke's inner edge leans 1 in 3.
constexpr double kCornerLean = 1.0 / 2;
constexpr double kInnerLean = 1.0 / 3;
// The half opening of the V: from a corner to the foot's middle, 1 in 4.
constexpr double kHalfOpening = 1.0 / 4;

struct Spot {
  double x = 0;
  double y = 0;
};

Spot operator-(Spot a) { return {-a.x, -a.y}; }
Spot operator+(Spot a, Spot b) { return {a.x + b.x, a.y + b.y}; }
Spot operator-(Spot a, Spot b) { return {a.x - b.x, a.y - b.y}; }
Spot operator*(double f, Spot a) { return {f * a.x, f * a.y}; }

double distance(Spot a, Spot b) { return std::hypot(b.x - a.x, b.y - a.y); }

// The meeting point of two straight lines, each through two spots; a fault when they are parallel.
Spot meeting(Spot a1, Spot a2, Spot b1, Spot b2) {
  Spot at{kFault, kFault};
  IntersezioneDueRette({a1.x, a1.y, a2.x, a2.y}, {b1.x, b1.y, b2.x, b2.y}, at.x, at.y);
  return at;
}

// A numeral in its own frame round (0, 0). The rows are the ends of the strokes along the cell's
// top and bottom edges, one pitch apart: 0 to 2 before the cell, 3 to 6 its own, 7 to 12 behind it.
class Numeral {
 public:
  Numeral(Run& run, Spot at, double phi) : run_(run), at_(at), phi_(phi) { layRows(); }

  void draw(int hour) {
    const int bars = hour % 5 < 4 ? hour % 5 : 0;
    if (hour < 4) {
      barsAlone(bars);
      return;
    }
    if (hour < 9)
      drawFive();
    else
      drawTen();
    drawBars(bars);
    if (hour == 4 || hour == 9) {
      line(top_[2], -top_[7]);
      line(top_[1], -top_[7] - step_);
      drawCaps(0, 6);
    } else {
      drawCaps(2, lastEnd(bars));
    }
  }

 private:
  using Row = std::array<Spot, 13>;

  static std::size_t lastEnd(int bars) { return 2 * static_cast<std::size_t>(bars) + 6; }

  void line(Spot a, Spot b) const {
    const Spot from = at_ + a;
    const Spot to = at_ + b;
    if (!sound(from.x + from.y) || !sound(to.x + to.y)) return;
    run_.sheet.xLine(from.x, sheetY(from.y), to.x, sheetY(to.y), palette(kInk));
  }

  // The point of the top edge that leans so far to one side of the cell's axis.
  Spot topPoint(double height, double lean) const {
    const double angle = std::atan(lean);
    const double radius = over(height, std::cos(angle));
    return {-radius * std::cos(phi_ - angle), radius * std::sin(phi_ - angle)};
  }

  // The bearing of a line, in the frame whose vertical points down.
  double bearing(Spot from, Spot to) const {
    const double drop = from.y - to.y;
    const double angle = arctan(over(drop, to.x - from.x));
    return Sgn(std::sin(angle)) == Sgn(drop) ? angle : angle + run_.params.PiGreco;
  }

  void layRows() {
    double size = 0;
    assign(size, run_.number(Field::txtNumbersize));
    const double height = size / 2;
    const Spot t3 = topPoint(height, kCornerLean), t4 = topPoint(height, kInnerLean);
    const Spot t5 = topPoint(height, -kInnerLean), t6 = topPoint(height, -kCornerLean);
    row_ = {std::sin(phi_), std::cos(phi_)};
    thickness_ = distance(t3, t4);
    step_ = std::cos(phi_ - bearing(t3, -t4)) * thickness_ * row_;
    top_ = rowBeside(t3, t4, t5, t6);
    bottom_ = rowBeside(-t6, -t5, -t4, -t3);
  }

  Row rowBeside(Spot left, Spot innerLeft, Spot innerRight, Spot right) const {
    const auto beside = [&](Spot from, double pitches) { return from + pitches * step_; };
    return {beside(left, -3),
            beside(left, -2),
            beside(left, -1),
            left,
            innerLeft,
            innerRight,
            right,
            beside(right, 1),
            beside(right, 2),
            beside(right, 4),
            beside(right, 5),
            beside(right, 7),
            beside(right, 8)};
  }

  // A hollow chevron.
  void drawFive() const {
    const Spot left = top_[3], right = top_[6];
    const Spot foot = 0.5 * (bottom_[3] + bottom_[6]);
    const double lean = bearing(left, foot);
    const Spot inset = over(thickness_, std::cos(phi_ - lean)) * row_;
    const Spot a = left + inset;
    const Spot c = right - inset;
    const double g = -over(left.y - foot.y, foot.x - left.x);
    const double k = -std::tan(2 * std::atan(kHalfOpening) + lean);
    const double x = over(a.x * g - c.x * k - a.y + c.y, g - k);
    const Spot q{x, g * (x - a.x) + a.y};
    line(left, foot);
    line(right, foot);
    line(a, q);
    line(q, c);
  }

  // Two strokes across each other, open where they cross.
  void drawTen() const {
    const Spot t3 = top_[3], t4 = top_[4], t5 = top_[5], t6 = top_[6];
    const Spot above = meeting(t4, -t3, t5, -t6);
    const Spot leftSide = meeting(t3, -t4, t5, -t6);
    const Spot below = meeting(t3, -t4, t6, -t5);
    const Spot rightSide = meeting(t4, -t3, t6, -t5);
    line(t3, leftSide);
    line(leftSide, -t6);
    line(t4, above);
    line(above, t5);
    line(below, -t4);
    line(below, -t5);
    line(t6, rightSide);
    line(rightSide, -t3);
  }

  void drawBars(int count) const {
    for (std::size_t end = 7; end <= lastEnd(count); ++end) {
      line(top_[end], bottom_[end]);
    }
  }

  void drawCaps(std::size_t first, std::size_t last) const {
    line(top_[first], top_[last] + step_);
    line(bottom_[first], bottom_[last] + step_);
  }

  // The hours 1 to 3 have no cell of their own: their bars move to where it would be.
  void barsAlone(int bars) {
    const std::size_t last = lastEnd(bars);
    at_ = at_ - 0.25 * (top_[7] + top_[last] + bottom_[7] + bottom_[last]);
    line(top_[7] - step_, top_[last] + step_);
    line(bottom_[7] - step_, bottom_[last] + step_);
    drawBars(bars);
  }

  Run& run_;
  Spot at_;
  double phi_;
  double thickness_ = 0;
  Spot row_;
  Spot step_;  // one pitch along the row
  Row top_;
  Row bottom_;
};

}  // namespace

void DisegnaNumeroRomano(Run& run, double x, double y, double angleRadians, int hour, int mode) {
  if (hour < 1 || hour > 12) return;
  // The working angle grows clockwise.
  const double phi = angleRadians + run.params.PiGreco * (mode - 1) / 2;
  Numeral(run, {x, y}, phi).draw(hour);
}

}  // namespace dialwright
