// What a stroke of the drawing stands for: its family of curves and the sun of each of its ends.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "numerics/projection.hpp"

namespace dialwright {

// The families of curves that shadows follow. None is what no shadow follows: frames, numerals,
// the style's own figure.
enum class CurveFamily : std::uint8_t {
  None,
  Hours,
  Declinations,
  Equinoctial,
  Analemma,
  Italic,
  Babylonian,
  Temporary,
  Altitudes,
  Azimuths,
  Asr,
  Qibla,
  Marks  // single suns that the user asks for
};

// The sun that a sample stands for, in radians: its hour angle, positive after noon, and its
// declination. One that is left open (a straight line of a whole hour) is no number.
struct Sun {
  static constexpr double kOpen = std::numeric_limits<double>::quiet_NaN();

  double hourAngle = kOpen;
  double declination = kOpen;

  bool known() const { return !std::isnan(hourAngle) || !std::isnan(declination); }
};

struct Meaning {
  CurveFamily family = CurveFamily::None;
  Sun first, second;  // of a line's ends, in the order of its record; the same for a point
};

// Tells true shadows from strokes that only look like one. A sheet that has a judge draws those
// strokes of known suns that it lets pass.
class ShadowJudge {
 public:
  virtual ~ShadowJudge() = default;
  // True when the shadow of that sun falls on a point of the dial.
  virtual bool isShadow(Punto at, CurveFamily family, const Sun& sun) = 0;
  // True when the shadow runs along the chord from one such point to another.
  virtual bool isTrack(Punto from, Punto to, const Meaning& meaning) = 0;
};

}  // namespace dialwright
