// Program 5: a vertical dial, facing North or South, by plane analytic geometry: the hours are
// straight lines and the declination curves conics, both written in the substyle's frame and
// turned. The wall's declination is counted the other way round here, and so is the turn.
#include "dials/flat/frinter.hpp"

#include <array>
#include <cmath>

#include "dials/drawing.hpp"
#include "dials/flat/flat_setup.hpp"
#include "dials/flat/plane_suns.hpp"
#include "dials/flat/sky_curves.hpp"
#include "dials/flat/substyle_frame.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"

namespace dialwright {

namespace {

constexpr double kNearPole = 89.9999;    // degrees of latitude that stand for 90
constexpr double kPolarCircle = 66.55;   // degrees of latitude up to which every day has a sunrise
constexpr double kCurveReach = 1.953;    // metres
constexpr double kCurveStep = 0.00012;   // metres: fine enough for points to make a curve
constexpr double kEquatorStep = 0.0001;  // metres
constexpr double kLineReach = 1;  // metres from the frame's origin to the ends of straight lines

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run)
      : PanelDrawing(run), cones_(declinationCones(run.params, kSolsticeArcOnPlane)) {}

  void all();

 private:
  double turnedDeclination() const { return -p_.DeclRad; }
  bool hasHorizonHours() const { return p_.LatGradi != 0 && std::abs(p_.LatGradi) < kPolarCircle; }

  void ImpostaFrinter();
  void Ore();
  void hoursOfSideWallAtEquator();
  void DeclinazioniFrinter();
  void curvesAtEquator();
  void ConicaLatitudine();
  PlaneSuns suns() const { return {sheet_, planeOf(p_)}; }
  template <class SunAt>
  void frameLine(Punto from, Punto to, const Ink& ink, SunAt sunAt);
  void hoursFromHorizon(double side, const Ink& ink);
  void Analemma();
  void TriangoloStilo();

  std::array<DeclinationCone, 3> cones_;
  double SegnoLat_ = 1;
};

void Drawing::all() {
  ImpostaFrinter();
  if (on(Field::chkOreAstronomiche)) Ore();
  if (on(Field::Ck_DayLightCurves)) DeclinazioniFrinter();
  ConicaLatitudine();
  if (on(Field::ck_Equinoziale)) {
    frameLine({-kLineReach, 0}, {kLineReach, 0},
              {.colour = palette(9), .family = CurveFamily::Equinoctial}, [](Punto) {
                return Sun{Sun::kOpen, 0};
              });
  }
  if (on(Field::ck_Sustilare)) {
    const SubstyleTurn turn(-p_.Sustilare, p_.DistPiedeCentro);
    const double foot = p_.DistPiedeCentro;
    line(sheet_, turn(0, foot - kLineReach), turn(0, foot + kLineReach), palette(9));
  }
  if (on(Field::ck_Italiche))
    hoursFromHorizon(-1, {.colour = palette(14), .family = CurveFamily::Italic});
  if (on(Field::ck_babiloniche))
    hoursFromHorizon(+1, {.colour = palette(9), .family = CurveFamily::Babylonian});
  if (on(Field::ck_Lemniscate)) Analemma();
  if (on(Field::ck_Orizzonte)) {
    const double side = sheet_.ShiftX();
    line(sheet_, {side, p_.PuntoRiferimentoY}, {-side, p_.PuntoRiferimentoY}, palette(2));
  }
  if (on(Field::ck_Triangolo)) TriangoloStilo();
  p_.OrarioSustilare *= SegnoLat_;
  SistemaSustilare(p_);
}

