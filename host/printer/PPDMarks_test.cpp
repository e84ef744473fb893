#include "host/printer/PPDMarks.h"

#include <gtest/gtest.h>

#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

PPDOptionText pickMany() {
  return {"Finish/Finishing", "PickMany", "Staple", {"Staple/Staple", "Punch/Punch", "Fold/Fold"}};
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

TEST(PPDMarks, NameThePaperOnceWhereItsRegionDoesNotFitEither) {
  const PPDPtr ppd = makePPD(
      {{"PageSize/Page Size", "PickOne", "A4", {"A4", "Letter"}},
       {"PageRegion/Page Region", "PickOne", "A4", {"A4", "Letter"}},
       {"Tray/Tray", "PickOne", "Top", {"Top", "Photo"}}},
      {"*UIConstraints: *PageSize A4 *Tray Photo", "*UIConstraints: *PageRegion A4 *Tray Photo"});
  PPDMarks marks(*ppd);
  marks.choose("PageSize", "A4");
  ppdFindChoice(ppdFindOption(ppd.get(), "PageRegion"), "A4")->marked = 1;
  marks.choose("Tray", "Photo");
  EXPECT_EQ(marks.conflictingOptions(), (std::vector<std::string>{"Page Size", "Tray"}));
}

}  // namespace
}  // namespace tavrin
