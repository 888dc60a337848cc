// Program 3: a flat dial by projection, former version. The reference plane is the upright one that
// faces South (or, where St is negative, North) through the dial's own centre: p to the West and q
// upwards from the centre. Since both planes hold the centre, they share the polar style, whose
// length St from the centre to the tip puts the tip at St cos(latitude) before the reference plane
// and St sin(latitude) below the centre.
#include "dials/flat/proiettivo.hpp"

#include <array>
#include <cmath>

#include "dials/flat/projective.hpp"
#include "dials/flat/sky_curves.hpp"
#include "dials/flat/substyle_frame.hpp"
#include "dials/sun.hpp"

namespace dialwright {

namespace {

constexpr double kPolarLineStep = 0.0001;  // metres
constexpr double kPlaneLineReach = 1;      // metres of what is drawn on the dial's plane itself

class Drawing : ProjectiveDrawing {
 public:
  explicit Drawing(Run& run);

  void all();

 private:
  double styleOnReference();
  ConicSet conicOf(double K) const;
  Punto MappaProiettiva(double p, double q) const;
  template <class SunAt>
  void mark(double p, double q, const Ink& ink, SunAt sunAt) {
    ProjectiveDrawing::mark(MappaProiettiva(p, q), ink, sunAt);
  }

  void CentroProiettivo();
  void Equinoziale();
  void Ore();
  template <class SunAt>
  void wholeLine(Punto through, double dp, double dq, const Ink& ink, SunAt sunAt);
  void LineaPolare();
  void Sustilare();
  void Curve();
  void hoursFromHorizon(double side, CurveFamily family);

