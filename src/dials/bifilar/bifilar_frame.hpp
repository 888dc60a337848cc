// The frame of the bifilar and ball dials: their window, chord limit, curve families, numerals and
// the sun as the wall sees it. A dial tells only where a sample's shadow falls.
#pragma once

#include <cmath>
#include <initializer_list>
#include <string>
#include <string_view>

#include "dials/pen.hpp"
#include "dials/sun.hpp"
#include "dials/sun_vector.hpp"
#include "shell/dispatch.hpp"
#include "shell/run.hpp"

namespace dialwright::bifilar {

inline constexpr double kChordLimit = 0.02;          // longest chord of a curve, metres
inline constexpr double kDeclinationStep = 0.05;     // degrees, along an hour line
inline constexpr double kStraightLineStep = 0.0006;  // metres, along a line of an equation
inline constexpr Rgb kItalicPink = rgb(255, 128, 128);

// --- Families

// A number of a family's row: a constant, or the number of a field and what is added to it.
struct Amount {
  double value = 0;
  Field field = Field::None;

  constexpr Amount() = default;
  constexpr Amount(double constant) : value(constant) {}
  constexpr Amount(Field from, double added = 0) : value(added), field(from) {}
  double in(const Run& run) const;  // 0 for a field whose number is too large
};

// A counted loop of a family's row; the step is divided by the divisions of an hour where it says
// so.
struct Range {
  Amount first, last;
  double step = 1;
  bool perHour = false;  // step / TxtHour

  Sweep in(Run& run) const;
};
constexpr Range only(Amount value) { return {value, value}; }
inline constexpr Range kYear = {-kSolstice, kSolstice, kDeclinationStep};

// How the value t of a family's hour loop becomes an hour angle; a is the semi-diurnal arc, half a
// turn where the sun neither rises nor sets.
enum class HourRule {
  Local,       // t degrees
  Zone,        // t degrees, in the time of the zone's meridian when that is in use
  Italian,     // hours from sunset: t hours + a - a whole turn
  Babylonian,  // hours from sunrise, counted one ahead: t hours - a + an hour
  Temporary,   // a * (t/6 - 1)
  Sunrise,     // -a
  Sunset       // a
};

// Hour line: for each value of the hour loop a line through the declinations. Day curve: for each
// declination a curve through the hours.
enum class Path { HourLine, DayCurve };

// Which samples only place the pen.
enum class Lead {
  FirstSample,  // the first of each line or curve
  FirstLine,    // all of the first line or curve
  None,         // none: the chord limit alone keeps the lines apart
  Every         // all: nothing is drawn
};

inline constexpr Rgb kOrdinary = -1;  // the family's own colour

struct Family {
  Field box = Field::None;  // the family is drawn when this box is in the state `when`; always,
                            // without a box
  bool when = true;
  Path path = Path::HourLine;
  Range hours{};
  HourRule rule = HourRule::Local;
  Range declinations = kYear;  // degrees
  Rgb colour = kWhite;
  Rgb noon = kOrdinary;  // where t is 0
  Rgb six = kOrdinary;   // where t is 90 or -90
  std::string_view layer{};
  Lead lead = Lead::FirstSample;
  int width = 1;
};

// The curves that a row's lines are for the proof of the drawing.
constexpr CurveFamily familyOf(const Family& row) {
  if (row.path == Path::DayCurve) {
    const bool equinox =
        row.declinations.first.field == Field::None && row.declinations.first.value == 0;
    return equinox ? CurveFamily::Equinoctial : CurveFamily::Declinations;
  }
  switch (row.rule) {
    case HourRule::Italian: return CurveFamily::Italic;
    case HourRule::Babylonian: return CurveFamily::Babylonian;
    case HourRule::Temporary: return CurveFamily::Temporary;
    case HourRule::Sunrise:
    case HourRule::Sunset: return CurveFamily::None;  // the horizon
    default: return CurveFamily::Hours;
  }
}

// A curve of one day's declination through the hours.
constexpr Family dayCurve(Field box, const Range& hours, Amount declination, int colour,
                          std::string_view layer) {
  return {.box = box,
          .path = Path::DayCurve,
          .hours = hours,
          .declinations = only(declination),
          .colour = palette(colour),
          .layer = layer};
}

// Hour angle (radians) of a row's rule at the value t of its hour loop for a declination in
// radians.
double hourAngle(const DialParams& p, HourRule rule, double t, double declination);

// Draws the curves of one routine: its previous point and its last good point run on through all of
// them.
//
// A dial's `place` is called as place(Trig hour, Trig declination, Punto& point) and
// returns whether the sample stands; it writes the point by `assign`, so that what fails keeps the
// last good value. Points outside the window are dropped as well.
class Tracer {
 public:
  explicit Tracer(Run& run, double chordLimit = kChordLimit)
      : run_(run), window_(run), pen_(run.sheet, chordLimit) {}

