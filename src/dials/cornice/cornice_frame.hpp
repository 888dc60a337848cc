// The frame of the cornice dials, which have no style: the round border of a level plate throws its
// shadow on a surface below it. Here are the light's way, the point of the border that counts at an
// hour, the families of lines, the numerals and the report; a dial adds its surface.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "dials/pen.hpp"
#include "dials/sun_vector.hpp"
#include "shell/dispatch.hpp"
#include "shell/run.hpp"

namespace dialwright::cornice {

inline constexpr double kGap = 0.02;  // longest segment of a line, metres

// The angle (radians, from the North over the East) of the border's point for an hour: there the
// border runs along the trace of the hour's plane, so that this plane, which holds the suns of the
// hour on all days, touches the border and the border's shadow touches the hour's line. A quarter
// turn either way; a fault at noon and on the equator.
double angoloBordo(const Trig& latitude, double hourAngle);

// That point of a border of a radius, in the frame of a dial that looks South; metres from the
// centre of the border.
Vettore PuntoBordo(double radius, double theta);

// The half of the day that a family belongs to: it chooses the branch of the edge at noon.
enum class Half { Morning, Afternoon };

// Where the light that grazes the edge falls, and what it was found by. What fails in a sample
// keeps the value of the sample before.
struct Light {
  double way = 0;    // from the edge along the ray, in unit vectors
  Vettore at;        // on the surface
  double angle = 0;  // of a round surface, from the North over the East
  Punto point;       // on the development, x to the right and y upwards

  // Steps along the ray to `at`.
  void travel(const Vettore& edge, const Vettore& ray);
};

// way := the plus root of A*way^2 + B*way + C. False, with nothing changed, where there is none or
// both are one.
bool plusRoot(double& way, double A, double B, double C);

// What the border's shadow falls on.
class Surface {
 public:
  virtual ~Surface() = default;
  // The border's point at an angle.
  virtual Vettore edge(double theta) const = 0;
  // The part of the border that counts: +1 for the one towards the sun, -1 for the one away from
  // it.
  virtual double sideOfSun() const { return 1; }
  // The angle of an hour's point of the border when the border reaches further round; t in degrees.
  virtual double edgeAngle(double theta, [[maybe_unused]] double t, Half) const { return theta; }
  // Follows the ray from a point of the edge to the surface and unrolls it; false when it misses.
  virtual bool meet(Light& light, const Vettore& edge, const Vettore& ray, Half half) const = 0;
  // True for a point that belongs to the drawing.
  virtual bool keeps(const Light& light) const = 0;
};

// Lines of whole hours through the days of the year; degrees.
struct HourLines {
  Half half;
  double first, last, declinationStep;
  int colour;
  const char* layer;
};

// A line of the day of txtLineofdeclination through the hours, drawn past one of them; degrees.
struct DayLine {
  Half half;
  double first, last, step, drawnPast;
  int colour;
  const char* layer;
};

// An arc of the border whose shadow is drawn; its ends in quarter turns.
struct BorderArc {
  Half half;
  int first, last;
  int colour;
  const char* layer;
  bool again;  // the arc comes once more, to the other side of the development
};

// Draws the families of a run. One pen and one light serve them all.
class Cornice {
 public:
  static constexpr double kAllDays = -Pen::kNoLimit;

  // Day lines and the shadow of the border are drawn for declinations above `daysAbove` only.
  Cornice(Run& run, const Surface& surface, double daysAbove);

  // `step` is the field that the step of the declination comes from.
  void hourLines(const HourLines& lines, Field step = Field::None);
  void dayLine(const DayLine& line);
  // The numerals of five in the morning to seven in the evening on the day of
  // txtLineofdeclination, twice at noon or not at all.
  void numerals(bool withNoon);

  // The shadow of the border at the hour angle of txtAO on the day of txtLineofdeclination.
  void borderShadow(const BorderArc& arc);
  // The sun of that moment.
  const Sun& borderSun() const { return borderSun_; }
  // One point of it, wherever it falls; on a surface that no ray misses.
  Punto shadowOfBorder(double theta);

  // The pen, for the dial's own outlines.
  Pen& pen() { return pen_; }

 private:
  // False when the point lies on the half of the border that is not the hour's own.
  bool placeEdge(double t, Half half);
  // Leaves the border's point or takes the one across: that on the side of the sun that counts
  // (towards > 0), or the other.
  void turnEdge(const Vettore& ray, double towards);
  bool cast(const Vettore& ray, Half half) { return surface_.meet(light_, edge_, ray, half); }
  void visit(const Vettore& ray, const Sun& sun, Half half, bool draws);
  void numeralsOf(Half half, double first, double last);

  Run& run_;
  const DialParams& p_;
  const Surface& surface_;
  const bool turns_;  // to whichever side of the border the sun asks for
  Pen pen_;
  Trig latitude_;
  double declination_;  // of txtLineofdeclination, degrees
  Trig day_;            // the same
  Sun borderSun_;       // of txtAO on that day
  Vettore borderRay_;   // its light
  bool dayDrawn_;
  double theta_ = 0;
  Vettore edge_;
  Light light_;
};

// The number of a field; 0 when it is too large for one.
double numberOr0(const Run& run, Field field);

// Reads the latitude into the record. A southern one is refused, and false given back.
bool readLatitude(Run& run);

// --- The report

inline constexpr int kUnrounded = -1;

// A line of the report: a label, translated, with a number and its unit, or alone.
struct ReportLine {
  std::string_view label;
  std::optional<double> value{};
  std::string_view unit{};
  int decimals = 4;
};

// Writes the lines below an empty one; a line whose number failed is left out.
void report(Run& run, std::span<const ReportLine> lines);
// The last lines: the day of the red line, and with ckFunction the moment of the border's shadow.
void reportOptions(Run& run);

}  // namespace dialwright::cornice
