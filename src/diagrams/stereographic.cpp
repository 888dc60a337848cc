// The stereographic chart. The celestial sphere is projected from its South pole on the plane of
// the equator: the North pole is the origin, South is up and the afternoon on the right, and the
// equator is the circle of radius R. A direction of hour angle H and declination delta stands at
// R * tan((90 - delta)/2) from the origin, in the direction H clockwise from the South.
// (Standard: J. P. Snyder, Map Projections, the polar stereographic projection of the sphere.)
#include "diagrams/stereographic.hpp"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "diagrams/chart_circles.hpp"
#include "dials/pen.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"
#include "lettering/zodiac.hpp"
#include "numerics/numbers.hpp"
#include "shell/dispatch.hpp"

namespace dialwright {

namespace {

constexpr int kHorizonInk = 10, kPlaneInk = 14, kArrowInk = 11;
constexpr double kLowLatitude = 6;      // degrees: below, the horizon is too flat for a circle
constexpr double kHorizonStep = 0.005;  // metres
constexpr double kPlaneStep = 0.0005;   // metres
constexpr double kArrowRadius = 120;    // degrees: twice the angle at the projection's pole
constexpr double kArrowStep = 0.005;    // radians

struct SineAndCosine {
  double sine = 0, cosine = 1;

  SineAndCosine() = default;
  explicit SineAndCosine(double radians) : sine(std::sin(radians)), cosine(std::cos(radians)) {}
};

// The plane of the dial on the chart.
struct DialPlane {
  double pole = 0;      // declination of its normal, radians: the style's elevation
  double Ha = 0;        // hour angle of its normal: of the substyle
  double substyle = 0;  // the substyle's angle on the dial from its line of greatest slope
  Punto centre;         // of its circle: far off the chart for a plane that holds the polar axis
  double radius = 0;
  double settingHour = 0, risingHour = 0;  // where its circle meets the horizon
  double from = 0, to = 0;  // bearings of these points from the centre, counter-clockwise along
                            // the part that is above the horizon
};

class Chart {
 public:
  explicit Chart(Run& run) : run_(run), p_(run.params), sheet_(run.sheet) { readSite(); }

  void all();

 private:
  void readSite();
  bool sunSetsAllYear() const;
  void solstices();
  void horizon();
  double substyleHour() const;
  void findPlane();
  void findSubstyle();
  void findCrossings();
  void findHours();
  Punto project(double west, double south, double north) const;
  void substyleLine();
  void planeCircle();
  void planeArc();
  void figures();
  void say(std::string_view label, const std::string& value = {});
  void litSide();

