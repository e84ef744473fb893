#include "host/impose/layout/Grid.h"

namespace tavrin {

namespace {

constexpr double kBetter = 1 + 1e-9;  // what rounding makes larger is not larger

// How many cells a grid has too many counts only among grids that are equally good.
bool isBetter(const Grid& one, const Grid& other, Size page, Size area, double gap) {
  const double scale = fitScale(page, cellSize(one, area, gap));
  const double otherScale = fitScale(page, cellSize(other, area, gap));
  if (scale > otherScale * kBetter) return true;
  return scale * kBetter > otherScale && one.columns * one.rows < other.columns * other.rows;
}

}  // namespace

Size cellSize(const Grid& grid, Size area, double gap) {
  return {(area.width - gap * (grid.columns - 1)) / grid.columns,
          (area.height - gap * (grid.rows - 1)) / grid.rows};
}

Grid bestGrid(int cells, Size page, Size area, double gap) {
  Grid best{1, cells};
  for (int columns = 2; columns <= cells; ++columns) {
    const Grid next{columns, (cells + columns - 1) / columns};
    if (isBetter(next, best, page, area, gap)) best = next;
  }
  return best;
}

std::vector<Rect> cellsOf(const Grid& grid, const Rect& area, double gap, const CellOrder& order) {
  const Size size = cellSize(grid, area.size(), gap);
  std::vector<Rect> cells;
  for (int place = 0; place < grid.columns * grid.rows; ++place) {
    int column = order.byColumns ? place / grid.rows : place % grid.columns;
    int row = order.byColumns ? place % grid.rows : place / grid.columns;
    if (order.rightToLeft) column = grid.columns - 1 - column;
    if (!order.bottomToTop) row = grid.rows - 1 - row;
    cells.push_back({area.left + column * (size.width + gap),
                     area.bottom + row * (size.height + gap), size.width, size.height});
  }
  return cells;
}

}  // namespace tavrin
