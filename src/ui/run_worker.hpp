// Runs in a thread beside the window: one at a time, the newest wins.
#pragma once

#include <QObject>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "app/program.hpp"

namespace dialwright {

class RunWorker : public QObject {
 public:
  struct Job {
    SpareRun run;
    bool asked;  // by the Run button
    std::vector<std::string> messages;
    bool beeped = false;
    bool whole = true;  // false when it was cut short by a failure, which is the last message
    std::atomic<double> samples = 0;
    std::atomic<bool> cancelled = false;
  };

  // `done` is called in the window's thread for each run that was neither cancelled nor overtaken.
  RunWorker(const Program& program, std::function<void(Job&)> done, QObject* parent);
  ~RunWorker() override;

  // Starts a run. The one under way ends at its next curve, and what it drew is lost.
  void start(SpareRun run, bool asked);
  void cancel();

  // The run under way, or none.
  const Job* current() const { return current_.get(); }

 private:
  void work(const std::stop_token& stop);
  std::shared_ptr<Job> next(const std::stop_token& stop);
  void make(Job& job) const;
  void deliver(const std::shared_ptr<Job>& job);

  const Program& program_;
  std::function<void(Job&)> done_;
  std::shared_ptr<Job> current_;  // the window's view of things

  std::mutex mutex_;
  std::condition_variable_any wake_;
  std::shared_ptr<Job> waiting_;  // guarded by the mutex
  std::jthread thread_;
};

}  // namespace dialwright
