// The plot sheet: a vector model in metres with its state, its primitives and its display list.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "sheet/colour.hpp"
#include "sheet/display_list.hpp"
#include "sheet/draw_target.hpp"

namespace dialwright {

// 567 twips a centimetre.
inline constexpr double kTwipsPerMeter = 56700;

// A text line on a sheet without a window, in twips, and the type that stands in it.
inline constexpr double kTextLine = 195;
inline constexpr double kTextSize = 160;

// The printable page when there is no printer: A4 less the margins, in metres.
inline constexpr double kPageW = 0.210 - 0.011;
inline constexpr double kPageH = 0.297 - 0.017;

struct Segment {
  double x1, y1, x2, y2;
};

// Writes the meeting point of the infinite lines a and b into x and y; false, with both untouched, when they are parallel
// or degenerate or the computation overflows.
bool IntersezioneDueRette(const Segment& a, const Segment& b, double& x, double& y);

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

// The sheet's x axis grows to the right and its y axis downwards. All coordinates are metres from the drawing's origin,
// which lies ShiftX and ShiftY from the sheet's top-left corner. The records keep what the caller gave; signs, shift,
// scale and clipping act on the way to the target only.
class SheetPlot {
 public:
  static constexpr double kLargest = 15;           // metres, for each side
  static constexpr std::size_t kUnlimited = ~std::size_t{0};

  SheetPlot();

  // --- State
  double QuadranteH() const { return quadranteH_; }
  double QuadranteL() const { return quadranteL_; }
  // Sets a side in metres; above 15 is stored as 15. The scale grows to what the sheet allows.
  void QuadranteH(double metres);
  void QuadranteL(double metres);
  // Sets both sides as they are, without limit or scale: the printer's page.
  void resizeRaw(double height, double width);

  double ShiftX() const { return shiftX_; }
  double ShiftY() const { return shiftY_; }
  void ShiftX(double metres) { shiftX_ = metres; }
  void ShiftY(double metres) { shiftY_ = metres; }

  // The denominator of the scale 1:n. Below ScalaMinima the call has no effect, but on the printer there is no limit.
  int Scala() const { return scala_; }
  void Scala(int n);
  int ScalaMinima() const;
  double ScreenFactor() const { return screenFactor_; }

  double SignX() const { return signX_; }
  double SignY() const { return signY_; }
  void invertX() { signX_ = -signX_; }
  void invertY() { signY_ = -signY_; }

  // False for the sheet's own axes and page frames, whose lines an inversion leaves where they are.
  bool mirrors(LayerId layer) const { return layer != axesLayer_ && layer != pagesLayer_; }

  double PageW() const { return kPageW; }
  double PageH() const { return kPageH; }

  // Edges of the sheet in drawing coordinates.
  double xMin() const { return -shiftX_; }
  double xMax() const { return quadranteL_ - shiftX_; }
  double yMin() const { return -shiftY_; }
  double yMax() const { return quadranteH_ - shiftY_; }

  std::string Marchio;
  Rgb BackColor = kBlack;
  Rgb ForeColor = kWhite;
  bool PrintMultiColor = false;

  // The screen that draws along with the calls; none keeps the list alone.
  void attach(DrawTarget* screen) { screen_ = screen; }
  // While a printer is given, it is the target; nullptr goes back to the screen.
  void OutputToPRN(DrawTarget* printer) { printer_ = printer; }
  bool OutputToPRN() const { return printer_ != nullptr; }

  // --- Primitives
  void xLine(double x1, double y1, double x2, double y2, Rgb colour, const LineStyle& style = {});
  // A point off the sheet is neither drawn nor stored; on the left and top edge it is, on the right and bottom it isn't.
  void xPset(double x, double y, Rgb colour, LayerId layer = {}, bool store = true);
  void xCircle(double x, double y, double radius, Rgb colour, const CircleStyle& style = {});
  void xBox(double x1, double y1, double x2, double y2, Rgb colour, bool filled, LayerId layer = {}, bool store = true);
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
  void Refresh();

  // Cuts the segment to the sheet; 0 when nothing of it is to be drawn, else the number of edge crossings that it met.
  int ClipToSheet(Segment& segment) const;

  LayerId layer(std::string_view name) { return list_.layer(name); }
  DisplayList& list() { return list_; }
  const DisplayList& list() const { return list_; }

  // Entities beyond the limit are dropped; `full` tells that it happened.
  void limit(std::size_t entities) { limit_ = entities; }
  bool full() const { return full_; }

 private:
  DrawTarget* target() const { return printer_ != nullptr ? printer_ : screen_; }
  double toTargetX(double x) const { return (x + shiftX_) * screenFactor_; }
  double toTargetY(double y) const { return (y + shiftY_) * screenFactor_; }
  double toMetresX(double twips) const { return twips / kTwipsPerMeter * scala_ - shiftX_; }
  double toMetresY(double twips) const { return twips / kTwipsPerMeter * scala_ - shiftY_; }
  template <class Record>
  void keep(const Record& record);
  void setScale(int n);
  void growScale();
  void draw(const LineRecord& line);
  void draw(const PointRecord& point);
  void draw(const BoxRecord& box);
  void draw(const CircleRecord& circle);
  void draw(const VertexRecord&) {}
  void drawClipped(const Segment& segment, Rgb colour, int width);
  void writeText(std::string_view text, std::optional<double> x, std::optional<double> y, bool store);
  void replayText(TextRecord& record);

  DisplayList list_;
  std::string caption_;
  double quadranteH_ = kPageH;
  double quadranteL_ = kPageW;
  double shiftX_ = 0;
  double shiftY_ = 0;
  int scala_ = 1;
  double screenFactor_ = kTwipsPerMeter;
  double signX_ = 1;
  double signY_ = 1;
  double cursorX_ = 0;
  double cursorY_ = 0;
  DrawTarget* screen_ = nullptr;
  DrawTarget* printer_ = nullptr;
  LayerId axesLayer_;
  LayerId pagesLayer_;
  std::size_t limit_ = kUnlimited;
  bool full_ = false;
};

}  // namespace dialwright
