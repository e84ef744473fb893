#include "tests/fixtures/ConflictWindowsTest.h"

// What the process remembers from one window, check or panel to the next.

namespace tavrin {
namespace {

using Flags = ConflictWindowsTest;

TEST_F(Flags, InstructionFlagsLastUntilTheNextCheck) {
  for (bool* flag : kInstructionFlags) *flag = true;
  for (bool* flag : kConflictFlags) *flag = true;
  for (bool* flag : kIgnoreFlags) *flag = true;
  process({});
  EXPECT_EQ(countSet(kInstructionFlags), 0);
  EXPECT_EQ(countSet(kConflictFlags), 5);
  EXPECT_EQ(countSet(kIgnoreFlags), 4);
}

TEST_F(Flags, InstructionsSilenceTheirConflictForTheRestOfTheLoop) {
  panel.setPaper("Transparency");
  panel.format.name = "EnvelopeBA";
  panel.settings.columns = "2";
  panel.setMirror("True");
  ASSERT_EQ(panel.codes(), (std::vector{4, 5, 6, 10}));
  process({choosing("MsgFive", 2), closing("Instruction"), choosing("MsgTwo", 2),
           closing("Instruction"), choosing("MsgTwo", 2), closing("Instruction")});
  EXPECT_EQ(toolkit.shown, (Names{"ibMsgFiveWindow", "ibInstructionWindow", "ibMsgTwoWindow",
                                  "ibInstructionWindow", "ibMsgTwoWindow", "ibInstructionWindow"}));
  EXPECT_EQ(seen.at(2).label("ibLabelA_MsgTwo"), "Layout: Pages per Sheet (>1)");
  EXPECT_EQ(seen.at(4).label("ibLabelA_MsgTwo"), "Advanced Options: Mirror (ON)");
}

// A conflict flag that a closed window left behind is dealt with by the next OK of its kind.
TEST_F(Flags, AnOkDealsWithEveryConflictThatIsFlagged) {
  panel.setPaper("PhotoGlossy");
  panel.setColor("Black");
  process({[](FakeInterface& windows) {
             HAS_PAPERSIZE_CONFLICT = true;
             HAS_CARTINSTALLED_CONFLICT = true;
             closing("MsgFive")(windows);
           },
           choosing("MsgFive", 1)});
  EXPECT_EQ(panel.model.paperTypeTicket(), "Plain");
  EXPECT_EQ(panel.model.blackAndWhiteTicket(), "Color");
  EXPECT_EQ(countSet(kConflictFlags), 0);
  EXPECT_EQ(notifications.size(), 1U);
}

TEST_F(Flags, OfSeveralFlaggedConflictsTheLastOnesStepsAreShown) {
  panel.setPaper("PhotoGlossy");
  panel.setColor("Black");
  HAS_CARTINSTALLED_CONFLICT = true;
  process({choosing("MsgFive", 2), closing("Instruction")});
  EXPECT_TRUE(seen.at(1).label("ibInstructionText").starts_with("1) Cancel the Print dialog."));
  EXPECT_TRUE(HAS_PRINTINBLACK_INSTRUCTION);
  EXPECT_TRUE(HAS_CARTINSTALLED_INSTRUCTION);

  HAS_CARTINSTALLED_CONFLICT = true;
  HAS_PAPERSIZE_CONFLICT = true;
  process({choosing("MsgFive", 2), closing("Instruction")});
  EXPECT_TRUE(seen.at(1).label("ibInstructionText").starts_with("1) If your application"));
  EXPECT_TRUE(HAS_PAPERSIZE_INSTRUCTION);
  EXPECT_EQ(countSet(kConflictFlags), 0);
}

TEST_F(Flags, MirrorAndLayoutFlaggedTogetherShowTheLayoutSteps) {
  panel.setPaper("IronOn");
  panel.settings.columns = "2";
  HAS_MIRROR_CONFLICT = true;
  process({choosing("MsgTwo", 2), closing("Instruction")});
  EXPECT_TRUE(seen.at(1).label("ibInstructionText").starts_with("1) From the pop-up menu"));
  EXPECT_TRUE(HAS_MIRROR_INSTRUCTION);
  EXPECT_TRUE(HAS_PAGESPERSHEET_INSTRUCTION);
}

TEST_F(Flags, ContinuingIgnoresEveryFlaggedConflictOfTheWindow) {
  panel.setPaper("IronOn");
  panel.settings.columns = "2";
  HAS_MIRROR_CONFLICT = true;
  process({choosing("MsgTwo", 3)});
  EXPECT_TRUE(IGNORE_IRONON_PAGESPERSHEET_CONFLICT);
  EXPECT_TRUE(IGNORE_MIRROR_ENVELOPE_CONFLICT);
  EXPECT_EQ(countSet(kConflictFlags), 0);
}

TEST_F(Flags, ContinuingWithALayoutOnOtherPaperIgnoresNothing) {
  panel.setMirror("True");
  panel.format.name = "EnvelopeDL";
  HAS_PAGESPERSHEET_CONFLICT = true;
  process({choosing("MsgTwo", 3)});
  EXPECT_FALSE(IGNORE_IRONON_PAGESPERSHEET_CONFLICT);
  EXPECT_FALSE(IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT);
  EXPECT_TRUE(IGNORE_MIRROR_ENVELOPE_CONFLICT);
  EXPECT_FALSE(HAS_PAGESPERSHEET_CONFLICT);
}

TEST_F(Flags, WhatOnePanelIgnoresIsIgnoredInTheOther) {
  ConflictTestPanel other(ppd.get());
  panel.setMirror("True");
  panel.format.name = "EnvelopeDL";
  other.setMirror("True");
  other.format.name = "EnvelopeB5";
  process({choosing("MsgTwo", 3)});
  process(other, {});
}

TEST_F(Flags, OnePanelsCheckForgetsTheOthersInstructions) {
  ConflictTestPanel other(ppd.get());
  panel.setPaper("Greeting");
  panel.format.name = "BannerBA4";
  process({choosing("MsgFive", 2), closing("Instruction")});
  EXPECT_EQ(panel.codes(), std::vector<int>{});
  process(other, {});
  EXPECT_EQ(panel.codes(), std::vector{9});
}

}  // namespace
}  // namespace tavrin
