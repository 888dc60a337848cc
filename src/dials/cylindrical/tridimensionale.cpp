// Program 9: an upright cylinder of circular cross-section by geometry in space. At each abscissa
// of the surface the plane or the cone of the sun gives the ordinate; the curves are dots.
#include "dials/cylindrical/tridimensionale.hpp"

#include <cmath>

#include "dials/cylindrical/cylinder.hpp"
#include "dials/cylindrical/dotted.hpp"
#include "dials/cylindrical/tip_rays.hpp"
#include "dials/drawing.hpp"
#include "dials/flat/substyle_frame.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"

namespace dialwright {

namespace {

// A point of the surface, in the plan and on the development.
struct Place {
  double across = 0;  // to the right of the style
  double depth = 0;   // behind the tangent plane in G
  Punto point;
};

// Hours counted from the horizon, by the hour angles (degrees) that it is turned by.
struct TurnedHorizons {
  double first, last;
  int colour;
  CurveFamily family;
  double side;  // +1 from sunset, -1 from sunrise
};
constexpr TurnedHorizons kCil3DItaliche{0, 180, 8, CurveFamily::Italic, +1};
constexpr TurnedHorizons kCil3DBabiloniche{-180, 0, 3, CurveFamily::Babylonian, -1};

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run) : PanelDrawing(run), latitude_(p_.LatRad), declination_(p_.DeclRad) {}

  void all();

 private:
  void locateStyle();
  void Cil3DOre();
  void Cil3DDeclinazioni();
  void Cil3DAnalemma(double hour);
  void Cil3DEquinoziale();
  void Cil3DSustilare();
  void turnedHorizons(const TurnedHorizons& family);

  void stand(Place& place, double across) const;
  LevelWay way(const Place& place) const {
    return levelWay(declination_, place.across, place.depth + p_.Stilo);
  }
  // The sun behind the tip as a dot of that ordinate sees it.
  Sun behindTip(const Place& place, double y) const {
    return sunBehindTip(latitude_, way(place), y);
  }
  // The curve across the surface whose ordinate is a function of the way to the tip, and whose suns
  // are known by the sun behind the tip. What fails in a sample keeps the value of the sample
  // before.
  template <class Ordinate, class SunOf>
  void trace(Place& place, const Ink& ink, Ordinate ordinate, SunOf sunOf);

  Trig latitude_, declination_;
};

void Drawing::all() {
  CilGeneratriceCentro(run_);
  if (on(Field::chkOreAstronomiche)) Cil3DOre();
  if (on(Field::Ck_DayLightCurves)) Cil3DDeclinazioni();
  if (on(Field::ck_Lemniscate)) {
    for (const double hour : run_.sweep(6, 18, 1)) Cil3DAnalemma(hour);
  }
  if (on(Field::ck_Equinoziale)) Cil3DEquinoziale();
  if (on(Field::ck_Sustilare)) Cil3DSustilare();
  CilGeneratriceMezzodi(run_, palette(4));
  if (on(Field::ck_Orizzonte)) CilOrizzonte(run_);
  if (std::abs(p_.DeclRad) != p_.PiGreco / 2 && on(Field::ck_Triangolo)) CilTriangolo(run_);
  footCircle(run_);
  if (on(Field::ck_Italiche)) turnedHorizons(kCil3DItaliche);
  if (on(Field::ck_babiloniche)) turnedHorizons(kCil3DBabiloniche);
  if (on(Field::Ck_Section)) CilSezione(run_);
}

// --- The surface

void Drawing::stand(Place& place, double across) const {
  const double r = p_.Raggio, c = p_.SegnoCilindro;
  place.across = across;
  assign(place.depth, c * r - c * root(r * r - across * across));
  // At the very edge the tangent form has no value: the dot stays at the abscissa of the one
  // before.
  const double sine = over(across, r);
  assign(place.point.x, r * (run_.trueShadows() ? p_.ArcSin(sine) : arcsineByTangent(sine)));
}

template <class Ordinate, class SunOf>
void Drawing::trace(Place& place, const Ink& ink, Ordinate ordinate, SunOf sunOf) {
  for (const double X : dots(run_, -p_.Raggio, p_.Raggio)) {
    stand(place, X);
    assign(place.point.y, ordinate(way(place)));
    dot(sheet_, place.point, ink, sunOf(behindTip(place, place.point.y)));
  }
}

// --- Hours

void Drawing::locateStyle() {
  const double sine = std::cos(p_.LatRad) * std::cos(p_.DeclRad);
  assign(p_.ElevStilo, arctan(over(sine, root(1 - sine * sine))));
  assign(p_.Sustilare, arctan(over(std::sin(p_.DeclRad), std::tan(p_.LatRad))));
  setConic(p_.conic(Declination::Solstice), p_.Stilo, p_.ElevStilo, coneOf(p_, kSolstice));
  locateNoonGenerator(p_);
}

