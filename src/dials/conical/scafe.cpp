// Program 40: the scaphe, a hollow cone about the earth's axis with a level style. A line of an
// hour angle H stands on the development at the angle H * sin(semi-angle), and the sun's
// declination gives the distance from the vertex, which is the origin.
#include "dials/conical/scafe.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "dials/conical/cone.hpp"
#include "dials/conical/scafe_construction.hpp"
#include "dials/drawing.hpp"
#include "dials/sun.hpp"
#include "lettering/arabic.hpp"

namespace dialwright {

namespace {

constexpr double kGap = 0.02;      // longest segment of a line, metres
constexpr double kDayStep = 0.05;  // degrees of declination

// Hours counted from the horizon. Mirroring turns these two over both axes: with it, each stands
// where the other's mirror image would be.
struct HorizonHours {
  Field box;
  int colour;
  const char* layer;
  CurveFamily family;
  double below;  // +1 for the afternoon, whose ordinate is positive
};
constexpr std::array<HorizonHours, 2> kHorizonHours = {
    {{Field::ck_Italiche, 2, "ita", CurveFamily::Italic, 1},
     {Field::ck_babiloniche, 3, "bab", CurveFamily::Babylonian, -1}}};
constexpr double kLastHorizonHour = 15;

// A day of the year: what all hours of a family share. A fault stays one here.
struct Day {
  double degrees, radians;
  double rho;      // from the vertex
  double semiArc;  // radians
  double sine;     // of the altitude: the part that the hour does not change,
  double cosine;   // and the factor of the hour angle's cosine
};

// What the last sound sample left.
struct Sample {
  double rho = 0, semiArc = 0;
  Punto point;

  void day(const Day& d) {
    assign(rho, d.rho);
    assign(semiArc, d.semiArc);
  }
  void at(double cosPsi, double sinPsi) { assign(point, {rho * cosPsi, rho * sinPsi}); }
  void at(double psi) { at(std::cos(psi), std::sin(psi)); }
};

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run) : PanelDrawing(run), cone_(run), sinSigma_(std::sin(cone_.sigma)) {
    assign(hourStep_, over(1, run.number(Field::TxtHour)));
  }

  void all();

 private:
  double semiArc(double delta) const;
  double trueArc(double delta) const;
  std::vector<Day> daysOf(const Sweep& declinations) const;
  Punto sided(Punto p) const { return {cone_.side * p.x, p.y}; }

  void OreScafe();
  void TemporarieScafe();
  void horizonHours(const HorizonHours& hours);
  void OrizzonteScafe();
  void TropiciScafe();
  void EquatoreScafe();
  void dayArc(double declination);
  void NumeriScafe();

  Cone cone_;
  double sinSigma_;
  double hourStep_ = 0;
};

void Drawing::all() {
  if (on(Field::chkOreAstronomiche)) OreScafe();
  for (const HorizonHours& hours : kHorizonHours) {
    if (on(hours.box)) horizonHours(hours);
  }
  if (on(Field::ckTemp)) TemporarieScafe();
  if (on(Field::ck_Orizzonte)) OrizzonteScafe();
  if (on(Field::Ck_DayLightCurves)) TropiciScafe();
  if (on(Field::ck_Equinoziale)) EquatoreScafe();
  if (on(Field::ckArabi)) NumeriScafe();
  CostruzioneScafe(run_, cone_);
}

// The arc that the sun runs through from noon to its setting: half a turn where it does not set,
// none where it does not rise.
double Drawing::trueArc(double delta) const {
  const double height = std::sin(cone_.phi) * std::sin(delta);  // of the sun at six, its sine
  const double swing = std::abs(std::cos(cone_.phi) * std::cos(delta));
  return swing > 0    ? std::acos(std::clamp(-height / swing, -1.0, 1.0))
         : height > 0 ? std::numbers::pi
                      : 0;
}

// A sun that does not rise counts as one of six hours.
double Drawing::semiArc(double delta) const {
  if (run_.trueShadows()) return trueArc(delta);
  const double c = cosineOfSemiArc(cone_.phi, delta);
  return c >= 1 ? p_.PiGreco / 2 : p_.ArcCos(c);
}

std::vector<Day> Drawing::daysOf(const Sweep& declinations) const {
  std::vector<Day> days;
  for (const double degrees : declinations) {
    const double delta = p_.radians(degrees);
    days.push_back({degrees, delta, cone_.RaggioSviluppo(delta), semiArc(delta),
                    std::sin(cone_.phi) * std::sin(delta), std::cos(cone_.phi) * std::cos(delta)});
  }
  return days;
}

// --- Hours

void Drawing::OreScafe() {
  Pen pen(sheet_, kGap);
  pen.dip({palette(12), sheet_.layer("ora"), 2, CurveFamily::Hours});
  std::vector<Day> days;
  Sample s;
  for (const double T : run_.sweep(-12, 12, hourStep_, {.step = Field::TxtHour})) {
    const Sweep declinations = run_.sweep(-kSolstice, kSolstice, kDayStep);
    if (declinations.samples() == 0) break;
    if (days.empty()) days = daysOf(declinations);
    const double H = p_.radians(15 * T);
    const double cosH = std::cos(H);
    const double psi = sinSigma_ * p_.PiGreco * T / 12;
    const double cosPsi = std::cos(psi), sinPsi = std::sin(psi);
    for (const Day& day : days) {
      s.day(day);
      s.at(cosPsi, sinPsi);
      const bool up = day.sine + day.cosine * cosH >= 0;
      pen.visit(sided(s.point), drawIf(up && day.degrees > -kSolstice), {H, day.radians});
    }
  }
}

