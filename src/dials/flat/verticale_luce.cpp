// Program 1: a vertical declining dial by plane analytic geometry. The declination curves are
// conics in the substyle's frame, the hour lines straight lines, and the construction triangle of
// the style is shown. The origin G of the dial's coordinates is the foot of the perpendicular
// style.
#include "dials/flat/verticale_luce.hpp"

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "dials/drawing.hpp"
#include "dials/flat/gnomonic_scheme.hpp"
#include "dials/flat/plane_suns.hpp"
#include "dials/flat/sky_curves.hpp"
#include "dials/flat/substyle_frame.hpp"
#include "dials/flat/upright_wall.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"
#include "numerics/numbers.hpp"
#include "shell/clicks.hpp"
#include "shell/style_triangle.hpp"

namespace dialwright {

namespace {

constexpr Rgb kItalicPink = rgb(255, 128, 255);

constexpr double kHourMark = 0.002;       // radius
constexpr double kHourLineBottom = -0.8;  // ordinate
constexpr double kSideWall = 80;  // degrees of declination from which the centre is of no use
constexpr double kAnalemmaPi = 3.1415926536;

constexpr Sun kEquinox{Sun::kOpen, 0};

// A mean noon on the dial.
struct MeanNoon {
  Punto at;
  Rgb colour = 0;
  Sun sun;
};

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run) : PanelDrawing(run) {}

  void all();

 private:
  void PreparaVerticale();
  void locateCentre();
  PlaneSuns suns() const { return {sheet_, planeOf(p_)}; }
  void hourStroke(Punto from, Punto to, double H, Rgb colour);

  void StiloConico();
  void conicHours(double side, const Ink& ink);

  void OreAstronomiche();
  double hourAngle(double H) const { return p_.radians(H) - p_.CorrFuso * p_.UsaLongitudine; }
  Punto hourPoint(double H, double f);
  void LineeOrarie();
  void CurveDeclinazione();
  void curvesAtEquator();
  void Analemma();
  std::vector<MeanNoon> yearOfNoons();
  bool noonOfConics(const SunOfDay& sun, double g, MeanNoon& noon, ConicSet& conic, double& v);
  void noonAtEquator(const SunOfDay& sun, MeanNoon& noon);
  void LineaEquinoziale();
  void LineaSustilare();
  void LineaMeridiana();
  void ChiudiVerticale();

  Punto centre_;  // C, where the hour lines meet
};

void Drawing::all() {
  PreparaVerticale();
  if (on(Field::CkConic)) StiloConico();
  const bool otherHours = on(Field::ck_Italiche) || on(Field::ck_babiloniche) || on(Field::ckTemp);
  if (on(Field::chkOreAstronomiche) && !otherHours) OreAstronomiche();
  if (on(Field::Ck_DayLightCurves)) CurveDeclinazione();
  if (on(Field::ckTemp)) {
    drawSunHours(run_, run_.sweep(1, 12, 1), HourSystem::Temporary, palette(6));
  }
  if (on(Field::ck_Lemniscate)) Analemma();
  if (on(Field::ck_Equinoziale)) LineaEquinoziale();
  if (on(Field::ck_Sustilare)) LineaSustilare();
  LineaMeridiana();
  SchemaGnomonico(run_, centre_);
  if (on(Field::ck_Orizzonte)) sheet_.xLine(-sheet_.ShiftX(), 0, sheet_.ShiftX(), 0, palette(2));
  dot(sheet_, {0, 0}, palette(12));
  const auto hours = [this] {
    return run_.sweep(number(Field::TxtInizio), number(Field::TxtFine), 1,
                      {.bound = Field::TxtFine});
  };
  if (on(Field::ck_Italiche)) drawSunHours(run_, hours(), HourSystem::Italic, kItalicPink);
  if (on(Field::ck_babiloniche)) {
    drawSunHours(run_, hours(), HourSystem::Babylonian, palette(13));
  }
  ChiudiVerticale();
}

