// Collects strokes into paths and hands them to Cairo.
#include "paper/cairo_target.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>

#include "sheet/paper_colours.hpp"

namespace dialwright {

namespace {

// A longer path takes more time to fill than two of half its length.
constexpr int kMostPieces = 256;

// Twips beyond which Cairo's own numbers end: more than a kilometre of paper.
constexpr double kFarthest = 1e8;

bool within(double value, double low, double high) { return value >= low && value <= high; }

bool reachable(double x, double y) {
  return within(x, -kFarthest, kFarthest) && within(y, -kFarthest, kFarthest);
}

// The bytes of the UTF-8 character at the head of the text; 0 where there is none.
std::size_t characterLength(std::string_view text) {
  constexpr std::uint32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};  // of a form of so many bytes
  const auto lead = static_cast<unsigned char>(text[0]);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC0 || lead > 0xF7 || length > text.size()) return 0;
  std::uint32_t code = lead & (0x7Fu >> length);
  for (const char c : text.substr(1, length - 1)) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0) != 0x80) return 0;
    code = code << 6 | (byte & 0x3Fu);
  }
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  return code >= kLeast[length] && code <= 0x10FFFF && !surrogate ? length : 0;
}

// The text with a question mark for each control character and each byte that is no UTF-8, which
// Cairo would refuse together with all that follows.
std::string wellFormed(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::size_t length = characterLength(text);
    if (length == 0 || static_cast<unsigned char>(text[0]) < ' ') {
      result += '?';
    } else {
      result += text.substr(0, length);
    }
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return result;
}

Rgb inkFor(Inks inks, Rgb colour) {
  switch (inks) {
    case Inks::Own: return colour;
    case Inks::Paper: return onPaper(colour);
    case Inks::Black: return kBlack;
  }
  return colour;
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
  pieces_ = 0;
  const double width = look_.width * pen_.width;
  ink(pen_.colour);
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

void CairoTarget::ink(Rgb colour) { setSource(cairo_, inkFor(look_.inks, colour)); }

// The middle of the pixel that a coordinate falls on.
double CairoTarget::snap(double at) const {
  if (look_.pixel == 0) return at;
  return (std::floor(at / look_.pixel) + 0.5) * look_.pixel;
}

void CairoTarget::line(double x1, double y1, double x2, double y2, Rgb colour, int width) {
  if (x1 == x2) x1 = x2 = snap(x1);
  if (y1 == y2) y1 = y2 = snap(y1);
  const bool joins = pieces_ != 0 && x1 == lastX_ && y1 == lastY_;
  const int before = pieces_;
  take({colour, std::max(width, 1), dotted_});
  if (!joins || pieces_ <= before) cairo_move_to(cairo_, x1, y1);
  cairo_line_to(cairo_, x2, y2);
  lastX_ = x2;
  lastY_ = y2;
}

void CairoTarget::dotted(bool on) { dotted_ = on; }

// A line without length: its round caps make a dot of the line's width.
void CairoTarget::point(double x, double y, Rgb colour) {
  x = snap(x);
  y = snap(y);
  take({colour, 1, false});
  cairo_move_to(cairo_, x, y);
  cairo_line_to(cairo_, x, y);
  lastX_ = x;
  lastY_ = y;
}

// Angles run counter-clockwise for the eye, while the surface's y goes down: Cairo's negative way.
// A negative angle stands for its amount, with a radius to that end.
void CairoTarget::arcPath(const TargetCircle& circle) const {
  constexpr double kTurn = 2 * std::numbers::pi;
  constexpr double kLeastArc = 1e-6;  // from nought to a whole turn by a shortened circle constant
  const bool whole = circle.endAngle == 0;
  const double start = whole ? 0 : std::abs(circle.startAngle);
  double sweep = whole ? kTurn : std::fmod(std::abs(circle.endAngle) - start, kTurn);
  if (sweep < kLeastArc) sweep += kTurn;

  cairo_save(cairo_);
  cairo_translate(cairo_, circle.x, circle.y);
  // The radius is that of the longer axis.
  cairo_scale(cairo_, std::min(1 / circle.aspect, 1.0), std::min(circle.aspect, 1.0));
  cairo_new_sub_path(cairo_);
  if (!whole && circle.startAngle < 0) cairo_move_to(cairo_, 0, 0);
  cairo_arc_negative(cairo_, 0, 0, circle.radius, -start, -start - sweep);
  if (circle.endAngle < 0) cairo_line_to(cairo_, 0, 0);
  if (whole) cairo_close_path(cairo_);
  cairo_restore(cairo_);
}

void CairoTarget::circle(const TargetCircle& circle) {
  const bool mapped = within(circle.aspect, 1e-6, 1e6) && std::isfinite(circle.startAngle) &&
                      std::isfinite(circle.endAngle);  // Cairo can't scale by zero
  if (!mapped || !reachable(circle.x, circle.y) || !within(circle.radius, 0, kFarthest)) return;
  flush();
  arcPath(circle);
  if (circle.fill >= 0) {
    setSource(cairo_, circle.fill);  // a fill is a ground, not an ink
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
    ink(colour);
    cairo_fill_preserve(cairo_);
  }
  pen_ = {colour, 1, false};
  pieces_ = 1;
  flush();
}

void CairoTarget::text(double x, double y, std::string_view text, Rgb colour) {
  if (!reachable(x, y)) return;
  flush();
  ink(colour);
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
