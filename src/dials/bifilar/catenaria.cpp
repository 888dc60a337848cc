// Program 18: the vertical bifilar dial of an upright wire and a hanging chain. The time is read
// where their shadows cross: the wire's shadow is an upright line, the chain's a catenary moved
// along the sunlight. (Bifilar dials: H. Michnik, 1922; F. Sawyer, Bifilar gnomonics.)
#include "dials/bifilar/catenaria.hpp"

#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <span>

#include "dials/bifilar/bifilar_frame.hpp"
#include "dials/drawing.hpp"
#include "dials/site.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

namespace bifilar {

namespace {

constexpr double kSolverStart = 7;

double Cosh(double v) { return CosIperbolico(v); }

}  // namespace

double Catena::height(double x) const { return f * Cosh(over(x, f)) - sag - f; }

Catena RisolviCatena(double halfSpan, double sag, int steps) {
  Catena chain{.halfSpan = halfSpan, .sag = sag};
  assign(chain.K, over(sag, halfSpan));
  chain.a = kSolverStart;
  double u = 0;
  for (int step = 0; step < steps; ++step) {
    assign(u, chain.K * chain.a + 1);
    assign(chain.a, logarithm(u + root(u * u - 1)));
  }
  assign(chain.f, over(halfSpan, chain.a));
  return chain;
}

void PuntoCatenaria(const Fili& wires, const WallSky& sky, const Trig& H, const Trig& delta,
                    Punto& point) {
  const WallSun light = sky(H, delta);
  const double aside = over(light.x, light.z);
  const double fall = -wires.d1 * over(light.y, light.z);
  assign(point, {-wires.d2 * aside, fall + wires.chain.height((wires.d1 - wires.d2) * aside)});
}

}  // namespace bifilar

