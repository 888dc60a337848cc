// Proving program 7 with every box on, against drawing it.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "app/program.hpp"

namespace {

using namespace dialwright;

// A program of the universal dial with all its boxes checked but for `ckTrue`.
struct Universal {
  Universal() : program({std::filesystem::temp_directory_path(), DIALWRIGHT_DATA_DIR, "en"}) {
    program.click(Item::mnuUni);
    for (std::size_t i = 0; i < kFieldCount; ++i) {
      const Field field = fieldAt(i);
      if (rowOf(field).kind == FieldKind::Check && field != Field::ckTrue &&
          field != Field::ckFunction)
        program.panel().setState(field, program.panel()[field].visible);
    }
  }
  Program program;
};

void drawAgain(benchmark::State& state, Program& program) {
  for (auto _ : state) {
    program.sheet().Clear();
    program.CmdRun_Click();
  }
}

// The yard-stick.
void drawing(benchmark::State& state) {
  Universal universal;
  drawAgain(state, universal.program);
}
BENCHMARK(drawing);

void drawingTrueShadowsOnly(benchmark::State& state) {
  Universal universal;
  universal.program.panel().setState(Field::ckTrue, true);
  drawAgain(state, universal.program);
}
BENCHMARK(drawingTrueShadowsOnly);

void drawingWithMeanings(benchmark::State& state) {
  Universal universal;
  universal.program.sheet().list().keepMeanings(true);
  drawAgain(state, universal.program);
}
BENCHMARK(drawingWithMeanings);

void proving(benchmark::State& state) {
  Universal universal;
  universal.program.sheet().list().keepMeanings(true);
  universal.program.CmdRun_Click();
  for (auto _ : state) benchmark::DoNotOptimize(universal.program.prove());
  state.counters["strokes"] = static_cast<double>(universal.program.prove()->total().strokes);
}
BENCHMARK(proving);

}  // namespace
