#include "host/impose/layout/Grid.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

constexpr Size kUpright{100, 150};
constexpr Size kWide{150, 100};

struct Row {
  int cells;
  Size page;
  Size area;
  int columns;
  int rows;
};

TEST(GridTest, IsTheOneInWhichAPageGetsLargest) {
  for (const Row& row : {Row{2, kUpright, {300, 200}, 2, 1}, Row{2, kWide, {200, 300}, 1, 2},
                         Row{4, kUpright, {200, 300}, 2, 2}, Row{6, kUpright, {300, 200}, 3, 2},
                         Row{6, kUpright, {200, 300}, 2, 3}, Row{9, kUpright, {200, 300}, 3, 3},
                         Row{16, kUpright, {200, 300}, 4, 4}, Row{4, kWide, {100, 300}, 1, 4}}) {
    const Grid grid = bestGrid(row.cells, row.page, row.area, 0);
    EXPECT_EQ(grid.columns, row.columns) << row.cells << " on " << row.area.width;
    EXPECT_EQ(grid.rows, row.rows) << row.cells << " on " << row.area.width;
  }
}

TEST(GridTest, HoldsNumbersThatMakeNoRectangle) {
  const Grid grid = bestGrid(3, kUpright, {200, 300}, 0);
  EXPECT_EQ(grid.columns, 2);
  EXPECT_EQ(grid.rows, 2);
}

// Where the cells of a grid with two columns and three rows are: left or right, top to bottom.
std::string places(const CellOrder& order) {
  std::string text;
  for (const Rect& cell : cellsOf({2, 3}, {10, 20, 208, 318}, 8, order)) {
    EXPECT_DOUBLE_EQ(cell.width, 100);
    EXPECT_NEAR(cell.height, 302.0 / 3, 1e-9);
    text += cell.left < 100 ? 'l' : 'r';
    text += cell.bottom > 200 ? 't' : cell.bottom > 100 ? 'm' : 'b';
    text += ' ';
  }
  return text;
}

TEST(GridTest, CellsComeInTheirOrder) {
  EXPECT_EQ(places({}), "lt rt lm rm lb rb ");
  EXPECT_EQ(places({false, false, true}), "lb rb lm rm lt rt ");
  EXPECT_EQ(places({false, true, false}), "rt lt rm lm rb lb ");
  EXPECT_EQ(places({true, false, false}), "lt lm lb rt rm rb ");
  EXPECT_EQ(places({true, true, true}), "rb rm rt lb lm lt ");
}

}  // namespace
}  // namespace tavrin
