// The run's context: the one argument of a driver. It refers to a program's panel, record and sheet
// and to the ports to the user, and owns nothing.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "numerics/sweep.hpp"
#include "sheet/sheet_plot.hpp"
#include "shell/dial_params.hpp"
#include "shell/panel.hpp"

namespace dialwright {

// What a run asks of the face that started it. Each may be empty.
struct Ports {
  std::function<void(std::string_view)> message;  // a plain message box
  std::function<bool(std::string_view)> ask;      // a question with the answers Yes and No
  std::function<void(bool)> hourglass;            // the busy pointer on and off
  std::function<void()> beep;
  std::function<std::string(std::string_view)> translate;  // a text in the program's language
  std::function<void(double)> progress;                    // samples taken so far
  std::function<bool()> cancelled;                         // asked between curves
};

// The fields that a sweep's step and bound come from, named in the message when they can't be used.
struct SweepFields {
  Field step = Field::None;
  Field bound = Field::None;
};

class Run {
 public:
  static constexpr double kMaxSamples = 50'000'000;
  static constexpr std::size_t kMaxEntities = 5'000'000;

  Run(Panel& panel_, DialParams& params_, SheetPlot& sheet_, const Ports& ports);
  ~Run();
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

  Panel& panel;
  DialParams& params;
  SheetPlot& sheet;

  double number(Field field) const { return panel.number(field); }
  bool on(Field field) const { return panel.on(field); }
  // True when the drawing is to hold nothing but what a shadow follows.
  bool trueShadows() const { return on(Field::ckTrue); }
  std::string T(std::string_view text) const;

  // A message box; the run goes on.
  void message(std::string_view text) const;
  // The message of a dial that can't work with its input: nothing is drawn.
  void refuse(std::string_view text);
  // A beep and a caption instead of a message; nothing is drawn.
  void refuseByCaption(std::string_view caption);
  void beep() const;
  void hourglass(bool busy) const;

  // The counted loop from first to last by step. Empty, with one message for the whole run, when
  // the step is not above zero or there would be more than two million samples; empty as well once
  // the run has taken its share of samples, has stored its share of entities, or was cancelled.
  Sweep sweep(double first, double last, double step, SweepFields fields = {});

  // The end of the run: tells when the sheet has taken no more.
  void finish();

  bool refused() const { return refused_; }
  bool stopped() const { return stopped_; }

 private:
  void complain(SweepFields fields, bool badStep);
  void stop(std::string_view why);

  const Ports& ports_;
  double samples_ = 0;
  bool complained_ = false;
  bool stopped_ = false;
  bool refused_ = false;
};

}  // namespace dialwright
