#include "host/support/TextLists.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

using Parts = std::vector<std::string>;

TEST(TextLists, AreJoinedWithASeparator) {
  EXPECT_EQ(joined({"a", "b", "c"}), "a, b, c");
  EXPECT_EQ(joined({"a", "b"}, " "), "a b");
  EXPECT_EQ(joined({}), "");
}

TEST(TextLists, AreTakenApartAtTheSeparator) {
  EXPECT_EQ(partsOf("a,b,c"), (Parts{"a", "b", "c"}));
  EXPECT_EQ(partsOf(",a,"), (Parts{"", "a", ""}));
  EXPECT_EQ(partsOf(""), Parts{""});
}

}  // namespace
}  // namespace tavrin
