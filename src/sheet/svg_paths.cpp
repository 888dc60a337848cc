// Joining strokes as they pass.
#include "sheet/svg_paths.hpp"

#include <algorithm>
#include <utility>

namespace dialwright {

namespace {

constexpr std::int32_t kWidest = 1000;

}  // namespace

OutputBuffer& operator<<(OutputBuffer& out, SvgSpot spot) {
  out.thousandths(spot.x) << ' ';
  return out.thousandths(spot.y);
}

void PathJoiner::stroke(SvgSpot from, SvgSpot to, Rgb colour, std::int32_t width) {
  const bool joins = state_ == State::OneStroke || state_ == State::Path;
  if (joins && colour == colour_ && width == width_ && extend(from, to)) return;
  close();
  begin(colour, width);
  first_ = from;
  tail_ = to;
  state_ = State::OneStroke;
}

void PathJoiner::dot(SvgSpot at, Rgb colour) {
  if (state_ != State::Dots || colour != colour_) {
    close();
    begin(colour, 1);
    state_ = State::Dots;
  }
  out_ << 'M' << at << "h0";
}

void PathJoiner::close() {
  if (state_ == State::None) return;
  if (state_ == State::OneStroke) settle();
  out_ << "\"/>\n";
  state_ = State::None;
}

void PathJoiner::begin(Rgb colour, std::int32_t width) {
  colour_ = colour;
  width_ = width;
  out_ << "<path stroke=\"" << inks_.of(colour);
  if (width > 1) {
    out_ << "\" stroke-width=\"";
    out_.thousandths(kSvgStroke * std::min(width, kWidest));
  }
  out_ << "\" d=\"";
}

bool PathJoiner::extend(SvgSpot from, SvgSpot to) {
  const bool backward = to == tail_;
  if (!backward && from != tail_) {
    if (state_ != State::OneStroke || (to != first_ && from != first_)) return false;
    std::swap(first_, tail_);
    return extend(from, to);
  }
  if (state_ == State::OneStroke) settle();
  tail_ = backward ? from : to;
  out_ << 'L' << tail_;
  return true;
}

void PathJoiner::settle() {
  out_ << 'M' << first_ << 'L' << tail_;
  state_ = State::Path;
}

}  // namespace dialwright
