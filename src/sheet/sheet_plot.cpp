// The sheet's primitives: keep the record, then mirror, clip, map and draw it.
#include "sheet/sheet_plot.hpp"

#include <algorithm>
#include <array>

#include "numerics/fault.hpp"

namespace dialwright {

namespace {

// A call whose argument failed is a failed statement: it is skipped.
template <class... Numbers>
bool allSound(Numbers... numbers) {
  return (sound(numbers) && ...);
}

// Largest side of the sheet (metres, exclusive) for each scale: 0.564 m, 32000 twips, for each step
// of n.
struct ScaleBand {
  double below;
  int scale;
};
constexpr std::array<ScaleBand, 7> kScaleBands = {
    {{0.564, 1}, {1.128, 2}, {1.693, 3}, {2.257, 4}, {2.821, 5}, {5.643, 10}, {11.287, 20}}};
constexpr int kSmallestScale = 100;

}  // namespace

SheetPlot::SheetPlot() {
  frame_.height = kPageH;
  frame_.width = kPageW;
  frame_.axesLayer = list_.layer("AssiXY");
  frame_.selectionLayer = list_.layer("sys:page");
  frame_.gridLayer = list_.layer("Page");
}

void SheetPlot::QuadranteH(double metres) { setSide(frame_.height, metres); }

void SheetPlot::QuadranteL(double metres) { setSide(frame_.width, metres); }

void SheetPlot::setSide(double& side, double metres) {
  if (!assign(side, std::min(metres, kLargest))) return;
  if (scala_ < ScalaMinima()) setScale(ScalaMinima());
  if (watcher_ != nullptr) watcher_->sizeSet();
}

void SheetPlot::ShiftX(double metres) { setShift(frame_.shiftX, metres); }

void SheetPlot::ShiftY(double metres) { setShift(frame_.shiftY, metres); }

void SheetPlot::setShift(double& shift, double metres) {
  if (assign(shift, metres) && watcher_ != nullptr) watcher_->shiftSet();
}

void SheetPlot::resizeRaw(double height, double width) {
  frame_.height = height;
  frame_.width = width;
}

int SheetPlot::ScalaMinima() const {
  const double side = std::max(frame_.height, frame_.width);
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
  frame_.factor = kTwipsPerMeter * (1.0 / n);
  if (watcher_ != nullptr) watcher_->scaleSet();
}

// On the road of every entity, so it is never worth a call.
template <class Record>
[[gnu::always_inline]] inline void SheetPlot::keep(const Record& record) {
  if (list_.size() >= limit_) {
    full_ = true;
    return;
  }
  list_.add(record);
}

void SheetPlot::xLine(double x1, double y1, double x2, double y2, Rgb colour,
                      const LineStyle& style) {
  if (!allSound(x1, y1, x2, y2)) return;
  const LineRecord record{x1, y1, x2, y2, colour, style.width, style.layer};
  if (style.store) keep(record);
  if (target() != nullptr) frame_.draw(record, *target());
}

void SheetPlot::xPset(double x, double y, Rgb colour, LayerId layer, bool store) {
  if (!frame_.holds(x, y)) return;
  const PointRecord record{x, y, colour, layer};
  if (store) keep(record);
  if (target() != nullptr) frame_.draw(record, *target());
}

void SheetPlot::xCircle(double x, double y, double radius, Rgb colour, const CircleStyle& style) {
  if (!allSound(x, y, radius) || !allSound(style.aspect, style.startAngle, style.endAngle)) return;
  const CircleRecord record{x,          y,          radius,           style.aspect,
                            colour,     style.fill, style.startAngle, style.endAngle,
                            style.layer};
  if (style.store) keep(record);
  if (target() != nullptr) frame_.draw(record, *target());
}

void SheetPlot::xBox(double x1, double y1, double x2, double y2, Rgb colour, bool filled,
                     LayerId layer, bool store) {
  if (!allSound(x1, y1, x2, y2)) return;
  const BoxRecord record{x1, y1, x2, y2, colour, filled, layer};
  if (store) keep(record);
  if (target() != nullptr) frame_.draw(record, *target());
}

void SheetPlot::xPlineStart(LayerId layer) {
  keep(VertexRecord{0, 0, 0, PolylineMark::Start, layer});
}

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
    frame_.draw({all[i].x, all[i].y, all[i + 1].x, all[i + 1].y}, all[i + 1].colour, 1, *target());
  }
}

void SheetPlot::OutputToPRN(DrawTarget* printer) {
  printer_ = printer;
  frame_.paper = printer != nullptr;
}

void SheetPlot::moveCursor(double xTwips, double yTwips) {
  cursorX_ = xTwips;
  cursorY_ = yTwips;
}

void SheetPlot::writeText(std::string_view text, std::optional<double> x, std::optional<double> y,
                          bool store) {
  if (!allSound(x.value_or(0), y.value_or(0))) return;
  if (x) assign(cursorX_, frame_.toTargetX(*x));
  if (y) assign(cursorY_, frame_.toTargetY(*y));
  if (store && list_.texts.size() >= limit_) {
    full_ = true;
  } else if (store) {
    list_.add(TextRecord{x.value_or(cursorX_), y.value_or(cursorY_), std::string(text), xCurrentX(),
                         xCurrentY(), ForeColor});
  }
  if (target() != nullptr) target()->text(cursorX_, cursorY_, text, ForeColor);
  cursorX_ = 0;
  cursorY_ += kTextLine;
}

// A replay takes the record's numbers for metres, so a text that was written at the cursor lands
// far off the sheet.
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
  frame_.signX = 1;
  frame_.signY = 1;
  full_ = false;
  moveCursor(0, 0);
  if (watcher_ != nullptr) watcher_->cleared();
}

void SheetPlot::renew() {
  Clear();
  BackColor = kBlack;
  ForeColor = kWhite;
  PrintMultiColor = false;
  setScale(ScalaMinima());
}

SheetPlot SheetPlot::spare() const {
  SheetPlot sheet;
  sheet.Marchio = Marchio;
  sheet.BackColor = BackColor;
  sheet.ForeColor = ForeColor;
  sheet.PrintMultiColor = PrintMultiColor;
  sheet.caption_ = caption_;
  sheet.frame_ = frame_;
  sheet.scala_ = scala_;
  sheet.list_.keepMeanings(list_.keepsMeanings());
  sheet.moveCursor(cursorX_, cursorY_);
  return sheet;
}

void SheetPlot::adopt(SheetPlot&& drawn, bool inPlace) {
  if (inPlace) {
    list_ = std::move(drawn.list_);
  } else {
    list_.append(std::move(drawn.list_));
  }
  caption_ = std::move(drawn.caption_);
  full_ = drawn.full_;
  moveCursor(drawn.cursorX_, drawn.cursorY_);
}

void SheetPlot::Refresh() {
  const bool printing = OutputToPRN();
  if (!printing) {
    if (target() != nullptr) target()->clear();
    for (TextRecord& text : list_.texts) replayText(text);
  }
  if (target() == nullptr) return;
  SheetFrame frame = frame_;
  frame.black = printing && !PrintMultiColor;
  frame.draw(list_, *target());
}

}  // namespace dialwright