  const Window& window() const { return window_; }
  Punto previous() const { return pen_.previous(); }

  template <class Place>
  void draw(const Family& family, Place&& place);

  // One sample with a verdict of the caller's, in the ink of the last `dip`, and its sun.
  void visit(Punto point, bool stands, bool leads, const Sun& sun = {}) {
    pen_.visit(point,
               !stands || !window_.holds(point) ? Verdict::Drop
               : leads                          ? Verdict::Move
                                                : Verdict::Draw,
               sun);
  }
  void dip(const Ink& ink) { pen_.dip(ink); }

  // The straight line of that slope through a point, by short chords from x = -1 to 1; what all its
  // points have of the sun in common.
  void straightLine(double slope, Punto through, const Ink& ink, const Sun& sun = {});
  // The straight line through a point along a direction, whatever its slope.
  void straightLineAlong(Punto along, Punto through, const Ink& ink, const Sun& sun);

  // The year's figure in the ink given. The place's sun is that of the day.
  template <class Place>
  void analemma(const Ink& ink, Place&& place);

 private:
  Run& run_;
  Window window_;
  Pen pen_;
  Punto point_;
};

// Calls day(sun, first) for each day of the year, in the order of the mean longitude from -80 to
// 280 degrees. LonAbs is left at CorrFuso.
template <class Day>
void forEachDay(Run& run, Day&& day) {
  DialParams& p = run.params;
  p.LonAbs = p.CorrFuso;
  const double tilt = p.radians(obliquity(47));
  const Sweep longitudes = run.sweep(-80, 280, 360 / kDaysOfYear);
  for (const double L : longitudes)
    day(sunAtMeanLongitude(p, p.radians(L), tilt), L == longitudes.first());
}

// --- Numerals

// The numeral of an hour at a point of the dial: Roman when ckRomani is on, Arabic otherwise, none
// when both boxes are.
void numeral(Run& run, Punto at, int hour);

// The numerals of the hours from six to six in the declination of txtLineofdeclination, in the time
// of the hour lines; `place` as above, and it and the sheet's judge decide which stand.
template <class Place>
void numerals(Run& run, Place&& place);

// --- What the drivers share

// The hour angle of the substyle of an upright wall, radians: that of the wall's normal.
inline double hourOfSubstyle(const DialParams& p) {
  return std::atan2(std::sin(p.DeclRad), std::cos(p.DeclRad) * std::sin(p.LatRad));
}

// The head of a run: the frame box, the busy pointer, the caption, the site as `read` takes it, and
// an empty text.
void openRun(Run& run, std::string_view caption, void (*read)(Run&));

// Latitude, longitude and its corrections and the style from the panel into the record.
void readSite(Run& run);

// The same and the declination of an upright wall.
void readWall(Run& run);

// Figures of a legend, rounded and two blanks apart.
inline constexpr const char* kGap = "  ";
std::string figures(std::initializer_list<double> numbers, int decimals = 5);

// The demonstration's moment: hour angle from txtAO and declination from txtDelta, radians.
struct Instant {
  double H = 0, delta = 0;
};
Instant readInstant(const Run& run);

// The way of the sunlight, a unit vector in the frame of an upright wall: x to the right as its
// viewer sees it, y upwards, z out of the wall. The shadow of a point at a distance d before the
// wall lies -d * x/z aside and -d * y/z above.
using WallSun = Vettore;

// That vector for a latitude and a wall's declination (radians), made once a run.
class WallSky {
 public:
  WallSky(double latitude, double declination) : latitude_(latitude), wall_(declination) {}

