// The flat dials against their bare arithmetic: the projection against PROJ's gnomonic one, program
// 7 against its formula alone, program 1 against as many tangents, square roots and stores.
#include <benchmark/benchmark.h>

#include <cmath>
#include <string>
#include <vector>

#ifdef DIALWRIGHT_HAS_PROJ
#include <proj.h>
#endif

#include "dials/flat/sky_curves.hpp"
#include "dials/flat/universale.hpp"
#include "dials/flat/verticale_luce.hpp"
#include "dials/flat/verticale_sferica.hpp"
#include "dials/sun.hpp"
#include "shell/clicks.hpp"
#include "shell/dispatch.hpp"

namespace dialwright {
namespace {

constexpr Piano kPlane{0.2, 0.7984, -0.2543, 1.2};

// --- The projection through the pen

constexpr double kStep =
    0.01;  // degrees of declination, for 13 hours from six to six: 60 thousand points

void projectThroughThePen(benchmark::State& state) {
  Panel panel;
  DialParams params;
  SheetPlot sheet;
  const Ports ports;
  std::size_t points = 0;
  for (auto _ : state) {
    sheet.Clear();
    Run run(panel, params, sheet, ports);
    const Window window(run);
    const Projection project(kPlane);
    Pen pen(sheet, kSkyGap);
    Punto point;
    points = 0;
    for (const double t : run.sweep(-90, 90, 15)) {
      const Projection::Hour shadow = project.atHour(params.radians(t));
      const Sweep declinations = run.sweep(-kSolstice, kSolstice, kStep);
      for (const double degrees : declinations) {
        assign(point, shadow(std::tan(params.radians(degrees))));
        pen.visit(point, TracciaCurva(window, 1, point, degrees > declinations.first()));
        ++points;
      }
    }
  }
  state.counters["points"] = static_cast<double>(points);
  state.counters["segments"] = static_cast<double>(sheet.list().lines.size());
  state.SetItemsProcessed(static_cast<std::int64_t>(points) * state.iterations());
}
BENCHMARK(projectThroughThePen)->Unit(benchmark::kMillisecond);

#ifdef DIALWRIGHT_HAS_PROJ
// The same suns on the sphere of the sky, projected on the plane's pole in one call. PROJ works in
// place: each round takes a fresh copy of the suns, whose cost is the memory's and small.
void projectWithProj(benchmark::State& state) {
  std::vector<PJ_COORD> suns;
  const Angles angles;
  for (const double t : Sweep(-90, 90, 15)) {
    for (const double degrees : Sweep(-kSolstice, kSolstice, kStep)) {
      suns.push_back(proj_coord(angles.radians(t), angles.radians(degrees), 0, 0));
    }
  }
  PJ* gnomonic = proj_create(PJ_DEFAULT_CTX, "+proj=gnom +lat_0=-30 +lon_0=10 +R=0.2");
  std::vector<PJ_COORD> places;
  for (auto _ : state) {
    places = suns;
    proj_trans_array(gnomonic, PJ_FWD, places.size(), places.data());
    benchmark::DoNotOptimize(places.data());
  }
  proj_destroy(gnomonic);
  state.SetItemsProcessed(static_cast<std::int64_t>(suns.size()) * state.iterations());
}
BENCHMARK(projectWithProj)->Unit(benchmark::kMillisecond);
#endif

// --- Whole runs

// A dial with every box but that of true shadows on, run again and again on an emptied sheet.
void runDial(benchmark::State& state, Item item, Driver driver) {
  Panel panel;
  DialParams params;
  SheetPlot sheet;
  const Ports ports;
  sheet.QuadranteH(kPageH * 10);
  sheet.QuadranteL(kPageW * 10);
  sheet.ShiftX(sheet.QuadranteL() / 2);
  sheet.ShiftY(sheet.QuadranteH() / 3.333333);
  clickItem(panel, params, item, [](std::string_view text) { return std::string(text); });
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field = fieldAt(i);
    if (rowOf(field).kind == FieldKind::Check) panel.setState(field, field != Field::ckTrue);
  }
  const DriverRow row{item, driver};
  for (auto _ : state) {
    sheet.Clear();
    Run run(panel, params, sheet, ports);
    CmdRun_Click(run, {&row, 1});
  }
  state.counters["entities"] = static_cast<double>(sheet.list().size());
}

void program7(benchmark::State& state) { runDial(state, Item::mnuUni, DisegnaUniversale); }
BENCHMARK(program7)->Unit(benchmark::kMillisecond);

// The formula alone for the samples of the same run, its points kept in an array: what the plane
// fixes is worked out beforehand, the sun's hour angle comes from each family's own formula.
class BareFormula {
 public:
  const std::vector<Punto>& all() {
    points_.clear();
    for (const double t : Sweep(-90, 90, 15)) {
      days(0.05, [&](double) { return angles_.radians(t); });
    }
    for (const double declination :
         {kSolstice, kSolstice, kTwentieth, kTwentieth, kEleventh, kEleventh, 0.0}) {
      for (const double t : Sweep(-120, 120, 0.1))
        add(angles_.radians(t), angles_.radians(declination));
    }
    for (const double n : Sweep(4, 22, 1)) {
      days(0.2, [&](double d) { return n * pi / 12 + arc(d) - 2 * pi + pi / 12; });
    }
    for (const double n : Sweep(0, 12, 1)) {
      days(0.2, [&](double d) { return n * pi / 12 - arc(d) + pi / 12; });
      days(0.5, [&](double d) { return arc(d) * (n / 6 - 1); });
    }
    for (const double L : Sweep(-80, 280, 360 / kDaysOfYear)) {
      const SunOfDay sun = sunAtMeanLongitude(angles_, angles_.radians(L), 0.4093);
      add(sun.equationOfTime, sun.declination);
    }
    for (const double azimuth : Sweep(-90, 90, 15)) {
      const double b = std::atan(std::sin(lat) * std::tan(angles_.radians(azimuth)));
      days(0.05,
           [&](double d) { return b - angles_.ArcSin(std::tan(d) * std::sin(b) / std::tan(lat)); });
    }
    days(0.005, [&](double d) {
      return 0.3 - angles_.ArcSin(std::tan(d) * std::sin(0.3) / std::tan(lat));
    });
    days(0.05, [&](double d) { return hourOfAltitude(std::atan(1 / (1 + std::tan(lat - d))), d); });
    for (const double side : {-1.0, 1.0}) {
      for (const double altitude : Sweep(10, 90 - angles_.degrees(lat) + kSolstice, 10)) {
        days(0.025, [&](double d) { return side * hourOfAltitude(angles_.radians(altitude), d); });
      }
    }
    return points_;
  }

