// The growth of program 7's run with its samples: one, ten and a hundred times as many, by the
// fields that set how fine they are. The time of a sample is to stay that of the coarsest run.
#include <benchmark/benchmark.h>

#include <cmath>
#include <filesystem>

#include "app/program.hpp"
#include "least.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {
namespace {

constexpr int kRepetitions = 15;
constexpr double kDays = 2 * 23.445;  // degrees of declination, of a line's samples

// Program 7 with one box and one field of its own.
class Universal {
 public:
  explicit Universal(Field box) {
    program_.click(Item::mnuUni);
    for (std::size_t i = 0; i < kFieldCount; ++i) {
      if (rowOf(fieldAt(i)).kind == FieldKind::Check)
        program_.panel().setState(fieldAt(i), fieldAt(i) == box);
    }
  }
  // Seconds of a run's work.
  double run(Field field, double number) {
    program_.panel().setText(field, textOf(number));
    return leastSeconds(CLOCK_PROCESS_CPUTIME_ID, kRepetitions, [this] {
      program_.sheet().Clear();
      program_.CmdRun_Click();
    });
  }
  std::size_t entities() const { return program_.sheet().list().size(); }

 private:
  Program program_{{std::filesystem::temp_directory_path(), DIALWRIGHT_DATA_DIR, "en"}};
};

// `samples` gives how many a run has for a number of the field.
template <class Samples>
void growth(benchmark::State& state, Field box, Field field, const double (&numbers)[3],
            Samples samples) {
  double perSample[3] = {};
  for ([[maybe_unused]] auto _ : state) {
    Universal dial(box);
    for (int i = 0; i < 3; ++i) perSample[i] = dial.run(field, numbers[i]) / samples(numbers[i]);
    state.counters["entities"] = static_cast<double>(dial.entities());
  }
  state.counters["samples"] = samples(numbers[2]);
  state.counters["ns_per_sample"] = 1e9 * perSample[0];
  state.counters["ratio_10x"] = perSample[1] / perSample[0];
  state.counters["ratio_100x"] = perSample[2] / perSample[0];
}

// Ever more hour lines, from -90 to 90 degrees, each with a sample every 0.05 degrees.
void byFractionsOfTheHour(benchmark::State& state) {
  growth(state, Field::chkOreAstronomiche, Field::TxtHour, {1, 10, 100},
         [](double parts) { return (12 * parts + 1) * std::floor(kDays / 0.05 + 1); });
}

// Altitude lines, every 10 degrees up to the solstice's noon, of ever shorter steps.
void byDefinition(benchmark::State& state) {
  growth(state, Field::ckAlt, Field::txt_Definition, {20, 2, 0.2},
         [](double definition) { return 6 * std::floor(kDays / (0.005 * definition) + 1); });
}

BENCHMARK(byFractionsOfTheHour)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(byDefinition)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace dialwright
