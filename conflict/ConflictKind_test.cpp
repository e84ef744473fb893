#include "tests/fixtures/ConflictWindowsTest.h"

// What each choice of each conflict's window leaves behind.

namespace tavrin {
namespace {

using WaysOut = ConflictWindowsTest;

TEST_F(WaysOut, IronOnAtDraftFirstChoiceTakesNormalQuality) {
  bringAbout(0);
  process({choosing("MsgOne", 1)});
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");
  EXPECT_EQ(panel.model.printQuality(), "Normal Quality");
  EXPECT_EQ(panel.model.paperTypeTicket(), "IronOn");
  EXPECT_EQ(panel.model.paperType(), "Iron-On Transfer");
  EXPECT_EQ(notifications.size(), 1U);
}

TEST_F(WaysOut, IronOnAtDraftSecondChoiceTakesPlainPaper) {
  bringAbout(0);
  process({choosing("MsgOne", 2)});
  EXPECT_EQ(panel.model.printQualityTicket(), "Draft");
  EXPECT_EQ(panel.model.printQuality(), "Quick Print");
  EXPECT_EQ(panel.model.paperTypeTicket(), "Plain");
  EXPECT_EQ(panel.model.paperType(), "Plain Paper");
  EXPECT_EQ(notifications.size(), 1U);
}

TEST_F(WaysOut, IronOnAtDraftWritesBothSettingsWithEitherChoice) {
  for (const int choice : {1, 2}) {
    bringAbout(0);
    panel.model.setPrintQuality("other");
    panel.model.setPaperType("other");
    process({choosing("MsgOne", choice)});
    EXPECT_EQ(panel.model.printQuality(), choice == 1 ? "Normal Quality" : "Quick Print");
    EXPECT_EQ(panel.model.paperType(), choice == 1 ? "Iron-On Transfer" : "Plain Paper");
  }
}

TEST_F(WaysOut, IronOnAtDraftThirdChoiceIsNeverAskedAgain) {
  bringAbout(0);
  process({choosing("MsgOne", 3)});
  EXPECT_TRUE(IGNORE_IRONON_DRAFT_CONFLICT);
  EXPECT_EQ(countSet(kIgnoreFlags), 1);
  EXPECT_EQ(panel.model.printQualityTicket(), "Draft");
  EXPECT_EQ(panel.model.paperTypeTicket(), "IronOn");
  EXPECT_EQ(notifications.size(), 1U);
  process({});

  ConflictTestPanel later(ppd.get());
  later.setPaper("IronOn");
  later.setQuality("Draft");
  process(later, {});
}

TEST_F(WaysOut, PaperSizeFirstChoiceTakesPlainPaper) {
  for (const int code : {1, 2, 4, 5, 7, 9}) {
    bringAbout(code);
    process({choosing("MsgFive", 1)});
    EXPECT_EQ(panel.model.paperTypeTicket(), "Plain");
    EXPECT_EQ(panel.model.paperType(), "Plain Paper");
    EXPECT_EQ(notifications.size(), 1U);
    EXPECT_FALSE(HAS_PAPERSIZE_CONFLICT);
  }
}

TEST_F(WaysOut, PaperSizeSecondChoiceShowsThePageSetUpSteps) {
  for (const int code : {1, 2, 4, 5, 7, 9}) {
    SCOPED_TRACE(code);
    bringAbout(code);
    const OptString paper = panel.model.paperTypeTicket();
    process({choosing("MsgFive", 2), closing("Instruction")});
    EXPECT_EQ(toolkit.shown, (Names{"ibMsgFiveWindow", "ibInstructionWindow"}));
    EXPECT_EQ(seen.at(1).title, "Instructions");
    EXPECT_TRUE(seen.at(1).label("ibInstructionText").starts_with("1) If your application"));
    EXPECT_EQ(panel.model.paperTypeTicket(), paper);
    EXPECT_TRUE(notifications.empty());
    EXPECT_TRUE(HAS_PAPERSIZE_INSTRUCTION);
    EXPECT_FALSE(HAS_PAPERSIZE_CONFLICT);
    // Reported again by the next change.
    process({choosing("MsgFive", 1)});
  }
}

TEST_F(WaysOut, PagesPerSheetFirstChoiceTakesPlainPaper) {
  for (const int code : {3, 6}) {
    bringAbout(code);
    process({choosing("MsgTwo", 1)});
    EXPECT_EQ(panel.model.paperTypeTicket(), "Plain");
    EXPECT_EQ(panel.model.paperType(), "Plain Paper");
    EXPECT_EQ(notifications.size(), 1U);
    EXPECT_FALSE(HAS_PAGESPERSHEET_CONFLICT);
  }
}

TEST_F(WaysOut, PagesPerSheetSecondChoiceShowsTheLayoutSteps) {
  bringAbout(3);
  process({choosing("MsgTwo", 2), closing("Instruction")});
  EXPECT_TRUE(
      seen.at(1).label("ibInstructionText").starts_with("1) From the pop-up menu, choose Layout."));
  EXPECT_TRUE(HAS_PAGESPERSHEET_INSTRUCTION);
  EXPECT_FALSE(HAS_PAGESPERSHEET_CONFLICT);
  EXPECT_TRUE(notifications.empty());
  process({choosing("MsgTwo", 1)});
}

TEST_F(WaysOut, PagesPerSheetThirdChoiceIsForOnePaperOnly) {
  bringAbout(6);
  process({choosing("MsgTwo", 3)});
  EXPECT_TRUE(IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT);
  EXPECT_EQ(countSet(kIgnoreFlags), 1);
  EXPECT_FALSE(HAS_PAGESPERSHEET_CONFLICT);
  EXPECT_TRUE(notifications.empty());
  process({});

  panel.setPaper("IronOn");
  process({choosing("MsgTwo", 3)});
  EXPECT_TRUE(IGNORE_IRONON_PAGESPERSHEET_CONFLICT);
  EXPECT_EQ(countSet(kIgnoreFlags), 2);
  process({});
}

TEST_F(WaysOut, MirrorFirstChoiceSwitchesItOff) {
  bringAbout(10);
  process({choosing("MsgTwo", 1)});
  EXPECT_EQ(panel.model.mirror(), "Off");
  EXPECT_EQ(panel.model.mirrorTicket(), "False");
  EXPECT_EQ(notifications.size(), 1U);
  EXPECT_FALSE(HAS_MIRROR_CONFLICT);
}

TEST_F(WaysOut, MirrorSecondChoiceShowsThePageSetUpSteps) {
  bringAbout(10);
  process({choosing("MsgTwo", 2), closing("Instruction")});
  EXPECT_TRUE(seen.at(1).label("ibInstructionText").starts_with("1) If your application"));
  EXPECT_TRUE(HAS_MIRROR_INSTRUCTION);
  EXPECT_FALSE(HAS_MIRROR_CONFLICT);
  EXPECT_EQ(panel.model.mirrorTicket(), "True");
  EXPECT_TRUE(notifications.empty());
}

TEST_F(WaysOut, MirrorThirdChoiceIsNeverAskedAgain) {
  bringAbout(10);
  process({choosing("MsgTwo", 3)});
  EXPECT_TRUE(IGNORE_MIRROR_ENVELOPE_CONFLICT);
  EXPECT_EQ(countSet(kIgnoreFlags), 1);
  EXPECT_EQ(panel.model.mirrorTicket(), "True");
  EXPECT_TRUE(notifications.empty());
  process({});
}

TEST_F(WaysOut, BlackAndCartridgeFirstChoiceTakesColour) {
  for (const int code : {8, 11, 12}) {
    bringAbout(code);
    process({choosing("MsgFive", 1)});
    EXPECT_EQ(panel.model.blackAndWhiteTicket(), "Color");
    EXPECT_EQ(panel.model.blackAndWhite(), "In Color");
    EXPECT_EQ(notifications.size(), 1U);
    EXPECT_EQ(countSet(kConflictFlags), 0);
  }
}

TEST_F(WaysOut, BlackSecondChoiceShowsTheColourSteps) {
  bringAbout(8);
  process({choosing("MsgFive", 2), closing("Instruction")});
  EXPECT_TRUE(seen.at(1)
                  .label("ibInstructionText")
                  .starts_with("1) From the pop-up menu, choose Color options."));
  EXPECT_TRUE(HAS_PRINTINBLACK_INSTRUCTION);
  EXPECT_EQ(countSet(kConflictFlags), 0);
  EXPECT_TRUE(notifications.empty());
}

TEST_F(WaysOut, CartridgeSecondChoiceShowsTheCartridgeSteps) {
  for (const int code : {11, 12}) {
    bringAbout(code);
    process({choosing("MsgFive", 2), closing("Instruction")});
    EXPECT_TRUE(seen.at(1)
                    .label("ibInstructionText")
                    .starts_with("1) Cancel the Print dialog.\n2) Launch"));
    EXPECT_TRUE(HAS_CARTINSTALLED_INSTRUCTION);
    EXPECT_EQ(countSet(kConflictFlags), 0);
    EXPECT_TRUE(notifications.empty());
  }
}

TEST_F(WaysOut, TheNotificationNamesTheOkButton) {
  bringAbout(0);
  process({choosing("MsgOne", 1)});
  const Button* ok = &toolkit.interface("Conflicts")->button("ibOkButton_MsgOne");
  EXPECT_EQ(notifications, std::vector<const void*>{ok});
}

TEST_F(WaysOut, AChoiceThatThePrinterLacksLeavesTheKeywordWithoutAText) {
  auto options = fullPrinter();
  std::erase_if(options[2].choices, [](const auto& choice) { return choice.starts_with("Plain"); });
  const PPDPtr other = makePPD(options);
  ConflictTestPanel on(other.get());
  on.setPaper("Greeting");
  on.format.name = "BannerBA4";
  process(on, {choosing("MsgFive", 1)});
  EXPECT_EQ(on.model.paperTypeTicket(), "Plain");
  EXPECT_FALSE(on.model.paperType().has_value());
}

TEST_F(WaysOut, APrinterWithoutOptionsCanStillBeLedOut) {
  ConflictTestPanel bare(nullptr);
  bare.model.setPaperTypeTicket("IronOn");
  bare.model.setPrintQualityTicket("Draft");
  bare.settings.columns = "4";
  process(bare, {choosing("MsgOne", 1), choosing("MsgTwo", 1)});
  EXPECT_EQ(bare.model.printQualityTicket(), "Normal");
  EXPECT_EQ(bare.model.paperTypeTicket(), "Plain");
  EXPECT_FALSE(bare.model.paperType().has_value());
  // With the paper type's text missing, the line ends behind its prefix.
  EXPECT_EQ(seen.at(1).label("ibLabelC_MsgTwo"), "Paper Type: ");
}

}  // namespace
}  // namespace tavrin
