// What the dials' drawings have in common: what they draw from and on, and how a run begins and
// ends.
#pragma once

#include <string_view>

#include "dials/pen.hpp"
#include "shell/dispatch.hpp"

namespace dialwright {

// A drawing of one run: its panel, record, sheet and window.
class PanelDrawing {
 protected:
  explicit PanelDrawing(Run& run) : run_(run), p_(run.params), sheet_(run.sheet), window_(run) {}

  bool on(Field field) const { return run_.on(field); }
  double number(Field field) const { return run_.number(field); }

  Run& run_;
  DialParams& p_;
  SheetPlot& sheet_;
  const Window window_;
};

// Draws under the frame, when its box is checked, and a caption, with the hourglass on.
template <class Draw>
void drawFramed(Run& run, std::string_view caption, Draw draw) {
  DisegnaCornice(run);
  run.hourglass(true);
  run.sheet.Messaggio(run.T(caption));
  draw();
  run.hourglass(false);
}

}  // namespace dialwright