void Drawing::PreparaVerticale() {
  assign(p_.Stilo, number(Field::TxtStilo));
  // The wall is upright, however the plane of the run before leaned.
  p_.ReclinRad = 0;
  p_.ElevStilo = elevationByPosition(p_);
  if (p_.LatGradi == 0) {
    p_.Sustilare = p_.OrarioSustilare = (p_.PiGreco / 2) * p_.SegnoDecl;
  } else {
    assign(p_.Sustilare, arctan(over(std::sin(p_.DeclRad), std::tan(p_.LatRad))));
    assign(p_.OrarioSustilare, -arctan(over(std::tan(p_.Sustilare), std::sin(p_.ElevStilo))));
  }
  if (p_.ElevStilo != 0) {
    assign(p_.IpotenusaStilo, over(p_.Stilo, std::sin(p_.ElevStilo)));
    locateCentre();
  }
  setConics(p_);
  assign(p_.DistPiedeCentro, p_.Stilo * std::tan(p_.ElevStilo));
  p_.PuntoRiferimentoX = p_.PuntoRiferimentoY = 0;
}

void Drawing::locateCentre() {
  const double distance = over(p_.Stilo, std::tan(p_.ElevStilo));
  assign(centre_, {-distance * std::sin(p_.Sustilare), distance * std::cos(p_.Sustilare)});
}

// --- The conical style, whose shadow's edge italic and babylonian hours touch.

void Drawing::StiloConico() {
  if (p_.LatRad != 0) {
    const double E2 = uprightElevation(p_);
    assign(p_.Sustilare, arctan(over(std::sin(p_.DeclRad), std::tan(p_.LatRad))));
    assign(p_.DistPiedeCentro, p_.Stilo * std::tan(E2));
    drawLatitudeConic(run_, p_.conic(Declination::Latitude), E2,
                      SubstyleTurn(p_.Sustilare, p_.DistPiedeCentro),
                      {.hyperbola = 14, .firstVertex = +1});
  }
  writeEccentricity(run_);
  if (p_.LatGradi == 0 || p_.LatGradi == 90) return;
  if (on(Field::ck_Italiche)) {
    conicHours(
        -1, {.colour = kItalicPink, .layer = sheet_.layer("ita"), .family = CurveFamily::Italic});
  }
  if (on(Field::ck_babiloniche)) {
    conicHours(
        +1,
        {.colour = palette(13), .layer = sheet_.layer("bab"), .family = CurveFamily::Babylonian});
  }
}

// Italic (side -1) and babylonian (side +1) hours as tangents to the style's conic from the hours
// of the equinoctial.
void Drawing::conicHours(double side, const Ink& ink) {
  const ConicSet& conic = p_.conic(Declination::Latitude);
  const SubstyleTurn turn(p_.Sustilare, p_.DistPiedeCentro);
  const PlaneSuns suns = this->suns();
  Pen pen(sheet_);
  pen.dip(ink);
  double e0 = 0;
  double slope = 0;
  for (const double H : run_.sweep(-90, 90, 15)) {
    const double h = p_.OrarioSustilare + p_.radians(H);
    // From an hour behind the wall the tangent is one of the other count.
    const double own = run_.trueShadows() && isBehindWall(p_, h) ? -side : side;
    assign(e0, over(p_.Stilo, std::cos(p_.ElevStilo)) * std::tan(h));
    assign(slope, tangentSlope(conic, e0, own));
    const Sweep us = run_.sweep(-1, 1, 0.005);
    for (const double u : us) {
      const Punto point = turn(u, slope * (u - e0));
      pen.visit(point, drawIf(u > us.first() && window_.holds(point)),
                suns.ofEquinoxHour(p_.radians(H), -side, point));
    }
  }
}

// --- Hours

// The hour's point on the equinoctial; f is 0 where the equinoctial shrinks to a point.
Punto Drawing::hourPoint(double H, double f) {
  const double q = p_.OrarioSustilare - p_.CorrFuso * p_.UsaLongitudine + p_.radians(H);
  const double u = over(p_.Stilo, std::cos(p_.ElevStilo)) * std::tan(q) * f;
  const double D = f * p_.DistPiedeCentro;
  const double sine = std::sin(p_.Sustilare), cosine = std::cos(p_.Sustilare);
  return {u * cosine + D * sine, u * sine - D * cosine};
}

