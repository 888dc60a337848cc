// Collects strokes into paths and hands them to Cairo.
#include "paper/cairo_target.hpp"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "sheet/utf8.hpp"

namespace dialwright {

namespace {

// A longer path takes more time to fill than two of half its length.
constexpr int kMostPieces = 256;

// Twips beyond which Cairo's own numbers end: more than a kilometre of paper.
constexpr double kFarthest = 1e8;

// Twips: a line whose ends differ by less runs along an axis.
constexpr double kLevel = 1e-6;

bool within(double value, double low, double high) { return value >= low && value <= high; }

bool reachable(double x, double y) {
  return within(x, -kFarthest, kFarthest) && within(y, -kFarthest, kFarthest);
}

// The text as Cairo takes it: it would refuse bytes that are no UTF-8, and all that follows them.
std::string wellFormed(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const auto [code, length] = firstCharacter(text);
    if (code == kReplacement) {
      result += "\xEF\xBF\xBD";
    } else if (code < U' ') {
      result += ' ';
    } else {
      result += text.substr(0, length);
    }
    text.remove_prefix(length);
  }
  return result;
}

}  // namespace

void setSource(cairo_t* cairo, Rgb colour) {
  cairo_set_source_rgb(cairo, redOf(colour) / 255.0, greenOf(colour) / 255.0,
                       blueOf(colour) / 255.0);
}

CairoTarget::CairoTarget(cairo_t* cairo, const StrokeLook& look) : cairo_(cairo), look_(look) {
  cairo_new_path(cairo_);
  cairo_set_line_cap(cairo_, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(cairo_, CAIRO_LINE_JOIN_ROUND);
  cairo_select_font_face(cairo_, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(cairo_, look_.textSize);
  cairo_font_extents_t font;
  cairo_font_extents(cairo_, &font);
  ascent_ = font.ascent;
  fontHeight_ = font.height;
}

void CairoTarget::flush() {
  if (pieces_ == 0) return;
  settle();
  running_ = false;
  pieces_ = 0;
  const double width = look_.width * pen_.width;
  setSource(cairo_, look_.ink(pen_.colour));
  cairo_set_line_width(cairo_, width);
  if (pen_.dots) {
    const double dash[] = {0, 3 * width};
    cairo_set_dash(cairo_, dash, 2, 0);
  }
  cairo_stroke(cairo_);
  if (pen_.dots) cairo_set_dash(cairo_, nullptr, 0, 0);
}

// Opens a path for strokes of this style, if the open one is of another or long enough.
void CairoTarget::take(const Pen& pen) {
  if (pieces_ != 0 && (pieces_ >= kMostPieces || pen != pen_)) flush();
  pen_ = pen;
  ++pieces_;
}

// The middle of the pixel that a coordinate falls on.
double CairoTarget::snap(double at) const {
  if (look_.pixel == 0) return at;
  return (std::floor(at / look_.pixel) + 0.5) * look_.pixel;
}

// Hands the waiting stroke to Cairo.
void CairoTarget::settle() {
  if (!waiting_) return;
  waiting_ = false;
  running_ = true;
  cairo_move_to(cairo_, first_.x, first_.y);
  cairo_line_to(cairo_, tail_.x, tail_.y);
}

void CairoTarget::line(double x1, double y1, double x2, double y2, Rgb colour, int width) {
  if (std::abs(x1 - x2) < kLevel) x1 = x2 = snap(x1);
  if (std::abs(y1 - y2) < kLevel) y1 = y2 = snap(y1);
  take({colour, std::max(width, 1), dotted_});
  const Spot from{x1, y1};
  const Spot to{x2, y2};
  const auto joins = [&](const Spot& end) { return from == end || to == end; };
  if (waiting_) {
    if (joins(first_) && !joins(tail_)) std::swap(first_, tail_);
    settle();
  }
  if (running_ && joins(tail_)) {
    tail_ = from == tail_ ? to : from;
    cairo_line_to(cairo_, tail_.x, tail_.y);
  } else {
    first_ = from;
    tail_ = to;
    waiting_ = true;
  }
}

void CairoTarget::dotted(bool on) { dotted_ = on; }

// A line without length: its round caps make a dot of the line's width.
void CairoTarget::point(double x, double y, Rgb colour) {
  x = snap(x);
  y = snap(y);
  take({colour, 1, false});
  settle();
  running_ = false;
  cairo_move_to(cairo_, x, y);
  cairo_line_to(cairo_, x, y);
}

// Angles run counter-clockwise for the eye, while the surface's y goes down: Cairo's negative way.
// A negative angle stands for its amount, with a radius to that end.
void CairoTarget::arcPath(const TargetCircle& circle) const {
  cairo_save(cairo_);
  cairo_translate(cairo_, circle.x, circle.y);
  cairo_scale(cairo_, std::min(1 / circle.aspect, 1.0), std::min(circle.aspect, 1.0));
  cairo_new_sub_path(cairo_);
  if (!circle.whole() && circle.startAngle < 0) cairo_move_to(cairo_, 0, 0);
  cairo_arc_negative(cairo_, 0, 0, circle.radius, -circle.start(),
                     -circle.start() - circle.sweep());
  if (circle.endAngle < 0) cairo_line_to(cairo_, 0, 0);
  if (circle.whole()) cairo_close_path(cairo_);
  cairo_restore(cairo_);
}

void CairoTarget::circle(const TargetCircle& circle) {
  const bool mapped = within(circle.aspect, 1e-6, 1e6) && std::isfinite(circle.startAngle) &&
                      std::isfinite(circle.endAngle);  // Cairo can't scale by zero
  if (!mapped || !reachable(circle.x, circle.y) || !within(circle.radius, 0, kFarthest)) return;
  if (circle.radius == 0) return point(circle.x, circle.y, circle.colour);
  flush();
  arcPath(circle);
  if (circle.fill >= 0 && circle.closed()) {
    setSource(cairo_, look_.fillInk(circle.fill));
    cairo_fill_preserve(cairo_);
  }
  pen_ = {circle.colour, 1, false};
  pieces_ = 1;
  flush();
}

void CairoTarget::box(double x1, double y1, double x2, double y2, Rgb colour, bool filled) {
  flush();
  const auto edge = [this](double at) { return snap(std::clamp(at, -kFarthest, kFarthest)); };
  const double left = edge(std::min(x1, x2));
  const double top = edge(std::min(y1, y2));
  cairo_rectangle(cairo_, left, top, edge(std::max(x1, x2)) - left, edge(std::max(y1, y2)) - top);
  if (filled) {
    setSource(cairo_, look_.ink(colour));
    cairo_fill_preserve(cairo_);
  }
  pen_ = {colour, 1, false};
  pieces_ = 1;
  flush();
}

void CairoTarget::text(double x, double y, std::string_view text, Rgb colour) {
  if (!reachable(x, y)) return;
  flush();
  setSource(cairo_, look_.ink(colour));
  cairo_move_to(cairo_, x, y + ascent_);
  cairo_show_text(cairo_, wellFormed(text).c_str());
  cairo_new_path(cairo_);
}

double CairoTarget::widthOf(std::string_view text) const {
  cairo_text_extents_t extents;
  cairo_text_extents(cairo_, wellFormed(text).c_str(), &extents);
  return extents.x_advance;
}

}  // namespace dialwright
