// The least time of several repetitions: what a task takes while nothing else disturbs it.
#pragma once

#include <algorithm>
#include <ctime>
#include <limits>

namespace dialwright {

inline double secondsOn(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

// Seconds on a clock: CLOCK_MONOTONIC as they pass, CLOCK_PROCESS_CPUTIME_ID of this process's
// work.
template <class Task>
double leastSeconds(clockid_t clock, int repetitions, Task task) {
  double least = std::numeric_limits<double>::infinity();
  for (int i = 0; i < repetitions; ++i) {
    const double start = secondsOn(clock);
    task();
    least = std::min(least, secondsOn(clock) - start);
  }
  return least;
}

}  // namespace dialwright
