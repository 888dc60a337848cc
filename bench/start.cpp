// From the start of the program to a finished DXF file of program 7, against the same run in a
// process that is there already, with its DXF in memory and in a file.
#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "app/exporting.hpp"
#include "app/program.hpp"
#include "least.hpp"
#include "persist/safe_file.hpp"

namespace dialwright {
namespace {

namespace fs = std::filesystem;

constexpr int kRepetitions = 60;

// A folder that goes with the measurement, on a file system in memory where there is one: what the
// disk takes until it holds a file for sure is no business of either.
class Folder {
 public:
  Folder() { fs::create_directories(path_); }
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  const fs::path& path() const { return path_; }

 private:
  fs::path path_ =
      (fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path()) /
      ("dialwright-bench-" + std::to_string(getpid()));
};

// Runs the command line and waits for its end.
void execute(std::vector<std::string> words) {
  words.insert(words.begin(), DIALWRIGHT_PROGRAM);
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  pid_t process = 0;
  int status = 0;
  if (posix_spawn(&process, DIALWRIGHT_PROGRAM, nullptr, nullptr, arguments.data(), environ) != 0 ||
      waitpid(process, &status, 0) != process || status != 0)
    std::abort();
}

// The work of all processes that were waited for.
double secondsOfChildren() {
  rusage usage{};
  getrusage(RUSAGE_CHILDREN, &usage);
  const auto seconds = [](const timeval& t) {
    return static_cast<double>(t.tv_sec) + 1e-6 * static_cast<double>(t.tv_usec);
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

struct Times {
  double passed = 0, worked = 0;  // seconds, the least of all repetitions
};

Times timesOf(const std::vector<std::string>& words) {
  Times least{HUGE_VAL, HUGE_VAL};
  for (int i = 0; i < kRepetitions; ++i) {
    const double start = secondsOn(CLOCK_MONOTONIC), worked = secondsOfChildren();
    execute(words);
    least.passed = std::min(least.passed, secondsOn(CLOCK_MONOTONIC) - start);
    least.worked = std::min(least.worked, secondsOfChildren() - worked);
  }
  return least;
}

Times timesHere(const std::function<void()>& task) {
  return {leastSeconds(CLOCK_MONOTONIC, kRepetitions, task),
          leastSeconds(CLOCK_PROCESS_CPUTIME_ID, kRepetitions, task)};
}

void toAFinishedDxf(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    const Folder folder;
    const std::string file = (folder.path() / "started.dxf").string();
    const Times whole = timesOf({"run", "7", "-q", "--folder", folder.path().string(), "-o", file});
    const Times bare = timesOf({"--version"});
    Program program({folder.path(), DIALWRIGHT_DATA_DIR, ""});
    const ExportFormat* dxf = findExportFormat("dxf");
    const auto draw = [&program] {
      program.sheet().Clear();
      program.click(Item::mnuUni);
      program.CmdRun_Click();
    };
    std::size_t bytes = 0;
    const Times memory = timesHere([&] {
      draw();
      bytes = 0;
      dxf->write(program, {}, [&bytes](std::string_view chunk) { bytes += chunk.size(); });
    });
    const Times filed = timesHere([&] {
      draw();
      replaceFile(folder.path() / "here.dxf",
                  [&](const Sink& sink) { dxf->write(program, {}, sink); });
    });
    if (fs::file_size(file) != bytes) std::abort();
    state.counters["bare_ms"] = 1e3 * bare.passed;
    state.counters["memory_ms"] = 1e3 * memory.passed;
    state.counters["file_ms"] = 1e3 * filed.passed;
    state.counters["whole_ms"] = 1e3 * whole.passed;
    state.counters["to_memory"] = whole.passed / memory.passed;
    state.counters["to_memory_work"] = whole.worked / memory.worked;
    state.counters["to_file"] = whole.passed / filed.passed;
    state.counters["to_file_work"] = whole.worked / filed.worked;
  }
}

BENCHMARK(toAFinishedDxf)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace dialwright
