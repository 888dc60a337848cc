// The fountain's demonstration, its conics point by point at 0.0001 m, against the bare formula of
// the same samples kept in a list of as many numbers.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "dials/bifilar/level_dial.hpp"

namespace dialwright {
namespace {

constexpr double kStep = 0.0001;

bifilar::ShadowConic conicOf(double height) {
  const double sine = std::sin(height);
  return {-0.3 / sine, 0.3 / sine, 0.3, sine, 0.6, 0.8, {0.1, -0.1}, palette(7)};
}

struct Bare {
  double x, y;
  Rgb colour;
  LayerId layer;
};

void bareFormula(benchmark::State& state) {
  const bifilar::ShadowConic c = conicOf(0.8);
  std::vector<Bare> points;
  std::vector<char> kinds;
  for (auto _ : state) {
    points.clear();
    kinds.clear();
    for (const double side : {1.0, -1.0}) {
      for (double X = c.first; X <= c.last; X += kStep) {
        const double v = c.radius * c.radius - X * X * c.squeeze * c.squeeze;
        if (v < 0) continue;
        const double Y = side * std::sqrt(v);
        points.push_back({-(X * c.sine + Y * c.cosine + c.shift.x),
                          -(Y * c.sine - X * c.cosine + c.shift.y), c.colour, LayerId{}});
        kinds.push_back('P');
      }
    }
    benchmark::DoNotOptimize(points.data());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(points.size()));
}

void plotted(benchmark::State& state) {
  Panel panel;
  DialParams params;
  SheetPlot sheet;
  sheet.QuadranteH(2.8);
  sheet.QuadranteL(2);
  sheet.ShiftX(1);
  sheet.ShiftY(1.4);
  const bifilar::ShadowConic conic = conicOf(0.8);
  const Ports ports;
  std::size_t count = 0;
  for (auto _ : state) {
    sheet.Clear();
    Run run(panel, params, sheet, ports);
    bifilar::plot(run, conic);
    count = sheet.list().points.size();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(count));
}

BENCHMARK(bareFormula);
BENCHMARK(plotted);

}  // namespace
}  // namespace dialwright