void Drawing::ImpostaFrinter() {
  assign(p_.Stilo, run_.number(Field::TxtStilo));
  assign(p_.PassoCurva, run_.number(Field::txt_Definition) / 100);
  SegnoLat_ = signOrOne(p_.LatGradi);
  p_.LatGradi = std::abs(p_.LatGradi);
  if (p_.LatGradi == 90) p_.LatGradi = kNearPole;
  p_.LatRad = p_.radians(p_.LatGradi);
  p_.ReclinRad = 0;
  p_.LimiteOrizzonte = p_.PuntoRiferimentoX = p_.PuntoRiferimentoY = 0;
  assign(p_.LonOrario, p_.CorrFuso * SegnoLat_);

  const double D = turnedDeclination();
  if (p_.LatGradi == 0) {
    p_.Sustilare = p_.OrarioSustilare = (-p_.PiGreco / 2) * p_.SegnoDecl;
    p_.ElevStilo = p_.PiGreco / 2 - std::abs(D);
  } else {
    assign(p_.Sustilare, arctan(over(std::sin(D), std::tan(p_.LatRad))));
    assign(p_.ElevStilo, p_.ArcSin(std::cos(D) * std::cos(p_.LatRad)));
    assign(p_.OrarioSustilare, arctan(over(std::tan(p_.Sustilare), std::sin(p_.ElevStilo))));
  }
  assign(p_.DistPiedeCentro, p_.Stilo * std::tan(p_.ElevStilo));
  assign(p_.IpotenusaStilo, over(p_.Stilo, std::sin(p_.ElevStilo)));
  for (std::size_t i = 0; i < cones_.size(); ++i) {
    setConic(p_.conics[i], p_.Stilo, p_.ElevStilo, cones_[i].K);
  }
}

// Each hour's line from one metre above the foot to one metre below.
void Drawing::Ore() {
  readUsaLongitudine(run_);
  const double sinE = std::sin(p_.ElevStilo);
  const double reach = over(p_.Stilo, std::cos(p_.ElevStilo));
  const double sinS = std::sin(p_.Sustilare), cosS = std::cos(p_.Sustilare);
  const double longitude = p_.LonOrario * p_.UsaLongitudine * SegnoLat_;
  const PlaneSuns suns = this->suns();
  double slope = 0, middle = 0;
  for (const double t : run_.sweep(-90, 90, p_.PassoOre, {.step = Field::TxtHour})) {
    const double H = p_.radians(t) - longitude;
    const double tangent = std::tan(p_.OrarioSustilare - longitude + p_.radians(t));
    const double m = sinE * tangent;
    assign(middle, over(reach * tangent - p_.DistPiedeCentro * m, cosS + sinS * m));
    assign(slope, over(m * cosS - sinS, cosS + m * sinS));
    litLine(sheet_, {middle - slope * kLineReach, kLineReach},
            {middle + slope * kLineReach, -kLineReach},
            {.colour = palette(hourInk(t)), .family = CurveFamily::Hours},
            [&](Punto at) { return suns.ofHourPlane(H, at); });
  }
  if (p_.LatGradi == 0 && std::abs(p_.DeclGradi) == 90) hoursOfSideWallAtEquator();
}

// A wall that holds the axis: its hours are level lines, drawn between the solstices.
void Drawing::hoursOfSideWallAtEquator() {
  const double K = p_.KSolstizio;
  // The lower the line, the nearer to noon; the morning is the eastern wall's.
  const double six = std::copysign(p_.PiGreco / 2, p_.DeclGradi);
  Punto end;
  for (const double t : run_.sweep(-75, 75, p_.PassoOre, {.step = Field::TxtHour})) {
    assign(end.x, over(p_.Stilo, std::sqrt(K) * std::cos(p_.radians(t))));
    assign(end.y, -root(K * end.x * end.x - p_.Stilo * p_.Stilo));
    const Sun sun{six * (1 - std::abs(t) / 90), Sun::kOpen};
    line(sheet_, end, {-end.x, end.y}, {.colour = palette(14), .family = CurveFamily::Hours}, sun,
         sun);
  }
}

// Each conic turned into the wall's coordinates is a quadratic in y; it sets no point without a
// root.
void Drawing::DeclinazioniFrinter() {
  if (p_.LatGradi == 0) {
    curvesAtEquator();
    return;
  }
  const SubstyleTurn turn(-p_.Sustilare, p_.DistPiedeCentro);
  const PlaneSuns suns = this->suns();
  for (const double x : run_.sweep(-kCurveReach, kCurveReach, kCurveStep)) {
    for (std::size_t i = 0; i < cones_.size(); ++i) {
      const Roots y = conicOrdinates(p_.conics[i], turn, x);
      for (const Punto at : {Punto{x, y.minus}, Punto{x, y.plus}})
        dot(sheet_, at, cones_[i].ink(), suns.ofPair(cones_[i].declination, at));
    }
  }
}

