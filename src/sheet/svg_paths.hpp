// The paths of an SVG drawing: strokes that follow one another become one path.
#pragma once

#include <cstdint>

#include "sheet/output_buffer.hpp"
#include "sheet/svg_text.hpp"

namespace dialwright {

inline constexpr std::int64_t kSvgStroke = 250;  // micrometres, for a line of width 1

// A place on the drawing, in micrometres.
struct SvgSpot {
  std::int64_t x, y;
  friend bool operator==(const SvgSpot&, const SvgSpot&) = default;
};

// Writes a place, or a pair of lengths, in millimetres after a path's command.
OutputBuffer& operator<<(OutputBuffer& out, SvgSpot spot);

// Joins strokes that come one after the other to paths. A pen draws from its new point back to the
// one before, others draw onwards: a stroke is joined by whichever end it shares with the last.
class PathJoiner {
 public:
  PathJoiner(OutputBuffer& out, SvgInks& inks) : out_(out), inks_(inks) {}

  void stroke(SvgSpot from, SvgSpot to, Rgb colour, std::int32_t width);
  void dot(SvgSpot at, Rgb colour);
  // Ends the path at hand: whatever else is written comes after it.
  void close();

 private:
  // OneStroke: not yet written, since the next one tells which way it runs.
  enum class State { None, OneStroke, Path, Dots };

  void begin(Rgb colour, std::int32_t width);
  bool extend(SvgSpot from, SvgSpot to);
  void settle();

  OutputBuffer& out_;
  SvgInks& inks_;
  State state_ = State::None;
  Rgb colour_ = kBlack;
  std::int32_t width_ = 1;
  SvgSpot first_{};
  SvgSpot tail_{};
};

}  // namespace dialwright
