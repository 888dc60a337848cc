// Program 17: the vertical bifilar dial whose hour lines are equally spaced in angle. One wire
// stands before the substyle at the distance a, the other before the equinoctial's direction at b =
// a * sin(height of the polar style over the wall): the shadows cross in the plane dial's point,
// shrunk along the substyle in the ratio b/a. (Michnik's dial on a vertical wall.)
#include "dials/bifilar/equiangolare.hpp"

#include <array>
#include <cmath>

#include "dials/bifilar/bifilar_frame.hpp"
#include "dials/drawing.hpp"
#include "dials/site.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

namespace {

using namespace bifilar;

constexpr Range kAfternoons = {-120, 120, 0.02};  // degrees of hour angle

// Hours and halves, however finely the hour is divided.
constexpr Family kHours = {.box = Field::chkOreAstronomiche,
                           .hours = {-90, 90, 7.5},
                           .colour = palette(15),
                           .noon = palette(12),
                           .layer = "oreemezze"};

constexpr Family freeLine(std::string_view layer) {
  return dayCurve(Field::ckFunction, kAfternoons, Field::txtLineofdeclination, 14, layer);
}

constexpr Family always(double declination, int colour, std::string_view layer) {
  return dayCurve(Field::None, kAfternoons, declination, colour, layer);
}
constexpr std::array kCurves = {
    always(-kSolstice, 12, "-23.445°"),  always(-kTwentieth, 13, "-20.1552°"),
    always(-kEleventh, 11, "-11.4746°"), always(0, 9, "eq"),
    always(kEleventh, 11, "11.4746°"),   always(kTwentieth, 13, "20.1552°"),
    always(kSolstice, 12, "23.445°"),
};

constexpr Family italic(Amount first, Amount lastDeclination, std::string_view layer) {
  return {.box = Field::ck_Italiche,
          .hours = {first, Field::TxtFine},
          .rule = HourRule::Italian,
          .declinations = {-kSolstice, lastDeclination, kDeclinationStep},
          .colour = palette(12),
          .layer = layer};
}
constexpr std::array kItalicHours = {
    italic(22, Field::txtLineofdeclination, "Ita"),
    italic(Field::TxtInizio, kSolstice, "Ita2"),
};

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run);

  void all();

 private:
  // Where the shadows of the two wires cross, `assign`ed. It knows neither night nor the back of
  // the wall: a sun there falls on the point of its opposite.
  void PuntoEquiangolare(const Trig& H, const Trig& delta, Punto& point) const {
    const WallSun light = sky_(H, delta);
    const double X = -s_ * over(light.x, light.z), Y = -s_ * over(light.y, light.z);
    assign(point, {xx_ * X + xy_ * Y, xy_ * X + yy_ * Y});
  }
  auto anywhere() const {
    return [this](const Trig& H, const Trig& delta, Punto& point) {
      PuntoEquiangolare(H, delta, point);
      return true;
    };
  }

  void writeDistances();
  void straightEquinoctial();
  void dayCurve(const Family& curve);
  void curves();
  void freeDots();
  void horizonAndSubstyle();
  void triangle();
  void legend();

  double s_ = 0, b_ = 0;  // distances of the wires
  WallSky sky_;
  Tracer tracer_;
  double sinD_, cosD_, sinLat_, tanLat_;
  double slope_;                 // of the equinoctial
  double xx_, xy_, yy_;          // the map from the plane dial
  Punto centre_;                 // of the hour lines
  double r0_ = 0, delta_r_ = 0;  // from the origin to the centre, and to the equinoctial
  double sigma_ = 0;             // the equinoctial's angle
  Punto vertex_;                 // its point on the substyle
};

