#include "host/impose/layout/SheetOrder.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

using Sheets = std::vector<CellPages>;

TEST(SheetOrderTest, TheLastSheetMayNotBeFull) {
  EXPECT_EQ(inTurn({0, 1, 2, 3, 4}, 2), (Sheets{{0, 1}, {2, 3}, {4}}));
}

TEST(SheetOrderTest, ABookletReadsRightWhenItIsFolded) {
  EXPECT_EQ(asBooklet({0, 1, 2, 3, 4, 5, 6, 7}, false), (Sheets{{7, 0}, {1, 6}, {5, 2}, {3, 4}}));
}

TEST(SheetOrderTest, ABookletIsFilledUpWithEmptyPages) {
  EXPECT_EQ(asBooklet({0, 1, 2, 3, 4}, false),
            (Sheets{{kNoPage, 0}, {1, kNoPage}, {kNoPage, 2}, {3, 4}}));
  EXPECT_EQ(asBooklet({0}, false), (Sheets{{kNoPage, 0}, {kNoPage, kNoPage}}));
}

TEST(SheetOrderTest, ABookFromRightToLeftIsBoundOnTheRight) {
  EXPECT_EQ(asBooklet({0, 1, 2, 3}, true), (Sheets{{0, 3}, {2, 1}}));
}

TEST(SheetOrderTest, AnOddNumberOfSheetsGetsOneMore) {
  EXPECT_EQ(evenInNumber({{0}}), (Sheets{{0}, {}}));
  EXPECT_EQ(evenInNumber({{0}, {1}}), (Sheets{{0}, {1}}));
}

}  // namespace
}  // namespace tavrin