// The samples count hours before noon as positive. At noon itself the ordinate fails, and the dots
// stay where the line before ended.
void Drawing::Cil3DOre() {
  readUsaLongitudine(run_);
  locateStyle();
  Place place;
  for (const double t : run_.sweep(-90, 90, p_.PassoOre, {.step = Field::TxtHour})) {
    const double H = -(p_.radians(t) + p_.CorrFuso * p_.UsaLongitudine);
    const double tangent = std::tan(H);
    trace(
        place, {.colour = palette(hourInk(t)), .family = CurveFamily::Hours},
        [&](LevelWay way) { return hourOrdinate(latitude_, way, tangent); },
        [H](const Sun&) { return Sun{H}; });
  }
}

// Italic hours to sunset are positive, babylonian hours from sunrise negative.
void Drawing::turnedHorizons(const TurnedHorizons& family) {
  Place place;
  for (const double t : run_.sweep(family.first, family.last, 15)) {
    const Trig turn(-p_.radians(t));
    trace(
        place, {.colour = palette(family.colour), .family = family.family},
        [&](LevelWay way) { return turnedHorizonOrdinate(latitude_, way, turn); },
        [&](const Sun& behindTip) {
          return sunOfTurnedHorizon(p_, turn.angle, family.side, behindTip);
        });
  }
}

// --- The lines of a day

void Drawing::Cil3DDeclinazioni() {
  Place place;
  double y1 = 0, y2 = 0;
  for (const DeclinationPair& day : kDeclinationPairs) {
    const double K = coneOf(p_, day.declination);
    const double declination = p_.radians(day.declination);
    const Ink ink{.colour = palette(day.colour), .family = CurveFamily::Declinations};
    for (const double X : dots(run_, -p_.Raggio, p_.Raggio)) {
      stand(place, X);
      const Roots roots = coneOrdinates(latitude_, way(place), K);
      if (!sound(roots.minus) && !sound(roots.plus)) continue;
      assign(y1, roots.minus);
      assign(y2, roots.plus);
      for (const double y : {y1, y2})
        dot(sheet_, {place.point.x, y}, ink, sunOfCone(declination, behindTip(place, y)));
    }
  }
}

void Drawing::Cil3DEquinoziale() {
  if (p_.LatRad == 0) return;
  Place place;
  trace(
      place, {.colour = palette(9), .family = CurveFamily::Equinoctial},
      [this](LevelWay way) { return equatorOrdinate(latitude_, way); },
      [](const Sun&) {
        return Sun{Sun::kOpen, 0};
      });
}

// The ordinate runs, for the line is steep: upright on a wall that looks South.
void Drawing::Cil3DSustilare() {
  const double slope = over(std::sin(p_.DeclRad), std::tan(p_.LatRad));
  const double H = hourOfSubstyle(p_);
  const Ink ink{.colour = palette(9), .family = CurveFamily::Hours};
  for (const double y : dots(run_, -1, 1)) {
    const double x = p_.Raggio * p_.ArcSin(over(-y * slope, p_.Raggio));
    if (sound(x)) dot(sheet_, {x, y}, ink, {H});
  }
}

// --- The analemma of a whole hour of the zone, on the half of the surface that is developed

void Drawing::Cil3DAnalemma(double hour) {
  const Cilindro cylinder(p_, p_.SegnoCilindro, run_.trueShadows());
  const double tilt = p_.radians(obliquity(47));
  const Ink ink{.colour = palette(2), .family = CurveFamily::Analemma};
  Ombra shadow;
  for (const double L : run_.sweep(-80, 280, 360 / kDaysOfYear)) {
    const SunOfDay sun = sunAtMeanLongitude(p_, p_.radians(L), tilt);
    const Trig H(p_.radians((hour - 12) * 15) + sun.equationOfTime - p_.CorrFuso);
    if (!CilPuntoOmbra(cylinder, H, SunDeclination(sun.declination), shadow)) continue;
    // Outside, the ray from behind meets the far side only.
    const bool before = cylinder.side < 0 || std::cos(shadow.A - p_.DeclRad) > 0;
    if (before && std::abs(shadow.theta) <= p_.PiGreco / 2)
      dot(sheet_, shadow.point, ink, {H.angle, sun.declination});
  }
}

}  // namespace

void QuadranteCilindrico3D(Run& run) {
  drawDotted(run, "Cylindrical sundial of circular cross-section : 3D method",
             [&run] { Drawing(run).all(); });
}

}  // namespace dialwright
