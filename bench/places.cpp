// The world's coastlines on program 7's plane, against the bare projection of as many points.
#include <benchmark/benchmark.h>

#include <cmath>
#include <fstream>
#include <sstream>

#include "numerics/projection.hpp"
#include "shell/clicks.hpp"
#include "shell/places.hpp"

namespace dialwright {
namespace {

std::string mapText() {
  std::ifstream file(DIALWRIGHT_DATA_DIR "/mondo.csv");
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

void drawWorld(benchmark::State& state) {
  Panel panel;
  DialParams params;
  clickItem(panel, params, Item::mnuUni, [](std::string_view text) { return std::string(text); });
  panel[Field::cmbStati].text = kWholeWorld;
  params.Stilo = 0.2;
  params.InclinGradi = 90;
  const WorldTable world = readWorld(mapText(), panel.number(Field::txtLON));
  const Ports ports;
  std::size_t segments = 0;
  for ([[maybe_unused]] auto _ : state) {
    SheetPlot sheet;
    Run run(panel, params, sheet, ports);
    DisegnaMondo(run, world);
    segments = sheet.list().size();
  }
  state.counters["points"] = static_cast<double>(world.rows.size());
  state.counters["segments"] = static_cast<double>(segments);
}

void bareProjection(benchmark::State& state) {
  const WorldTable world = readWorld(mapText(), -7.6438);
  const Angles angles;
  const Piano plane{0.2, angles.radians(45.7438), angles.radians(-14.57), angles.radians(90)};
  for ([[maybe_unused]] auto _ : state) {
    for (const WorldTable::Row& row : world.rows) {
      Punto point = ProiezioneSferica(plane, angles.radians(row.AngoloOrario),
                                      angles.radians(row.Declinazione));
      benchmark::DoNotOptimize(point);
    }
  }
}

BENCHMARK(drawWorld)->Unit(benchmark::kMillisecond);
BENCHMARK(bareProjection)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace dialwright
