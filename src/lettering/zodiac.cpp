// The signs' frame, their placing on a flat dial, and the cardinal arrow.
#include "lettering/zodiac.hpp"

#include <cmath>

#include "lettering/glyph.hpp"
#include "lettering/signs.hpp"
#include "numerics/fault.hpp"
#include "numerics/projection.hpp"
#include "shell/window.hpp"

namespace dialwright {
namespace {

// The signs' grid: units from the middle to the top.
constexpr double kGrid = 28;

// q grows downwards in an upright sign, and the arcs' angles count from the p axis.
void engrave(Run& run, double x, double y, double angleDegrees, const Glyph& glyph) {
  double size = 0;
  assign(size, run.number(Field::txtZodiacsize));
  const double theta = run.params.radians(angleDegrees);
  draw(run, {x, y, size / 2 / kGrid, theta, theta - run.params.PiGreco / 2, -1}, glyph);
}

// A sign's place: the plane's declination in degrees, and the minutes of time from the base hour.
struct Placing {
  SegnoZodiaco* sign;
  double declination;
  double minutes;
};

// The sun's declination a twelfth of the year from an equinox.
constexpr double kTwelfth = 11.4746;

constexpr Placing kPlacings[] = {
    {SegnoZodiaco1, 26, 0},           {SegnoZodiaco2, 20, 28},
    {SegnoZodiaco3, 20, -22},         {SegnoZodiaco4, kTwelfth, 30.3},
    {SegnoZodiaco5, kTwelfth, -28.4}, {SegnoZodiaco6, 0, 14.7},
    {SegnoZodiaco7, 0, -14.5},        {SegnoZodiaco8, -kTwelfth, -17.2},
    {SegnoZodiaco9, -kTwelfth, 15.7}, {SegnoZodiaco10, -20, -21},
    {SegnoZodiaco11, -20, 18.1},      {SegnoZodiaco12, -28, 0},
};

// The hour angle between a sign and the base hour, in degrees. `west` is 1 on a plane that declines
// to the west, which moves the uppermost sign aside and its two neighbours apart, and else 0.
double offset(const Placing& placing, int west) {
  constexpr double kDegreesAMinute = 15.0 / 60;
  if (placing.sign == SegnoZodiaco1) return 5.0 * west;
  const double spread = placing.declination == 20 ? (west + 3) / 4.0 : 1;
  return placing.minutes * kDegreesAMinute * spread;
}

}  // namespace

void SegnoZodiaco1(Run& run, double x, double y, double angleDegrees, double) {
  engrave(run, x, y, angleDegrees, signs::capricorn);
}

void SegnoZodiaco2(Run& run, double x, double y, double angleDegrees, double) {
  engrave(run, x, y, angleDegrees, signs::sagittarius);
}

void SegnoZodiaco3(Run& run, double x, double y, double angleDegrees, double) {
  engrave(run, x, y, angleDegrees, signs::aquarius);
}

void SegnoZodiaco4(Run& run, double x, double y, double angleDegrees, double) {
  engrave(run, x, y, angleDegrees, signs::scorpio);
}

void SegnoZodiaco5(Run& run, double x, double y, double angleDegrees, double) {
  engrave(run, x, y, angleDegrees, signs::pisces);
}

void SegnoZodiaco6(Run& run, double x, double y, double angleDegrees, double) {
  engrave(run, x, y, angleDegrees, signs::libra);
}

void SegnoZodiaco7(Run& run, double x, double y, double angleDegrees, double) {
  engrave(run, x, y, angleDegrees, signs::aries);
}

void SegnoZodiaco8(Run& run, double x, double y, double angleDegrees, double) {
  engrave(run, x, y, angleDegrees, signs::virgo);
}

void SegnoZodiaco9(Run& run, double x, double y, double angleDegrees, double) {
  engrave(run, x, y, angleDegrees, signs::taurus);
}

void SegnoZodiaco10(Run& run, double x, double y, double angleDegrees, double) {
  engrave(run, x, y, angleDegrees, signs::leo);
}

void SegnoZodiaco11(Run& run, double x, double y, double angleDegrees, double) {
  engrave(run, x, y, angleDegrees, signs::gemini);
}

void SegnoZodiaco12(Run& run, double x, double y, double angleDegrees, double) {
  engrave(run, x, y, angleDegrees, signs::cancer);
}

void MarcaCardinale(Run& run, double x, double y, double angleDegrees) {
  engrave(run, x, y, angleDegrees, signs::cardinal);
}

void DisegnaSegniZodiaco(Run& run) {
  constexpr double kUpright = 90;
  const DialParams& record = run.params;
  const Projection projection({.Stilo = record.Stilo,
                               .LatRad = record.LatRad,
                               .DeclRad = record.DeclRad,
                               .ZenitPiano = record.PiGreco / 2 - record.ReclinRad});
  const Window window(run);
  const int west = record.SegnoEmisfero == 1 && record.DeclRad > 0 ? 1 : 0;

  Punto at;
  for (const Placing& placing : kPlacings) {
    const double h = record.LonOrario + record.radians(offset(placing, west));
    const double delta = record.radians(placing.declination);
    assign(at, projection(std::sin(h), std::cos(h), std::tan(delta)));
    if (window.holds(at)) placing.sign(run, at.x, at.y, kUpright, record.Stilo);
  }
}

}  // namespace dialwright
