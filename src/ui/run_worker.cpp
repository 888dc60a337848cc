// The thread and its one place for a waiting run.
#include "ui/run_worker.hpp"

#include <QMetaObject>
#include <exception>

namespace dialwright {

RunWorker::RunWorker(const Program& program, std::function<void(Job&)> done, QObject* parent)
    : QObject(parent),
      program_(program),
      done_(std::move(done)),
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
  if (current_) current_->cancelled = true;
  current_.reset();
}

std::shared_ptr<RunWorker::Job> RunWorker::next(const std::stop_token& stop) {
  std::unique_lock lock(mutex_);
  wake_.wait(lock, stop, [this] { return waiting_ != nullptr; });
  return stop.stop_requested() ? nullptr : std::move(waiting_);
}

void RunWorker::work(const std::stop_token& stop) {
  while (const std::shared_ptr<Job> job = next(stop)) {
    make(*job);
    QMetaObject::invokeMethod(
        this, [this, job] { deliver(job); }, Qt::QueuedConnection);
  }
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
  current_.reset();
  done_(*job);
}

}  // namespace dialwright