void Drawing::OreAstronomiche() {
  setHoursOfSideWall(run_.panel);
  const double H0 = (number(Field::TxtInizio) - 12) * 15;
  const double H1 = (number(Field::TxtFine) - 12) * 15;
  readUsaLongitudine(run_);
  assign(p_.DistPiedeCentro, p_.Stilo * std::tan(p_.ElevStilo));
  const double f = p_.LatGradi == 0 && p_.DeclGradi == 0 ? 0 : 1;
  const Punto N2 = gnomonicCentre(p_);
  Punto point;
  const auto isDark = [&](double H) {
    return !isShown(sheet_, point, CurveFamily::Hours, {hourAngle(H), 0});
  };
  for (const double H : run_.sweep(H0, H1, p_.PassoOre, {Field::TxtHour, Field::TxtFine})) {
    assign(point, hourPoint(H, f));
    if (isDark(H)) continue;
    if (window_.holds(point)) circle(sheet_, point, kHourMark, palette(hourInk(H)));
    line(sheet_, point, N2, palette(7));
  }
  for (const double H : run_.sweep(H0, H1, 15, {.bound = Field::TxtFine})) {
    assign(point, hourPoint(H, f));
    if (isDark(H)) continue;
    sheet_.ForeColor = palette(7);
    sheet_.Dati(textOf(H), point.x, -point.y + 0.02);
    const double hour = H / 15 + 12;
    sheet_.ForeColor = palette(10);
    sheet_.Dati(textOf(hour > 12 ? hour - 12 : hour), point.x, -point.y - 0.03);
  }
  sheet_.ForeColor = palette(7);
  LineeOrarie();
}

void Drawing::LineeOrarie() {
  readUsaLongitudine(run_);
  const double H0 = (number(Field::TxtInizio) - 12) * 15;
  const double H1 = (number(Field::TxtFine) - 12) * 15;
  const double w = -p_.CorrFuso * p_.UsaLongitudine;
  const double sine = std::sin(p_.Sustilare), cosine = std::cos(p_.Sustilare);
  const double top = std::abs(p_.DeclGradi) > kSideWall ? 1 : centre_.y;
  const double elevationSine = std::sin(p_.ElevStilo);
  const double reach = over(-p_.Stilo, std::cos(p_.ElevStilo));
  // A side wall on the equator has level lines.
  const bool level = run_.trueShadows() && p_.LatGradi == 0 && !hasCentre(p_);
  const Projection project(planeOf(p_));
  double a = 0, foot = 0, x0 = 0, m = 0;
  for (const double H : run_.sweep(H0, H1, p_.PassoOre, {Field::TxtHour, Field::TxtFine})) {
    if (level) {
      const Retta hour = project.hourLine(hourAngle(H));
      hourStroke({-1, hour.yAt(-1)}, {1, hour.yAt(1)}, hourAngle(H), palette(hourInk(H)));
      continue;
    }
    const double t = std::tan(-p_.OrarioSustilare - w - p_.radians(H));
    assign(a, -(elevationSine * t));
    assign(foot, reach * t);
    assign(x0, over(foot - p_.DistPiedeCentro * a, cosine - sine * a));
    assign(m, over(a * cosine + sine, cosine - a * sine));
    hourStroke({x0 - m * top, top}, {x0 - m * kHourLineBottom, kHourLineBottom}, hourAngle(H),
               palette(hourInk(H)));
  }
}

// A straight line of an hour (radians), its lit part where true shadows are asked for.
void Drawing::hourStroke(Punto from, Punto to, double H, Rgb colour) {
  const PlaneSuns suns = this->suns();
  litLine(sheet_, from, to, {.colour = colour, .family = CurveFamily::Hours},
          [&](Punto at) { return suns.ofHourPlane(H, at); });
}

// --- Declination curves

void Drawing::CurveDeclinazione() {
  if (p_.LatGradi == 0) curvesAtEquator();
  if (!(p_.LatGradi > 0)) return;
  const SubstyleTurn turn(p_.Sustilare, p_.DistPiedeCentro);
  const PlaneSuns suns = this->suns();
  Ink ink{.family = CurveFamily::Declinations};
  for (const double u : run_.sweep(-2, 2, p_.PassoCurva, {.step = Field::txt_Definition})) {
    for (const DeclinationPair& pair : kDeclinationPairs) {
      const ConicSet& conic = p_.conic(pair.conic);
      const double R = radicand(conic, u);
      if (!(R >= 0)) continue;
      const double half = std::sqrt(R);
      for (const double v : {-conic.A1 / 2 + half, -conic.A1 / 2 - half}) {
        const Punto point = turn(u, v);
        ink.colour = palette(pair.colour);
        if (window_.holds(point))
          dot(sheet_, point, ink, suns.ofPair(p_.radians(pair.declination), point));
      }
    }
  }
}

