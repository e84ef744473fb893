#include "platform/text/IgnoringCase.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(IgnoringCase, OnlyLettersOfAsciiHaveACase) {
  EXPECT_TRUE(equalIgnoringCase("PageSize", "pagesIZE"));
  EXPECT_TRUE(equalIgnoringCase("", ""));
  EXPECT_FALSE(equalIgnoringCase("PageSize", "PageSizes"));
  EXPECT_FALSE(equalIgnoringCase("@", "`"));
  EXPECT_FALSE(equalIgnoringCase("[", "{"));
  EXPECT_FALSE(equalIgnoringCase("Ä", "ä"));
}

TEST(IgnoringCase, ASetHoldsEachNameOnce) {
  const std::set<std::string, LessIgnoringCase> names{"Duplex", "DUPLEX", "Dup", "media"};
  EXPECT_EQ(names.size(), 3u);
  EXPECT_TRUE(names.contains("duplex"));
  EXPECT_EQ(*names.begin(), "Dup");
}

}  // namespace
}  // namespace tavrin
