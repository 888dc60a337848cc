// The polar style over its plane.
#include "shell/style_triangle.hpp"

#include <algorithm>

namespace dialwright {

double StylePlane::elevationSine() const {
  return std::sin(ReclinRad) * std::sin(LatRad) -
         std::cos(ReclinRad) * std::cos(LatRad) * std::cos(DeclRad);
}

namespace {

// Tangent of the angle between the substyle and the vertical.
double substyleTangent(const StylePlane& p) {
  return over(std::sin(p.DeclRad), std::tan(p.LatRad) * std::cos(p.ReclinRad) +
                                       std::cos(p.DeclRad) * std::sin(p.ReclinRad));
}

Punto centreOf(const StylePlane& p, double sine) {
  const double reach = over(p.Stilo, sine);
  Punto centre;
  assign(centre, {reach * std::cos(p.LatRad) * std::sin(p.DeclRad),
                  -reach * (std::sin(p.LatRad) * std::cos(p.ReclinRad) +
                            std::cos(p.LatRad) * std::sin(p.ReclinRad) * std::cos(p.DeclRad))});
  return centre;
}

double substyleOf(const Angles& angles, const StylePlane& p, const PolarStyle& style) {
  if (p.LatRad == 0 && p.ReclinRad == 0) return (angles.PiGreco / 2) * p.SegnoDecl;
  double S = 0;
  assign(S, arctan(substyleTangent(p)));
  if (style.hasCentre() && style.centre.y < 0)
    S += style.centre.x <= 0 ? angles.PiGreco : -angles.PiGreco;
  if (std::abs(S) > angles.PiGreco) S = -std::abs(2 * angles.PiGreco - std::abs(S)) * Sgn(S);
  return S;
}

}  // namespace

PolarStyle polarStyle(const Angles& angles, const StylePlane& plane, double sine) {
  PolarStyle style;
  assign(style.sine, sine);
  assign(style.elevation, angles.ArcSin(style.sine));
  if (style.hasCentre()) style.centre = centreOf(plane, style.sine);
  style.substyle = substyleOf(angles, plane, style);
  return style;
}

// A substyle that is exactly upright has no slope: its ends stay on the level of the foot.
Chord clippedSubstyle(double substyle, const Window& window) {
  const double tangent = std::tan(substyle);
  const double slope = over(-1, tangent);
  const auto atHeight = [tangent](Punto& p, double y) { p = {-tangent * y, y}; };
  Chord chord{{window.x1, 0}, {window.x2, 0}};
  assign(chord.a.y, slope * window.x1);
  if (chord.a.y > window.y1) atHeight(chord.a, window.y1);
  if (chord.a.y < window.y2) atHeight(chord.a, window.y2);
  assign(chord.b.y, slope * window.x2);
  if (chord.b.y < window.y2) atHeight(chord.b, window.y2);
  if (chord.b.y > window.y1) atHeight(chord.b, window.y1);
  return chord;
}

Punto poleAlong(const StylePlane& p) {
  const double level = std::cos(p.LatRad);
  return {-level * std::sin(p.DeclRad), level * std::sin(p.ReclinRad) * std::cos(p.DeclRad) +
                                            std::sin(p.LatRad) * std::cos(p.ReclinRad)};
}

// (Standard: the clipping of Liang and Barsky, by the line's parameter at each side.)
std::optional<Chord> clippedLine(Punto through, Punto along, const Window& window, double first,
                                 double last) {
  const auto between = [&](double start, double way, double low, double high) {
    if (way == 0) return low <= start && start <= high;
    const double a = (low - start) / way, b = (high - start) / way;
    first = std::max(first, std::min(a, b));
    last = std::min(last, std::max(a, b));
    return true;
  };
  if (!between(through.x, along.x, window.x1, window.x2) ||
      !between(through.y, along.y, window.y2, window.y1) || !(first < last) || !sound(first) ||
      !sound(last))
    return std::nullopt;
  const auto at = [&](double part) {
    return Punto{through.x + part * along.x, through.y + part * along.y};
  };
  return Chord{at(first), at(last)};
}

EquinoctialLine::EquinoctialLine(const Angles& angles, const StylePlane& plane) {
  assign(slope, substyleTangent(plane));
  double elevation = 0;
  assign(elevation, angles.ArcSin(plane.elevationSine()));
  const double along = arctan(slope);
  const double distance = plane.Stilo * std::tan(elevation);
  assign(foot, {-distance * std::sin(along), distance * std::cos(along)});
}

}  // namespace dialwright
