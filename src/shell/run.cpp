// The run's messages and its budget.
#include "shell/run.hpp"

namespace dialwright {

Run::Run(Panel& panel_, DialParams& params_, SheetPlot& sheet_, const Ports& ports)
    : panel(panel_), params(params_), sheet(sheet_), ports_(ports) {
  sheet.limit(sheet.list().size() + kMaxEntities);
}

Run::~Run() { sheet.limit(SheetPlot::kUnlimited); }

std::string Run::T(std::string_view text) const {
  return ports_.translate ? ports_.translate(text) : std::string(text);
}

void Run::message(std::string_view text) const {
  if (ports_.message) ports_.message(text);
}

void Run::refuse(std::string_view text) {
  refused_ = true;
  message(text);
}

void Run::refuseByCaption(std::string_view caption) {
  refused_ = true;
  beep();
  sheet.Messaggio(caption);
}

void Run::beep() const {
  if (ports_.beep) ports_.beep();
}

void Run::hourglass(bool busy) const {
  if (ports_.hourglass) ports_.hourglass(busy);
}

void Run::stop(std::string_view why) {
  if (!stopped_ && !why.empty()) message(why);
  stopped_ = true;
}

void Run::complain(SweepFields fields, bool badStep) {
  if (complained_) return;
  complained_ = true;
  const Field culprit = badStep || fields.bound == Field::None ? fields.step : fields.bound;
  std::string text = badStep ? T("Lines are left out: their step must be above 0, see the field ")
                             : T("Lines are left out: more than 2000000 samples, see the field ");
  if (culprit != Field::None) text += rowOf(culprit).name;
  message(text);
}

void Run::finish() {
  if (sheet.full()) stop(T("The drawing stops here: it has reached 5000000 entities."));
}

Sweep Run::sweep(double first, double last, double step, SweepFields fields) {
  finish();
  if (!stopped_ && ports_.cancelled && ports_.cancelled()) stop({});
  if (stopped_) return {};
  const Sweep range(first, last, step);
  const double count = range.samples();
  if (count == 0) {
    // An empty range is ordinary where the bounds cross; anything else is an input that can't be
    // sampled.
    if (!(step > 0))
      complain(fields, true);
    else if (!(last < first))
      complain(fields, false);
    return range;
  }
  if (samples_ + count > kMaxSamples) {
    stop(T("The drawing stops here: it has taken 50000000 samples."));
    return {};
  }
  samples_ += count;
  if (ports_.progress) ports_.progress(samples_);
  return range;
}

}  // namespace dialwright
