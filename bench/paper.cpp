// The paper against Cairo alone: the same segments in curves, from the display list and from an
// array.
#include <benchmark/benchmark.h>
#include <cairo-pdf.h>
#include <cairo.h>

#include <cmath>
#include <vector>

#include "paper/picture.hpp"
#include "paper/surface.hpp"

namespace dialwright {
namespace {

constexpr int kCurves = 200;
constexpr int kSegments = 500;  // of a curve

struct Stroke {
  double x1, y1, x2, y2;
  Rgb colour;
};

// Two hundred waves in six colours over a sheet of 1.99 x 2.80 m.
std::vector<Stroke> strokes() {
  std::vector<Stroke> all;
  for (int curve = 0; curve < kCurves; ++curve) {
    const auto at = [curve](int i) {
      const double t = static_cast<double>(i) / kSegments;
      return std::pair{-0.9 + 1.8 * t, 0.005 * curve + 0.2 * std::sin(6 * t + curve * 0.05)};
    };
    for (int i = 0; i < kSegments; ++i) {
      const auto [x1, y1] = at(i);
      const auto [x2, y2] = at(i + 1);
      all.push_back({x1, y1, x2, y2, palette(9 + curve % 6)});
    }
  }
  return all;
}

SheetPlot sheetOf(const std::vector<Stroke>& all) {
  SheetPlot sheet;
  sheet.QuadranteH(2.80);
  sheet.QuadranteL(1.99);
  sheet.ShiftX(0.995);
  sheet.ShiftY(0.84);
  // As a dial's pen draws: from each new point back to the one before.
  for (const Stroke& s : all) sheet.xLine(s.x2, s.y2, s.x1, s.y1, s.colour);
  return sheet;
}

// A sink that only counts.
struct Counter {
  std::size_t bytes = 0;
  Sink sink = [this](std::string_view chunk) { bytes += chunk.size(); };
};

// The array drawn as a careful user of Cairo would: one path a curve.
void drawArray(cairo_t* cairo, const std::vector<Stroke>& all, double factor, double width) {
  cairo_set_line_width(cairo, width);
  cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(cairo, CAIRO_LINE_JOIN_ROUND);
  const Stroke* last = nullptr;
  for (const Stroke& s : all) {
    if (last == nullptr || last->x2 != s.x1 || last->y2 != s.y1 || last->colour != s.colour) {
      cairo_stroke(cairo);
      setSource(cairo, s.colour);
      cairo_move_to(cairo, (s.x1 + 0.995) * factor, (s.y1 + 0.84) * factor);
    }
    cairo_line_to(cairo, (s.x2 + 0.995) * factor, (s.y2 + 0.84) * factor);
    last = &s;
  }
  cairo_stroke(cairo);
}

void pdfByCairo(benchmark::State& state) {
  const std::vector<Stroke> all = strokes();
  Counter out;
  for (auto _ : state) {
    CairoSink to{out.sink};
    const CairoSurface surface = pdfSurface(to, 1.99, 2.80);
    const CairoContext cairo = pdfContext(surface.get());
    drawArray(cairo.get(), all, kTwipsPerMeter, kPaperLine * kTwipsPerMeter);
    benchmark::DoNotOptimize(finish(surface.get(), to));
  }
  state.counters["bytes"] =
      static_cast<double>(out.bytes) / static_cast<double>(state.iterations());
}

void pdfOfSheet(benchmark::State& state) {
  const SheetPlot sheet = sheetOf(strokes());
  Counter out;
  for (auto _ : state)
    benchmark::DoNotOptimize(
        writePdf(sheet, out.sink, {.scale = 1, .inks = Inks::Paper, .lineWidth = kPaperLine}));
  state.counters["bytes"] =
      static_cast<double>(out.bytes) / static_cast<double>(state.iterations());
}

void pngByCairo(benchmark::State& state) {
  const std::vector<Stroke> all = strokes();
  Counter out;
  const double factor = kTwipsPerMeter / 5 / kPixel;
  for (auto _ : state) {
    const CairoSurface surface(
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, static_cast<int>(std::ceil(1.99 * factor)),
                                   static_cast<int>(std::ceil(2.80 * factor))));
    const CairoContext cairo(cairo_create(surface.get()));
    cairo_paint(cairo.get());
    drawArray(cairo.get(), all, factor, 1);
    CairoSink to{out.sink};
    cairo_surface_write_to_png_stream(surface.get(), writeToSink, &to);
  }
  state.counters["bytes"] =
      static_cast<double>(out.bytes) / static_cast<double>(state.iterations());
}

void pngOfSheet(benchmark::State& state) {
  const SheetPlot sheet = sheetOf(strokes());
  Counter out;
  for (auto _ : state) benchmark::DoNotOptimize(writePng(sheet, out.sink));
  state.counters["bytes"] =
      static_cast<double>(out.bytes) / static_cast<double>(state.iterations());
}

BENCHMARK(pdfByCairo)->Unit(benchmark::kMillisecond);
BENCHMARK(pdfOfSheet)->Unit(benchmark::kMillisecond);
BENCHMARK(pngByCairo)->Unit(benchmark::kMillisecond);
BENCHMARK(pngOfSheet)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace dialwright