Drawing::Drawing(Run& run)
    : PanelDrawing(run),
      s_(Amount(Field::TxtStilo).in(run)),
      sky_(p_.LatRad, p_.DeclRad),
      tracer_(run),
      sinD_(std::sin(p_.DeclRad)),
      cosD_(std::cos(p_.DeclRad)),
      sinLat_(std::sin(p_.LatRad)),
      tanLat_(std::tan(p_.LatRad)),
      slope_(over(sinD_, tanLat_)) {
  const double P = std::abs(cosD_) * std::cos(p_.LatRad);
  const double sin2 = sinD_ * sinD_, tan2 = tanLat_ * tanLat_;
  const double Q = sin2 + tan2;
  xx_ = over(sin2 * P + tan2, Q);
  xy_ = over((1 - P) * tanLat_ * sinD_, Q);
  yy_ = over(tan2 * P + sin2, Q);
  b_ = s_ * P;

  const double C = std::abs(P);
  assign(centre_, {-s_ * C * std::tan(p_.DeclRad), over(s_ * C * tanLat_, cosD_)});
  assign(r0_, std::sqrt(centre_.x * centre_.x + centre_.y * centre_.y));
  double r = 0;
  assign(r, over(s_, root(1 - C * C)));
  delta_r_ = -r0_ + r;
  assign(sigma_, arctan(slope_));
  if (run.trueShadows()) {
    // Two wires at one distance; a wall that faces North; the equator, where no slope is.
    if (Q == 0) xx_ = yy_ = 1, xy_ = 0;
    delta_r_ *= Sgn(cosD_);
    sigma_ = std::atan2(sinD_, tanLat_);
  }
  vertex_ = {delta_r_ * std::sin(sigma_), -delta_r_ * std::cos(sigma_)};
}

void Drawing::all() {
  writeDistances();
  sheet_.Dati(run_.T("x_0, y_0") + kGap + figures({vertex_.x, vertex_.y}));
  straightEquinoctial();
  tracer_.draw(kHours, anywhere());
  curves();
  circle(sheet_, centre_, s_ / 200, palette(12));
  if (!run_.on(Field::ckFunction)) freeDots();
  if (run_.on(Field::ck_Orizzonte)) horizonAndSubstyle();
  if (run_.on(Field::ck_Triangolo)) triangle();
  legend();
  for (const Family& hours : kItalicHours) tracer_.draw(hours, anywhere());
}

// Into the panel: a in metres, b in millimetres.
void Drawing::writeDistances() {
  Panel& panel = run_.panel;
  panel.setText(Field::txtHeightz, textOf(s_));
  panel.setText(Field::txtHeightx, textOf(rounded(b_ * 1000, 4)));
  panel[Field::lblHeightz].caption = "a";
  panel[Field::lblHeightx].caption = "b";
}

void Drawing::straightEquinoctial() {
  const Ink ink{
      .colour = palette(11), .layer = sheet_.layer("equi"), .family = CurveFamily::Equinoctial};
  const Sun equinox{.declination = 0};
  if (run_.trueShadows()) {
    tracer_.straightLineAlong({tanLat_, sinD_}, vertex_, ink, equinox);
  } else {
    tracer_.straightLine(slope_, vertex_, ink, equinox);
  }
}

// The samples of a day that lie above the equinoctial for a negative declination, and below it for
// the others; for a drawing of true shadows its judge alone tells.
void Drawing::dayCurve(const Family& curve) {
  tracer_.draw(curve, [this](const Trig& H, const Trig& delta, Punto& point) {
    PuntoEquiangolare(H, delta, point);
    const double above = point.y - slope_ * (point.x - vertex_.x) - vertex_.y;
    return run_.trueShadows() || (delta.angle < 0 ? above > 0 : above < 0);
  });
}

void Drawing::curves() {
  const bool winter = Amount(Field::txtLineofdeclination).in(run_) < 0;
  dayCurve(freeLine(winter ? "diurna1" : "diurna2"));
  for (const Family& curve : kCurves) {
    if (curve.declinations.first.value == 0) {
      tracer_.draw(curve, anywhere());
    } else {
      dayCurve(curve);
    }
  }
}