// On the equator the curves have their own form, without a window; a curve that does not reach this
// far takes with it those of the greater declinations.
void Drawing::curvesAtEquator() {
  const double sine = std::sin(p_.DeclRad), cosine = std::cos(p_.DeclRad);
  const double foot = -p_.Stilo * sine * std::tan(p_.DeclRad) + over(p_.Stilo, cosine);
  std::array<double, kDeclinationPairs.size()> K{}, W{};
  const PlaneSuns suns = this->suns();
  for (std::size_t i = 0; i < K.size(); ++i) K[i] = coneOf(p_, kDeclinationPairs[i].declination);
  for (const double X : run_.sweep(-1, 1, 0.01)) {
    const double along = -X * sine + foot;
    const double across = X * cosine + p_.Stilo * sine;
    for (std::size_t i = 0; i < kDeclinationPairs.size(); ++i)
      assign(W[i], K[i] * along * along - across * across);
    const std::size_t first = W[2] < 0 ? 3 : W[1] < 0 ? 2 : W[0] < 0 ? 1 : 0;
    for (std::size_t i = first; i < kDeclinationPairs.size(); ++i) {
      const DeclinationPair& pair = kDeclinationPairs[i];
      const Ink ink{.colour = palette(pair.colour), .family = CurveFamily::Declinations};
      for (const Punto point : {Punto{X, std::sqrt(W[i])}, Punto{X, -std::sqrt(W[i])}})
        dot(sheet_, point, ink, suns.ofPair(p_.radians(pair.declination), point));
    }
  }
}

// --- The analemma

// Each whole hour plots the same figure again: it thickens the points of an exported drawing. Where
// true shadows are asked for, once is enough.
void Drawing::Analemma() {
  const std::vector<MeanNoon> year = yearOfNoons();
  for ([[maybe_unused]] const double hour : run_.sweep(6, run_.trueShadows() ? 6 : 18, 1)) {
    for (const MeanNoon& noon : year) {
      dot(sheet_, noon.at, {.colour = noon.colour, .family = CurveFamily::Analemma}, noon.sun);
    }
  }
}

std::vector<MeanNoon> Drawing::yearOfNoons() {
  const bool equator = p_.LatGradi == 0;
  const bool facesPole = p_.DeclGradi == 0 || std::abs(p_.DeclGradi) == 180;
  // The analemma leaves a finer circle constant behind: what follows in this run and its report is
  // measured with it.
  p_.PiGreco = kAnalemmaPi;
  const double tilt = p_.radians(obliquity(47));
  const Projection project(planeOf(p_));
  std::vector<MeanNoon> year;
  MeanNoon noon;
  ConicSet conic;
  double v = 0;
  for (const double L : run_.sweep(-80, 280, 360 / (kDaysOfYear * 4))) {
    const SunOfDay sun = sunAtMeanLongitude(p_, p_.radians(L), tilt);
    if (equator && facesPole) {
      noonAtEquator(sun, noon);
    } else if (!noonOfConics(sun, equator ? -1 : 1, noon, conic, v) && !run_.trueShadows()) {
      continue;
    }
    const double H = sun.equationOfTime - p_.CorrFuso;
    noon.sun = {H, sun.declination};
    // The conics of a side wall on the equator have no such meeting.
    if (run_.trueShadows() && equator)
      assign(noon.at, project(std::sin(H), std::cos(H), std::tan(sun.declination)));
    year.push_back(noon);
  }
  return year;
}

// The meeting of the day's conic with the hour line of the equation of time; g chooses the branch.
// False when they don't meet.
bool Drawing::noonOfConics(const SunOfDay& sun, double g, MeanNoon& noon, ConicSet& conic,
                           double& v) {
  const double d = sun.declination;
  const double t = std::tan(d);
  const double K = over(1, t * t);
  const double f = p_.OrarioSustilare - p_.CorrFuso + sun.equationOfTime;
  if (std::abs(p_.DeclGradi) < 90 && std::abs(f) > p_.PiGreco / 2) g = 1;
  const double sine = std::sin(p_.ElevStilo), cosine = std::cos(p_.ElevStilo);
  const double b0 = over(p_.Stilo, cosine) * std::tan(f);
  const double H2 = over(p_.Stilo, sine * cosine);
  const double den = sine * sine - K * cosine * cosine;
  setConic(conic, p_.Stilo, p_.ElevStilo, K);
  const double aa = H2 * H2 + conic.A2 * b0 * b0;
  const double bb = (conic.A1 * H2 - 2 * conic.A2 * b0 * b0) * H2;
  const double cc = H2 * H2 * (conic.A2 * b0 * b0 + conic.A0);
  int branch = 1;
  if (d < 0) {
    branch = 3;
    noon.colour = palette(12);
  }
  const bool ellipse = root(1 - den) < 1;
  if (ellipse) {
    branch = 3;
    if (d < 0) {
      branch = 1;
      noon.colour = palette(3);
    }
  }
  const double discriminant = bb * bb - 4 * aa * cc;
  if (!(discriminant >= 0)) return false;
  assign(v, over(-bb + g * (branch - 2) * std::sqrt(discriminant), 2 * aa));
  assign(noon.at, SubstyleTurn(p_.Sustilare, p_.DistPiedeCentro)(b0 * (1 - over(v, H2)), v));
  return true;
}