 private:
  template <class HourAngle>
  void days(double step, HourAngle&& hourAngle) {
    for (const double degrees : Sweep(-kSolstice, kSolstice, step)) {
      const double d = angles_.radians(degrees);
      add(hourAngle(d), d);
    }
  }
  double arc(double d) const { return semiDiurnalArcOrHalfTurn(angles_, cosineOfSemiArc(lat, d)); }
  double hourOfAltitude(double altitude, double d) const {
    return angles_.ArcCos((std::sin(altitude) - std::sin(lat) * std::sin(d)) /
                          (std::cos(lat) * std::cos(d)));
  }
  void add(double H, double d) {
    points_.push_back(project_(std::sin(H), std::cos(H), std::tan(d)));
  }

  static constexpr double lat = kPlane.LatRad;
  Angles angles_;
  double pi = angles_.PiGreco;
  Projection project_{kPlane};
  std::vector<Punto> points_;
};

void program7BareFormula(benchmark::State& state) {
  BareFormula formula;
  std::size_t points = 0;
  for (auto _ : state) {
    points = formula.all().size();
    benchmark::DoNotOptimize(points);
  }
  state.counters["points"] = static_cast<double>(points);
}
BENCHMARK(program7BareFormula)->Unit(benchmark::kMillisecond);

void program6(benchmark::State& state) { runDial(state, Item::mnuVertSph, DisegnaVerticale); }
BENCHMARK(program6)->Unit(benchmark::kMillisecond);

void program1(benchmark::State& state) { runDial(state, Item::M_Light, DisegnaVerticaleLuce); }
BENCHMARK(program1)->Unit(benchmark::kMillisecond);

// As many tangents and square roots as the formulas of that run take, evaluated where they stand
// (counted with wrapped library calls), and as many records kept.
void program1BareArithmetic(benchmark::State& state) {
  constexpr int tangents = 109676, roots = 92453, lines = 8861, points = 20280;
  DisplayList list;
  double sum = 0;
  for (auto _ : state) {
    list.clear();
    for (int i = 0; i < tangents; ++i) sum += std::tan(-1.5 + i * (3.0 / tangents));
    for (int i = 0; i < roots; ++i) sum += std::sqrt(i * (4.0 / roots));
    for (int i = 0; i < lines; ++i) list.add(LineRecord{sum, 0, sum, 1, palette(7), 1, {}});
    for (int i = 0; i < points; ++i) list.add(PointRecord{sum, 0, palette(7), {}});
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(program1BareArithmetic)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace dialwright
