#pragma once

#include <vector>

namespace tavrin {

// The indices of pages in the cells of one sheet; kNoPage for a cell that stays empty.
using CellPages = std::vector<int>;
constexpr int kNoPage = -1;

// So many to a sheet, one after the other. A sheet that is not full has fewer.
std::vector<CellPages> inTurn(const std::vector<int>& pages, int perSheet);

// Two to a sheet, left and right, for sheets that are printed on both sides, turned over at the
// short edge, put on top of each other, folded and stitched. A book that is read from right to left
// is bound on the right.
std::vector<CellPages> asBooklet(std::vector<int> pages, bool boundOnTheRight);

// With an empty sheet more where their number is odd.
std::vector<CellPages> evenInNumber(std::vector<CellPages> sheets);

}  // namespace tavrin
