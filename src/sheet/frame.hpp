// How the sheet lies on a target: its rectangle, its signs and its scale, which clip and map each
// record on its way there.
#pragma once

#include "sheet/colour.hpp"
#include "sheet/display_list.hpp"
#include "sheet/draw_target.hpp"

namespace dialwright {

// 567 twips a centimetre.
inline constexpr double kTwipsPerMeter = 56700;

struct Segment {
  double x1, y1, x2, y2;
};

// Writes the meeting point of the infinite lines a and b into x and y; false, with both untouched,
// when they are parallel or degenerate or the computation overflows.
bool IntersezioneDueRette(const Segment& a, const Segment& b, double& x, double& y);

// Lengths are metres, positions are measured from the drawing's origin, which lies shiftX and
// shiftY from the rectangle's top-left corner.
struct SheetFrame {
  double height = 0;
  double width = 0;
  double shiftX = 0;
  double shiftY = 0;
  double factor = kTwipsPerMeter;  // target units a metre
  double signX = 1;
  double signY = 1;
  bool black = false;  // every outline in black
  // On paper a line has the width of its record, not 1, and a line that only touches the rectangle
  // from outside leaves nothing on it.
  bool paper = false;
  LayerId axesLayer{};  // these two layers are never mirrored
  LayerId selectionLayer{};
  LayerId gridLayer{};  // drawn dotted, as is the selection

  double xMin() const { return -shiftX; }
  double xMax() const { return width - shiftX; }
  double yMin() const { return -shiftY; }
  double yMax() const { return height - shiftY; }

  double toTargetX(double x) const { return (x + shiftX) * factor; }
  double toTargetY(double y) const { return (y + shiftY) * factor; }

  // True on the rectangle and its left and top edge.
  bool holds(double x, double y) const {
    return x >= xMin() && x < xMax() && y >= yMin() && y < yMax();
  }

  bool mirrors(LayerId layer) const { return layer != axesLayer && layer != selectionLayer; }

  // Cuts the segment to the rectangle; 0 when nothing of it is to be drawn, else the number of
  // edge crossings that it met.
  int clip(Segment& segment) const;

  // True for the page grid and the selected pages.
  bool dotted(LayerId layer) const { return layer == gridLayer || layer == selectionLayer; }

  // The line's ends with the signs that its layer takes.
  Segment mirrored(const LineRecord& line) const;

  // Draw one record. What overflows is not drawn; polyline items never are. A point is tested where
  // it stands in its record, not where the signs take it.
  void draw(const LineRecord& line, DrawTarget& target) const;
  void draw(const PointRecord& point, DrawTarget& target) const;
  void draw(const BoxRecord& box, DrawTarget& target) const;
  void draw(const CircleRecord& circle, DrawTarget& target) const;
  void draw(const VertexRecord&, DrawTarget&) const {}

  // A clipped segment without signs.
  void draw(const Segment& segment, Rgb colour, int lineWidth, DrawTarget& target) const;

  // Every entity of the list in drawing order; no texts.
  void draw(const DisplayList& list, DrawTarget& target) const;
};

}  // namespace dialwright