  Run& run_;
  DialParams& p_;
  SheetPlot& sheet_;
  double R_ = 0;
  double summer_ = 0, winter_ = 0;  // radii of the solstices
  SineAndCosine latitude_, declination_, reclination_;
  DialPlane plane_;
};

void Chart::readSite() {
  assign(p_.LatGradi, run_.number(Field::txtLAT));
  p_.LatRad = p_.radians(p_.LatGradi);
  assign(p_.LonGradi, run_.number(Field::txtLON));
  setLongitudeCorrections(run_);
  assign(p_.DeclGradi, run_.number(Field::txtDecl));
  p_.DeclRad = p_.radians(p_.DeclGradi);
  p_.ReclinRad = p_.radians(p_.ReclinGradi);
  latitude_ = SineAndCosine(p_.LatRad);
  declination_ = SineAndCosine(p_.DeclRad);
  reclination_ = SineAndCosine(p_.ReclinRad);
  assign(p_.PassoOre, over(15, run_.number(Field::TxtHour)));
  assign(p_.Raggio, run_.number(Field::TxtRadius));
  R_ = p_.Raggio;
  winter_ = ring(p_, R_, kSolstice);
  summer_ = ring(p_, R_, -kSolstice);
}

void Chart::all() {
  if (!sunSetsAllYear()) return;
  solstices();
  horizon();
  findPlane();
  substyleLine();
  planeCircle();
  findHours();
  findCrossings();
  planeArc();
  figures();
  SfondoStereografico(run_);
  litSide();
}

bool Chart::sunSetsAllYear() const {
  return std::abs(cosineOfSemiArc(p_.LatRad, -p_.radians(kSolstice))) <= 1;
}

void Chart::solstices() {
  const double solstice = p_.radians(kSolstice);
  dayArc(p_, sheet_, R_, -kSolstice, p_.ArcCos(cosineOfSemiArc(p_.LatRad, -solstice)), kWinterInk);
  dayArc(p_, sheet_, R_, kSolstice, p_.ArcCos(cosineOfSemiArc(p_.LatRad, solstice)), kSummerInk);
}

// The great circle whose pole is the zenith. At the equator it is the line East to West: its centre
// is nowhere, and all samples keep the ordinate 0.
void Chart::horizon() {
  const double centre = over(R_, std::tan(p_.LatRad));
  const double radius = over(R_, std::sin(p_.LatRad));
  if (p_.LatGradi >= kLowLatitude) {
    if (p_.LatRad != 5 * p_.PiGreco / 2) arc(sheet_, {0, centre}, radius, palette(kHorizonInk));
    return;
  }
  double y = 0;
  for (const double x :
       run_.sweep(-2 * winter_, 2 * winter_, kHorizonStep, {.bound = Field::TxtRadius})) {
    assign(y, centre - root(radius * radius - x * x));
    dot(sheet_, {x, y}, palette(kHorizonInk));
  }
}

// --- The dial's plane

// A point of the sphere by its parts along the West, the equator's South point and the pole.
Punto Chart::project(double west, double south, double north) const {
  const double scale = over(R_, 1 + north);
  return {scale * west, scale * south};
}

// The hour angle of the plane's normal, on the side of the meridian that the dial declines to. A
// dial that doesn't decline has its substyle at noon, also where its normal is at midnight; the
// tangent of a level plane's reclination is large and, by the circle constant, of the wrong sign.
double Chart::substyleHour() const {
  const double below =
      latitude_.sine * declination_.cosine + latitude_.cosine * std::tan(p_.ReclinRad);
  const double Ha = below == 0 ? p_.PiGreco / 2 : arctan(declination_.sine / below);
  if (std::sin(Ha) * declination_.sine >= 0) return Ha;
  return Ha > 0 ? Ha - p_.PiGreco : Ha + p_.PiGreco;
}

// The great circle whose pole is the dial's normal (p, Ha) is a circle about
// (R/tan p)(sin Ha, cos Ha) of radius R/sin p.
void Chart::findPlane() {
  assign(plane_.pole, p_.ArcSin(latitude_.sine * reclination_.sine -
                                latitude_.cosine * reclination_.cosine * declination_.cosine));
  assign(plane_.Ha, substyleHour());
  const double distance = over(R_, std::tan(plane_.pole));
  assign(plane_.centre, {distance * std::sin(plane_.Ha), distance * std::cos(plane_.Ha)});
  assign(plane_.radius, over(-R_, std::sin(plane_.pole)));
  findSubstyle();
}

void Chart::findSubstyle() {
  double Hs = 0;
  assign(Hs, arctan(over(declination_.sine, std::tan(p_.LatRad) * reclination_.cosine +
                                                declination_.cosine * reclination_.sine)));
  const double elevation = latitude_.sine * reclination_.sine -
                           latitude_.cosine * reclination_.cosine * declination_.cosine;
  const double u = over(latitude_.cosine * declination_.sine, elevation);
  const double v = over(-(latitude_.sine * reclination_.cosine +
                          latitude_.cosine * reclination_.sine * declination_.cosine),
                        elevation);
  if (u < 0 && v < 0) Hs += p_.PiGreco;
  if (u > 0 && v < 0) Hs -= p_.PiGreco;
  if (Hs > p_.PiGreco / 2) Hs -= p_.PiGreco;
  if (Hs < -p_.PiGreco / 2) Hs += p_.PiGreco;
  plane_.substyle = Hs;
}

// The circle's line of symmetry, which holds the substyle, through the pole.
void Chart::substyleLine() {
  const double Ha = plane_.Ha;
  const bool upright = Ha == 0 || std::abs(Ha) == p_.PiGreco;
  const double x = upright ? 0 : winter_ * std::sin(Ha);
  double y = winter_;
  if (!upright) assign(y, over(x, std::tan(Ha)));
  line(sheet_, {-x, -y}, {x, y}, palette(kPlaneInk));
}

void Chart::planeCircle() {
  dot(sheet_, plane_.centre, palette(kPlaneInk));
  arc(sheet_, plane_.centre, std::abs(plane_.radius), palette(kDayInk));
}

// The dial's plane meets the level one along the horizontal directions of azimuth d + 90 and
// d - 90, which lie in the plane whatever its reclination. Their parts along the West, the
// equator's South point and the pole are (cos d, -sin d sin phi, sin d cos phi) and the opposite;
// projected, they are the points in which the two circles of the chart meet.
void Chart::findCrossings() {
  const Punto setting = project(declination_.cosine, -declination_.sine * latitude_.sine,
                                declination_.sine * latitude_.cosine);
  const Punto rising = project(-declination_.cosine, declination_.sine * latitude_.sine,
                               -declination_.sine * latitude_.cosine);
  const double turn = 2 * p_.PiGreco;
  const auto bearing = [&](Punto at) {
    const double b = p_.ArcTanPieno(at.y - plane_.centre.y, at.x - plane_.centre.x);
    return b < 0 ? b + turn : b;
  };
  plane_.from = bearing(setting);
  plane_.to = bearing(rising);
  // The plane's steepest direction, upwards, lies on the part above the horizon.
  const double steepest =
      bearing(project(-declination_.sine * reclination_.sine,
                      latitude_.cosine * reclination_.cosine -
                          declination_.cosine * reclination_.sine * latitude_.sine,
                      latitude_.sine * reclination_.cosine +
                          declination_.cosine * reclination_.sine * latitude_.cosine));
  const auto onwards = [&](double b) {
    const double way = b - plane_.from;
    return way < 0 ? way + turn : way;
  };
  if (onwards(steepest) > onwards(plane_.to)) std::swap(plane_.from, plane_.to);
}

// The hours of the crossings, half a day apart: one of them by its tangent, which a wall due South
// and a site on the equator don't have: there the setting point itself gives it.
void Chart::findHours() {
  double hour = 0;
  if (!assign(hour,
              12 + arctan(over(-1, latitude_.sine * std::tan(p_.DeclRad))) * 12 / p_.PiGreco)) {
    const double H = p_.ArcTanPieno(declination_.cosine, -declination_.sine * latitude_.sine);
    hour = 12 + (H > p_.PiGreco ? H - 2 * p_.PiGreco : H) * 12 / p_.PiGreco;
  }
  const auto [morning, evening] = std::minmax({hour, hour < 12 ? hour + 12 : hour - 12});
  const bool southern = declination_.cosine > 0;
  plane_.risingHour = southern ? morning : evening;
  plane_.settingHour = southern ? evening : morning;
}

// The part above the horizon; then, where the whole circle stands on the chart, its points.
void Chart::planeArc() {
  const double r = std::abs(plane_.radius);
  const double end = plane_.to == 0 ? 2 * p_.PiGreco : plane_.to;
  arc(sheet_, plane_.centre, r, palette(kPlaneInk), plane_.from, end);
  const double left = plane_.centre.x - r, right = plane_.centre.x + r;
  const double edge = 2 * std::abs(winter_);
  if (!(left > -edge && right < edge)) return;
  for (const double x : run_.sweep(left, right, kPlaneStep, {.bound = Field::TxtRadius})) {
    const double height = root(r * r - (x - plane_.centre.x) * (x - plane_.centre.x));
    if (!sound(height)) continue;
    dot(sheet_, {x, plane_.centre.y + height}, palette(kPlaneInk));
    dot(sheet_, {x, plane_.centre.y - height}, palette(kPlaneInk));
  }
}

// --- The figures

std::string hourText(double hours) {
  const OreMinuti time = GradiInOreMinuti(hours);
  return textOf(time.hours) + " h " + textOf(truncated(time.minutes, 2)) + " m";
}

void Chart::say(std::string_view label, const std::string& value) {
  sheet_.Dati(run_.T(label) + value);
}

void Chart::figures() {
  const auto angle = [this](double radians) {
    return textOf(rounded(p_.degrees(radians), 4)) + " °";
  };
  const auto metres = [](double value) { return textOf(rounded(value, 4)); };
  sheet_.ForeColor = kWhite;
  sheet_.Dati("", -sheet_.ShiftX(), -0.8 * sheet_.ShiftY());
  sheet_.Dati("");
  say("latitude  = ", angle(p_.LatRad));
  say("Declination of the dial: ", angle(p_.DeclRad));
  say("Reclination ", angle(p_.ReclinRad));
  sheet_.ForeColor = palette(kPlaneInk);
  say("substyle hour angle : ", angle(plane_.Ha));
  say("substyle hour ", hourText(12 + plane_.Ha * 12 / p_.PiGreco));
  say("angle ", angle(plane_.pole));
  sheet_.ForeColor = palette(kHorizonInk);
  say("Horizontal equivalent dial");
  say("latitude  = ", angle(plane_.pole));
  say("Substyle distance  : ", angle(plane_.substyle));
  say("Style elevation  ", angle(std::abs(plane_.pole)));
  sheet_.ForeColor = palette(kSummerInk);
  say("radius of the summer solstice =  ", metres(summer_));
  say("radius of the arc representing the dial plane  =  ", metres(plane_.radius));
  // The North point of the horizon.
  say("pz =  ", metres(-R_ * std::tan(p_.LatRad / 2)));
  sheet_.ForeColor = palette(kArrowInk);
  say("first bearing =  ", angle(plane_.from));
  say("second bearing =  ", angle(plane_.to));
  say("Sun on dial at ", hourText(plane_.risingHour));
  say("Sun off dial at ", hourText(plane_.settingHour));
  sheet_.ForeColor = kWhite;
}

// --- The side that the plane looks at

// From the meridian to the substyle's hour, with its arrow half way: the side that the plane looks
// at.
void Chart::litSide() {
  const double Ha = plane_.Ha;
  const double radius = R_ * std::tan(p_.radians(kArrowRadius / 2));
  MarcaCardinale(run_, radius * std::sin(Ha / 2), radius * std::cos(Ha / 2),
                 90 - p_.degrees(Ha / 2));
  const double base = p_.PiGreco / 2 + 2 * p_.PiGreco;
  const double first = base - Ha * (Sgn(Ha) + 1) / 2, last = base - Ha * (1 - Sgn(Ha)) / 2;
  for (const double t : run_.sweep(first, last, kArrowStep)) {
    dot(sheet_, {radius * std::cos(t), radius * std::sin(t)}, palette(kArrowInk));
  }
}

}  // namespace

OreMinuti GradiInOreMinuti(double hours) {
  const double whole = std::floor(hours);
  return {whole, (hours - whole) * 60};
}

void DiagrammaStereografico(Run& run) {
  run.params.ModoDati = 1;
  if (run.number(Field::txtLAT) < 0) {
    SfondoStereografico(run);
    return;
  }
  run.hourglass(true);
  run.sheet.Messaggio(
      run.T("Stereographic diagram showing the operating limits of a dial wherever oriented"));
  Chart(run).all();
  run.hourglass(false);
}

}  // namespace dialwright
