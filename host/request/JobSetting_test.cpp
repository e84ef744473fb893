#include "host/request/JobSetting.h"

#include <set>

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(JobSetting, IsFoundAndReadInAnyLetterCase) {
  const JobSetting* setting = findJobSetting("OutputOrder");
  ASSERT_NE(setting, nullptr);
  EXPECT_EQ(setting->usual(), "normal");
  EXPECT_EQ(setting->meant("Reverse"), "reverse");
  EXPECT_EQ(setting->meant("backwards"), std::nullopt);
  EXPECT_EQ(findJobSetting("MediaType"), nullptr);
}

TEST(JobSetting, ThatIsASwitchTakesOtherWordsForOnAndOff) {
  EXPECT_EQ(findJobSetting("booklet")->meant("Yes"), "true");
  EXPECT_EQ(findJobSetting("booklet")->meant("off"), "false");
  EXPECT_EQ(findJobSetting("page-set")->meant("on"), std::nullopt);
}

TEST(JobSetting, HasEachValueOnce) {
  for (const JobSetting& setting : jobSettings()) {
    EXPECT_GE(setting.values.size(), 2u) << setting.option;
    const std::set<std::string> values(setting.values.begin(), setting.values.end());
    EXPECT_EQ(values.size(), setting.values.size()) << setting.option;
  }
}

}  // namespace
}  // namespace tavrin
