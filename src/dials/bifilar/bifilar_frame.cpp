// The bifilar frame's rows, numerals and site.
#include "dials/bifilar/bifilar_frame.hpp"

#include "dials/site.hpp"
#include "lettering/arabic.hpp"
#include "lettering/roman.hpp"
#include "numerics/numbers.hpp"

namespace dialwright::bifilar {

double Amount::in(const Run& run) const {
  double number = 0;
  if (field != Field::None) assign(number, run.number(field));
  return number + value;
}

Sweep Range::in(Run& run) const {
  SweepFields fields{.step = perHour ? Field::TxtHour : Field::None, .bound = last.field};
  if (fields.bound == Field::None) fields.bound = first.field;
  const double width = perHour ? over(step, run.number(Field::TxtHour)) : step;
  return run.sweep(first.in(run), last.in(run), width, fields);
}

double hourAngle(const DialParams& p, HourRule rule, double t, double declination) {
  const auto arc = [&] {
    return semiDiurnalArcOrHalfTurn(p, cosineOfSemiArc(p.LatRad, declination));
  };
  const double turn = 2 * p.PiGreco;
  switch (rule) {
    case HourRule::Local: return p.radians(t);
    case HourRule::Zone: return p.radians(t) - p.CorrFuso * p.UsaLongitudine;
    case HourRule::Italian: return t * p.PiGreco / 12 + arc() - turn;
    case HourRule::Babylonian: return t * p.PiGreco / 12 - arc() + p.PiGreco / 12;
    case HourRule::Temporary: return arc() * (t / 6 - 1);
    case HourRule::Sunrise: return -arc();
    case HourRule::Sunset: return arc();
  }
  return kFault;
}

void Tracer::straightLine(double slope, Punto through, const Ink& ink, const Sun& sun) {
  dip(ink);
  const Sweep xs = run_.sweep(-1, 1, kStraightLineStep);
  for (const double x : xs) {
    assign(point_, {x, slope * (x - through.x) + through.y});
    visit(point_, true, x == xs.first(), sun);
  }
}

void Tracer::straightLineAlong(Punto along, Punto through, const Ink& ink, const Sun& sun) {
  const bool level = std::abs(along.x) >= std::abs(along.y);
  if (level) return straightLine(over(along.y, along.x), through, ink, sun);
  dip(ink);
  const double slope = over(along.x, along.y);
  const Sweep ys = run_.sweep(-1, 1, kStraightLineStep);
  for (const double y : ys) {
    assign(point_, {slope * (y - through.y) + through.x, y});
    visit(point_, true, y == ys.first(), sun);
  }
}

void numeral(Run& run, Punto at, int hour) {
  const bool roman = run.on(Field::ckRomani);
  if (roman && run.on(Field::ckArabi)) return;
  if (roman) {
    DisegnaNumeroRomano(run, at.x, at.y, run.params.PiGreco / 2, hour, 1);
  } else {
    DisegnaNumeroArabo(run, at.x, at.y, 90, hour, hour >= 10 ? 2 : 1);
  }
}

void openRun(Run& run, std::string_view caption, void (*read)(Run&)) {
  DisegnaCornice(run);
  run.hourglass(true);
  run.sheet.Messaggio(run.T(caption));
  read(run);
  run.sheet.Dati("");
}

void readSite(Run& run) {
  DialParams& p = run.params;
  assign(p.LatGradi, run.number(Field::txtLAT));
  p.LatRad = p.radians(p.LatGradi);
  assign(p.LonGradi, run.number(Field::txtLON));
  setLongitudeCorrections(run);
  assign(p.Stilo, run.number(Field::TxtStilo));
}

void readWall(Run& run) {
  DialParams& p = run.params;
  readSite(run);
  assign(p.DeclGradi, run.number(Field::txtDecl));
  p.DeclRad = p.radians(p.DeclGradi);
  p.ReclinRad = 0;
}

std::string figures(std::initializer_list<double> numbers, int decimals) {
  std::string text;
  for (const double number : numbers) {
    if (!text.empty()) text += kGap;
    text += textOf(rounded(number, decimals));
  }
  return text;
}

Instant readInstant(const Run& run) {
  const DialParams& p = run.params;
  return {p.radians(Amount(Field::txtAO).in(run)), p.radians(Amount(Field::txtDelta).in(run))};
}

}  // namespace dialwright::bifilar
