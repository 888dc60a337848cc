// The suns that the lines of a flat dial by plane geometry stand for: such lines are not traced sun
// by sun, so that the day of a sample has to be told by its place.
#pragma once

#include <cmath>
#include <numbers>

#include "dials/pen.hpp"

namespace dialwright {

// Each is worked out only where somebody asks for it; else it is no sun.
class PlaneSuns {
 public:
  PlaneSuns(const SheetPlot& sheet, const Piano& plane)
      : project_(plane), tanLat_(std::tan(plane.LatRad)), asked_(asksForSuns(sheet)) {}

  // The day of a point: the declination of the sun that throws the tip's shadow there, radians.
  double declination(Punto at) const {
    const auto ray = project_.rayFrom(at);
    return std::atan2(ray.sine, std::hypot(ray.sinH, ray.cosH));
  }

  // A line in the plane of an hour (radians): on the centre's other side it is that of the hour
  // twelve later.
  Sun ofHourPlane(double H, Punto at) const {
    if (!asked_) return {};
    const auto ray = project_.rayFrom(at);
    const bool opposite = ray.sinH * std::sin(H) + ray.cosH * std::cos(H) < 0;
    return {opposite ? H + kMidnight : H, Sun::kOpen};
  }

  // A curve of a declination and of its opposite, one on each side of the equinoctial.
  Sun ofPair(double declination, Punto at) const {
    if (!asked_) return {};
    return {Sun::kOpen, std::copysign(declination, project_.rayFrom(at).sine)};
  }

  // The hour from sunset (+1) or sunrise (-1) that comes at an hour angle (radians) on the days of
  // equal day and night.
  Sun ofEquinoxHour(double H, double side, Punto at) const {
    return ofHorizonHour(H - side * kMidnight / 2, side, at);
  }

  // The hour so many radians before (negative) or after sunset (+1) or sunrise (-1), on the day of
  // the point. A day without them has no such hour: midnight's sun stands for it.
  Sun ofHorizonHour(double fromHorizon, double side, Punto at) const {
    if (!asked_) return {};
    const double day = declination(at);
    const double cosine = -tanLat_ * std::tan(day);
    if (!(std::abs(cosine) <= 1)) return {kMidnight, day};
    return {side * std::acos(cosine) + fromHorizon, day};
  }

 private:
  static constexpr double kMidnight = std::numbers::pi;

  Projection project_;
  double tanLat_;
  bool asked_;
};

// True of two hour angles (radians) with a quarter turn or more between them; false of open ones.
inline bool turnsOver(double a, double b) {
  return std::abs(std::remainder(b - a, 2 * std::numbers::pi)) > std::numbers::pi / 2;
}

// A stretch whose suns are lit: one stroke where the sun half way between those of its ends is half
// way along it, else halves, since the sun may run unevenly.
template <class SunAt>
void litStretch(SheetPlot& sheet, ShadowJudge& judge, Punto from, Punto to, const Ink& ink,
                SunAt sunAt, int depth) {
  constexpr int kMostHalvings = 24;
  constexpr double kShortest = 0.001;  // metres of what is worth halving
  const Sun first = sunAt(from), second = sunAt(to);
  const bool whole = depth == kMostHalvings || std::hypot(to.x - from.x, to.y - from.y) < kShortest;
  if (whole || judge.isTrack(from, to, {ink.family, first, second})) {
    line(sheet, from, to, ink, first, second);
    return;
  }
  const Punto half{(from.x + to.x) / 2, (from.y + to.y) / 2};
  litStretch(sheet, judge, from, half, ink, sunAt, depth + 1);
  litStretch(sheet, judge, half, to, ink, sunAt, depth + 1);
}

// Places along a straight line, close together near the foot of the style and far apart where the
// line is far away: evenly spaced as one sees them who stands a metre beside it there.
class PartsByAngle {
 public:
  PartsByAngle(Punto from, Punto to) {
    const double dx = to.x - from.x, dy = to.y - from.y, square = dx * dx + dy * dy;
    foot_ = -(from.x * dx + from.y * dy) / square;
    metre_ = 1 / std::sqrt(square);
    first_ = std::atan(-foot_ / metre_);
    last_ = std::atan((1 - foot_) / metre_);
  }

  // The part of the line's length at a part of the way, both from 0 to 1.
  double operator()(double way) const {
    if (way <= 0 || way >= 1) return way <= 0 ? 0 : 1;
    return foot_ + metre_ * std::tan(first_ + way * (last_ - first_));
  }

 private:
  double foot_, metre_;  // as parts of the length
  double first_, last_;  // angles
};

// The part of a straight line that shadows follow. Without a judge it is the whole line; with one,
// each stretch of it whose suns are lit. `sunAt` tells the sun of a point.
template <class SunAt>
void litLine(SheetPlot& sheet, Punto from, Punto to, const Ink& ink, SunAt sunAt) {
  ShadowJudge* judge = sheet.judge();
  if (judge == nullptr) {
    line(sheet, from, to, ink, sunAt(from), sunAt(to));
    return;
  }
  constexpr int kPieces = 800;
  constexpr int kHalvings = 40;
  const auto at = [&](double part) {
    return Punto{from.x + part * (to.x - from.x), from.y + part * (to.y - from.y)};
  };
  const auto lit = [&](double part) {
    return judge->isShadow(at(part), ink.family, sunAt(at(part)));
  };
  // The last place on the way from a lit one to another that is still lit, by the same sun: on the
  // centre's other side the line is that of the hour twelve later.
  const auto litUntil = [&](double light, double other) {
    const double hour = sunAt(at(light)).hourAngle;
    for (int i = 0; i < kHalvings; ++i) {
      const double half = (light + other) / 2;
      (lit(half) && !turnsOver(hour, sunAt(at(half)).hourAngle) ? light : other) = half;
    }
    return light;
  };
  double begin = -1, last = -1;  // of the stretch of the moment, as parts of the line
  const auto draw = [&](double end) {
    if (end > begin) litStretch(sheet, *judge, at(begin), at(end), ink, sunAt, 0);
    begin = -1;
  };
  const PartsByAngle parts(from, to);
  for (int i = 0; i <= kPieces; ++i) {
    const double part = parts(static_cast<double>(i) / kPieces);
    const bool light = lit(part);
    const bool breaks =
        !light || (begin >= 0 && turnsOver(sunAt(at(last)).hourAngle, sunAt(at(part)).hourAngle));
    if (begin >= 0 && breaks) draw(litUntil(last, part));
    if (light && begin < 0) begin = i == 0 ? part : litUntil(part, last);
    last = part;
  }
  if (begin >= 0) draw(last);
}

}  // namespace dialwright
