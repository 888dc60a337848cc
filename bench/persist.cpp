// Saving and loading a project, against the least that the format asks for: copying its bytes three
// times with a stride of two.
#include <benchmark/benchmark.h>

#include "persist/project.hpp"
#include "shell/clicks.hpp"

namespace dialwright {
namespace {

struct Project {
  Panel panel;
  SheetPlot sheet;
  std::string bytes;

  // With a text of that many characters in one field.
  explicit Project(std::int64_t length) {
    DialParams params;
    clickItem(panel, params, Item::mnuVertSph,
              [](std::string_view text) { return std::string(text); });
    panel.setText(Field::txtLocation, std::string(static_cast<std::size_t>(length), 'x'));
    bytes = progettoDi(panel, sheet);
  }
};

void countBytes(benchmark::State& state, const Project& project) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(project.bytes.size()));
}

void threeCopies(benchmark::State& state) {
  const Project project(state.range());
  for (auto _ : state) {
    std::string copy = Ricomponi(Ricomponi(Ricomponi(project.bytes)));
    benchmark::DoNotOptimize(copy.data());
  }
  countBytes(state, project);
}

void saving(benchmark::State& state) {
  const Project project(state.range());
  for (auto _ : state) {
    std::string bytes = progettoDi(project.panel, project.sheet);
    benchmark::DoNotOptimize(bytes.data());
  }
  countBytes(state, project);
}

void loading(benchmark::State& state) {
  Project project(state.range());
  for (auto _ : state) {
    bool loaded = leggiProgetto(project.bytes, project.panel, project.sheet);
    benchmark::DoNotOptimize(loaded);
  }
  countBytes(state, project);
}

BENCHMARK(threeCopies)->Arg(4)->Arg(1'000'000);
BENCHMARK(saving)->Arg(4)->Arg(1'000'000);
BENCHMARK(loading)->Arg(4)->Arg(1'000'000);

}  // namespace
}  // namespace dialwright