  WallSun operator()(const Trig& H, const Trig& delta) const {
    const Vettore ray = VettoreSole(latitude_, H, delta);
    return {wall_.cosine * ray.x + wall_.sine * ray.z, ray.y,
            -wall_.sine * ray.x + wall_.cosine * ray.z};
  }

 private:
  Trig latitude_, wall_;
};

// --- The loops

namespace detail {

inline bool leads(Lead lead, bool firstOuter, bool firstInner) {
  switch (lead) {
    case Lead::FirstSample: return firstInner;
    case Lead::FirstLine: return firstOuter;
    case Lead::None: return false;
    case Lead::Every: return true;
  }
  return false;
}

inline Rgb colourAt(const Family& family, double t) {
  if (t == 0 && family.noon != kOrdinary) return family.noon;
  if (std::abs(t) == 90 && family.six != kOrdinary) return family.six;
  return family.colour;
}

inline bool ofClock(HourRule rule) { return rule == HourRule::Local || rule == HourRule::Zone; }

}  // namespace detail

template <class Place>
void Tracer::draw(const Family& family, Place&& place) {
  if (family.box != Field::None && run_.on(family.box) != family.when) return;
  const DialParams& p = run_.params;
  Ink ink{family.colour, family.layer.empty() ? LayerId{} : run_.sheet.layer(family.layer),
          family.width, familyOf(family)};
  const auto sunOf = [&ink](const Trig& H, const Trig& delta) {
    return ink.family == CurveFamily::None ? Sun{} : Sun{H.angle, delta.angle};
  };
  const bool curve = family.path == Path::DayCurve;
  const Sweep outer = (curve ? family.declinations : family.hours).in(run_);
  for (const double fixed : outer) {
    if (!curve) ink.colour = detail::colourAt(family, fixed);
    pen_.dip(ink);
    const bool firstOuter = fixed == outer.first();
    const Sweep inner = (curve ? family.hours : family.declinations).in(run_);
    if (curve) {
      const Trig delta(p.radians(fixed));
      for (const double t : inner) {
        const Trig H(hourAngle(p, family.rule, t, delta.angle));
        const bool stands = place(H, delta, point_);
        visit(point_, stands, detail::leads(family.lead, firstOuter, t == inner.first()),
              sunOf(H, delta));
      }
      continue;
    }
    const bool clock = detail::ofClock(family.rule);
    Trig H(clock ? hourAngle(p, family.rule, fixed, 0) : 0);
    for (const double degrees : inner) {
      const Trig delta(p.radians(degrees));
      if (!clock) H = Trig(hourAngle(p, family.rule, fixed, delta.angle));
      const bool stands = place(H, delta, point_);
      visit(point_, stands, detail::leads(family.lead, firstOuter, degrees == inner.first()),
            sunOf(H, delta));
    }
  }
}

template <class Place>
void Tracer::analemma(const Ink& ink, Place&& place) {
  dip(ink);
  forEachDay(run_, [&](const SunOfDay& sun, bool first) {
    const Trig H(sun.equationOfTime - run_.params.CorrFuso);
    visit(point_, place(H, Trig(sun.declination), point_), first, {H.angle, sun.declination});
  });
}

template <class Place>
void numerals(Run& run, Place&& place) {
  const DialParams& p = run.params;
  const Trig delta(p.radians(Amount(Field::txtLineofdeclination).in(run)));
  Punto point;
  for (const double t : run.sweep(-90, 90, 15)) {
    const Trig H(hourAngle(p, HourRule::Zone, t, 0));
    if (!place(H, delta, point)) continue;
    ShadowJudge* judge = run.sheet.judge();
    if (judge && !judge->isShadow(point, CurveFamily::Hours, {H.angle, delta.angle})) continue;
    const int hour = static_cast<int>(12 + t / 15);
    numeral(run, point, hour > 12 ? hour - 12 : hour);
  }
}

}  // namespace dialwright::bifilar
