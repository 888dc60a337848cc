// The families, numerals and report that all cornice dials draw alike.
#include "dials/cornice/cornice_frame.hpp"

#include <cmath>
#include <string>
#include <vector>

#include "dials/site.hpp"
#include "lettering/arabic.hpp"
#include "lettering/roman.hpp"
#include "numerics/numbers.hpp"

namespace dialwright::cornice {

namespace {

constexpr double kHour = 15;          // degrees
constexpr double kLastHour = 105;     // degrees either side of noon of the numerals
constexpr double kEdgeStep = 0.0005;  // radians along the border
constexpr double kMeeting = 1e-9;     // metres: where the two points of an hour change their parts
constexpr int kNumeralDot = 4;        // the dot on which an afternoon numeral stands

void assignEach(Vettore& target, const Vettore& value) {
  assign(target.x, value.x);
  assign(target.y, value.y);
  assign(target.z, value.z);
}

}  // namespace

// --- The light and the edge

double angoloBordo(const Trig& latitude, double hourAngle) {
  return arctan(over(-1, std::tan(hourAngle) * latitude.sine));
}

Vettore PuntoBordo(double radius, double theta) {
  return {radius * std::sin(theta), 0, -radius * std::cos(theta)};
}

void Light::travel(const Vettore& edge, const Vettore& ray) {
  assignEach(at, {ray.x * way + edge.x, ray.y * way, ray.z * way + edge.z});
}

bool plusRoot(double& way, double A, double B, double C) {
  const double discriminant = B * B - 4 * A * C;
  if (!(discriminant > 0)) return false;
  assign(way, over(-B + root(discriminant), 2 * A));
  return true;
}

// --- The families

Cornice::Cornice(Run& run, const Surface& surface, double daysAbove)
    : run_(run),
      p_(run.params),
      surface_(surface),
      turns_(run.trueShadows()),
      pen_(run.sheet, kGap),
      latitude_(p_.LatRad),
      declination_(numberOr0(run, Field::txtLineofdeclination)),
      day_(p_.radians(declination_)),
      borderSun_{p_.radians(numberOr0(run, Field::txtAO)), p_.radians(declination_)},
      borderRay_(VettoreSole(latitude_, Trig(borderSun_.hourAngle), day_)),
      dayDrawn_(declination_ > daysAbove) {}

// At noon the hour's plane stands upright and touches the border in the East and in the West: each
// half of the day has its own branch of the noon line.
bool Cornice::placeEdge(double t, Half half) {
  bool own = true;
  if (t == 0) {
    theta_ = (half == Half::Morning ? 1 : -1) * p_.PiGreco / 2;
  } else {
    const double H = p_.radians(t);
    // On the equator all hours' planes touch the border in the East and in the West.
    if (!assign(theta_, angoloBordo(latitude_, H)) && turns_)
      theta_ = std::copysign(p_.PiGreco / 2, -std::tan(H));
    const double placed = surface_.edgeAngle(theta_, t, half);
    own = placed == theta_;
    assign(theta_, placed);
  }
  assignEach(edge_, surface_.edge(theta_));
  return own;
}

// An hour's plane touches the border in two points, and a low latitude's sun may change their
// parts.
void Cornice::turnEdge(const Vettore& ray, double towards) {
  const Vettore middle = surface_.edge(theta_ + p_.PiGreco / 2);
  const Vettore other = surface_.edge(theta_ - p_.PiGreco / 2);
  const double centreX = (middle.x + other.x) / 2, centreZ = (middle.z + other.z) / 2;
  const double out = (edge_.x - centreX) * ray.x + (edge_.z - centreZ) * ray.z;
  if (out * surface_.sideOfSun() * towards <= kMeeting) return;
  edge_ = {2 * centreX - edge_.x, edge_.y, 2 * centreZ - edge_.z};
}

void Cornice::visit(const Vettore& ray, const Sun& sun, Half half, bool draws) {
  const bool kept = cast(ray, half) && surface_.keeps(light_);
  pen_.visit(light_.point, kept ? drawIf(draws) : Verdict::Drop, sun);
}

void Cornice::hourLines(const HourLines& lines, Field step) {
  pen_.dip({.colour = palette(lines.colour),
            .layer = run_.sheet.layer(lines.layer),
            .family = CurveFamily::Hours});
  std::vector<Trig> suns;  // of the days, which are the same for all hours
  for (const double t : run_.sweep(lines.first, lines.last, kHour)) {
    const double towards = placeEdge(t, lines.half) ? 1 : -1;
    const double H = p_.radians(t);
    const Trig hour(H);
    const Sweep days = run_.sweep(-kSolstice, kSolstice, lines.declinationStep, {.step = step});
    if (suns.empty()) {
      for (const double declination : days) suns.emplace_back(p_.radians(declination));
    }
    auto sun = suns.begin();
    for (const double declination : days) {
      const Vettore ray = VettoreSole(latitude_, hour, *sun++);
      if (turns_) turnEdge(ray, towards);
      visit(ray, {H, p_.radians(declination)}, lines.half, declination > days.first());
    }
  }
}

void Cornice::dayLine(const DayLine& line) {
  pen_.dip({.colour = palette(line.colour),
            .layer = run_.sheet.layer(line.layer),
            .family = CurveFamily::Declinations});
  for (const double t : run_.sweep(line.first, line.last, line.step)) {
    placeEdge(t, line.half);
    const double H = p_.radians(t);
    const Vettore ray = VettoreSole(latitude_, Trig(H), day_);
    if (turns_) turnEdge(ray, 1);
    visit(ray, {H, borderSun_.declination}, line.half, t > line.drawnPast && dayDrawn_);
  }
}

void Cornice::numerals(bool withNoon) {
  if (!run_.on(Field::ckRomani) && !run_.on(Field::ckArabi)) return;
  const double nearest = withNoon ? 0 : kHour;
  numeralsOf(Half::Morning, -kLastHour, -nearest);
  numeralsOf(Half::Afternoon, nearest, kLastHour);
}

void Cornice::numeralsOf(Half half, double first, double last) {
  for (const double t : run_.sweep(first, last, kHour)) {
    const double towards = placeEdge(t, half) ? 1 : -1;
    const double H = p_.radians(t);
    const Vettore ray = VettoreSole(latitude_, Trig(H), day_);
    if (turns_) turnEdge(ray, towards);
    if (!cast(ray, half)) continue;
    const Punto at = light_.point;
    if (!isShown(run_.sheet, at, CurveFamily::Hours, {H, day_.angle})) continue;
    const int count = static_cast<int>(12 + t / kHour);
    const int hour = count > 12 ? count - 12 : count;
    if (run_.on(Field::ckRomani)) {
      DisegnaNumeroRomano(run_, at.x, at.y, p_.PiGreco / 2, hour, 1);
    } else {
      DisegnaNumeroArabo(run_, at.x, at.y, 90, hour, hour >= 10 ? 2 : 1);
    }
    if (half == Half::Afternoon) dot(run_.sheet, at, palette(kNumeralDot));
  }
}

// --- The border

void Cornice::borderShadow(const BorderArc& arc) {
  pen_.dip({.colour = palette(arc.colour),
            .layer = run_.sheet.layer(arc.layer),
            .family = CurveFamily::Marks});
  const double quarter = p_.PiGreco / 2;
  const Sweep angles = run_.sweep(arc.first * quarter, arc.last * quarter, kEdgeStep);
  for (const double theta : angles) {
    assignEach(edge_, surface_.edge(theta));
    visit(borderRay_, borderSun_, arc.half, theta > angles.first() && dayDrawn_);
  }
}

Punto Cornice::shadowOfBorder(double theta) {
  assignEach(edge_, surface_.edge(theta));
  cast(borderRay_, Half::Afternoon);
  return light_.point;
}

// --- The panel and the report

double numberOr0(const Run& run, Field field) {
  double value = 0;
  assign(value, run.number(field));
  return value;
}

bool readLatitude(Run& run) {
  if (refusesSouth(run)) return false;
  DialParams& p = run.params;
  assign(p.LatGradi, run.number(Field::txtLAT));
  assign(p.LatRad, p.radians(p.LatGradi));
  return true;
}

namespace {

std::string figure(double value, int decimals = 4) {
  return textOf(decimals == kUnrounded ? value : rounded(value, decimals));
}

}  // namespace

void report(Run& run, std::span<const ReportLine> lines) {
  run.sheet.Dati("");
  for (const ReportLine& line : lines) {
    std::string text = run.T(line.label);
    if (line.value) {
      if (!sound(*line.value)) continue;
      text += figure(*line.value, line.decimals);
    }
    run.sheet.Dati(text.append(line.unit));
  }
}

void reportOptions(Run& run) {
  const std::string day = figure(numberOr0(run, Field::txtLineofdeclination)) + " °";
  run.sheet.Dati(run.T("Optional line of declination (red line)") + day);
  if (!run.on(Field::ckFunction)) return;
  run.sheet.Dati(run.T("Optional shade of the border (cyan line): delta ") + day + run.T("  H ") +
                 figure(numberOr0(run, Field::txtAO)) + " °");
}

}  // namespace dialwright::cornice
