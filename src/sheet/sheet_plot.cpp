// The sheet's primitives: keep the record, then mirror, clip, map and draw it.
#include "sheet/sheet_plot.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "numerics/fault.hpp"

namespace dialwright {

namespace {

// A crossing computed on a segment may leave its bounding box by rounding; this much (metres) still counts as on it.
constexpr double kSlack = 1e-9;

struct Place {
  double x, y;
};

bool within(double value, double low, double high) { return value >= low && value <= high; }
bool strictlyWithin(double value, double low, double high) { return value > low && value < high; }

bool outsideBox(const Place& p, const Segment& box) {
  const auto [left, right] = std::minmax(box.x1, box.x2);
  const auto [low, high] = std::minmax(box.y1, box.y2);
  return !within(p.x, left - kSlack, right + kSlack) || !within(p.y, low - kSlack, high + kSlack);
}

// A call whose argument failed is a failed statement: it is skipped.
template <class... Numbers>
bool allSound(Numbers... numbers) {
  return (sound(numbers) && ...);
}

// Largest side of the sheet (metres, exclusive) for each scale: 0.564 m, 32000 twips, for each step of n.
struct ScaleBand {
  double below;
  int scale;
};
constexpr std::array<ScaleBand, 7> kScaleBands = {
    {{0.564, 1}, {1.128, 2}, {1.693, 3}, {2.257, 4}, {2.821, 5}, {5.643, 10}, {11.287, 20}}};
constexpr int kSmallestScale = 100;

}  // namespace

bool IntersezioneDueRette(const Segment& a, const Segment& b, double& x, double& y) {
  const double dAx = a.x2 - a.x1;
  const double dAy = a.y2 - a.y1;
  const double dBx = b.x2 - b.x1;
  const double dBy = b.y2 - b.y1;
  const double meetX = over((b.y1 - a.y1) * dAx * dBx + dAy * a.x1 * dBx - dBy * b.x1 * dAx, dAy * dBx - dBy * dAx);
  const double meetY = over((b.x1 - a.x1) * dAy * dBy + dAx * a.y1 * dBy - dBx * b.y1 * dAy, dAx * dBy - dBx * dAy);
  if (!sound(meetX) || !sound(meetY)) return false;
  x = meetX;
  y = meetY;
  return true;
}

SheetPlot::SheetPlot() : axesLayer_(list_.layer("AssiXY")), pagesLayer_(list_.layer("sys:page")) {}

void SheetPlot::QuadranteH(double metres) {
  quadranteH_ = std::min(metres, kLargest);
  growScale();
}

void SheetPlot::QuadranteL(double metres) {
  quadranteL_ = std::min(metres, kLargest);
  growScale();
}

void SheetPlot::resizeRaw(double height, double width) {
  quadranteH_ = height;
  quadranteL_ = width;
}

int SheetPlot::ScalaMinima() const {
  const double side = std::max(quadranteH_, quadranteL_);
  for (const ScaleBand& band : kScaleBands) {
    if (side < band.below) return band.scale;
  }
  return kSmallestScale;
}

void SheetPlot::Scala(int n) {
  if (n < 1 || (!OutputToPRN() && n < ScalaMinima())) return;
  setScale(n);
}

void SheetPlot::setScale(int n) {
  scala_ = n;
  screenFactor_ = kTwipsPerMeter * (1.0 / n);
}

void SheetPlot::growScale() {
  if (scala_ < ScalaMinima()) setScale(ScalaMinima());
}

template <class Record>
void SheetPlot::keep(const Record& record) {
  if (list_.size() >= limit_) {
    full_ = true;
    return;
  }
  list_.add(record);
}

void SheetPlot::xLine(double x1, double y1, double x2, double y2, Rgb colour, const LineStyle& style) {
  if (!allSound(x1, y1, x2, y2)) return;
  const LineRecord record{x1, y1, x2, y2, colour, style.width, style.layer};
  if (style.store) keep(record);
  if (target() != nullptr) draw(record);
}

void SheetPlot::draw(const LineRecord& line) {
  Segment segment{line.x1, line.y1, line.x2, line.y2};
  if (mirrors(line.layer)) {
    segment = {line.x1 * signX_, line.y1 * signY_, line.x2 * signX_, line.y2 * signY_};
  }
  drawClipped(segment, line.colour, line.width);
}

void SheetPlot::drawClipped(const Segment& segment, Rgb colour, int width) {
  Segment visible = segment;
  if (ClipToSheet(visible) == 0) return;
  target()->line(toTargetX(visible.x1), toTargetY(visible.y1), toTargetX(visible.x2), toTargetY(visible.y2), colour,
                 OutputToPRN() ? width : 1);
}

void SheetPlot::xPset(double x, double y, Rgb colour, LayerId layer, bool store) {
  const bool onSheet = x >= xMin() && x < xMax() && y >= yMin() && y < yMax();
  if (!onSheet) return;
  const PointRecord record{x, y, colour, layer};
  if (store) keep(record);
  if (target() != nullptr) draw(record);
}

void SheetPlot::draw(const PointRecord& point) {
  target()->point(toTargetX(point.x * signX_), toTargetY(point.y * signY_), point.colour);
}

void SheetPlot::xCircle(double x, double y, double radius, Rgb colour, const CircleStyle& style) {
  if (!allSound(x, y, radius) || !allSound(style.aspect, style.startAngle, style.endAngle)) return;
  const CircleRecord record{x,          y, radius, style.aspect, colour, style.fill, style.startAngle, style.endAngle,
                            style.layer};
  if (style.store) keep(record);
  if (target() != nullptr) draw(record);
}

void SheetPlot::draw(const CircleRecord& circle) {
  const TargetCircle mapped{toTargetX(circle.x * signX_),
                            toTargetY(circle.y * signY_),
                            circle.radius * screenFactor_,
                            circle.aspect,
                            circle.startAngle,
                            circle.endAngle,
                            circle.colour,
                            circle.fill};
  if (sound(mapped.x) && sound(mapped.y) && sound(mapped.radius)) target()->circle(mapped);
}

void SheetPlot::xBox(double x1, double y1, double x2, double y2, Rgb colour, bool filled, LayerId layer, bool store) {
  if (!allSound(x1, y1, x2, y2)) return;
  const BoxRecord record{x1, y1, x2, y2, colour, filled, layer};
  if (store) keep(record);
  if (target() != nullptr) draw(record);
}

void SheetPlot::draw(const BoxRecord& box) {
  const double x1 = toTargetX(box.x1 * signX_);
  const double y1 = toTargetY(box.y1 * signY_);
  const double x2 = toTargetX(box.x2 * signX_);
  const double y2 = toTargetY(box.y2 * signY_);
  if (sound(x1) && sound(y1) && sound(x2) && sound(y2)) target()->box(x1, y1, x2, y2, box.colour, box.filled);
}

void SheetPlot::xPlineStart(LayerId layer) { keep(VertexRecord{0, 0, 0, PolylineMark::Start, layer}); }

void SheetPlot::xPLineVertex(double x, double y, Rgb colour, LayerId layer) {
  keep(VertexRecord{x, y, colour, PolylineMark::Vertex, layer});
}

void SheetPlot::xPlineEnd(LayerId layer) {
  keep(VertexRecord{0, 0, 0, PolylineMark::End, layer});
  if (target() == nullptr) return;
  const std::vector<VertexRecord>& all = list_.vertices;
  std::size_t from = all.size();
  while (from > 0 && all[from - 1].mark != PolylineMark::Start) --from;
  for (std::size_t i = from; i + 1 < all.size() && all[i + 1].mark == PolylineMark::Vertex; ++i) {
    drawClipped({all[i].x, all[i].y, all[i + 1].x, all[i + 1].y}, all[i + 1].colour, 1);
  }
}

void SheetPlot::moveCursor(double xTwips, double yTwips) {
  cursorX_ = xTwips;
  cursorY_ = yTwips;
}

void SheetPlot::writeText(std::string_view text, std::optional<double> x, std::optional<double> y, bool store) {
  if (!allSound(x.value_or(0), y.value_or(0))) return;
  if (x) assign(cursorX_, toTargetX(*x));
  if (y) assign(cursorY_, toTargetY(*y));
  if (store && list_.texts.size() >= limit_) {
    full_ = true;
  } else if (store) {
    list_.add(TextRecord{x.value_or(cursorX_), y.value_or(cursorY_), std::string(text), xCurrentX(), xCurrentY(),
                         ForeColor});
  }
  if (target() != nullptr) target()->text(cursorX_, cursorY_, text, ForeColor);
  cursorX_ = 0;
  cursorY_ += kTextLine;
}

// A replay takes the record's numbers for metres, so a text that was written at the cursor lands far off the sheet.
void SheetPlot::replayText(TextRecord& record) {
  record.text = std::string(record.recorded());
  record.shownX = record.x;
  record.shownY = record.y;
  record.shownColour = ForeColor;
  std::string filled = record.text;
  filled.resize(std::max(filled.size(), TextRecord::kLength), ' ');
  writeText(filled, record.x, record.y, false);
}

void SheetPlot::Clear() {
  if (target() != nullptr) target()->clear();
  list_.clear();
  signX_ = 1;
  signY_ = 1;
  full_ = false;
  moveCursor(0, 0);
}

void SheetPlot::Refresh() {
  const bool printing = OutputToPRN();
  if (!printing) {
    if (target() != nullptr) target()->clear();
    for (TextRecord& text : list_.texts) replayText(text);
  }
  if (target() == nullptr) return;
  const bool black = printing && !PrintMultiColor;
  list_.visit([this, black](auto record) {
    if (black) record.colour = kBlack;
    draw(record);
  });
}

int SheetPlot::ClipToSheet(Segment& segment) const {
  const double left = xMin(), right = xMax(), top = yMin(), bottom = yMax();
  const Segment whole = segment;

  // Crossings of the infinite line with the edges; the first taken is one end, the last the other.
  int count = 0;
  const auto take = [&](const Segment& edge, bool level) {
    double x = 0;
    double y = 0;
    if (!IntersezioneDueRette(whole, edge, x, y)) return;
    if (level ? !within(x, left, right) : !within(y, top, bottom)) return;
    if (count++ == 0) {
      segment.x1 = x;
      segment.y1 = y;
    } else {
      segment.x2 = x;
      segment.y2 = y;
    }
  };
  take({left, top, right, top}, true);
  take({right, bottom, left, bottom}, true);
  take({right, top, right, bottom}, false);
  take({left, bottom, left, top}, false);

  const auto inside = [&](double x, double y) {
    return strictlyWithin(x, left, right) && strictlyWithin(y, top, bottom);
  };
  const bool firstIn = inside(whole.x1, whole.y1);
  const bool secondIn = inside(whole.x2, whole.y2);
  if (firstIn && secondIn) {
    segment = whole;
    return count;
  }
  if (firstIn != secondIn) {
    const Place in = firstIn ? Place{whole.x1, whole.y1} : Place{whole.x2, whole.y2};
    const Place out = firstIn ? Place{whole.x2, whole.y2} : Place{whole.x1, whole.y1};
    // Of the two crossings the one that lies from the inner end towards the outer one.
    const bool first = (segment.x1 - in.x) * (out.x - in.x) + (segment.y1 - in.y) * (out.y - in.y) > 0;
    const Place cut = first ? Place{segment.x1, segment.y1} : Place{segment.x2, segment.y2};
    segment = {in.x, in.y, cut.x, cut.y};
    return count;
  }
  const bool columns = within(whole.x1, left, right) || within(whole.x2, left, right);
  const bool rows = within(whole.y1, top, bottom) || within(whole.y2, top, bottom);
  if (!(columns && rows) &&
      (outsideBox({segment.x1, segment.y1}, whole) || outsideBox({segment.x2, segment.y2}, whole))) {
    return 0;
  }
  return count;
}

}  // namespace dialwright
