// Finds the stroke under a place of the sheet.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

#include "sheet/sheet_plot.hpp"

namespace dialwright {

class Program;

// A record of the display list: its kind and its place among the records of that kind.
struct Hit {
  EntityKind kind;
  std::size_t record;
};

// A grid over the sheet with the strokes that pass through each cell: lines, edges of boxes, arcs
// as chords, points. Built once a list; it holds nothing of the list itself.
class HitGrid {
 public:
  HitGrid() = default;
  explicit HitGrid(const SheetPlot& sheet);

  // The nearest stroke within `reach` of a place, in metres from the sheet's corner; of strokes
  // that are as near, the one drawn last.
  std::optional<Hit> at(double x, double y, double reach) const;

 private:
  struct Stroke {
    double x1, y1, x2, y2;
    Hit hit;
  };
  struct Cells {
    int first, last;
  };

  void addAll(const SheetPlot& sheet);
  void add(const SheetFrame& frame, Segment piece, const Hit& hit);
  void addCircle(const SheetFrame& frame, const CircleRecord& circle, const Hit& hit);
  void sort();
  std::size_t cellOf(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columnCount_) +
           static_cast<std::size_t>(column);
  }
  Cells columns(double a, double b) const;
  Cells rows(double a, double b) const;
  template <class Visitor>
  void visitCells(const Stroke& stroke, Visitor&& visitor) const;

  double cell_ = 1;  // metres
  int columnCount_ = 0;
  int rowCount_ = 0;
  std::vector<Stroke> strokes_;
  // The strokes of cell i are held_[starts_[i]] to held_[starts_[i + 1] - 1].
  std::vector<std::uint32_t> starts_;
  std::vector<std::uint32_t> held_;
};

// What is known of a stroke: its layer, its colour and what it stands for, in the program's
// language.
QString describe(const Program& program, const DisplayList& list, const Hit& hit);

}  // namespace dialwright
