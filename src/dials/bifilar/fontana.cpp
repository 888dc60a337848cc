// Program 16: the fountain, a circular rim that stands level over a level floor. Its lines are the
// paths of the rim shadow's far point, at rim + height/tan(altitude) from the centre, opposite the
// sun.
#include "dials/bifilar/fontana.hpp"

#include <cmath>
#include <string>

#include "dials/bifilar/level_dial.hpp"
#include "dials/site.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

namespace {

using namespace bifilar;

// The fountain's lengths, metres.
struct Fountain {
  double R = 0;   // the rim
  double R2 = 0;  // the base
  double s = 0;   // height of the rim

  explicit Fountain(const Run& run) {
    assign(R, run.number(Field::TxtRadius));
    assign(R2, run.number(Field::txt_R2));
    assign(s, run.number(Field::TxtStilo));
  }
};

// --- The construction in plan and elevation

// The tangents from the edge of the base to the shadow of the rim, and the limits of the rim's arc
// beyond them.
struct Tangents {
  double beta = 0, gamma = 0;
  double start, end;
};

Tangents tangentsOf(const Angles& angles, const Fountain& f, double A, double g, double w) {
  const double pi = angles.PiGreco;
  Tangents t{.start = 2 * pi, .end = 2 * pi};
  if (!(w < 1)) return t;
  assign(t.beta, angles.ArcCos(w));
  assign(t.gamma, arctan(over(f.R2, g * std::sin(t.beta))));
  t.start = pi / 2 - A + t.beta;
  t.end = 5 * pi / 2 - t.beta - A;
  if (t.end > 2 * pi) t.end -= 2 * pi;
  return t;
}

void sideElevation(SheetPlot& sheet, const Fountain& f) {
  const double base = -(f.R + f.s), rim = -(f.R + 2 * f.s);
  sheet.xLine(-f.R2, base, f.R2, base, palette(13));
  sheet.xLine(-f.R, rim, f.R, rim, palette(13));
  sheet.xLine(-f.R2, base, -f.R, rim, palette(13));
  sheet.xLine(f.R2, base, f.R, rim, palette(13));
  sheet.xLine(0, rim, 0, rim - 3 * f.R, palette(14));
}

// The latitude is the record's: this comes before the run reads its site.
void FontanaSezione(Run& run) {
  SheetPlot& sheet = run.sheet;
  const Fountain f(run);
  sideElevation(sheet, f);
  const Instant now = readInstant(run);
  LevelSun sun(run);
  sun.seeWithinHalfTurn(Trig(now.H), Trig(now.delta));
  if (!(sun.altitude() > 0)) return;

  const double A = sun.azimuth();
  const double sine = sun.sinAzimuth(), cosine = sun.cosAzimuth();
  const double c = f.s / std::tan(sun.altitude());
  const Punto centre = sun.opposite(c);
  sheet.xLine(-(c + f.R) * sine, (c + f.R) * cosine, -(c + 2 * f.R) * sine, (c + 2 * f.R) * cosine,
              palette(14));
  circle(sheet, {0, 0}, f.R2, palette(1));

  const double g = std::hypot(centre.x, centre.y);
  double w = 0;
  assign(w, over(f.R - f.R2, g));
  const Tangents t = tangentsOf(run.params, f, A, g, w);
  if (w < 1) {
    const double P = A - t.beta + t.gamma;
    const double Q = run.params.PiGreco - t.beta + t.gamma - A;
    const double side = g * std::sin(t.beta);
    const double L = std::sqrt(f.R2 * f.R2 + side * side);
    const double right = A - t.beta, left = run.params.PiGreco - (t.beta + A);
    sheet.xLine(-L * std::cos(P), -L * std::sin(P), f.R2 * std::sin(right), -f.R2 * std::cos(right),
                palette(1));
    sheet.xLine(f.R2 * std::sin(left), f.R2 * std::cos(left), -L * std::cos(Q), L * std::sin(Q),
                palette(10));
  }
  circle(sheet, centre, f.R / 100, palette(13));
  if (run.on(Field::ckFunction)) {
    circle(sheet, centre, f.R, palette(15), {.fill = kItalicPink});
  } else {
    circle(sheet, centre, f.R, palette(15), {.startAngle = t.start, .endAngle = t.end});
  }
  circle(sheet, {0, 0}, f.R, palette(13));
  circle(sheet, {0, 0}, f.R2, palette(1));
}

// --- The dial

class Drawing {
 public:
  explicit Drawing(Run& run) : run_(run), sheet_(run.sheet), f_(run), sun_(run), tracer_(run) {}

