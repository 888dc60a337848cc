// Measures the writers against bare std::to_chars: the same numbers, from a flat array, in the form
// that the format asks for.
#include <benchmark/benchmark.h>

#include <charconv>
#include <cmath>
#include <vector>

#include "sheet/dxf.hpp"
#include "sheet/entity_list.hpp"
#include "sheet/svg.hpp"

namespace dialwright {
namespace {

constexpr int kLines = 200'000;
constexpr int kSegments = 500;  // of a curve
constexpr double kPi = 3.141592654;

// Curves, drawn as a pen does: from the new point back to the one before.
SheetPlot drawing() {
  SheetPlot sheet;
  sheet.QuadranteL(2);
  sheet.QuadranteH(2);
  sheet.ShiftX(1);
  sheet.ShiftY(1);
  const LayerId layer = sheet.layer("ore");
  double px = 0;
  double py = 0;
  for (int i = 0; i < kLines; ++i) {
    const int curve = i / kSegments;
    const double t = static_cast<double>(i % kSegments) / kSegments;
    const double x = 0.9 * std::cos(3 * t + curve);
    const double y = 0.9 * std::sin(5 * t);
    sheet.xLine(x, y, px, py, palette(curve % 16), {.layer = layer});
    px = x;
    py = y;
  }
  return sheet;
}

std::vector<double> coordinates(const SheetPlot& sheet, double unit) {
  std::vector<double> numbers;
  for (const LineRecord& line : sheet.list().lines) {
    for (const double number : {line.x1, line.y1, line.x2, line.y2})
      numbers.push_back(number * unit);
  }
  return numbers;
}

Sink counter(std::size_t& bytes) {
  return [&bytes](std::string_view chunk) { bytes += chunk.size(); };
}

// write(to, number) is one call of std::to_chars.
template <class Write>
void bare(benchmark::State& state, const std::vector<double>& numbers, Write write) {
  std::vector<char> buffer(numbers.size() * 32);
  for (auto _ : state) {
    char* at = buffer.data();
    for (const double number : numbers) {
      at = write(at, number);
      *at++ = '\n';
    }
    benchmark::DoNotOptimize(at);
    benchmark::ClobberMemory();
  }
}

void DxfWriter200000(benchmark::State& state) {
  SheetPlot sheet = drawing();
  std::size_t bytes = 0;
  for (auto _ : state) DXF_Generate(sheet, kPi, counter(bytes));
  state.counters["bytes"] = static_cast<double>(bytes) / static_cast<double>(state.iterations());
}

void DxfBare(benchmark::State& state) {
  bare(state, coordinates(drawing(), 1000), [](char* to, double number) {
    return std::to_chars(to, to + 32, number, std::chars_format::general, 15).ptr;
  });
}

void SvgWriter200000(benchmark::State& state) {
  const SheetPlot sheet = drawing();
  std::size_t bytes = 0;
  for (auto _ : state) writeSvg(sheet, counter(bytes));
  state.counters["bytes"] = static_cast<double>(bytes) / static_cast<double>(state.iterations());
}

// Half the numbers: a joined path holds each point once.
void SvgBare(benchmark::State& state) {
  std::vector<double> numbers = coordinates(drawing(), 1000);
  numbers.resize(numbers.size() / 2);
  bare(state, numbers, [](char* to, double number) {
    return std::to_chars(to, to + 32, number, std::chars_format::fixed, 3).ptr;
  });
}

void CsvWriter200000(benchmark::State& state) {
  const SheetPlot sheet = drawing();
  std::size_t bytes = 0;
  for (auto _ : state) writeEntityList(sheet.list(), counter(bytes));
  state.counters["bytes"] = static_cast<double>(bytes) / static_cast<double>(state.iterations());
}

void CsvBare(benchmark::State& state) {
  bare(state, coordinates(drawing(), 1),
       [](char* to, double number) { return std::to_chars(to, to + 32, number).ptr; });
}

BENCHMARK(DxfWriter200000)->Unit(benchmark::kMillisecond);
BENCHMARK(DxfBare)->Unit(benchmark::kMillisecond);
BENCHMARK(SvgWriter200000)->Unit(benchmark::kMillisecond);
BENCHMARK(SvgBare)->Unit(benchmark::kMillisecond);
BENCHMARK(CsvWriter200000)->Unit(benchmark::kMillisecond);
BENCHMARK(CsvBare)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace dialwright
