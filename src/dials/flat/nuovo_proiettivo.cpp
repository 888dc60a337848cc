// Program 4: a flat dial by projection, latter version. The reference plane is the upright wall of
// the dial's own declination that meets the dial's plane in the level line through the foot of its
// style: the tip stands N = Stilo/cos R before it. On it, p runs along the equinoctial and q up the
// substyle from it.
#include "dials/flat/nuovo_proiettivo.hpp"

#include <cmath>

#include "dials/flat/projective.hpp"
#include "dials/flat/sky_curves.hpp"
#include "dials/flat/substyle_frame.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"

namespace dialwright {

namespace {

class Drawing : ProjectiveDrawing {
 public:
  explicit Drawing(Run& run);

  void all();

 private:
  void ImpostaNuovo();
  Punto MappaNuova(double p, double q) const;
  template <class SunAt>
  void mark(double p, double q, const Ink& ink, SunAt sunAt) {
    ProjectiveDrawing::mark(MappaNuova(p, q), ink, sunAt);
  }
  double hourFromSubstyle(double H) const;
  template <class SunAt>
  void lineThrough(double p0, double dp, double dq, const Ink& ink, SunAt sunAt);

  void Ore();
  void Stile();
  void Sustilare();
  void Curve();
  void hoursFromHorizon(double side, CurveFamily family);
  void Analemma();

