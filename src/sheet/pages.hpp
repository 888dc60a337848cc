// The pages over the sheet: a grid of printable pages from its top-left corner, numbered row by
// row.
#pragma once

#include "sheet/sheet_plot.hpp"

namespace dialwright {

// A page that the user chose: its number and its top-left corner in drawing coordinates (metres).
struct SelectedPage {
  int number;
  double x, y;
};

// The grid over a surface of the given size in metres.
class PageGrid {
 public:
  PageGrid(double surfaceWidth, double surfaceHeight, double pageW, double pageH)
      : width_(surfaceWidth), height_(surfaceHeight), pageW_(pageW), pageH_(pageH) {}
  explicit PageGrid(const SheetPlot& sheet)
      : PageGrid(sheet.QuadranteL(), sheet.QuadranteH(), sheet.PageW(), sheet.PageH()) {}

  // A last column or row that would show less than a twentieth of a page doesn't count.
  int columns() const { return count(width_, pageW_); }
  int rows() const { return count(height_, pageH_); }
  int pages() const { return columns() * rows(); }

  // The page under a place, measured in metres from the surface's corner; the page's corner is
  // measured from there too.
  SelectedPage at(double x, double y) const;
  // The page of a number from 1 to pages().
  SelectedPage page(int number) const;

 private:
  struct Cell {
    int index;
    double start;
  };
  static Cell cellAt(double place, double extent, double side);
  static int count(double extent, double side);

  double width_;
  double height_;
  double pageW_;
  double pageH_;
};

}  // namespace dialwright
