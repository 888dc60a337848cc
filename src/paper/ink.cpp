// Finds the pages with ink by drawing the picture on a target that only marks them.
#include "paper/ink.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "paper/picture.hpp"
#include "paper/surface.hpp"

namespace dialwright {

namespace {

constexpr double kTouch = 0.05;  // twips: a shorter piece of a line leaves no ink

struct Range {
  int first, last;
};

// The grid in twips from the sheet's corner.
class InkFinder : public DrawTarget {
 public:
  InkFinder(const SheetPlot& sheet, const CairoTarget& ruler)
      : grid_(sheet),
        pageW_(sheet.PageW() * kTwipsPerMeter),
        pageH_(sheet.PageH() * kTwipsPerMeter),
        ruler_(ruler),
        inked_(static_cast<std::size_t>(grid_.pages())) {}

  std::vector<int> numbers() const {
    std::vector<int> found;
    for (std::size_t i = 0; i < inked_.size(); ++i) {
      if (inked_[i]) found.push_back(static_cast<int>(i) + 1);
    }
    return found;
  }

  void clear() override {}

  // The sheet's page grid and page frames, which are dotted, are no part of the drawing.
  void dotted(bool on) override { aid_ = on; }

  void line(double x1, double y1, double x2, double y2, Rgb, int) override {
    if (aid_) return;
    const Range columns = cells(x1, x2, pageW_, grid_.columns());
    const Range rows = cells(y1, y2, pageH_, grid_.rows());
    const bool onePage = columns.first == columns.last && rows.first == rows.last;
    for (int row = rows.first; row <= rows.last; ++row) {
      for (int column = columns.first; column <= columns.last; ++column) {
        if (onePage || pieceOn(column, row, {x1, y1, x2, y2})) mark(column, row);
      }
    }
  }

  void point(double x, double y, Rgb) override { area(x, y, x, y); }

  void circle(const TargetCircle& circle) override {
    constexpr int kChords = 360;
    const auto at = [&](int chord) {
      const double angle = circle.start() + circle.sweep() * chord / kChords;
      return std::pair{circle.x + circle.radiusX() * std::cos(angle),
                       circle.y - circle.radiusY() * std::sin(angle)};
    };
    const auto chordTo = [&](auto from, auto to) {
      line(from.first, from.second, to.first, to.second, 0, 1);
    };
    const std::pair centre{circle.x, circle.y};
    for (int chord = 0; chord < kChords; ++chord) chordTo(at(chord), at(chord + 1));
    if (!circle.whole() && circle.startAngle < 0) chordTo(centre, at(0));
    if (!circle.whole() && circle.endAngle < 0) chordTo(centre, at(kChords));
    if (circle.whole() && circle.fill >= 0) {
      area(circle.x - circle.radiusX(), circle.y - circle.radiusY(), circle.x + circle.radiusX(),
           circle.y + circle.radiusY());
    }
  }

  void box(double x1, double y1, double x2, double y2, Rgb, bool filled) override {
    if (filled) return area(x1, y1, x2, y2);
    line(x1, y1, x2, y1, 0, 1);
    line(x2, y1, x2, y2, 0, 1);
    line(x2, y2, x1, y2, 0, 1);
    line(x1, y2, x1, y1, 0, 1);
  }

  void text(double x, double y, std::string_view text, Rgb) override {
    if (text.find_first_not_of(' ') == std::string_view::npos) return;
    area(x, y, x + ruler_.widthOf(text), y + ruler_.heightOfText());
  }

 private:
  // The cells of the grid between two places; empty off the grid.
  static Range cells(double a, double b, double side, int count) {
    const auto cell = [&](double at) {
      return static_cast<int>(std::clamp(std::floor(at / side), -1.0, static_cast<double>(count)));
    };
    const Range range{cell(std::min(a, b) - kTouch), cell(std::max(a, b) + kTouch)};
    return {std::max(range.first, 0), std::min(range.last, count - 1)};
  }

  bool pieceOn(int column, int row, Segment piece) const {
    SheetFrame page;
    page.width = pageW_;
    page.height = pageH_;
    page.shiftX = -column * pageW_;
    page.shiftY = -row * pageH_;
    page.paper = true;
    return page.clip(piece) != 0 && std::hypot(piece.x2 - piece.x1, piece.y2 - piece.y1) > kTouch;
  }

  void area(double x1, double y1, double x2, double y2) {
    const Range columns = cells(x1, x2, pageW_, grid_.columns());
    const Range rows = cells(y1, y2, pageH_, grid_.rows());
    for (int row = rows.first; row <= rows.last; ++row) {
      for (int column = columns.first; column <= columns.last; ++column) mark(column, row);
    }
  }

  void mark(int column, int row) {
    const int cell = row * grid_.columns() + column;
    inked_[static_cast<std::size_t>(cell)] = true;
  }

  PageGrid grid_;
  double pageW_;
  double pageH_;
  const CairoTarget& ruler_;
  std::vector<bool> inked_;
  bool aid_ = false;
};

}  // namespace

std::vector<int> inkedPages(const SheetPlot& sheet) {
  const PageGrid grid(sheet);
  if (grid.pages() == 0) return {};
  const CairoSurface scratch(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr));
  const CairoContext cairo(cairo_create(scratch.get()));
  const CairoTarget ruler(cairo.get(), {.textSize = textSizeAt(sheet, 1)});
  InkFinder finder(sheet, ruler);
  SheetFrame frame = sheet.frame();  // the last pages reach over the sheet's edge
  frame.factor = kTwipsPerMeter;
  frame.width = grid.columns() * sheet.PageW();
  frame.height = grid.rows() * sheet.PageH();
  frame.paper = true;
  drawPicture(sheet, frame, finder);
  return finder.numbers();
}

}  // namespace dialwright