  double sinR_, cosR_, tanR_;
  double N_;                // the style on the reference plane
  double sinE_, cosE_;      // of the polar style's elevation over the reference plane
  double equinoctialUnit_;  // N/cos E: tangents of hour angles come in it along the equinoctial
  double sinS_, cosS_;      // of the reference plane's substyle
};

Drawing::Drawing(Run& run)
    : ProjectiveDrawing(run),
      sinR_(std::sin(p_.ReclinRad)),
      cosR_(std::cos(p_.ReclinRad)),
      tanR_(std::tan(p_.ReclinRad)),
      N_(over(p_.Stilo, cosR_)) {
  ImpostaNuovo();
  sinE_ = std::sin(p_.ElevStilo);
  cosE_ = std::cos(p_.ElevStilo);
  equinoctialUnit_ = over(N_, cosE_);
  sinS_ = std::sin(p_.Sustilare);
  cosS_ = std::cos(p_.Sustilare);
}

// The substyle's frame on the reference plane. That wall is upright and never on the equator.
void Drawing::ImpostaNuovo() {
  assign(p_.ElevStilo, p_.ArcSin(std::cos(p_.LatRad) * std::cos(p_.DeclRad)));
  assign(p_.Sustilare, arctan(over(std::sin(p_.DeclRad), std::tan(p_.LatRad))));
  assign(p_.OrarioSustilare, -arctan(over(std::tan(p_.Sustilare), std::sin(p_.ElevStilo))));
  assign(p_.DistPiedeCentro, N_ * std::tan(p_.ElevStilo));
  for (std::size_t i = 0; i < cones_.size(); ++i) {
    setConic(p_.conics[i], N_, p_.ElevStilo, cones_[i].K);
  }
  const double t = std::tan(p_.LatRad);
  setConic(p_.conic(Declination::Latitude), N_, p_.ElevStilo, t * t);
}

// The ray from the tip through (p, q) on to the dial's plane, in the dial's coordinates.
Punto Drawing::MappaNuova(double p, double q) const {
  const double across = q - p_.DistPiedeCentro;
  const double P = p * cosS_ - across * sinS_;
  const double Q = p * sinS_ + across * cosS_;
  const double den = -N_ + Q * tanR_;
  return {over(-N_ * P, den), over(-N_ * Q, den * cosR_) + N_ * sinR_};
}

// An hour angle (radians) from the hour at which the sun stands over the substyle. A wall that
// faces away from the noon sun has that hour at the other end of the day from its tangent's.
double Drawing::hourFromSubstyle(double H) const {
  return p_.OrarioSustilare + H + (p_.ElevStilo < 0 ? p_.PiGreco : 0);
}

// The line through (p0, 0) in a direction, swept along the coordinate in which it is longer.
template <class SunAt>
void Drawing::lineThrough(double p0, double dp, double dq, const Ink& ink, SunAt sunAt) {
  if (std::abs(dp) <= std::abs(dq)) {
    const double k = over(dp, dq);
    for (const double q : swept()) mark(p0 + k * q, q, ink, sunAt);
  } else {
    const double k = over(dq, dp);
    for (const double p : swept()) mark(p, k * (p - p0), ink, sunAt);
  }
}

void Drawing::all() {
  if (on(Field::ck_Equinoziale)) {
    const Ink ink{.colour = palette(9), .family = CurveFamily::Equinoctial};
    for (const double p : swept(kFineSweepStep))
      mark(p, 0, ink, [](Punto) { return Sun{Sun::kOpen, 0}; });
  }
  if (on(Field::chkOreAstronomiche)) Ore();
  Stile();
  if (on(Field::ck_Sustilare)) Sustilare();
  if (on(Field::ck_Triangolo)) style_.triangleInCorner();
  if (on(Field::Ck_DayLightCurves)) Curve();
  if (on(Field::ck_Italiche)) hoursFromHorizon(-1, CurveFamily::Italic);
  if (on(Field::ck_babiloniche)) hoursFromHorizon(+1, CurveFamily::Babylonian);
  if (on(Field::ck_Orizzonte)) horizonAcross(run_);
  if (on(Field::ck_Lemniscate)) Analemma();
  SistemaSustilare(p_);
}

// An hour's line runs from its point on the equinoctial, p = N/cos E * tan h, to the centre of the
// reference plane, q = N/(sin E cos E).
void Drawing::Ore() {
  readUsaLongitudine(run_);
  for (const double t : run_.sweep(-90, 90, p_.PassoOre, {.step = Field::TxtHour})) {
    const double shift = p_.degrees(p_.CorrFuso) * p_.UsaLongitudine;
    const double H = p_.radians(t - shift);
    const double tangent = std::tan(hourFromSubstyle(H));
    lineThrough(equinoctialUnit_ * tangent, -sinE_ * tangent, 1,
                {.colour = palette(hourInk(t)), .family = CurveFamily::Hours},
                [&](Punto at) { return suns_.ofHourPlane(H, at); });
  }
}

void Drawing::Stile() {
  const Punto centre = style_.centre();
  const Punto tip = style_.tip();
  line(sheet_, {0, 0}, tip, palette(13));
  line(sheet_, tip, centre, palette(9));
  line(sheet_, {0, 0}, centre, palette(14));
}

void Drawing::Sustilare() {
  const Punto centre = style_.centre();
  line(sheet_, {2 * centre.x, 2 * centre.y}, {-2 * centre.x, -2 * centre.y}, palette(9));
}

void Drawing::Curve() {
  for (const double p : swept()) {
    for (std::size_t i = 0; i < cones_.size(); ++i) {
      const ConicSet& conic = p_.conics[i];
      const double R = radicand(conic, p);
      if (!(R >= 0)) continue;
      const auto sunAt = [&](Punto at) { return suns_.ofPair(cones_[i].declination, at); };
      mark(p, -conic.A1 / 2 + std::sqrt(R), cones_[i].ink(), sunAt);
      mark(p, -conic.A1 / 2 - std::sqrt(R), cones_[i].ink(), sunAt);
    }
  }
}

// Italic (side -1) and babylonian (side +1) hours: the tangents to the conic of the circumpolar sky
// from the hours of the equinoctial. An hour behind the reference plane has its point on the
// opposite side of the sky, where the two tangents change places.
void Drawing::hoursFromHorizon(double side, CurveFamily family) {
  const ConicSet& horizon = p_.conic(Declination::Latitude);
  double slope = 0;
  for (const double t : run_.sweep(-90, 90, 15)) {
    const double h = hourFromSubstyle(p_.radians(t));
    const double U = equinoctialUnit_ * std::tan(h);
    assign(slope, tangentSlope(horizon, U, std::cos(h) < 0 ? -side : side));
    lineThrough(U, 1, slope, {.colour = palette(14), .family = family},
                [&](Punto at) { return suns_.ofEquinoxHour(p_.radians(t), -side, at); });
  }
}

// The sun of each day at the zone's noon. With h its hour angle from the substyle's, the ray meets
// the reference plane at p = N sin h/D, q = -N tan(declination)/(cos E D), where D = cos h cos E -
// tan(declination) sin E is its part along the plane's normal. What the sun throws from behind the
// plane stands above the horizon and is left out.
void Drawing::Analemma() {
  const double tilt = p_.radians(obliquity(47));
  assign(p_.LimiteOrizzonte, p_.Stilo * tanR_);
  const Sweep days = run_.sweep(-80, 360, 360 / kDaysOfYear);
  for (const double L : days) {
    const SunOfDay sun = sunAtMeanLongitude(p_, p_.radians(L), tilt);
    const double H = -p_.CorrFuso + sun.equationOfTime;
    const double h = hourFromSubstyle(H);
    const double tangent = std::tan(sun.declination);
    const double D = std::cos(h) * cosE_ - tangent * sinE_;
    assign(point_, MappaNuova(over(N_ * std::sin(h), D), over(-equinoctialUnit_ * tangent, D)));
    const bool drawn = point_.y <= horizonLimit(run_, p_.LimiteOrizzonte) && L > days.first() &&
                       window_.holds(point_);
    if (drawn)
      dot(sheet_, point_, {.colour = palette(14), .family = CurveFamily::Analemma},
          {H, sun.declination});
  }
}

}  // namespace

void DisegnaNuovoProiettivo(Run& run) {
  if (!acceptsProjection(run, true)) return;
  drawFramed(run, "Flat sundial by projective method : latter version", [&run] {
    readProjectivePlane(run);
    Drawing(run).all();
  });
}

}  // namespace dialwright
