// When the dial is drawn: at the press of Run, and by itself soon after each change ("live").
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include "ui/run_worker.hpp"

namespace dialwright {

class Runner : public QObject {
  Q_OBJECT

 public:
  Runner(Program& program, QObject* parent);

  bool isLive() const { return live_; }
  // Switched on, it draws what the panel says.
  void setLive(bool live);
  // The same at a start, which draws nothing.
  void makeLive(bool live) { live_ = live; }

  // The panel is new: soon draws it in the place of what the sheet holds, when live.
  void inputsChanged();
  // The Run button: draws on top of what the sheet holds. Where that is a drawing that was made
  // live, the same lines would stand twice: this run then takes its place.
  void run();
  // A loaded project is drawn at once; live, it doesn't pile up on the one before.
  void runLoaded();
  // Draws something else on the sheet, which the next press of Run leaves there: now, or after the
  // run that is due or under way.
  void draw(std::function<void()> action);

  void cancel();
  // A run is due or under way.
  bool busy() const { return worker_.current() != nullptr || delay_.isActive(); }

 signals:
  void drawn();                       // the sheet and the panel are new
  void message(const QString& text);  // of a run that was asked for: a message box
  // Of a live run, or what its strokes are worth; empty when there is nothing to say.
  void remark(const QString& text);
  void beep();
  void slow(bool running);  // a run takes longer than a moment; or it has ended
  void progress(double samples);

 private:
  void startLive();
  void start(bool anew, bool asked);
  void done(RunWorker::Job& job);
  void proved(const proof::LayerProof& strokes);
  void tell(const RunWorker::Job& job);
  void drawRest();
  void ended();

  Program& program_;
  QTimer delay_;     // from the last key to the live run
  QTimer patience_;  // from a run's start to the first word about it
  QTimer pulse_;     // from word to word
  bool live_ = true;
  bool liveDrawing_ = false;
  bool slow_ = false;
  QString remark_;  // of the last run
  std::vector<std::function<void()>> afterwards_;
  RunWorker worker_;
};

}  // namespace dialwright
