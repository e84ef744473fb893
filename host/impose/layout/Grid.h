#pragma once

#include <vector>

#include "host/impose/layout/Geometry.h"
#include "host/impose/layout/LayoutOptions.h"

namespace tavrin {

struct Grid {
  int columns = 1;
  int rows = 1;
};

// The grid of at least so many cells, with a gap between them, in which a page gets largest.
Grid bestGrid(int cells, Size page, Size area, double gap);

// How large each cell of the grid is.
Size cellSize(const Grid& grid, Size area, double gap);

// The cells in that order, as many as the grid has.
std::vector<Rect> cellsOf(const Grid& grid, const Rect& area, double gap, const CellOrder& order);

}  // namespace tavrin
