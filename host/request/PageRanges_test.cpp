#include "host/request/PageRanges.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

std::string checked(const char* text) {
  const Result<std::string> ranges = checkedPageRanges(QString::fromUtf8(text));
  return ranges ? *ranges : "refused: " + ranges.reason();
}

TEST(PageRanges, AreTakenAsTheyArePrinted) {
  EXPECT_EQ(checked("1-3,5"), "1-3,5");
  EXPECT_EQ(checked("7"), "7");
  EXPECT_EQ(checked("7-"), "7-");
  EXPECT_EQ(checked("-4"), "1-4");
}

TEST(PageRanges, ArePutInOrderWithoutOverlaps) {
  EXPECT_EQ(checked("5, 1 - 3"), "1-3,5");
  EXPECT_EQ(checked("2-6,4-8,8"), "2-8");
  EXPECT_EQ(checked("3-,10"), "3-");
  EXPECT_EQ(checked("1–3"), "1-3");
  EXPECT_EQ(checked("3;5"), "3,5");
  EXPECT_EQ(checked("5; 1 – 3, 7"), "1-3,5,7");
}

TEST(PageRanges, ThatMeanNoPagesAreNamed) {
  for (const char* text :
       {"1-3,x", "0", "-0", "1-2-3", "1,,2", "1;;2", "1.5", "+1", "99999999999", "-"})
    EXPECT_NE(checked(text).find("is not a page or a range of pages"), std::string::npos) << text;
  for (const char* text : {"1 3", "1-2 5", "1, 2 3"})
    EXPECT_NE(checked(text).find("has no comma between two pages"), std::string::npos) << text;
  EXPECT_NE(checked("x7").find("“x7”"), std::string::npos);
  EXPECT_NE(checked("5-3").find("ends before it begins"), std::string::npos);
  EXPECT_NE(checked("  ").find("Write which pages"), std::string::npos);
}

TEST(PageRanges, HoldSoManyPagesOfADocument) {
  EXPECT_EQ(pagesInRanges("", "all", 8), 8);
  EXPECT_EQ(pagesInRanges("1-3,5", "all", 8), 4);
  EXPECT_EQ(pagesInRanges("7-", "all", 8), 2);
  EXPECT_EQ(pagesInRanges("5-50", "all", 8), 4);
  EXPECT_EQ(pagesInRanges("50", "all", 8), 0);
  EXPECT_EQ(pagesInRanges("9-", "all", 8), 0);
}

TEST(PageRanges, HoldOddAndEvenPages) {
  EXPECT_EQ(pagesInRanges("", "odd", 7), 4);
  EXPECT_EQ(pagesInRanges("", "even", 7), 3);
  EXPECT_EQ(pagesInRanges("2-4,7", "odd", 8), 2);
  EXPECT_EQ(pagesInRanges("2-4,7", "Even", 8), 2);
  EXPECT_EQ(pagesInRanges("", "even", 1), 0);
}

}  // namespace
}  // namespace tavrin