  double sinF_, cosF_, tanF_;         // of the latitude
  double cosD_, tanD_, cosR_, tanR_;  // of the plane
  double St_;                         // the style on the reference plane
  double equator_;                    // ordinate of the equinoctial there
};

Drawing::Drawing(Run& run)
    : ProjectiveDrawing(run),
      sinF_(std::sin(p_.LatRad)),
      cosF_(std::cos(p_.LatRad)),
      tanF_(std::tan(p_.LatRad)),
      cosD_(std::cos(p_.DeclRad)),
      tanD_(std::tan(p_.DeclRad)),
      cosR_(std::cos(p_.ReclinRad)),
      tanR_(std::tan(p_.ReclinRad)),
      St_(styleOnReference()),
      equator_(over(-St_, sinF_)) {
  p_.ElevStilo = style_.polar().elevation;
  p_.Sustilare = style_.polar().substyle;
  p_.PuntoRiferimentoX = -style_.centre().x;
  p_.PuntoRiferimentoY = -style_.centre().y;
}

// Positive where the tip is below the centre.
double Drawing::styleOnReference() {
  double St = 0;
  assign(St, std::abs(over(p_.Stilo, cosD_ * cosF_ * cosR_ - std::sin(p_.ReclinRad) * sinF_)));
  const bool overhead = p_.ReclinRad >= p_.PiGreco / 2;
  const bool facesPole = cosD_ < tanF_ * tanR_;
  if (overhead) {
    St = -St;
    p_.SegnoDecl = -1;
  }
  if (facesPole) St = -St;
  if (facesPole && std::abs(p_.DeclRad) > p_.PiGreco / 2) p_.SegnoDecl = -1;
  return St;
}

// The conic y^2 + A1*y + A0 + A2*p^2 = 0 of a cone on the reference plane, y counted from the
// equinoctial.
ConicSet Drawing::conicOf(double K) const {
  const double M = cosF_ * cosF_ - K * sinF_ * sinF_;
  const double drop = over(St_, tanF_);
  return {.A0 = over(drop * drop, M), .A1 = over(-2 * St_ * cosF_, tanF_ * M), .A2 = over(1, M)};
}

// The ray from the tip through (p, q) on to the dial's plane, in the dial's coordinates.
Punto Drawing::MappaProiettiva(double p, double q) const {
  const double a1 = St_ * cosF_;
  const double a2 = St_ * sinF_;
  const double e = q + a2;
  const double f = 1 - over(p * tanD_, a1);
  const double Z =
      over(over(a1 * a2, e) - a1 - over(p * tanD_, f), over(tanR_, f * cosD_) - over(a1, e));
  const double X = over(p * (Z + a2), e);
  const double u = -(over(X, cosD_) + Z * tanR_ * tanD_);
  return {u - p_.PuntoRiferimentoX, over(Z, cosR_) - p_.PuntoRiferimentoY};
}

void Drawing::all() {
  CentroProiettivo();
  if (on(Field::ck_Equinoziale)) Equinoziale();
  if (on(Field::chkOreAstronomiche)) Ore();
  LineaPolare();
  if (on(Field::ck_Sustilare)) Sustilare();
  if (on(Field::ck_Triangolo)) style_.triangleInCorner();
  if (on(Field::Ck_DayLightCurves)) Curve();
  if (on(Field::ck_Italiche)) hoursFromHorizon(+1, CurveFamily::Italic);
  if (on(Field::ck_babiloniche)) hoursFromHorizon(-1, CurveFamily::Babylonian);
  if (on(Field::ck_Orizzonte)) horizonAcross(run_);
  SistemaSustilare(p_);
}

void Drawing::CentroProiettivo() {
  const Punto centre = style_.centre();
  const Punto tip = style_.tip();
  dot(sheet_, centre, palette(12));
  dot(sheet_, tip, palette(12));
  line(sheet_, tip, centre, palette(9));
  line(sheet_, tip, {0, 0}, palette(13));
  line(sheet_, centre, {0, 0}, palette(14));
  steepestLine(sheet_, centre.x);
}

void Drawing::Equinoziale() {
  const Ink ink{.colour = palette(9), .family = CurveFamily::Equinoctial};
  for (const double p : swept(kFineSweepStep))
    mark(p, equator_, ink, [](Punto) { return Sun{Sun::kOpen, 0}; });
}

// The hours are counted before noon, and no longitude enters. Noon itself is upright on the
// reference plane and can't be swept along p: the ordinate stays that of the line before it. The
// polar line shows noon.
void Drawing::Ore() {
  double q = 0;
  for (const double t : run_.sweep(-90, 90, p_.PassoOre, {.step = Field::TxtHour})) {
    const Ink ink{.colour = palette(hourInk(t)), .family = CurveFamily::Hours};
    const double H = p_.radians(t);
    if (run_.trueShadows()) {
      wholeLine({0, 0}, std::sin(H) * cosF_, std::cos(H), ink,
                [&](Punto at) { return suns_.ofHourPlane(H, at); });
      continue;
    }
    const double slope = over(-1, std::tan(H) * cosF_);
    for (const double p : swept()) {
      assign(q, slope * p);
      mark(p, q, ink, [&](Punto at) { return suns_.ofHourPlane(-H, at); });
    }
  }
}

// A line of the reference plane for true shadows: a steep one is swept along q too, so that noon is
// there and the dots stand close, and along p beyond that.
template <class SunAt>
void Drawing::wholeLine(Punto through, double dp, double dq, const Ink& ink, SunAt sunAt) {
  const bool steep = std::abs(dq) > std::abs(dp);
  if (steep) {
    for (const double q : swept()) mark(through.x + over(dp, dq) * (q - through.y), q, ink, sunAt);
  }
  for (const double p : swept()) {
    const double q = through.y + over(dq, dp) * (p - through.x);
    if (!steep || std::abs(q) > LimiteSweep) mark(p, q, ink, sunAt);
  }
}

// The upright p = 0 of the reference plane, noon, on the dial's plane: from the vertical through
// the centre it leans by the angle g, whose tangent -du/dv is sin R tan D by the projection with X
// = 0. Where g is 0, the line of steepest slope stands for it.
void Drawing::LineaPolare() {
  const double g = arctan(std::sin(p_.ReclinRad) * tanD_);
  if (!(g != 0)) return;
  const double slope = -std::tan(p_.PiGreco / 2 + g);
  for (const double x : run_.sweep(-kPlaneLineReach, kPlaneLineReach, kPolarLineStep)) {
    const Punto at{-(p_.PuntoRiferimentoX + x), slope * x - p_.PuntoRiferimentoY};
    dot(sheet_, at, {.colour = palette(4), .family = CurveFamily::Hours}, suns_.ofHourPlane(0, at));
  }
}

void Drawing::Sustilare() {
  if (run_.trueShadows()) {
    // An arcsine mirrors it where the axis points down on the plane.
    const Punto pole = poleAlong(StylePlane(p_));
    for (const double k : run_.sweep(-kPlaneLineReach, kPlaneLineReach, kSweepStep))
      dot(sheet_, {k * pole.x, k * pole.y}, palette(9));
    return;
  }
  const double a = p_.ArcSin(over(std::sin(p_.DeclRad) * cosF_, std::cos(p_.ElevStilo)));
  if (!(a != 0)) return;
  const double slope = over(-1, std::tan(a));
  for (const double x : run_.sweep(-kPlaneLineReach, kPlaneLineReach, kSweepStep)) {
    dot(sheet_, {x, slope * x}, palette(9));
  }
}

void Drawing::Curve() {
  std::array<ConicSet, 3> conics;
  for (std::size_t i = 0; i < cones_.size(); ++i) conics[i] = conicOf(cones_[i].K);
  for (const double p : swept()) {
    for (std::size_t i = 0; i < conics.size(); ++i) {
      const double R = radicand(conics[i], p);
      if (!(R >= 0)) continue;
      const double middle = equator_ - conics[i].A1 / 2;
      const auto sunAt = [&](Punto at) { return suns_.ofPair(cones_[i].declination, at); };
      mark(p, middle - std::sqrt(R), cones_[i].ink(), sunAt);
      mark(p, middle + std::sqrt(R), cones_[i].ink(), sunAt);
    }
  }
}

// Italic (side +1) and babylonian (side -1) hours: the tangents to the conic of the circumpolar
// sky, whose cone is as wide as the latitude, from the hours of the equinoctial.
void Drawing::hoursFromHorizon(double side, CurveFamily family) {
  const ConicSet horizon = conicOf(tanF_ * tanF_);
  const Ink ink{.colour = palette(14), .family = family};
  double slope = 0;
  for (const double t : run_.sweep(-90, 90, 15)) {
    const double w = over(St_, tanF_) * std::tan(p_.radians(t));
    assign(slope, tangentSlope(horizon, w, side));
    // Here p grows to the West, as the hours before noon.
    const auto sunAt = [&](Punto at) { return suns_.ofEquinoxHour(-p_.radians(t), side, at); };
    if (run_.trueShadows()) {
      wholeLine({w, equator_}, 1, slope, ink, sunAt);
    } else {
      for (const double p : swept()) mark(p, slope * (p - w) + equator_, ink, sunAt);
    }
  }
}

}  // namespace

void DisegnaProiettivo(Run& run) {
  if (!acceptsProjection(run, false)) return;
  drawFramed(run, "Flat sundial by projective method : former version", [&run] {
    readProjectivePlane(run);
    Drawing(run).all();
  });
}

}  // namespace dialwright
