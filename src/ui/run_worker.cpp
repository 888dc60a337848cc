// The thread and its one place for a waiting run.
#include "ui/run_worker.hpp"

#include <QMetaObject>
#include <exception>
#include <new>

#include "proof/scenes.hpp"

namespace dialwright {

namespace {

constexpr std::size_t kMostProved = 1'000'000;  // strokes; a copy of more takes too much memory

}  // namespace

// What is proved: a copy, since the window takes the drawing away.
struct RunWorker::Trial {
  proof::Scene scene;
  DisplayList drawn;
};

RunWorker::RunWorker(const Program& program, Done done, Proved proved, QObject* parent)
    : QObject(parent),
      program_(program),
      done_(std::move(done)),
      proved_(std::move(proved)),
      thread_([this](const std::stop_token& stop) { work(stop); }) {}

RunWorker::~RunWorker() {
  cancel();
  thread_.request_stop();
  thread_.join();
}

void RunWorker::start(SpareRun run, bool asked) {
  cancel();
  current_ = std::make_shared<Job>(std::move(run), asked);
  {
    const std::lock_guard lock(mutex_);
    waiting_ = current_;
  }
  wake_.notify_one();
}

void RunWorker::cancel() {
  for (std::shared_ptr<Job>* job : {&current_, &drawn_}) {
    if (*job) (*job)->cancelled = true;
    job->reset();
  }
}

std::shared_ptr<RunWorker::Job> RunWorker::next(const std::stop_token& stop) {
  std::unique_lock lock(mutex_);
  wake_.wait(lock, stop, [this] { return waiting_ != nullptr; });
  return stop.stop_requested() ? nullptr : std::move(waiting_);
}

void RunWorker::work(const std::stop_token& stop) {
  while (const std::shared_ptr<Job> job = next(stop)) {
    make(*job);
    const std::unique_ptr<Trial> trial = trialOf(*job);
    QMetaObject::invokeMethod(
        this, [this, job] { deliver(job); }, Qt::QueuedConnection);
    if (trial) prove(job, *trial);
  }
}

// None for strokes that are no worse than shadows: those of a run with `ckTrue` have been judged.
std::unique_ptr<RunWorker::Trial> RunWorker::trialOf(const Job& job) {
  const DisplayList& drawn = job.run.sheet.list();
  if (!job.whole || job.cancelled || job.run.result != RunResult::Drawn ||
      job.run.panel.on(Field::ckTrue) || drawn.size() > kMostProved)
    return nullptr;
  try {
    auto scene = proof::sceneOf(job.run.panel);
    return scene ? std::make_unique<Trial>(std::move(*scene), drawn) : nullptr;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

void RunWorker::prove(const std::shared_ptr<Job>& job, const Trial& trial) {
  const auto stopped = [&job] { return job->cancelled.load(); };
  proof::LayerProof strokes;
  try {
    strokes = proof::prove(trial.drawn, trial.scene, proof::kWithin, stopped).total();
  } catch (const std::bad_alloc&) {
    return;
  }
  QMetaObject::invokeMethod(
      this,
      [this, job, strokes] {
        if (job != drawn_) return;
        drawn_.reset();
        proved_(strokes);
      },
      Qt::QueuedConnection);
}

void RunWorker::make(Job& job) const {
  Ports ports;
  ports.message = [&job](std::string_view text) { job.messages.emplace_back(text); };
  ports.beep = [&job] { job.beeped = true; };
  ports.progress = [&job](double samples) { job.samples = samples; };
  ports.cancelled = [&job] { return job.cancelled.load(); };
  try {
    program_.make(job.run, ports);
  } catch (const std::exception& failure) {  // the memory may be full
    job.whole = false;
    job.messages.emplace_back(failure.what());
  }
}

void RunWorker::deliver(const std::shared_ptr<Job>& job) {
  if (job != current_) return;
  drawn_ = std::move(current_);
  done_(*job);
}

}  // namespace dialwright
