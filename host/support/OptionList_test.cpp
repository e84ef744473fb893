#include "host/support/OptionList.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(OptionList, ReadsWhatFollowsAnO) {
  EXPECT_EQ(optionsFromArgument("MediaType=IronOn"), (OptionList{{"MediaType", "IronOn"}}));
  EXPECT_EQ(optionsFromArgument("a=1 b='two words' c"),
            (OptionList{{"a", "1"}, {"b", "two words"}, {"c", "true"}}));
  EXPECT_EQ(optionsFromArgument("noMirror"), (OptionList{{"Mirror", "false"}}));
  EXPECT_TRUE(optionsFromArgument("").empty());
}

TEST(OptionList, KnowsAnOptionInAnyLetterCase) {
  OptionList options{{"mirror", "true"}, {"x", "1"}};
  setOption(options, "Mirror", "False");
  setOption(options, "y", "2");
  EXPECT_EQ(options, (OptionList{{"Mirror", "False"}, {"x", "1"}, {"y", "2"}}));
  EXPECT_EQ(optionValue(options, "MIRROR"), "False");
  EXPECT_EQ(optionValue(options, "z"), std::nullopt);
}

}  // namespace
}  // namespace tavrin