namespace {

using namespace bifilar;

constexpr int kAllSteps = 60;         // that change the chain's solution in any digit
constexpr double kChainStep = 0.002;  // metres
constexpr double kChainLeft = -1;     // where the picture of a wider chain begins, metres
constexpr Range kFullTurn = {-179, 179, 0.05};
constexpr Range kToEquinox = {-kSolstice, 0, kDeclinationStep};
constexpr Range kToFreeLine = {-kSolstice, Field::txtLineofdeclination, kDeclinationStep};

// --- Families, by routine

// A family, and the declinations that it takes instead of its own when ckFunction is on.
struct Row {
  Family family;
  std::optional<Range> free{};
};

constexpr std::array kCatenariaMezzodi = {
    Row{{.hours = only(0), .colour = palette(12), .layer = "midi"}}};

// All samples of the first line only place the pen.
constexpr Family kHours = {.box = Field::chkOreAstronomiche,
                           .hours = {-180, 180, 15},
                           .rule = HourRule::Zone,
                           .colour = palette(12),
                           .lead = Lead::FirstLine};
// Half hours alone, however finely the hour is divided.
constexpr Family kHalves = {.box = Field::chkOreAstronomiche,
                            .hours = {-172.5, 187.5, 15},
                            .rule = HourRule::Zone,
                            .colour = palette(11),
                            .layer = "mezze",
                            .lead = Lead::FirstLine};

constexpr Row turned(double declination, int colour, std::string_view layer) {
  return {dayCurve(Field::Ck_DayLightCurves, kFullTurn, declination, colour, layer)};
}
// The declinations are those of a wall that faces South; on one that faces North they swap, but for
// true shadows.
constexpr std::array kCatenariaDeclinazioni = {
    turned(-kSolstice, 12, "solstice°"),
    turned(kSolstice, 12, "solstice"),
    turned(-kTwentieth, 13, "+-20°"),
    turned(kTwentieth, 13, "-+20°"),
    turned(-kEleventh, 11, "-+11°"),
    turned(kEleventh, 11, "+-11°"),
    turned(0, 9, "eq"),
    Row{dayCurve(Field::Ck_DayLightCurves, kFullTurn, 0, 10, "diurna"),
        only(Field::txtLineofdeclination)},
};

constexpr std::array kCatenariaItaliche = {
    Row{{.box = Field::ck_Italiche,
         .hours = {22, Field::TxtFine},
         .rule = HourRule::Italian,
         .colour = kItalicPink,
         .layer = "Ita"},
        kToFreeLine},
    Row{{.box = Field::ck_Italiche,
         .hours = {Field::TxtInizio, 21},
         .rule = HourRule::Italian,
         .colour = kItalicPink,
         .layer = "Ita1"}},
};

constexpr std::array kCatenariaBabiloniche = {
    Row{{.box = Field::ck_babiloniche,
         .hours = {Field::TxtInizio, 3},
         .rule = HourRule::Babylonian,
         .colour = palette(13),
         .layer = "bab"},
        kToFreeLine},
    Row{{.box = Field::ck_babiloniche,
         .hours = {4, Field::TxtFine},
         .rule = HourRule::Babylonian,
         .colour = palette(13),
         .layer = "bab2"}},
};

constexpr Row horizon(HourRule rule) {
  return {{.box = Field::ck_Orizzonte,
           .hours = only(0),
           .rule = rule,
           .declinations = kToEquinox,
           .colour = palette(7),
           .layer = "horizon"}};
}
constexpr std::array kCatenariaOrizzonteOvest = {horizon(HourRule::Sunrise)};
constexpr std::array kCatenariaOrizzonteEst = {horizon(HourRule::Sunset)};

constexpr std::array kCatenariaTemporarie = {Row{{.box = Field::ckTemp,
                                                  .hours = {Field::TxtInizio, Field::TxtFine},
                                                  .rule = HourRule::Temporary,
                                                  .colour = palette(13),
                                                  .layer = "temp"}}};

// --- The dial

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run)
      : PanelDrawing(run),
        sky_(p_.LatRad, p_.DeclRad),
        wires_{read(Field::txtD1), read(Field::TxtStilo), chainOf(Field::txtV1)} {}

  void all();

 private:
  double read(Field field) const { return Amount(field).in(run_); }
  Catena chainOf(Field sag) const {
    return RisolviCatena(read(Field::TxtRadius), std::abs(read(sag)),
                         run_.trueShadows() ? kAllSteps : kChainSteps);
  }
  auto place() {
    return [this](const Trig& H, const Trig& delta, Punto& point) {
      PuntoCatenaria(wires_, sky_, H, delta, point);
      return true;
    };
  }

  void draw(std::span<const Row> routine, double side = 1);
  void hoursAndWires();
  void substyle(Tracer& tracer);
  void chain(Punto previous);
  void legend();
  void CatenariaAnalemma();
  void CatenariaSezione();
  void CatenariaQibla();

  WallSky sky_;
  Fili wires_;
};

void Drawing::all() {
  draw(kCatenariaMezzodi);
  DisegnaCornice(run_);
  hoursAndWires();
  legend();
  draw(kCatenariaDeclinazioni, run_.trueShadows() ? 1 : Sgn(std::cos(p_.DeclRad)));
  draw(kCatenariaItaliche);
  draw(kCatenariaBabiloniche);
  draw(kCatenariaOrizzonteOvest);
  draw(kCatenariaOrizzonteEst);
  draw(kCatenariaTemporarie);
  if (run_.on(Field::ck_Lemniscate)) CatenariaAnalemma();
  if (run_.on(Field::ck_Triangolo)) CatenariaSezione();
  if (run_.on(Field::CkQibla)) CatenariaQibla();
  readUsaLongitudine(run_);
  const Window window(run_);
  numerals(run_, [&](const Trig& H, const Trig& delta, Punto& point) {
    PuntoCatenaria(wires_, sky_, H, delta, point);
    return window.holds(point);
  });
}

// The families of one routine; `side` multiplies the declinations of day curves.
void Drawing::draw(std::span<const Row> routine, double side) {
  Tracer tracer(run_);
  for (const Row& row : routine) {
    Family family = row.family;
    if (family.path == Path::DayCurve)
      family.declinations = only(side * family.declinations.first.value);
    if (row.free && run_.on(Field::ckFunction)) family.declinations = *row.free;
    tracer.draw(family, place());
  }
}

void Drawing::hoursAndWires() {
  Tracer tracer(run_);
  tracer.draw(kHours, place());
  if (run_.number(Field::TxtHour) > 1) tracer.draw(kHalves, place());
  if (run_.on(Field::ck_Sustilare)) substyle(tracer);
  chain(tracer.previous());
}