  void all();

 private:
  // Where the rim's far shadow point falls; false below the horizon and on it.
  bool BifPuntoFontana(const Trig& H, const Trig& delta, Punto& point) {
    if (!sun_.see(H, delta)) return false;
    const double reach = f_.R + over(f_.s, std::tan(sun_.altitude()));
    if (!sound(reach)) return false;
    point = sun_.opposite(reach);
    return true;
  }
  auto place() {
    return [this](const Trig& H, const Trig& delta, Punto& point) {
      return BifPuntoFontana(H, delta, point);
    };
  }

  void freeLine();
  void demonstration();
  void FontanaAnalemma();

  Run& run_;
  SheetPlot& sheet_;
  Fountain f_;
  LevelSun sun_;
  Tracer tracer_;
};

void Drawing::all() {
  tracer_.draw(kHourLines, place());
  circle(sheet_, {0, 0}, f_.R, palette(15));
  for (const Family& curve : kDayCurves) tracer_.draw(curve, place());
  freeLine();
  for (const Family& hours : otherHours(Lead::FirstSample)) tracer_.draw(hours, place());
  if (run_.on(Field::ck_Triangolo)) demonstration();
  knob(run_, f_.R, f_.s, sun_.altitude());
  readUsaLongitudine(run_);
  numerals(run_, place());
  if (run_.on(Field::ck_Lemniscate)) FontanaAnalemma();
}

// The day of txtLineofdeclination, on a layer of its number.
void Drawing::freeLine() {
  const std::string layer = textOf(Amount(Field::txtLineofdeclination).in(run_));
  Family curve = dayCurve(Field::ckFunction, 0, 14, layer);
  curve.when = false;
  curve.declinations = only(Field::txtLineofdeclination);
  tracer_.draw(curve, place());
}

void Drawing::demonstration() {
  SphereDemonstration sphere(run_, sun_, f_.R, f_.R2);
  if (!run_.trueShadows()) sphere.plan();  // a ball's shadow, not the rim's
  sphere.section();
  const DialParams& p = run_.params;
  sheet_.Dati("", 0, 0);
  legendLine(run_, "height of the sun ", p.degrees(sun_.altitude()), " °");
  legendLine(run_, "latitude ", p.LatGradi, " °");
  legendLine(run_, "delta ", Amount(Field::txtDelta).in(run_), " °");
  legendLine(run_, "hour angle ", Amount(Field::txtAO).in(run_), " °");
  legendLine(run_, "radius ", f_.R);
  legendLine(run_, "lower radius ", f_.R2);
  sheet_.Dati(run_.T("height  ") + textOf(f_.s));
  legendLine(run_, "virtual style ", f_.R * std::tan(sun_.altitude()) + f_.s);
  longitudeLine(run_);
}

void Drawing::FontanaAnalemma() {
  Punto point;
  forEachDay(run_, [&](const SunOfDay& sun, bool) {
    const Trig H(sun.equationOfTime - run_.params.CorrFuso);
    if (BifPuntoFontana(H, Trig(sun.declination), point))
      dot(sheet_, point, {.colour = palette(12), .family = CurveFamily::Analemma},
          {H.angle, sun.declination});
  });
}

}  // namespace

void QuadranteFontana(Run& run) {
  if (refusesSouth(run)) return;
  if (run.on(Field::ck_Triangolo)) {
    if (run.trueShadows()) readLevelSite(run);  // and not the latitude that the last run left
    FontanaSezione(run);
  }
  openRun(run, "Bifilar horizontal spherical dial by spherical trigonometry", readLevelSite);
  Drawing(run).all();
  run.hourglass(false);
}

}  // namespace dialwright
