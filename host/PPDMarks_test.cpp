#include "host/PPDMarks.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "host/FeaturesPane.h"
#include "platform/testing/TemporaryFolder.h"
#include "tests/fakes/FakePPD.h"

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

TEST(PPDMarks, TellOfAChoiceAndOnlyOfARealChange) {
  const PPDPtr ppd = makePPD({paperTypeOption(), mirrorOption()});
  PPDMarks marks(*ppd);
  std::vector<std::pair<std::string, OptString>> told;
  QObject::connect(
      &marks, &PPDMarks::changed,
      [&](const std::string& key, const OptString& choice) { told.emplace_back(key, choice); });
  marks.choose("Mirror", "True");
  marks.choose("Mirror", "True");
  marks.choose("Mirror", "Sideways");
  EXPECT_EQ(marks.choice("Mirror"), "True");
  const std::vector<std::pair<std::string, OptString>> expected{{"Mirror", "True"}};
  EXPECT_EQ(told, expected);
}

TEST(PPDMarks, KeepEveryPickedChoiceOfAList) {
  const PPDPtr ppd = makePPD({pickMany()});
  PPDMarks marks(*ppd);
  marks.setPicked("Finish", "Fold", true);
  EXPECT_EQ(marks.choiceText("Finish"), "Staple, Fold");
  marks.setPicked("Finish", "Staple", false);
  EXPECT_EQ(marks.choiceText("Finish"), "Fold");
  EXPECT_EQ(marks.choice("Finish"), "Fold");
  marks.setPicked("Finish", "Fold", false);
  EXPECT_EQ(marks.choice("Finish"), std::nullopt);
}

TEST(PPDMarks, NameTheOptionsThatDoNotGoTogether) {
  const PPDPtr ppd = makePPD({paperTypeOption(), mirrorOption()},
                             {"*UIConstraints: *MediaType IronOn *Mirror False"});
  PPDMarks marks(*ppd);
  EXPECT_TRUE(marks.conflictingOptions().empty());
  marks.choose("MediaType", "IronOn");
  EXPECT_EQ(marks.conflictingOptions().size(), 2u);
  marks.choose("Mirror", "True");
  EXPECT_TRUE(marks.conflictingOptions().empty());
}

TEST(FeatureSections, LeaveOutWhatIsShownElsewhere) {
  const PPDPtr ppd = makePPD({paperTypeOption(), mirrorOption(), pickMany()});
  EXPECT_EQ(keywords(featureSections(*ppd, {"MediaType"})),
            (std::vector<std::string>{"Mirror", "Finish"}));
  EXPECT_TRUE(featureSections(*ppd, {"MediaType", "mirror", "FINISH"}).empty());
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
