#include "host/impose/layout/SheetOrder.h"

#include <utility>

namespace tavrin {

std::vector<CellPages> inTurn(const std::vector<int>& pages, int perSheet) {
  std::vector<CellPages> sheets;
  for (std::size_t page = 0; page < pages.size(); ++page) {
    if (page % perSheet == 0) sheets.emplace_back();
    sheets.back().push_back(pages[page]);
  }
  return sheets;
}

std::vector<CellPages> asBooklet(std::vector<int> pages, bool boundOnTheRight) {
  pages.resize((pages.size() + 3) / 4 * 4, kNoPage);
  std::vector<CellPages> sheets;
  for (std::size_t side = 0; side < pages.size() / 2; ++side) {
    // The later page is on the left of a front and on the right of a back.
    CellPages cells{pages[pages.size() - 1 - side], pages[side]};
    if ((side % 2 == 1) != boundOnTheRight) std::swap(cells[0], cells[1]);
    sheets.push_back(std::move(cells));
  }
  return sheets;
}

std::vector<CellPages> evenInNumber(std::vector<CellPages> sheets) {
  if (sheets.size() % 2 == 1) sheets.emplace_back();
  return sheets;
}

}  // namespace tavrin
