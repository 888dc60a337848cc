// A printer whose pages are drawn on a target that draws on paper.
#pragma once

#include <string_view>

#include "paper/picture.hpp"
#include "sheet/printing.hpp"

namespace dialwright {

// What remains for a printer of its own is how a page and the document end.
template <class Target>
class TargetPrinter : public Printer {
 public:
  // `device` is what the target draws on.
  template <class Device>
  explicit TargetPrinter(Device& device)
      : target_(device, {.width = kPaperLine * kTwipsPerMeter}) {}

  void clear() override {}
  void line(double x1, double y1, double x2, double y2, Rgb colour, int width) override {
    target_.line(x1, y1, x2, y2, colour, width);
  }
  void dotted(bool on) override { target_.dotted(on); }
  void point(double x, double y, Rgb colour) override { target_.point(x, y, colour); }
  void circle(const TargetCircle& circle) override { target_.circle(circle); }
  void box(double x1, double y1, double x2, double y2, Rgb colour, bool filled) override {
    target_.box(x1, y1, x2, y2, colour, filled);
  }
  void text(double x, double y, std::string_view text, Rgb colour) override {
    target_.text(x, y, text, colour);
  }

 protected:
  Target target_;
};

}  // namespace dialwright