void Drawing::substyle(Tracer& tracer) {
  const double sine = std::sin(p_.DeclRad);
  double H = 0;
  assign(H, arctan(over(std::tan(p_.DeclRad), std::sin(p_.LatRad))));
  if (Sgn(std::sin(H)) != Sgn(sine)) H += p_.PiGreco;
  const double substyleHour = hourOfSubstyle(p_);
  const Trig drawn(run_.trueShadows() ? substyleHour : p_.radians(p_.degrees(H)));
  tracer.draw({.hours = only(p_.degrees(substyleHour)), .colour = palette(15), .layer = "sus"},
              [&](const Trig&, const Trig& delta, Punto& point) {
                PuntoCatenaria(wires_, sky_, drawn, delta, point);
                return true;
              });
}

// The chain itself. A point that is not below the hanging points only places the pen.
void Drawing::chain(Punto previous) {
  const double L = wires_.chain.halfSpan;
  Pen pen(sheet_);
  pen.dip({palette(8), sheet_.layer("CatWE")});
  pen.visit(previous, Verdict::Move);
  double y = 0;
  for (const double X : run_.sweep(-L, L + kChainStep, kChainStep, {.bound = Field::TxtRadius})) {
    assign(y, wires_.chain.height(X));
    pen.visit({X, y}, drawIf(y < 0 && X > kChainLeft));
  }
  circle(sheet_, {0, -wires_.chain.sag}, wires_.d2 / 100, palette(12));
}

void Drawing::legend() {
  const Catena& c = wires_.chain;
  const auto tell = [&](const char* label, const std::string& rest) {
    sheet_.Dati(run_.T(label) + rest);
  };
  sheet_.Dati(" ");
  const double end = c.f * Cosh(over(c.halfSpan, c.f));
  const double length = root(end * end - c.f * c.f);
  if (sound(length)) tell("L half lenght of the chain ", figures({length}));
  tell("f factor of scale ", figures({c.f}));
  tell("K ", kGap + figures({c.K}));
  tell("a ", kGap + figures({c.a}));
  tell("d2 vertical distance from the plane", kGap + figures({wires_.d2}));
  tell("d1 distance of the hanging points from the plane ", kGap + figures({wires_.d1}));
  tell("hanging points x, y ", figures({0 - c.halfSpan, 0}) + " : " + figures({c.halfSpan, 0}));
  tell("vertex  ", figures({0, 0 - c.sag}, 4));
}

// The declination is mirrored where a wall is turned by exactly a quarter: there its cosine is
// negative, by the circle constant, but the angle is not beyond the quarter.
void Drawing::CatenariaAnalemma() {
  const double D = p_.DeclRad;
  const double side =
      run_.trueShadows() ? 1 : Sgn(std::cos(D)) * (std::abs(D) > p_.PiGreco / 2 ? -1 : 1);
  Tracer tracer(run_, Pen::kNoLimit);
  tracer.analemma(
      {.colour = palette(13), .layer = sheet_.layer("analemma"), .family = CurveFamily::Analemma},
      [&](const Trig& H, const Trig& delta, Punto& point) {
        PuntoCatenaria(wires_, sky_, H, Trig(side * delta.angle), point);
        return true;
      });
}

// The wires from above: the wall upright, the distances across it.
void Drawing::CatenariaSezione() {
  const double s = wires_.d2, d1 = wires_.d1, sag = wires_.chain.sag;
  sheet_.xLine(0, 0, 0, 1, palette(15));
  sheet_.xLine(0, 0, s, 0, palette(13));
  sheet_.xLine(0, 0, s, 0, palette(13));
  sheet_.xLine(s, 0, s, 1, palette(11));
  sheet_.xLine(0, 0, d1, 0, palette(15));
  sheet_.xLine(d1, 0, d1, sag, palette(9));
  sheet_.xLine(0, 0, 0, sag, palette(12), {.layer = sheet_.layer("arrow")});
  sheet_.xLine(-sag / 10, 0.9 * sag, 0, sag, palette(12));
  sheet_.xLine(sag / 10, 0.9 * sag, 0, sag, palette(12));
}

