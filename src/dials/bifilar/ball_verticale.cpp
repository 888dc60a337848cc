// Program 26: the vertical ball dial. A half ball stands on an upright wall; its lines are the
// paths of the far end of its shadow, at radius/sin(height of the sun over the wall) from the
// centre.
#include "dials/bifilar/ball_verticale.hpp"

#include <array>
#include <cmath>

#include "dials/bifilar/level_dial.hpp"
#include "dials/drawing.hpp"
#include "dials/site.hpp"

namespace dialwright {

namespace {

using namespace bifilar;

constexpr Range kAfternoons = {-120, 120, 0.2};  // degrees of hour angle
constexpr Range kFineAfternoons = {-120, 120, 0.1};
constexpr Range kLongAfternoons = {-150, 150, 0.2};

constexpr Family kHours = {.box = Field::chkOreAstronomiche,
                           .hours = {-120, 120, 15, true},
                           .rule = HourRule::Zone,
                           .colour = palette(15),
                           .noon = palette(9),
                           .six = palette(9),
                           .layer = "ore"};

constexpr Family kEquinoctial = {.box = Field::ck_Equinoziale,
                                 .path = Path::DayCurve,
                                 .hours = kAfternoons,
                                 .declinations = only(0),
                                 .colour = palette(9),
                                 .layer = "eq",
                                 .lead = Lead::None};

// The free line only places the pen: its chords wait for hours that its loop never reaches.
constexpr Family kFreeLine = {.box = Field::ckFunction,
                              .path = Path::DayCurve,
                              .hours = kFineAfternoons,
                              .declinations = only(Field::txtLineofdeclination),
                              .colour = palette(8),
                              .layer = "diurna",
                              .lead = Lead::Every};

constexpr std::array kCurves = {
    dayCurve(Field::Ck_DayLightCurves, kFineAfternoons, -kSolstice, 8, "-23.445°"),
    dayCurve(Field::Ck_DayLightCurves, kAfternoons, kSolstice, 8, "23.445°"),
    dayCurve(Field::Ck_DayLightCurves, kLongAfternoons, -kTwentieth, 13, "-20.1552°"),
    dayCurve(Field::Ck_DayLightCurves, kAfternoons, kTwentieth, 13, "20.1552°"),
    dayCurve(Field::Ck_DayLightCurves, kAfternoons, -kEleventh, 11, "-11.4746°"),
    dayCurve(Field::Ck_DayLightCurves, kAfternoons, kEleventh, 11, "11.4746°"),
};

constexpr std::array kOtherHours = {
    Family{.box = Field::ck_Italiche,
           .hours = {Field::TxtInizio, Field::TxtFine, 1, true},
           .rule = HourRule::Italian,
           .colour = palette(14),
           .layer = "Ita"},
    Family{.box = Field::ck_babiloniche,
           .hours = {Field::TxtInizio, {Field::TxtFine, -1}, 1, true},
           .rule = HourRule::Babylonian,
           .colour = palette(13),
           .layer = "bab"},
    Family{.box = Field::ckTemp,
           .hours = {0, 12, 1, true},
           .rule = HourRule::Temporary,
           .colour = palette(8),
           .layer = "Temp"},
};

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run) : PanelDrawing(run), sky_(p_.LatRad, p_.DeclRad), tracer_(run) {
    assign(R_, run.number(Field::TxtRadius));
  }

  void all();

 private:
  // Where the far end of the shadow falls. Nothing tells day from night: a sun below the horizon
  // and behind the wall also gives a point below the centre.
  void locate(const Trig& H, const Trig& delta, Punto& point) {
    light_ = sky_(H, delta);
    const double level = std::sqrt(light_.x * light_.x + light_.y * light_.y);
    assign(height_, -arctan(over(light_.z, level)));
    const double scale = std::sin(height_) * level;
    assign(point, {over(R_ * light_.x, scale), over(R_ * light_.y, scale)});
  }
  bool below(const Trig& H, const Trig& delta, Punto& point) {
    locate(H, delta, point);
    return point.y < 0;
  }
  bool lit(const Trig& H, const Trig& delta, Punto& point) {
    return below(H, delta, point) && height_ >= 0;
  }
  bool overEquator(const Trig& H, const Trig& delta, Punto& point);

  auto anywhere() {
    return
        [this](const Trig& H, const Trig& delta, Punto& point) { return below(H, delta, point); };
  }
  void curves();
  void substyle();
  void demonstration();
  void shadow(double W);
  void section(const Instant& moment, double W);
  void legend(const Instant& moment, double W);

  double R_ = 0;
  WallSky sky_;
  Tracer tracer_;
  WallSun light_{};
  double height_ = 0;  // of the sun over the wall
  Punto equator_;
  double substyleHour_ = 0;
};

void Drawing::all() {
  tracer_.draw(kHours, anywhere());
  circle(sheet_, {0, 0}, R_, palette(15));
  curves();
  for (const Family& hours : kOtherHours) tracer_.draw(hours, anywhere());
  if (run_.on(Field::ck_Lemniscate))
    tracer_.analemma(
        {.colour = palette(13), .layer = sheet_.layer("analemma"), .family = CurveFamily::Analemma},
        anywhere());
  substyle();
  demonstration();
  readUsaLongitudine(run_);
  numerals(run_, [this](const Trig& H, const Trig& delta, Punto& point) {
    return below(H, delta, point) && tracer_.window().holds(point);
  });
}