void Drawing::noonAtEquator(const SunOfDay& sun, MeanNoon& noon) {
  const double side = std::abs(p_.DeclGradi) == 180 ? -1 : 1;
  const double t = std::tan(-p_.CorrFuso + sun.equationOfTime);
  assign(noon.at.y, over(side * p_.Stilo, std::tan(sun.declination) * root(t * t + 1)));
  assign(noon.at.x, -side * t * noon.at.y);
  noon.colour = palette(6);
}

// --- Straight lines and the construction

void Drawing::LineaEquinoziale() {
  const Punto M = noonOnEquinoctial(p_);
  if (p_.LatGradi > 0) {
    Pen pen(sheet_, Pen::kNoLimit, Stroke::FromPrevious);
    pen.dip({.colour = kEquinoctialBlue,
             .layer = sheet_.layer("eq"),
             .family = CurveFamily::Equinoctial});
    const double slope = std::tan(p_.Sustilare);
    const double drop = over(p_.DistPiedeCentro, std::cos(p_.Sustilare));
    Punto point;
    const Sweep xs = run_.sweep(-1, 1, 0.005);
    for (const double X : xs) {
      assign(point, {X, slope * X - drop});
      pen.visit(point, drawIf(X > xs.first() && window_.holdsY(point.y)), kEquinox);
    }
  }
  circle(sheet_, M, p_.Stilo / 100, palette(12));
  const double radius = over(p_.Stilo, std::cos(elevationByPosition(p_)));
  const Punto N2 = gnomonicCentre(p_);
  circle(sheet_, N2, radius, palette(13));
  circle(sheet_, N2, radius / 100, palette(12));
  line(sheet_, M, N2, palette(12));
  if (p_.LatGradi == 0 && p_.DeclGradi != 0) {
    const double X = over(p_.DistPiedeCentro, std::sin(p_.Sustilare));
    line(sheet_, {X, 0}, {X, -1}, {.colour = palette(9), .family = CurveFamily::Equinoctial},
         kEquinox, kEquinox);
  }
}

void Drawing::LineaSustilare() {
  if (run_.trueShadows()) {
    // Also an upright one, which has no slope.
    const auto chord = clippedLine({0, 0}, poleAlong(StylePlane(p_)), window_, -1, 1);
    if (chord) line(sheet_, chord->a, chord->b, palette(3));
    return;
  }
  Pen pen(sheet_, Pen::kNoLimit, Stroke::FromPrevious);
  pen.dip({palette(3)});
  const double slope = std::tan(p_.Sustilare);
  Punto point;
  const Sweep xs = run_.sweep(-1, 1, 0.005);
  for (const double X : xs) {
    assign(point, {X, over(-X, slope)});
    pen.visit(point, drawIf(X > xs.first() && window_.holds(point)));
  }
}

void Drawing::LineaMeridiana() {
  if (p_.DeclGradi == 180) p_.Sustilare = 0;
  if (!hasCentre(p_)) return;
  locateCentre();
  hourStroke(centre_, {centre_.x, -sheet_.ShiftY()}, 0, palette(12));
}

void Drawing::ChiudiVerticale() {
  p_.SegnoDecl = signOrOne(p_.DeclRad);
  p_.SustilareReport =
      p_.ElevStilo < 0 ? (p_.PiGreco - std::abs(p_.Sustilare)) * p_.SegnoDecl : p_.Sustilare;
}

}  // namespace

void DisegnaVerticaleLuce(Run& run) {
  if (refusesSouth(run)) return;
  drawFramed(run, "Vertical dial, light graph by 2D analytic geometry", [&run] {
    LeggiParametriSito(run);
    Drawing(run).all();
  });
}

}  // namespace dialwright
