#include "host/request/SheetCount.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(SheetCount, IsTheNumberOfPagesWhereNothingIsSet) {
  EXPECT_EQ(sheetCount({8}, {}), 8);
  EXPECT_EQ(sheetCount({8}, {{"page-ranges", "2-4,8"}, {"page-set", "even"}}), 3);
  EXPECT_EQ(sheetCount({8, 0}, {}), 0) << "nobody knows";
}

TEST(SheetCount, KnowsHowManyPagesAreOnASheet) {
  EXPECT_EQ(sheetCount({9}, {{"number-up", "4"}}), 3);
  EXPECT_EQ(sheetCount({9}, {{"number-up", "4"}, {"sides", "two-sided-long-edge"}}), 2);
  EXPECT_EQ(sheetCount({9}, {{"Duplex", "DuplexTumble"}}), 5);
  EXPECT_EQ(sheetCount({9}, {{"Duplex", "None"}, {"sides", "two-sided-long-edge"}}), 9);
}

TEST(SheetCount, OfABookletIsAQuarter) {
  EXPECT_EQ(sheetCount({9}, {{"booklet", "true"}, {"Duplex", "DuplexTumble"}}), 3);
  EXPECT_EQ(sheetCount({9}, {{"booklet", "yes"}}), 6) << "the backs stay empty";
}

TEST(SheetCount, BeginsEachDocumentOnASheet) {
  EXPECT_EQ(sheetCount({3, 1}, {{"number-up", "2"}}), 3);
  EXPECT_EQ(sheetCount({3, 1}, {{"sides", "two-sided-short-edge"}}), 3);
}

}  // namespace
}  // namespace tavrin