void Drawing::curves() {
  const auto inLight = [this](const Trig& H, const Trig& delta, Punto& point) {
    return lit(H, delta, point);
  };
  tracer_.draw(kEquinoctial, inLight);
  const auto beyond = [this](const Trig& H, const Trig& delta, Punto& point) {
    return run_.trueShadows() ? lit(H, delta, point) : overEquator(H, delta, point);
  };
  tracer_.draw(kFreeLine, beyond);
  for (const Family& curve : kCurves) tracer_.draw(curve, beyond);
  if (run_.on(Field::Ck_DayLightCurves)) circle(sheet_, {0, 0}, R_, palette(15));
}

// A day's point must lie beyond the equator's point of the same hour, which the sun must light.
bool Drawing::overEquator(const Trig& H, const Trig& delta, Punto& point) {
  locate(H, Trig(0), equator_);
  if (!(height_ >= 0)) return false;
  if (!below(H, delta, point)) return false;
  return delta.angle < 0 ? point.y > equator_.y : point.y < equator_.y;
}

// The straight equinoctial of the wall, through the equator's point of the substyle hour.
void Drawing::substyle() {
  const double sine = std::sin(p_.DeclRad);
  double Hs = 0;
  if (p_.LatRad == 0) {
    Hs = p_.PiGreco / 2 * Sgn(p_.DeclRad);
  } else {
    assign(Hs, arctan(over(sine, std::cos(p_.DeclRad) * std::sin(p_.LatRad))));
    if (Sgn(std::sin(Hs)) != Sgn(sine)) Hs += Hs > 0 ? -p_.PiGreco : p_.PiGreco;
  }
  Punto vertex;
  locate(Trig(Hs), Trig(0), vertex);
  tracer_.straightLine(over(sine, std::tan(p_.LatRad)), vertex,
                       {palette(11), sheet_.layer("equi")});
  substyleHour_ = 12 + over(Hs * 12, p_.PiGreco);
}

void Drawing::demonstration() {
  const Instant moment =
      run_.on(Field::ckFunction) ? readInstant(run_) : Instant{0, p_.radians(-kSolstice)};
  Punto end;
  locate(Trig(moment.H), Trig(moment.delta), end);
  double W = 0;
  assign(W, arctan(over(light_.x, light_.y)));
  circle(sheet_, end, R_ / 10, palette(14));
  shadow(W);
  if (run_.on(Field::ck_Triangolo)) section(moment, W);
}

// The outline of the shadow with its axis, and the edge of the ball's own shade.
void Drawing::shadow(double W) {
  const double sinHeight = std::sin(height_);
  const double sine = std::sin(W), cosine = std::cos(W);
  const double length = over(R_, sinHeight);
  plot(run_, {0, length, R_, sinHeight, sine, cosine, {}, palette(10)});
  const double x = -length * sine, y = length * cosine;
  sheet_.xLine(x, y, x * 6 / 5, y * 6 / 5, palette(14));
  plot(run_, {0, R_ * sinHeight, R_, over(1, sinHeight), sine, cosine, {}, palette(4)});
}

// The ball from the side, the wall upright in the middle.
void Drawing::section(const Instant& moment, double W) {
  const double side = signOrOne(moment.H);
  const double pi = p_.PiGreco;
  const double centre = -2.5 * R_;
  const double m = side == 1 ? 3 : 1;
  sheet_.xCircle(0, centre, R_, palette(2),
                 {.fill = palette(12), .startAngle = m * pi / 2, .endAngle = 3.0 / 2 * pi / m});
  sheet_.xLine(3.5 * R_ * side, centre, 0, centre, palette(12));
  sheet_.xLine(0, -3.5 * R_, 0, -1.5 * R_, palette(15));
  sheet_.xLine(R_ * std::cos(height_) * side, -(-R_ * std::sin(height_) + 2.5 * R_), 0, centre,
               palette(4));
  const double tip = std::abs(over(R_, std::cos(height_))) * side;
  sheet_.xCircle(tip, centre, R_ / 20, palette(2), {.fill = palette(6)});
  sheet_.xCircle(tip, centre, R_ / 50, palette(2), {.fill = palette(15)});
  legend(moment, W);
}

void Drawing::legend(const Instant& moment, double W) {
  legendLine(run_, "height of the sun ", p_.degrees(height_), " °");
  legendLine(run_, "lenght of the horizontal axe from the dial ", over(R_, std::cos(height_)));
  legendLine(run_, "latitude ", p_.LatGradi, " °");
  legendLine(run_, "declination ", p_.DeclGradi, " °");
  legendLine(run_, "delta ", p_.degrees(moment.delta), " °");
  legendLine(run_, "hour angle ", p_.degrees(moment.H), " °");
  legendLine(run_, "radius ", R_, " °");
  legendLine(run_, "substyle hour ", substyleHour_);
  legendLine(run_, "eccentricity of the shadow ", std::abs(std::cos(height_)));
  if (run_.on(Field::ckFunction)) legendLine(run_, "angle ", p_.degrees(W), " °");
}

void readBallsWall(Run& run) {
  // The divisions themselves, not the degrees of one.
  assign(run.params.PassoOre, run.number(Field::TxtHour));
  readUsaLongitudine(run);
  readWall(run);
}

}  // namespace

void QuadranteBallVerticale(Run& run) {
  if (refusesSouth(run)) return;
  openRun(run, "Bifilar vertical semi - sphere dial by vectors", readBallsWall);
  Drawing(run).all();
  run.hourglass(false);
}

}  // namespace dialwright
