// Draws what touches a part of the sheet into pixels.
#include "paper/screen.hpp"

#include <algorithm>

#include "paper/cairo_target.hpp"
#include "paper/picture.hpp"
#include "paper/surface.hpp"

namespace dialwright {

namespace {

// Lets through what touches a rectangle (twips), until it is stopped.
class Window : public DrawTarget {
 public:
  Window(DrawTarget& target, const Segment& sides, const std::function<bool()>& stopped)
      : target_(target), sides_(sides), stopped_(stopped) {}

  void clear() override {}
  void line(double x1, double y1, double x2, double y2, Rgb colour, int width) override {
    if (!touches(x1, y1, x2, y2)) return;
    target_.line(x1, y1, x2, y2, colour, width);
  }
  void dotted(bool on) override { target_.dotted(on); }
  void point(double x, double y, Rgb colour) override {
    if (touches(x, y, x, y)) target_.point(x, y, colour);
  }
  void circle(const TargetCircle& c) override {
    if (touches(c.x - c.radius, c.y - c.radius, c.x + c.radius, c.y + c.radius)) target_.circle(c);
  }
  void box(double x1, double y1, double x2, double y2, Rgb colour, bool filled) override {
    if (touches(x1, y1, x2, y2)) target_.box(x1, y1, x2, y2, colour, filled);
  }
  void text(double x, double y, std::string_view text, Rgb colour) override {
    if (!halted() && x < sides_.x2 && y < sides_.y2 && y > sides_.y1 - kTextLine) {
      target_.text(x, y, text, colour);
    }
  }

 private:
  static constexpr int kBetweenLooks = 256;

  bool halted() {
    if (!halted_ && stopped_ && ++since_ >= kBetweenLooks) {
      since_ = 0;
      halted_ = stopped_();
    }
    return halted_;
  }
  bool touches(double x1, double y1, double x2, double y2) {
    const auto [left, right] = std::minmax(x1, x2);
    const auto [top, bottom] = std::minmax(y1, y2);
    return right >= sides_.x1 && left <= sides_.x2 && bottom >= sides_.y1 && top <= sides_.y2 &&
           !halted();
  }

  DrawTarget& target_;
  Segment sides_;
  const std::function<bool()>& stopped_;
  int since_ = 0;
  bool halted_ = false;
};

// What lies outside the sheet is drawn nowhere.
void clipToSheet(cairo_t* cairo, const SheetFrame& frame) {
  cairo_rectangle(cairo, 0, 0, frame.width * frame.factor, frame.height * frame.factor);
  cairo_clip(cairo);
}

}  // namespace

void paintScreen(const SheetPlot& sheet, const ScreenPart& part, const PixelBlock& block,
                 const std::function<bool()>& stopped) {
  SheetFrame frame = sheet.frame();
  frame.black = false;
  const double pixels = part.pixelsPerMeter / frame.factor;  // of a twip
  const CairoSurface surface(cairo_image_surface_create_for_data(
      reinterpret_cast<unsigned char*>(block.pixels), CAIRO_FORMAT_RGB24, part.width, part.height,
      block.bytesOfRow));
  const CairoContext cairo(cairo_create(surface.get()));
  setSource(cairo.get(), sheet.BackColor);
  cairo_paint(cairo.get());
  cairo_translate(cairo.get(), -part.left, -part.top);
  cairo_scale(cairo.get(), pixels, pixels);
  clipToSheet(cairo.get(), frame);
  {
    CairoTarget target(cairo.get(), {.inks = Inks::Own,
                                     .ground = sheet.BackColor,
                                     .width = 1 / pixels,
                                     .textSize = kTextSize,
                                     .pixel = 1 / pixels});
    const double rim = 2 / pixels;
    Window window(
        target,
        {part.left / pixels - rim, part.top / pixels - rim, (part.left + part.width) / pixels + rim,
         (part.top + part.height) / pixels + rim},
        stopped);
    drawPicture(sheet, frame, window);
  }
  cairo_surface_flush(surface.get());
}

}  // namespace dialwright
