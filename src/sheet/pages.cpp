// Finds and numbers the pages over the sheet.
#include "sheet/pages.hpp"

#include <algorithm>
#include <cmath>

#include "numerics/numbers.hpp"

namespace dialwright {

SelectedPage PageGrid::at(double x, double y) const {
  const Cell column = cellAt(x, width_, pageW_);
  const Cell row = cellAt(y, height_, pageH_);
  return {row.index * columns() + column.index + 1, column.start, row.start};
}

SelectedPage PageGrid::page(int number) const {
  const int column = (number - 1) % columns();
  const int row = (number - 1) / columns();
  return {number, column * pageW_, row * pageH_};
}

// Walks from cell to cell until the place lies before the end of one; past the extent the walk ends
// on the cell behind the last.
PageGrid::Cell PageGrid::cellAt(double place, double extent, double side) {
  Cell cell{0, 0};
  while (cell.start <= extent && !(place - cell.start < side)) {
    cell.start += side;
    ++cell.index;
  }
  return cell;
}

int PageGrid::count(double extent, double side) {
  const double pages = extent / side;
  const double whole = std::floor(pages);
  return std::max(0, static_cast<int>(whole) + (rounded(pages, 1) > whole ? 1 : 0));
}

}  // namespace dialwright
