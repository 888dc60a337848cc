// The background of the stereographic chart: the ring of hours, the circles of the days and the
// signs beside the horizon.
#include <array>
#include <cmath>

#include "diagrams/chart_circles.hpp"
#include "diagrams/stereographic.hpp"
#include "dials/pen.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"
#include "lettering/arabic.hpp"
#include "lettering/roman.hpp"
#include "lettering/zodiac.hpp"
#include "shell/dispatch.hpp"

namespace dialwright {

namespace {

constexpr int kRingInk = 5;
constexpr double kSignsBeyond = 0.1;  // metres, outside the horizon
constexpr double kLeastSquare = 2;    // square metres: of a sign's abscissa

// A stretch of the ring of hours, degrees counter-clockwise from the West: the hour at an angle a
// is base - a/15. Midnight has no numeral.
struct HourStretch {
  double first, last, base;
};
constexpr std::array<HourStretch, 3> kHourStretches = {{{0, 75, 6}, {90, 255, 18}, {285, 345, 30}}};

// The signs at the ends of a day's circle beside the horizon: of the winter solstice, the summer
// solstice and the equinox.
struct DaySigns {
  double declination;  // of the ring's opposite, degrees
  SegnoZodiaco* left;
  SegnoZodiaco* right;
};
constexpr std::array<DaySigns, 3> kDaySigns = {{{kSolstice, SegnoZodiaco1, SegnoZodiaco1},
                                                {-kSolstice, SegnoZodiaco11, SegnoZodiaco11},
                                                {0, SegnoZodiaco12, SegnoZodiaco6}}};

class Background {
 public:
  explicit Background(Run& run) : run_(run), p_(run.params), sheet_(run.sheet), R_(p_.Raggio) {
    const double summer = ring(p_, R_, -kSolstice);
    outer_ = (summer - summer / 20) * 9 / 10;
    inner_ = (summer - summer / 5) * 9 / 10;
    middle_ = (summer - summer / 10) * 9 / 10;
  }

  void all() {
    rims();
    ticks(0, 15, inner_);
    numerals();
    // The quarters start at a quarter turn's number of radians, taken as degrees.
    ticks(run_.trueShadows() ? 0 : p_.PiGreco / 2, 15.0 / 4, middle_);
    days();
    signs();
  }

 private:
  void rims();
  void ticks(double first, double step, double inner);
  void numerals();
  void days();
  void day(double d, int ink);
  Punto beyondSunset(double r) const;
  void besideMeridian(Punto& at, double r) const;
  void signs();

  Run& run_;
  DialParams& p_;
  SheetPlot& sheet_;
  double R_;
  double outer_, inner_, middle_;  // radii of the hours' rings
};

void Background::rims() {
  circle(sheet_, {0, 0}, outer_, palette(kRingInk));
  circle(sheet_, {0, 0}, inner_, palette(kRingInk));
  const double end = ring(p_, R_, kSolstice);
  line(sheet_, {0, -end}, {0, end}, palette(kRingInk));
}

void Background::ticks(double first, double step, double inner) {
  for (const double a : run_.sweep(first, 360, step)) {
    const double cosA = std::cos(p_.radians(a)), sinA = std::sin(p_.radians(a));
    line(sheet_, {inner * cosA, inner * sinA}, {outer_ * cosA, outer_ * sinA}, palette(kRingInk));
  }
}

// Both kinds are turned by a quarter turn less the ring's angle, so that they turn against the
// ring: Arabic heads point to the centre at 135 and 315 degrees only.
void Background::numerals() {
  const double r = inner_ * 9 / 10;
  for (const HourStretch& stretch : kHourStretches) {
    for (const double a : run_.sweep(stretch.first, stretch.last, 15)) {
      const double x = r * std::cos(p_.radians(a)), y = r * std::sin(p_.radians(a));
      const int hour = static_cast<int>(stretch.base - a / 15);
      if (run_.on(Field::ckRomani)) {
        DisegnaNumeroRomano(run_, x, y, p_.PiGreco / 2 - p_.radians(a), hour, 2);
      } else {
        DisegnaNumeroArabo(run_, x, y, 90 - a, hour, hour >= 10 ? 2 : 1);
      }
    }
  }
}

void Background::days() {
  for (const double d : run_.sweep(2, 22, 2)) day(d, kDayInk);
  for (const double d : run_.sweep(-22, -2, 2)) day(d, kDayInk);
  day(kSolstice, kWinterInk);
  day(-kSolstice, kSummerInk);
}

// The circle of declination -d. Every one has the arc of a winter's day, also that of a summer's,
// unless it is to be true.
void Background::day(double d, int ink) {
  const double c = cosineOfSemiArc(p_.LatRad, p_.radians(d));
  if (std::abs(c) > 1) return;
  dayArc(p_, sheet_, R_, -d, p_.ArcCos(run_.trueShadows() ? -c : std::abs(c)), ink);
}

// Where a ring meets the horizon in the West, and kSignsBeyond further outwards.
Punto Background::beyondSunset(double r) const {
  const double sine = std::sin(p_.LatRad), cosine = std::cos(p_.LatRad);
  const double y = (r * r - R_ * R_) / (2 * R_) * sine / cosine;
  const double x = std::sqrt(r * r - y * y);
  return {x + kSignsBeyond * sine * x / R_, y + kSignsBeyond * (sine * y / R_ - cosine)};
}

// At the height where a ring meets the circle that runs kSignsBeyond outside the horizon. It goes
// beside the meridian on a large chart only; else both signs of a day stand on it.
void Background::besideMeridian(Punto& at, double r) const {
  const double centre = over(R_, std::tan(p_.LatRad));
  const double q = over(R_, std::sin(p_.LatRad)) + kSignsBeyond;
  assign(at.y, over(r * r - q * q + centre * centre, 2 * centre));
  const double square = r * r - at.y * at.y;
  if (square > kLeastSquare) assign(at.x, root(square));
}

void Background::signs() {
  Punto at;
  for (const DaySigns& signs : kDaySigns) {
    const double r = ring(p_, R_, signs.declination);
    if (run_.trueShadows()) {
      assign(at, beyondSunset(r));
    } else {
      besideMeridian(at, r);
    }
    signs.left(run_, -at.x, at.y, 90, 1);
    signs.right(run_, at.x, at.y, 90, 1);
  }
  sheet_.Dati("", at.x, sheetY(at.y));
}

}  // namespace

void SfondoStereografico(Run& run) {
  if (run.number(Field::txtLAT) < 0) {
    run.refuse(run.T(kSouthernMessage));
    return;
  }
  Background(run).all();
  run.hourglass(false);
}

}  // namespace dialwright
