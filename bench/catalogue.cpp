// The whole catalogue: every dial with its click's defaults and all boxes on but that of true
// shadows, written to DXF. One figure for the time and one for the memory, against what the largest
// display list needs.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sys/resource.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "app/program.hpp"
#include "sheet/dxf.hpp"

namespace dialwright {
namespace {

std::filesystem::path scratchFolder() {
  return std::filesystem::temp_directory_path() / "dialwright_catalogue";
}

void checkEverything(Program& program) {
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field = fieldAt(i);
    if (rowOf(field).kind == FieldKind::Check)
      program.panel().setState(field, field != Field::ckTrue);
  }
}

// Bytes of the heap in use.
double heap() { return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd); }

void everyDial(benchmark::State& state) {
  double entities = 0, list = 0, needed = 0, written = 0;
  for ([[maybe_unused]] auto _ : state) {
    entities = list = needed = written = 0;
    for (const DriverRow& row : drivers()) {
      Program program(ProgramConfig{scratchFolder(), DIALWRIGHT_DATA_DIR, "en"});
      program.click(row.item);
      checkEverything(program);
      const double before = heap();
      program.CmdRun_Click();
      DXF_Generate(program.sheet(), program.params().PiGreco, [&written](std::string_view bytes) {
        written += static_cast<double>(bytes.size());
      });
      const double bytes = static_cast<double>(program.sheet().list().bytes());
      entities += static_cast<double>(program.sheet().list().size());
      if (bytes > list) {
        list = bytes;
        needed = heap() - before;
      }
    }
  }
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  state.counters["dials"] = static_cast<double>(drivers().size());
  state.counters["entities"] = entities;
  state.counters["DXF_MB"] = written / 1e6;
  state.counters["largest_list_MB"] = list / 1e6;
  state.counters["heap_MB"] = needed / 1e6;
  state.counters["peak_MB"] = static_cast<double>(usage.ru_maxrss) / 1e3;
}

BENCHMARK(everyDial)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
}  // namespace dialwright
