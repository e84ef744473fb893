#include "host/preview/SheetLook.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

using Pages = std::vector<int>;

TEST(SheetLookTest, CountsPagesOnSheets) {
  EXPECT_EQ(pagesOnSheet(3, 8, {}), Pages{3});
  EXPECT_EQ(pagesOnSheet(2, 8, {{"number-up", "2"}}), (Pages{3, 4}));
  EXPECT_EQ(pagesOnSheet(2, 6, {{"number-up", "4"}}), (Pages{5, 6}));
}

TEST(SheetLookTest, RangesChoosePages) {
  EXPECT_EQ(pagesOnSheet(1, 8, {{"number-up", "2"}, {"page-ranges", "2,5-8"}}), (Pages{2, 5}));
  EXPECT_EQ(pagesOnSheet(3, 8, {{"page-ranges", "2-3,7"}}), Pages{7});
  EXPECT_EQ(pagesOnSheet(2, 8, {{"page-ranges", "7-"}}), Pages{8});
}

TEST(SheetLookTest, FollowsThePageSet) {
  EXPECT_EQ(pagesOnSheet(2, 8, {{"page-set", "even"}}), Pages{4});
  EXPECT_EQ(pagesOnSheet(2, 8, {{"page-set", "odd"}}), Pages{3});
}

TEST(SheetLookTest, KnowsTheOrderOfReading) {
  const OptionList reverse{{"outputorder", "reverse"}};
  EXPECT_EQ(placeInReading(1, 6, {}), 1);
  EXPECT_EQ(placeInReading(1, 6, {{"outputorder", "normal"}}), 1);
  EXPECT_EQ(placeInReading(0, 6, reverse), 5);
  EXPECT_EQ(placeInReading(5, 6, reverse), 0);
  EXPECT_EQ(pagesOnSheet(1, 8, reverse), Pages{1});
}

TEST(SheetLookTest, SaysNothingWhereItCannotKnow) {
  EXPECT_EQ(pagesOnSheet(1, 8, {{"booklet", "true"}}), Pages{});
  EXPECT_EQ(pagesOnSheet(9, 8, {}), Pages{});
  EXPECT_EQ(pagesOnSheet(0, 8, {}), Pages{});
  EXPECT_EQ(pagesOnSheet(1, 0, {}), Pages{});
}

TEST(SheetLookTest, KnowsTheNamesForGreyMirroredAndTwoSided) {
  EXPECT_TRUE(printsInGrey({{"ColorModel", "Black"}}));
  EXPECT_TRUE(printsInGrey({{"print-color-mode", "monochrome"}}));
  EXPECT_FALSE(printsInGrey({{"ColorModel", "Color"}, {"print-color-mode", "monochrome"}}));
  EXPECT_TRUE(isMirrored({{"mirror", "true"}}));
  EXPECT_TRUE(isMirrored({{"MirrorPrint", "True"}}));
  EXPECT_FALSE(isMirrored({{"Mirror", "False"}}));
  EXPECT_TRUE(isTwoSided({{"Duplex", "DuplexTumble"}}));
  EXPECT_TRUE(isTwoSided({{"sides", "two-sided-long-edge"}}));
  EXPECT_FALSE(isTwoSided({{"Duplex", "None"}}));
}

}  // namespace
}  // namespace tavrin