void Drawing::freeDots() {
  double degrees = kSolstice;
  assign(degrees, run_.number(Field::txtLineofdeclination));
  const Trig delta(p_.radians(degrees));
  const Ink ink{.colour = palette(14), .family = CurveFamily::Declinations};
  Punto point;
  for (const double t : kAfternoons.in(run_)) {
    const Trig H(p_.radians(t));
    PuntoEquiangolare(H, delta, point);
    if (tracer_.window().holds(point)) dot(sheet_, point, ink, {H.angle, delta.angle});
  }
}

// On a wall that faces South the substyle's slope fails, and it is drawn over the horizon.
void Drawing::horizonAndSubstyle() {
  const double cosine = std::abs(cosD_);
  const double slope = over(sinD_ * (tanLat_ - cosine * sinLat_),
                            tanLat_ * tanLat_ + sinD_ * sinD_ * std::cos(p_.LatRad) * cosine);
  tracer_.straightLine(slope, {}, {palette(8), sheet_.layer("Hor")});
  const Ink ink{.colour = palette(15), .layer = sheet_.layer("Sus"), .family = CurveFamily::Hours};
  const Sun substyle{.hourAngle = hourOfSubstyle(p_)};
  if (run_.trueShadows()) {
    tracer_.straightLineAlong({sinD_, -tanLat_}, {}, ink, substyle);
  } else {
    tracer_.straightLine(over(-tanLat_, sinD_), {}, ink, substyle);
  }
}

// The two wires with their distances, each turned into the wall about its middle.
void Drawing::triangle() {
  const double sine = std::sin(sigma_), cosine = std::cos(sigma_);
  const auto from = [](Punto p, double x, double y) { return Punto{p.x + x, p.y + y}; };
  const auto stroke = [&](Punto a, Punto b, int colour) { line(sheet_, a, b, palette(colour)); };
  Punto A0;
  assign(A0, {-2 * s_ * slope_, 2 * s_});
  const Punto C0{0 - A0.x, 0 - A0.y};
  const Punto B0 = from(A0, s_ * cosine, s_ * sine), D0 = from(C0, s_ * cosine, s_ * sine);
  stroke({}, A0, 15);
  stroke(B0, A0, 14);
  stroke({}, C0, 15);
  stroke(C0, D0, 13);
  stroke(B0, D0, 11);

  const Punto F0{2 * s_ * cosine, 2 * s_ * sine}, E0{0 - F0.x, 0 - F0.y};
  const Punto G0 = from(E0, -b_ * sine, b_ * cosine), H0 = from(F0, -b_ * sine, b_ * cosine);
  stroke(E0, F0, 15);
  stroke(E0, G0, 12);
  stroke(H0, F0, 10);
  stroke(H0, G0, 10);
}

void Drawing::legend() {
  double E = 0, r = 0;
  assign(E, arctan(over(std::tan(p_.DeclRad), sinLat_)));
  const double C = -std::cos(p_.LatRad) * cosD_;
  assign(r, over(s_, root(1 - C * C) * std::cos(E)));
  const double side = run_.trueShadows() ? Sgn(cosD_) : 1;  // as of the point that is told below
  const double delta_r = (-r0_ + r * std::cos(E)) * side;
  const auto tell = [&](const char* label, const std::string& rest) {
    sheet_.Dati(run_.T(label) + kGap + rest);
  };
  sheet_.Dati("", 0, 0);
  tell("x0, y0", figures({centre_.x, centre_.y}));
  tell("esse", figures({p_.degrees(E)}) + " °");
  tell("erre", figures({r}));
  tell("erre1", figures({r * sinLat_}));
  tell("erre0", figures({r0_}));
  tell("delta_r", figures({delta_r}));
  tell("x_0, y_0", figures({vertex_.x, vertex_.y}));
  tell("a", figures({s_}));
  tell("b", figures({b_}));
}

}  // namespace

void QuadranteEquiangolare(Run& run) {
  if (refusesSouth(run)) return;
  run.hourglass(true);
  DisegnaCornice(run);
  readWall(run);
  Drawing(run).all();
  run.hourglass(false);
}

}  // namespace dialwright
