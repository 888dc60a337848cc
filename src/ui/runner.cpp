// Timers around the worker.
#include "ui/runner.hpp"

#include "ui/text.hpp"

namespace dialwright {

namespace {

constexpr int kDelay = 150;     // milliseconds; a quick typist's keys come closer together
constexpr int kPatience = 100;  // a run that is longer shows itself
constexpr int kPulse = 100;

}  // namespace

Runner::Runner(Program& program, QObject* parent)
    : QObject(parent),
      program_(program),
      worker_(
          program, [this](RunWorker::Job& job) { done(job); },
          [this](const proof::LayerProof& strokes) { proved(strokes); }, nullptr) {
  delay_.setSingleShot(true);
  delay_.setInterval(kDelay);
  patience_.setSingleShot(true);
  patience_.setInterval(kPatience);
  pulse_.setInterval(kPulse);
  connect(&delay_, &QTimer::timeout, this, &Runner::startLive);
  connect(&patience_, &QTimer::timeout, this, [this] {
    slow_ = true;
    pulse_.start();
    emit slow(true);
  });
  connect(&pulse_, &QTimer::timeout, this, [this] {
    if (worker_.current() != nullptr) emit progress(worker_.current()->samples);
  });
}

void Runner::setLive(bool live) {
  makeLive(live);
  if (!live) delay_.stop();
  inputsChanged();
}

void Runner::inputsChanged() {
  if (live_) delay_.start();
}

void Runner::startLive() { start(true, false); }

void Runner::run() {
  const RunWorker::Job* current = worker_.current();
  const bool liveDue = delay_.isActive() || (current != nullptr && !current->asked);
  start(liveDrawing_ || liveDue, true);
}

void Runner::runLoaded() { start(live_ || liveDrawing_, true); }

void Runner::draw(std::function<void()> action) {
  afterwards_.push_back(std::move(action));
  if (!busy()) drawRest();
}

void Runner::drawRest() {
  while (!afterwards_.empty()) {
    const std::function<void()> action = std::move(afterwards_.front());
    afterwards_.erase(afterwards_.begin());
    liveDrawing_ = false;
    action();
  }
}

void Runner::start(bool anew, bool asked) {
  delay_.stop();
  worker_.start(program_.prepareRun(anew), asked);
  if (!slow_) patience_.start();
}

void Runner::cancel() {
  delay_.stop();
  worker_.cancel();
  afterwards_.clear();
  ended();
}

void Runner::ended() {
  patience_.stop();
  pulse_.stop();
  if (slow_) emit slow(false);
  slow_ = false;
}

void Runner::done(RunWorker::Job& job) {
  ended();
  if (job.whole) {
    program_.adopt(std::move(job.run));
    liveDrawing_ = !job.asked;
    emit drawn();
  }
  tell(job);
  drawRest();
}

// Behind the word of the run itself.
void Runner::proved(const proof::LayerProof& strokes) {
  if (strokes.genuine == strokes.strokes) return;
  const QString sentence =
      shown(program_.T("%1 of %2 strokes are no shadows; with \"%3\" a run leaves them out."))
          .arg(strokes.strokes - strokes.genuine)
          .arg(strokes.strokes)
          .arg(shown(program_.panel()[Field::ckTrue].caption));
  emit remark(remark_.isEmpty() ? sentence : remark_ + "   " + sentence);
}

void Runner::tell(const RunWorker::Job& job) {
  remark_ = job.asked || job.messages.empty() ? QString() : shown(job.messages.back());
  emit remark(remark_);
  if (!job.asked) return;
  if (job.beeped) emit beep();
  for (const std::string& text : job.messages) emit message(shown(text));
}

}  // namespace dialwright
