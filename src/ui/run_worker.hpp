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
#include "proof/scene.hpp"

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

  using Done = std::function<void(Job&)>;
  using Proved = std::function<void(const proof::LayerProof& strokes)>;

  // Both are called in the window's thread, for each run that was neither cancelled nor overtaken:
  // `done` when it is drawn, then `proved` when its strokes have been held against the shadows, if
  // the dial has any and the run didn't leave the others out.
  RunWorker(const Program& program, Done done, Proved proved, QObject* parent);
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
  struct Trial;
  static std::unique_ptr<Trial> trialOf(const Job& job);
  void prove(const std::shared_ptr<Job>& job, const Trial& trial);
  void deliver(const std::shared_ptr<Job>& job);

  const Program& program_;
  Done done_;
  Proved proved_;
  std::shared_ptr<Job> current_;  // the window's view of things
  std::shared_ptr<Job> drawn_;    // whose proof may be under way

  std::mutex mutex_;
  std::condition_variable_any wake_;
  std::shared_ptr<Job> waiting_;  // guarded by the mutex
  std::jthread thread_;
};

}  // namespace dialwright