// The hour angles at which a day's sun stands in an azimuth (from the South, West positive): two
// for a sun that turns back, as it does between the tropics. Midnight stands for what does not
// come. Both solve cos A*sin H - sin(lat)*sin A*cos H = -cos(lat)*sin A*tan(delta), as do those of
// the opposite azimuth.
std::array<double, 2> hoursInAzimuth(double azimuth, double sinLat, double cosLat,
                                     double tanDelta) {
  const double sine = std::sin(azimuth), cosine = std::cos(azimuth);
  const double turn = std::atan2(sinLat * sine, cosine);
  const double way = over(cosLat * sine * tanDelta, std::hypot(cosine, sinLat * sine));
  const auto orMidnight = [&](double H) {
    const double south = sinLat * std::cos(H) - cosLat * tanDelta;
    return std::sin(H) * sine + south * cosine > 0 ? H : std::numbers::pi;
  };
  if (!(std::abs(way) <= 1)) return {std::numbers::pi, std::numbers::pi};
  const double aside = std::asin(way);
  return {orMidnight(turn - aside), orMidnight(turn + std::numbers::pi + aside)};
}

// The suns that stand in the azimuth of a holy place, for a chain of its own whose sag is txtAO.
// The sun in azimuth A: sin H - sin(lat)*tan A*cos H = -cos(lat)*tan A*tan(delta).
void Drawing::CatenariaQibla() {
  const double psi = p_.radians(read(Field::txtQlat));
  const double east = p_.radians(read(Field::txtQlon) - read(Field::txtLON));
  const double sinLat = std::sin(p_.LatRad), cosLat = std::cos(p_.LatRad);
  const double tangent = over(std::sin(east), sinLat * std::cos(east) - cosLat * std::tan(psi));
  double azimuth = 0, B = 0;
  assign(azimuth, arctan(tangent));
  if (Sgn(std::sin(east)) != Sgn(std::sin(azimuth)))
    azimuth += azimuth < 0 ? p_.PiGreco : -p_.PiGreco;
  assign(B, arctan(sinLat * tangent));

  const bool onlyTrue = run_.trueShadows();
  const Fili wires{wires_.d1, wires_.d2, chainOf(onlyTrue ? Field::txtV1 : Field::txtAO)};
  const Window window(run_);
  const Ink ink{.colour = palette(2), .family = CurveFamily::Qibla};
  Punto point;
  const auto mark = [&](double hour, const Trig& delta, double hourOfPlace) {
    PuntoCatenaria(wires, sky_, Trig(hour), delta, point);
    if (window.holds(point)) dot(sheet_, point, ink, {hourOfPlace, delta.angle});
  };
  double w = 0, H = 0;
  for (const double degrees : kYear.in(run_)) {
    const Trig delta(p_.radians(degrees));
    const double tanDelta = delta.sine / delta.cosine;
    const auto hours = hoursInAzimuth(azimuth, sinLat, cosLat, tanDelta);
    if (onlyTrue) {
      for (const double hour : hours) mark(hour, delta, hour);
      continue;
    }
    assign(w, p_.LatRad == 0 ? tanDelta : over(tanDelta * std::sin(B), std::tan(p_.LatRad)));
    if (!(std::abs(w) <= 1)) continue;
    assign(H, B - p_.ArcSin(w));
    const auto off = [&](double hour) {
      return std::abs(std::remainder(hour - H, 2 * p_.PiGreco));
    };
    mark(H, delta, off(hours[0]) <= off(hours[1]) ? hours[0] : hours[1]);
  }
  sheet_.Dati("", 0.9, -0.3);
  sheet_.Dati(run_.T("Qibla: azimuth ") + textOf(truncated(p_.degrees(azimuth), 5)) + "°");
}

}  // namespace

void QuadranteCatenaria(Run& run) {
  if (refusesSouth(run)) return;
  run.hourglass(true);
  readUsaLongitudine(run);
  assign(run.params.PassoOre, over(15, run.number(Field::TxtHour)));
  readWall(run);
  run.sheet.Messaggio(run.T(run.params.DeclRad != 0
                                ? "Bifilar, declining, vertical catenary dial by vectors"
                                : "Bifilar, south facing, vertical catenary dial by vectors"));
  Drawing(run).all();
  run.hourglass(false);
}

}  // namespace dialwright
