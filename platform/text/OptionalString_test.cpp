#include "platform/text/OptionalString.h"

#include <limits>

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(OptionalString, AbsentEqualsNothing) {
  EXPECT_TRUE(sameText("a", "a"));
  EXPECT_TRUE(sameText("", ""));
  EXPECT_FALSE(sameText("a", "A"));
  EXPECT_FALSE(sameText("", std::nullopt));
  EXPECT_FALSE(sameText(std::nullopt, "a"));
  EXPECT_FALSE(sameText(std::nullopt, std::nullopt));
}

TEST(OptionalString, ANumberIsWhatATextStartsWith) {
  EXPECT_EQ(integerValue("2007"), 2007);
  EXPECT_EQ(integerValue("  -3 steps"), -3);
  EXPECT_EQ(integerValue("+4"), 4);
  EXPECT_EQ(integerValue("2.9"), 2);
  EXPECT_EQ(integerValue("010"), 10);
  EXPECT_EQ(integerValue("0x10"), 0);
}

TEST(OptionalString, NoNumberIsZero) {
  EXPECT_EQ(integerValue(std::nullopt), 0);
  EXPECT_EQ(integerValue(""), 0);
  EXPECT_EQ(integerValue("Drivers"), 0);
  EXPECT_EQ(integerValue("- 3"), 0);
}

TEST(OptionalString, AHugeNumberIsTheNearestThatFits) {
  EXPECT_EQ(integerValue("4294967297"), std::numeric_limits<int>::max());
  EXPECT_EQ(integerValue("-99999999999999999999"), std::numeric_limits<int>::min());
}

}  // namespace
}  // namespace tavrin
