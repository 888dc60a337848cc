// The fountain's demonstration, its conics point by point at 0.0001 m, and the declination curves
// of wire and chain, each against the bare formula of the same samples kept in a list of as many
// numbers.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "dials/bifilar/bifilar_frame.hpp"
#include "dials/bifilar/catenaria.hpp"
#include "dials/bifilar/level_dial.hpp"
#include "shell/clicks.hpp"

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

// What a run works with; the sheet is large enough for every dial here.
struct Table {
  Table() {
    sheet.QuadranteH(2.8);
    sheet.QuadranteL(2);
    sheet.ShiftX(1);
    sheet.ShiftY(1.4);
  }
  Panel panel;
  DialParams params;
  SheetPlot sheet;
};

void plotted(benchmark::State& state) {
  Table table;
  const bifilar::ShadowConic conic = conicOf(0.8);
  const Ports ports;
  std::size_t count = 0;
  for (auto _ : state) {
    table.sheet.Clear();
    Run run(table.panel, table.params, table.sheet, ports);
    bifilar::plot(run, conic);
    count = table.sheet.list().points.size();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(count));
}

BENCHMARK(bareFormula);
BENCHMARK(plotted);

// --- Wire and chain

constexpr double kCurves[] = {-kSolstice, kSolstice, -kTwentieth, kTwentieth,
                              -kEleventh, kEleventh, 0,           0};

struct BareLine {
  double x1, y1, x2, y2;
  Rgb colour;
  int width;
  LayerId layer;
};

void bareCatenary(benchmark::State& state) {
  const double rad = 3.141592654 / 180;
  const double sinLat = std::sin(45.7438 * rad), cosLat = std::cos(45.7438 * rad);
  const double sinD = std::sin(-14.57 * rad), cosD = std::cos(-14.57 * rad);
  const double d1 = 0.1, d2 = 0.2, sag = 0.25, f = bifilar::RisolviCatena(0.5, sag).f;
  std::vector<BareLine> lines;
  std::vector<char> kinds;
  std::int64_t samples = 0;
  for (auto _ : state) {
    lines.clear();
    kinds.clear();
    double px = 0, py = 0;
    for (const double declination : kCurves) {
      const double sinDelta = std::sin(declination * rad), cosDelta = std::cos(declination * rad);
      bool first = true;
      for (double t = -179; t <= 179; t += 0.05) {
        ++samples;
        const double sinH = std::sin(t * rad), cosH = std::cos(t * rad);
        const double noon = cosH * cosDelta, across = cosLat * sinDelta - noon * sinLat;
        const double Sx = cosD * cosDelta * sinH + sinD * across;
        const double Sy = -noon * cosLat - sinDelta * sinLat;
        const double Sz = -sinD * cosDelta * sinH + cosD * across;
        const double x = -d2 * Sx / Sz;
        const double v = (d1 - d2) * Sx / Sz / f;
        const double y = -d1 * Sy / Sz + f * (std::exp(v) + std::exp(-v)) / 2 - sag - f;
        if (!(x > -0.5 && x < 0.5 && y > -1 && y < 0.2)) continue;
        if (!first && std::sqrt((x - px) * (x - px) + (y - py) * (y - py)) < 0.02) {
          lines.push_back({x, -y, px, -py, palette(12), 1, LayerId{}});
          kinds.push_back('L');
        }
        first = false;
        px = x;
        py = y;
      }
    }
    benchmark::DoNotOptimize(lines.data());
  }
  state.counters["lines"] = static_cast<double>(lines.size());
  state.SetItemsProcessed(samples);
}

// With the noon line and the chain, which are an eightieth of it.
void catenary(benchmark::State& state) {
  Table table;
  const Ports ports;
  clickItem(table.panel, table.params, Item::mnucatenaria,
            [](std::string_view text) { return std::string(text); });
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    if (rowOf(fieldAt(i)).kind == FieldKind::Check) table.panel.setState(fieldAt(i), false);
  }
  for (const Field box : {Field::Ck_DayLightCurves, Field::ckRomani, Field::ckArabi})
    table.panel.setState(box, true);
  std::size_t lines = 0;
  std::int64_t samples = 0;
  for (auto _ : state) {
    table.sheet.Clear();
    Run run(table.panel, table.params, table.sheet, ports);
    QuadranteCatenaria(run);
    lines = table.sheet.list().lines.size();
    samples += 8 * 7161;
  }
  state.counters["lines"] = static_cast<double>(lines);
  state.SetItemsProcessed(samples);
}

BENCHMARK(bareCatenary);
BENCHMARK(catenary);

}  // namespace
}  // namespace dialwright