void Drawing::TemporarieScafe() {
  Pen pen(sheet_, kGap);
  pen.dip({.colour = palette(6), .layer = sheet_.layer("Temp"), .family = CurveFamily::Temporary});
  std::vector<Day> days;
  Sample s;
  for (const double T : run_.sweep(-6, 6, hourStep_, {.step = Field::TxtHour})) {
    const Sweep declinations = run_.sweep(-kSolstice, kSolstice, 0.1);
    if (declinations.samples() == 0) break;
    if (days.empty()) days = daysOf(declinations);
    for (const Day& day : days) {
      s.day(day);
      s.at(s.semiArc * T / 6 * sinSigma_);
      pen.visit(sided(s.point), drawIf(day.degrees > -kSolstice),
                {trueArc(day.radians) * T / 6, day.radians});
    }
  }
}

void Drawing::horizonHours(const HorizonHours& hours) {
  Pen pen(sheet_, kGap);
  pen.dip({palette(hours.colour), sheet_.layer(hours.layer), 2, hours.family});
  const std::vector<Day> days = daysOf(run_.sweep(-kSolstice, kSolstice, kDayStep));
  Sample s;
  for (const double n : run_.sweep(0, kLastHorizonHour, 1)) {
    for (const Day& day : days) {
      s.day(day);
      const bool rises = run_.trueShadows() || cosineOfSemiArc(cone_.phi, day.radians) < 1;
      const double H = rises ? s.semiArc - p_.PiGreco / 12 * n : p_.PiGreco / 2;
      s.at(H * sinSigma_);
      const bool up = day.sine + day.cosine * std::cos(H) >= 0;
      const double y = hours.below * (run_.trueShadows() ? 1 : cone_.side) * s.point.y;
      const double claimed = trueArc(day.radians) - p_.PiGreco / 12 * n;
      pen.visit({cone_.side * s.point.x, y}, drawIf(up && day.degrees > -kSolstice),
                {hours.below * claimed, day.radians});
    }
  }
}

// Temporary hours: 12 stands at sunset, 1 an hour after sunrise. The 12 has its first digit only.
// Mirroring turns the numerals by half a turn, places and all, so that each stands at the hour that
// is as far from noon on the other side.
void Drawing::NumeriScafe() {
  if (!on(Field::ckTemp)) return;
  const double delta = p_.radians(cone_.eccentricity() >= 1 ? 25 : 30);
  const double below = run_.trueShadows() ? 1 : cone_.side;
  double rho = 0, arc = 0;
  assign(rho, cone_.RaggioSviluppo(delta));
  assign(arc, semiArc(delta) * sinSigma_);
  for (int k = 6; k >= -5; --k) {
    const double psi = arc * k / 6;
    const double x = cone_.side * rho * std::cos(psi), y = below * rho * std::sin(psi);
    const int number = k + 6;
    const double turn = (cone_.side + 1) / 2 * 180 + cone_.side * below * p_.degrees(psi);
    DisegnaNumeroArabo(run_, x, y, turn, number, number == 10 || number == 11 ? 2 : 1);
  }
}

// --- The horizon and the days

// Both branches run on beyond the winter solstice, as far as the sun rises at all.
void Drawing::OrizzonteScafe() {
  Pen pen(sheet_, kGap);
  Sample s;
  for (const double below : {1.0, -1.0}) {
    pen.dip({palette(11), sheet_.layer(below > 0 ? "Horizon2" : "Horizon"), 2});
    const Sweep declinations =
        run_.sweep(-89.99 + p_.LatGradi, kSolstice, 0.01, {.bound = Field::txtLAT});
    for (const Day& day : daysOf(declinations)) {
      s.day(day);
      s.at(s.semiArc * sinSigma_);
      pen.visit(sided({s.point.x, below * s.point.y}), drawIf(day.degrees > declinations.first()));
    }
  }
  double foot = 0;
  assign(foot, cone_.styleFoot());
  circle(sheet_, sided({foot, 0}), cone_.style / 100, palette(12));
}

void Drawing::TropiciScafe() {
  dayArc(kSolstice);
  dayArc(-kSolstice);
}

void Drawing::EquatoreScafe() { dayArc(0); }

// From sunrise to sunset, about half a turn: on the side of the mirrored development, whether or
// not the dial is mirrored. A true arc lies where the hours are.
void Drawing::dayArc(double declination) {
  const double delta = p_.radians(declination);
  double rho = 0, psi = 0;
  assign(rho, cone_.RaggioSviluppo(delta));
  assign(psi, semiArc(delta) * sinSigma_);
  const bool turned = !run_.trueShadows() || cone_.side < 0;
  const double start = (turned ? 1 : 2) * p_.PiGreco - psi;
  const double end = (turned ? p_.PiGreco : 0) + psi;
  arc(sheet_, {0, 0}, rho, palette(15), {.startAngle = start, .endAngle = end},
      {CurveFamily::Declinations, {Sun::kOpen, delta}, {Sun::kOpen, delta}});
}

}  // namespace

void DisegnaScafe(Run& run) {
  run.sheet.Messaggio(run.T("SCAPHEN: greek and roman sundial. Please follow the instructions"));
  DisegnaCornice(run);
  run.hourglass(true);
  Drawing(run).all();
  run.hourglass(false);
}

}  // namespace dialwright
