// Program 22: the horizontal ball dial. Its lines are the paths of the far end of a ball's shadow
// on a level floor, at radius/sin(altitude) + distance/tan(altitude) from the point below the
// ball's centre, opposite the sun.
#include "dials/bifilar/ball.hpp"

#include <cmath>

#include "dials/bifilar/level_dial.hpp"
#include "dials/site.hpp"

namespace dialwright {

namespace {

using namespace bifilar;

constexpr double kLegendTop = -0.953;  // ordinate on the sheet

class Drawing {
 public:
  explicit Drawing(Run& run) : run_(run), sheet_(run.sheet), sun_(run), tracer_(run) {
    assign(R_, run.number(Field::TxtRadius));
    assign(d1_, run.number(Field::txtD1));
  }

  void all();

 private:
  // Where the far end of the shadow falls; false below the horizon and on it.
  bool locate(const Trig& H, const Trig& delta, Punto& point) {
    if (!sun_.see(H, delta)) return false;
    const double reach = over(R_, sun_.heightSine()) + over(d1_, std::tan(sun_.altitude()));
    if (!sound(reach)) return false;
    point = sun_.opposite(reach);
    return true;
  }
  auto place() {
    return
        [this](const Trig& H, const Trig& delta, Punto& point) { return locate(H, delta, point); };
  }

  void rims();
  void demonstration();
  void legend(const Instant& moment);
  void BallAnalemma();

  Run& run_;
  SheetPlot& sheet_;
  double R_ = 0;
  double d1_ = 0;
  LevelSun sun_;
  Tracer tracer_;
};

void Drawing::all() {
  if (d1_ != 0) sheet_.Dati(run_.T("d1 IS NOT EQUAL TO ZERO"));
  tracer_.draw(kHourLines, place());
  rims();
  for (const Family& curve : kDayCurves) tracer_.draw(curve, place());
  // The hours' lines follow one another without a first sample: only the chord limit keeps them
  // apart.
  for (const Family& hours : otherHours(Lead::None)) tracer_.draw(hours, place());
  if (run_.on(Field::ck_Triangolo)) demonstration();
  double style = 0;
  assign(style, run_.number(Field::TxtStilo));
  knob(run_, R_, style, sun_.altitude());
  readUsaLongitudine(run_);
  numerals(run_, [this](const Trig& H, const Trig& delta, Punto& point) {
    return locate(H, delta, point) && tracer_.window().holds(point);
  });
  if (run_.on(Field::ck_Lemniscate)) BallAnalemma();
}

// The ball, and the circle in which the floor would cut it.
void Drawing::rims() {
  circle(sheet_, {0, 0}, R_, palette(15));
  if (R_ >= d1_) circle(sheet_, {0, 0}, root(R_ * R_ - d1_ * d1_), palette(8));
}

void Drawing::demonstration() {
  SphereDemonstration sphere(run_, sun_, R_, d1_);
  const double turn = run_.trueShadows() ? sun_.altitude() : -run_.params.PiGreco + sun_.azimuth();
  const double head = over(R_, std::cos(turn)) + 2 * R_ + d1_;
  sheet_.xCircle(0, -head, R_ / 20, palette(2), {.fill = palette(6)});
  sphere.plan();
  sphere.section();
  sheet_.Dati("");
  legend(run_.on(Field::ckFunction) ? readInstant(run_)
                                    : Instant{0, run_.params.radians(kSolstice)});
}

void Drawing::legend(const Instant& moment) {
  const DialParams& p = run_.params;
  sun_.seeWithinHalfTurn(Trig(moment.H), Trig(moment.delta));
  const double eccentricity = std::cos(sun_.altitude());
  sheet_.Dati("", 0, kLegendTop);
  legendLine(run_, "height of the sun ", p.degrees(sun_.altitude()), " °");
  legendLine(run_, "latitude ", p.LatGradi, " °");
  legendLine(run_, "delta ", p.degrees(moment.delta), " °");
  legendLine(run_, "hour angle ", p.degrees(moment.H), " °");
  legendLine(run_, "eccentricity of the shadow ", eccentricity);
  legendLine(run_, "virtual style ", over(R_, eccentricity));
  legendLine(run_, "radius ", R_);
  longitudeLine(run_);
}

void Drawing::BallAnalemma() {
  const double sinLat = std::sin(run_.params.LatRad), cosLat = std::cos(run_.params.LatRad);
  Tracer tracer(run_);
  const Ink ink{
      .colour = palette(7), .layer = sheet_.layer("analemma"), .family = CurveFamily::Analemma};
  tracer.analemma(ink, [&](const Trig& H, const Trig& delta, Punto& point) {
    // Towards the sun: to the East, to the South, upwards.
    const double sx = -H.sine * delta.cosine;
    const double sy = -cosLat * delta.sine + sinLat * H.cosine * delta.cosine;
    const double sz = sinLat * delta.sine + cosLat * H.cosine * delta.cosine;
    const double level = std::sqrt(sx * sx + sy * sy);
    const double h = arctan(over(sz, level));
    if (!(h >= 0)) return false;
    const double reach = over(d1_ + over(R_, std::cos(h)), std::tan(h));
    assign(point, {reach * over(sx, level), -reach * over(sy, level)});
    return true;
  });
}

}  // namespace

void QuadranteBall(Run& run) {
  if (refusesSouth(run)) return;
  openRun(run, "Bifilar horizontal spherical dial by spherical trigonometry", readLevelSite);
  Drawing(run).all();
  run.hourglass(false);
}

}  // namespace dialwright
