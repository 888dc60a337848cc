// What the level dials of the bifilar room share: the sun over a level floor, their families, and
// the demonstration of a sphere and its shadow for one moment.
#pragma once

#include <array>

#include "dials/bifilar/bifilar_frame.hpp"

namespace dialwright::bifilar {

// Site, style and divisions of a level dial from the panel into the record; txtDecl becomes "0".
void readLevelSite(Run& run);

// The sun over a level dial. What a sample can't give keeps the value of the sample before it.
class LevelSun {
 public:
  explicit LevelSun(const Run& run)
      : angles_(run.params),
        fullCircle_(run.trueShadows()),
        sinLat_(std::sin(run.params.LatRad)),
        cosLat_(std::cos(run.params.LatRad)) {}

  // Reads the sun of a moment; false below the horizon. The azimuth counts from the South; where
  // the sun stands exactly on the meridian it is 0, also when the sun culminates in the North, and
  // where it has no tangent it stays: but for a drawing of true shadows, which takes both legs.
  bool see(const Trig& H, const Trig& delta);

  // The same with the other quadrant step, which keeps the azimuth within half a turn.
  void seeWithinHalfTurn(const Trig& H, const Trig& delta);

  double heightSine() const { return heightSine_; }
  double altitude() const { return altitude_; }
  double azimuth() const { return azimuth_; }
  double sinAzimuth() const { return sinAzimuth_; }
  double cosAzimuth() const { return cosAzimuth_; }

  // The point of the floor at a distance from the centre, opposite the sun.
  Punto opposite(double reach) const { return {-reach * sinAzimuth_, -reach * cosAzimuth_}; }

 private:
  bool look(const Trig& H,
            const Trig& delta);  // true when the azimuth is in the sun's half of the sky
  void turnTo(double azimuth);

  Angles angles_;
  bool fullCircle_;
  double sinLat_, cosLat_;
  double heightSine_ = 0, altitude_ = 0;
  double azimuth_ = 0, sinAzimuth_ = 0, cosAzimuth_ = 1;
};

// --- Families

inline constexpr Range kDay = {-90, 90, 0.02};  // degrees of hour angle

inline constexpr Family kHourLines = {.box = Field::chkOreAstronomiche,
                                      .hours = {-90, 90, 15, true},
                                      .rule = HourRule::Zone,
                                      .colour = palette(15),
                                      .noon = palette(9),
                                      .six = palette(9),
                                      .layer = "ore"};

constexpr Family dayCurve(Field box, double declination, int colour, std::string_view layer) {
  return dayCurve(box, kDay, declination, colour, layer);
}

inline constexpr std::array kDayCurves = {
    dayCurve(Field::ck_Equinoziale, 0, 9, "eq"),
    dayCurve(Field::Ck_DayLightCurves, -kSolstice, 12, "-23.445°"),
    dayCurve(Field::Ck_DayLightCurves, kSolstice, 12, "23.445°"),
    dayCurve(Field::Ck_DayLightCurves, -kTwentieth, 13, "-20.1552°"),
    dayCurve(Field::Ck_DayLightCurves, kTwentieth, 13, "20.1552°"),
    dayCurve(Field::Ck_DayLightCurves, -kEleventh, 11, "-11.4746°"),
    dayCurve(Field::Ck_DayLightCurves, kEleventh, 11, "11.4746°"),
};

// Italian, babylonian and temporary hours.
constexpr std::array<Family, 3> otherHours(Lead lead) {
  const auto row = [lead](Field box, double first, double last, HourRule rule, Rgb colour,
                          std::string_view layer) {
    return Family{.box = box,
                  .hours = {first, last, 1, true},
                  .rule = rule,
                  .colour = colour,
                  .layer = layer,
                  .lead = lead};
  };
  return {row(Field::ck_Italiche, 12, 24, HourRule::Italian, kItalicPink, "ita"),
          row(Field::ck_babiloniche, 0, 12, HourRule::Babylonian, palette(13), "bab"),
          row(Field::ckTemp, 0, 12, HourRule::Temporary, palette(11), "temp")};
}

// --- The demonstration

// Half an ellipse, or the arc of one that lies between two abscissae: Y = +-sqrt(radius^2 - (X *
// squeeze)^2), turned through the shadow's angle and shifted, point by point.
struct ShadowConic {
  double first = 0, last = 0;
  double radius = 0, squeeze = 0;
  double sine = 0, cosine = 1;  // of the shadow's angle
  Punto shift;
  Rgb colour = kWhite;
};

// Plots the positive half, then the negative one. Samples beyond the conic are left out; nothing is
// drawn when a bound is a fault.
void plot(Run& run, const ShadowConic& conic);

// A sphere of radius R whose lower part is cut off at the depth `lower` below its centre, with the
// sun of txtAO and txtDelta: its shadow in plan, its section with the ray.
class SphereDemonstration {
 public:
  SphereDemonstration(Run& run, LevelSun& sun, double radius, double lower);

  void plan();
  void section();

 private:
  Run& run_;
  const LevelSun& sun_;
  double R_, lower_;
  double ex_ = 0, ey_ = 0;  // the tangent point of the ray in the section
  double m_ = 0, n_ = 0;
};

// A line of a legend: the label translated, the number rounded to 4 decimals, and what follows it;
// no line for a fault.
void legendLine(Run& run, std::string_view label, double number, std::string_view unit = {});
void longitudeLine(Run& run);

// The knob above the section, over the virtual style that belongs to the altitude.
void knob(Run& run, double radius, double style, double altitude);

}  // namespace dialwright::bifilar