// On the equator a wall that faces a pole has no curves.
void Drawing::curvesAtEquator() {
  if (p_.DeclGradi == 0 || std::abs(p_.DeclGradi) == 180) return;
  const PlaneSuns suns = this->suns();
  const double sinD = std::sin(turnedDeclination()), cosD = std::cos(turnedDeclination());
  for (const double x : run_.sweep(-kLineReach, kLineReach, kEquatorStep)) {
    const double axial = x * sinD + p_.Stilo * cosD;
    const double level = x * cosD - p_.Stilo * sinD;
    for (const DeclinationCone& cone : cones_) {
      const double w = cone.K * axial * axial - level * level;
      if (!(w >= 0)) continue;
      for (const Punto at : {Punto{x, std::sqrt(w)}, Punto{x, -std::sqrt(w)}})
        dot(sheet_, at, cone.ink(), suns.ofPair(cone.declination, at));
    }
  }
}

// The conic of the circumpolar sky, which italic and babylonian hours touch; it is not drawn.
void Drawing::ConicaLatitudine() {
  if (!hasHorizonHours()) return;
  const double t = std::tan(p_.LatRad);
  setConic(p_.conic(Declination::Latitude), p_.Stilo, p_.ElevStilo, t * t);
}

// A line between two points of the substyle's frame.
template <class SunAt>
void Drawing::frameLine(Punto from, Punto to, const Ink& ink, SunAt sunAt) {
  const SubstyleTurn turn(-p_.Sustilare, p_.DistPiedeCentro);
  litLine(sheet_, turn(from.x, from.y), turn(to.x, to.y), ink, sunAt);
}

// Italic (side -1) and babylonian (side +1) hours. Of an hour behind the wall the tangent is the
// other count's; for true shadows they change places.
void Drawing::hoursFromHorizon(double side, const Ink& ink) {
  if (!hasHorizonHours()) return;
  const PlaneSuns suns = this->suns();
  const ConicSet& conic = p_.conic(Declination::Latitude);
  double U = 0, slope = 0;
  for (const double t : run_.sweep(-105, 105, 15)) {
    const double h = p_.OrarioSustilare + p_.radians(t);
    const double own = run_.trueShadows() && isBehindWall(p_, h) ? -side : side;
    assign(U, over(p_.Stilo, std::cos(p_.ElevStilo)) * std::tan(h));
    assign(slope, tangentSlope(conic, U, own * p_.SegnoEmisfero));
    frameLine({-kLineReach, slope * (-kLineReach - U)}, {kLineReach, slope * (kLineReach - U)}, ink,
              [&](Punto at) { return suns.ofEquinoxHour(p_.radians(t), -side, at); });
  }
}

// The sun of each day at the zone's noon on the wall as it is typed; every point is set in its
// season's colour and again in the figure's.
void Drawing::Analemma() {
  const Projection project({p_.Stilo, p_.LatRad, p_.DeclRad, p_.PiGreco / 2});
  const double tilt = p_.radians(obliquity(47));
  Punto point;
  const Sweep days = run_.sweep(-80, 280, 360 / kDaysOfYear);
  for (const double L : days) {
    const SunOfDay sun = sunAtMeanLongitude(p_, p_.radians(L), tilt);
    const double H = -p_.CorrFuso + sun.equationOfTime;
    assign(point, project(std::sin(H), std::cos(H), std::tan(sun.declination)));
    const bool drawn = point.y <= p_.LimiteOrizzonte && L > days.first() && window_.holds(point);
    if (!drawn) continue;
    for (const int colour : {sun.declination < 0 ? 12 : 3, 6})
      dot(sheet_, point, {.colour = palette(colour), .family = CurveFamily::Analemma},
          {H, sun.declination});
  }
}

void Drawing::TriangoloStilo() {
  const Punto tip = laidTip(p_, -p_.Sustilare);
  const double distance = over(p_.Stilo, std::tan(p_.ElevStilo));
  Punto centre;
  assign(centre, {distance * std::sin(p_.Sustilare), distance * std::cos(p_.Sustilare)});
  line(sheet_, tip, {0, 0}, palette(13));
  line(sheet_, tip, centre, palette(9));
  dot(sheet_, centre, palette(15));
  line(sheet_, {0, 0}, centre, palette(14));
}

}  // namespace

void DisegnaFrinter(Run& run) {
  if (latitudeIsMissing(run)) {
    run.refuse(kIncompleteSiteMessage);
    return;
  }
  if (refusesSouth(run)) return;
  drawFramed(run, "Vertical dial by 2D analytic geometry", [&run] {
    LeggiParametriSito(run);
    Drawing(run).all();
  });
}

}  // namespace dialwright
