#include "host/panes/FeaturesPane.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/fakes/FakePPD.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

PPDOptionText pickMany() {
  return {"Finish/Finishing", "PickMany", "Staple", {"Staple/Staple", "Punch/Punch", "Fold/Fold"}};
}

std::vector<std::string> keywords(const std::vector<PPDSection>& sections) {
  std::vector<std::string> found;
  for (const PPDSection& section : sections)
    for (const ppd_option_t* option : section.options) found.emplace_back(option->keyword);
  return found;
}

TEST(FeatureSections, LeaveOutWhatIsShownElsewhere) {
  const PPDPtr ppd = makePPD({paperTypeOption(), mirrorOption(), pickMany()});
  EXPECT_EQ(keywords(featureSections(*ppd, {"MediaType"})),
            (std::vector<std::string>{"Mirror", "Finish"}));
  EXPECT_TRUE(featureSections(*ppd, {"MediaType", "mirror", "FINISH"}).empty());
}

TEST(FeatureSections, LeaveOutWhatIsNamedLikeASettingOfTheJob) {
  const PPDPtr ppd = makePPD({mirrorOption(), {"Number-Up", "PickOne", "4", {"1", "4"}}});
  EXPECT_EQ(keywords(featureSections(*ppd, {})), std::vector<std::string>{"Mirror"});
}

TEST(FeatureSections, SplitAGroupThatNeverEnds) {
  std::vector<PPDOptionText> options;
  for (int i = 0; i < 150; ++i)
    options.push_back({"Knob" + std::to_string(i), "PickOne", "A", {"A", "B"}});
  const PPDPtr ppd = makePPD(options);
  const auto sections = featureSections(*ppd, {});
  EXPECT_EQ(sections.size(), 3u);
  EXPECT_EQ(keywords(sections).size(), 150u);
}

TEST(FeatureSections, LeaveOutWhatIsInstalled) {
  const PPDPtr ppd = parsePPD(test::textOf(SAMPLE_PRINTERS "/tavrin-r420.ppd"));
  ASSERT_NE(ppdFindOption(ppd.get(), "Tray2Option"), nullptr);
  const auto found = keywords(featureSections(*ppd, {}));
  EXPECT_EQ(std::ranges::count(found, "Tray2Option"), 0);
  EXPECT_EQ(std::ranges::count(found, "MediaType"), 1);
}

}  // namespace
}  // namespace tavrin
