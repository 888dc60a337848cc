// The plot sheet: a vector model in metres with its state, its primitives and its display list.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "sheet/colour.hpp"
#include "sheet/display_list.hpp"
#include "sheet/draw_target.hpp"
#include "sheet/frame.hpp"

namespace dialwright {

// A text line on a sheet without a window, in twips, and the type that stands in it.
inline constexpr double kTextLine = 195;
inline constexpr double kTextSize = 160;

// The printable page when there is no printer: A4 less the margins, in metres.
inline constexpr double kPageW = 0.210 - 0.011;
inline constexpr double kPageH = 0.297 - 0.017;

// How a line is drawn and kept.
struct LineStyle {
  int width = 1;  // in target pixels
  bool store = true;
  LayerId layer{};
};

// How a circle is drawn and kept. An end angle of 0 means the whole circle.
struct CircleStyle {
  Rgb fill = kNoFill;
  double aspect = 1;
  double startAngle = 0;
  double endAngle = 0;
  bool store = true;
  LayerId layer{};
};

// Told of what is set on the sheet, whoever sets it: the view's fields and bars follow it.
class SheetWatcher {
 public:
  virtual ~SheetWatcher() = default;

  virtual void shiftSet() = 0;
  virtual void sizeSet() = 0;
  virtual void scaleSet() = 0;
  virtual void cleared() = 0;
};

// The sheet's x axis grows to the right and its y axis downwards. All coordinates are metres from
// the drawing's origin, which lies ShiftX and ShiftY from the sheet's top-left corner. The records
// keep what the caller gave; signs, shift, scale and clipping act on the way to the target only.
class SheetPlot {
 public:
  static constexpr double kLargest = 15;  // metres, for each side
  static constexpr std::size_t kUnlimited = ~std::size_t{0};

  SheetPlot();

  // --- State
  double QuadranteH() const { return frame_.height; }
  double QuadranteL() const { return frame_.width; }
  // Sets a side in metres; above 15 is stored as 15. The scale grows to what the sheet allows.
  void QuadranteH(double metres);
  void QuadranteL(double metres);
  // Sets both sides as they are, without limit, scale or word to the watcher: the printer's page.
  void resizeRaw(double height, double width);

  double ShiftX() const { return frame_.shiftX; }
  double ShiftY() const { return frame_.shiftY; }
  void ShiftX(double metres);
  void ShiftY(double metres);

  // The denominator of the scale 1:n. Below ScalaMinima the call has no effect, but on the printer
  // there is no limit.
  int Scala() const { return scala_; }
  void Scala(int n);
  int ScalaMinima() const;
  double ScreenFactor() const { return frame_.factor; }

  double SignX() const { return frame_.signX; }
  double SignY() const { return frame_.signY; }
  void invertX() { frame_.signX = -frame_.signX; }
  void invertY() { frame_.signY = -frame_.signY; }

  // False for the sheet's own axes and page frames, whose lines an inversion leaves where they are.
  bool mirrors(LayerId layer) const { return frame_.mirrors(layer); }

  double PageW() const { return kPageW; }
  double PageH() const { return kPageH; }

  // Edges of the sheet in drawing coordinates.
  double xMin() const { return frame_.xMin(); }
  double xMax() const { return frame_.xMax(); }
  double yMin() const { return frame_.yMin(); }
  double yMax() const { return frame_.yMax(); }

  std::string Marchio;
  Rgb BackColor = kBlack;
  Rgb ForeColor = kWhite;
  bool PrintMultiColor = false;

  // The screen that draws along with the calls; none keeps the list alone.
  void attach(DrawTarget* screen) { screen_ = screen; }
  void watch(SheetWatcher* watcher) { watcher_ = watcher; }
  // While a printer is given, it is the target; nullptr goes back to the screen.
  void OutputToPRN(DrawTarget* printer);
  bool OutputToPRN() const { return printer_ != nullptr; }

  // --- Primitives
  void xLine(double x1, double y1, double x2, double y2, Rgb colour, const LineStyle& style = {});
  // A point off the sheet is neither drawn nor stored; on the left and top edge it is, on the right
  // and bottom it isn't.
  void xPset(double x, double y, Rgb colour, LayerId layer = {}, bool store = true);
  void xCircle(double x, double y, double radius, Rgb colour, const CircleStyle& style = {});
  void xBox(double x1, double y1, double x2, double y2, Rgb colour, bool filled, LayerId layer = {},
            bool store = true);
  void xPlineStart(LayerId layer);
  void xPLineVertex(double x, double y, Rgb colour, LayerId layer);
  void xPlineEnd(LayerId layer);
  // A line of text in ForeColor, at (x, y) or, for a coordinate left out, at the text cursor.
  void Dati(std::string_view text) { writeText(text, {}, {}, true); }
  void Dati(std::string_view text, double x, double y) { writeText(text, x, y, true); }

  // The caption line over the sheet; not part of the drawing.
  void Messaggio(std::string_view title) { caption_ = title; }
  const std::string& caption() const { return caption_; }

  // The text cursor in metres, and in target units.
  double xCurrentX() const { return toMetresX(cursorX_); }
  double xCurrentY() const { return toMetresY(cursorY_); }
  void moveCursor(double xTwips, double yTwips);

  void Clear();
  // An empty sheet as a new one: its colours and its scale, too. Size, shift and target stay.
  void renew();
  void Refresh();

  // An empty sheet that lies as this one does and has its cursor, but neither target nor watcher:
  // what is drawn there can be adopted here.
  SheetPlot spare() const;
  // Takes over what was drawn on a spare sheet, with its caption and cursor: in the place of what
  // stands here, or behind it. Nothing is drawn on the target.
  void adopt(SheetPlot&& drawn, bool inPlace);

  // Cuts the segment to the sheet; 0 when nothing of it is to be drawn, else the number of edge
  // crossings that it met.
  int ClipToSheet(Segment& segment) const { return frame_.clip(segment); }

  // How the sheet lies on its target at this moment.
  const SheetFrame& frame() const { return frame_; }

  LayerId layer(std::string_view name) { return list_.layer(name); }
  DisplayList& list() { return list_; }
  const DisplayList& list() const { return list_; }

  // Who says which strokes are true shadows; nobody by default, and all are drawn.
  void judge(ShadowJudge* judge) { judge_ = judge; }
  ShadowJudge* judge() const { return judge_; }

  // Entities beyond the limit are dropped; `full` tells that it happened.
  void limit(std::size_t entities) {
    limit_ = entities;
    full_ = false;
  }
  bool full() const { return full_; }

 private:
  DrawTarget* target() const { return printer_ != nullptr ? printer_ : screen_; }
  double toMetresX(double twips) const { return twips / kTwipsPerMeter * scala_ - frame_.shiftX; }
  double toMetresY(double twips) const { return twips / kTwipsPerMeter * scala_ - frame_.shiftY; }
  template <class Record>
  void keep(const Record& record);
  void setScale(int n);
  void setSide(double& side, double metres);
  void setShift(double& shift, double metres);
  void writeText(std::string_view text, std::optional<double> x, std::optional<double> y,
                 bool store);
  void replayText(TextRecord& record);

  DisplayList list_;
  std::string caption_;
  SheetFrame frame_;
  int scala_ = 1;
  double cursorX_ = 0;
  double cursorY_ = 0;
  DrawTarget* screen_ = nullptr;
  DrawTarget* printer_ = nullptr;
  SheetWatcher* watcher_ = nullptr;
  ShadowJudge* judge_ = nullptr;
  std::size_t limit_ = kUnlimited;
  bool full_ = false;
};

}  // namespace dialwright
