#include "tests/fixtures/ConflictWindowsTest.h"

// Each conflict's window: its texts, and what each of its choices leaves behind.

namespace tavrin {
namespace {

class ConflictWindows : public ConflictWindowsTest {
 protected:
  // Brings about one conflict, and none besides.
  void bringAbout(int code);
  void expectConflict(const SeenWindow& window, const std::string& dialog, const std::string& a,
                      const std::string& c);
  void expectFirstChoice(const SeenWindow& window, const std::string& dialog, const std::string& a,
                         const std::string& b);
};

void ConflictWindows::bringAbout(int code) {
  forgetConflicts();
  static const char* const papers[] = {
      "IronOn",       "IronOn",       "IronOn",      "IronOn",      "Transparency",
      "Transparency", "Transparency", "PhotoGlossy", "PhotoGlossy", "Greeting",
      "Plain",        "Plain",        "Plain"};
  panel.setPaper(papers[code]);
  if (code == 0) panel.setQuality("Draft");
  if (code == 1 || code == 4 || code == 7 || code == 9) panel.format.name = "BannerBA4";
  if (code == 2 || code == 5 || code == 10) panel.format.name = "EnvDL";
  if (code == 3 || code == 6) panel.settings.columns = "2";
  if (code == 10) panel.setMirror("True");
  if (code == 8 || code == 11 || code == 12) panel.setColor("Black");
  if (code == 11) root.installCartridges(kTestYear, kTestModel, "Color Standard", "Not installed");
  if (code == 12) root.installCartridges(kTestYear, kTestModel, "Black Standard", "Photo Standard");
  ASSERT_EQ(panel.codes(), std::vector<int>{code});
}

void ConflictWindows::expectConflict(const SeenWindow& window, const std::string& dialog,
                                     const std::string& a, const std::string& c) {
  EXPECT_EQ(window.window, "ib" + dialog + "Window");
  EXPECT_EQ(window.title, "Conflicting settings");
  EXPECT_EQ(window.label("ibLabelA_" + dialog), a);
  EXPECT_EQ(window.label("ibLabelB_" + dialog), "is not compatible with");
  EXPECT_EQ(window.label("ibLabelC_" + dialog), c);
  EXPECT_EQ(window.label("ibLabelD_" + dialog), "Choose an option to resolve the conflict:");
}

void ConflictWindows::expectFirstChoice(const SeenWindow& window, const std::string& dialog,
                                        const std::string& a, const std::string& b) {
  EXPECT_EQ(window.states.at("ibFirstButton_" + dialog), 1);
  EXPECT_EQ(window.states.at("ibSecondButton_" + dialog), 0);
  EXPECT_EQ(window.label("ibLabelA_FirstButton_" + dialog), a);
  EXPECT_EQ(window.label("ibLabelB_FirstButton_" + dialog), b);
}

TEST_F(ConflictWindows, IronOnAtDraftQuality) {
  bringAbout(0);
  process({choosing("MsgOne", 1)});
  const SeenWindow& window = seen.at(0);
  expectConflict(window, "MsgOne", "Paper Type: Iron-On Transfer", "Print Quality: Quick Print");
  expectFirstChoice(window, "MsgOne", "Paper Type: Iron-On Transfer", "Print Quality: Normal");
  EXPECT_EQ(window.label("ibLabelA_SecondButton_MsgOne"), "Paper Type: Plain");
  EXPECT_EQ(window.label("ibLabelB_SecondButton_MsgOne"), "Print Quality: Quick Print");
  EXPECT_EQ(window.label("ibLabelA_ThirdButton_MsgOne"),
            "Continue without resolving the conflict.");
  EXPECT_EQ(window.states.at("ibThirdButton_MsgOne"), 0);
}

TEST_F(ConflictWindows, SpecialPaperOnASizeThatItDoesNotCome) {
  const struct {
    int code;
    const char* paperLine;
    const char* sizeLine;
  } examples[] = {
      {1, "Paper Type: Iron-On Transfer", "Paper Size: Banner"},
      {2, "Paper Type: Iron-On Transfer", "Paper Size: DL Envelope"},
      {4, "Paper Type: Transparency Film", "Paper Size: Banner"},
      {5, "Paper Type: Transparency Film", "Paper Size: DL Envelope"},
      {7, "Paper Type: Glossy Photo", "Paper Size: Banner"},
      {9, "Paper Type: Greeting Card", "Paper Size: Banner"},
  };
  for (const auto& example : examples) {
    SCOPED_TRACE(example.code);
    bringAbout(example.code);
    process({choosing("MsgFive", 0)});
    expectConflict(seen.at(0), "MsgFive", example.paperLine, example.sizeLine);
    expectFirstChoice(seen.at(0), "MsgFive", "Paper Type: Plain", example.sizeLine);
    EXPECT_EQ(seen.at(0).label("ibLabelA_SecondButton_MsgFive"),
              "Show instructions to resolve the conflict settings.");
  }
}

TEST_F(ConflictWindows, SeveralPagesOnASheetOfSpecialPaper) {
  const std::pair<int, const char*> examples[] = {{3, "Paper Type: Iron-On Transfer"},
                                                  {6, "Paper Type: Transparency Film"}};
  for (const auto& [code, paperLine] : examples) {
    bringAbout(code);
    process({choosing("MsgTwo", 0)});
    const SeenWindow& window = seen.at(0);
    expectConflict(window, "MsgTwo", "Layout: Pages per Sheet (>1)", paperLine);
    expectFirstChoice(window, "MsgTwo", "Layout: Pages per Sheet (>1)", "Paper Type: Plain");
    EXPECT_EQ(window.label("ibLabelA_SecondButton_MsgTwo"),
              "Show instructions to resolve the conflict settings.");
    EXPECT_EQ(window.label("ibLabelA_ThirdButton_MsgTwo"),
              "Continue without resolving the conflict.");
  }
}

TEST_F(ConflictWindows, MirrorOnAnEnvelope) {
  bringAbout(10);
  process({choosing("MsgTwo", 0)});
  expectConflict(seen.at(0), "MsgTwo", "Advanced Options: Mirror (ON)", "Paper Size: DL Envelope");
  expectFirstChoice(seen.at(0), "MsgTwo", "Advanced Options: Mirror (OFF)",
                    "Paper Size: DL Envelope");
  EXPECT_EQ(seen.at(0).states.at("ibThirdButton_MsgTwo"), 0);
}

TEST_F(ConflictWindows, BlackOnlyPrintingOnPhotoPaper) {
  bringAbout(8);
  process({choosing("MsgFive", 0)});
  expectConflict(seen.at(0), "MsgFive", "Paper Type: Glossy Photo", "Document Color: Black Only");
  expectFirstChoice(seen.at(0), "MsgFive", "Paper Type: Glossy Photo", "Document Color: Color");
}

TEST_F(ConflictWindows, BlackOnlyPrintingWithTheWrongCartridges) {
  const std::pair<int, const char*> examples[] = {{11, "Cartridge(s) installed: Only Color"},
                                                  {12, "Cartridge(s) installed: Photo"}};
  for (const auto& [code, line] : examples) {
    bringAbout(code);
    process({choosing("MsgFive", 0)});
    expectConflict(seen.at(0), "MsgFive", line, "Document Color: Black Only");
    expectFirstChoice(seen.at(0), "MsgFive", line, "Document Color: Color");
  }
}

TEST_F(ConflictWindows, ASizeThatThePrinterDoesNotListGoesByTodaysName) {
  panel.setMirror("True");
  panel.format.name = "EnvChou3";
  process({choosing("MsgTwo", 0)});
  EXPECT_EQ(seen.at(0).label("ibLabelC_MsgTwo"), "Paper Size: EnvelopeChokei3");
}

TEST_F(ConflictWindows, ASizeThatThePrinterListsUnderItsOldNameGoesByThatText) {
  auto options = fullPrinter();
  options[0].choices.emplace_back("EnvChou3/Japanese Long Envelope");
  const PPDPtr older = makePPD(options);
  ConflictTestPanel on(older.get());
  on.setPaper("IronOn");
  on.format.name = "EnvChou3";
  process(on, {choosing("MsgFive", 0)});
  expectConflict(seen.at(0), "MsgFive", "Paper Type: Iron-On Transfer",
                 "Paper Size: Japanese Long Envelope");
}

TEST_F(ConflictWindows, TheOkButtonSaysSo) {
  bringAbout(0);
  process({choosing("MsgOne", 0)});
  EXPECT_EQ(toolkit.interface("Conflicts")->button("ibOkButton_MsgOne").title, "OK");
}

// --- What the choices do ---

TEST_F(ConflictWindows, IronOnAtDraftFirstChoiceTakesNormalQuality) {
  bringAbout(0);
  process({choosing("MsgOne", 1)});
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");
  EXPECT_EQ(panel.model.printQuality(), "Normal Quality");
  EXPECT_EQ(panel.model.paperTypeTicket(), "IronOn");
  EXPECT_EQ(panel.model.paperType(), "Iron-On Transfer");
  EXPECT_EQ(notifications.size(), 1U);
}

TEST_F(ConflictWindows, IronOnAtDraftSecondChoiceTakesPlainPaper) {
  bringAbout(0);
  process({choosing("MsgOne", 2)});
  EXPECT_EQ(panel.model.printQualityTicket(), "Draft");
  EXPECT_EQ(panel.model.printQuality(), "Quick Print");
  EXPECT_EQ(panel.model.paperTypeTicket(), "Plain");
  EXPECT_EQ(panel.model.paperType(), "Plain Paper");
  EXPECT_EQ(notifications.size(), 1U);
}

TEST_F(ConflictWindows, IronOnAtDraftWritesBothSettingsWithEitherChoice) {
  for (const int choice : {1, 2}) {
    bringAbout(0);
    panel.model.setPrintQuality("other");
    panel.model.setPaperType("other");
    process({choosing("MsgOne", choice)});
    EXPECT_EQ(panel.model.printQuality(), choice == 1 ? "Normal Quality" : "Quick Print");
    EXPECT_EQ(panel.model.paperType(), choice == 1 ? "Iron-On Transfer" : "Plain Paper");
  }
}

TEST_F(ConflictWindows, IronOnAtDraftThirdChoiceIsNeverAskedAgain) {
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

TEST_F(ConflictWindows, PaperSizeFirstChoiceTakesPlainPaper) {
  for (const int code : {1, 2, 4, 5, 7, 9}) {
    bringAbout(code);
    process({choosing("MsgFive", 1)});
    EXPECT_EQ(panel.model.paperTypeTicket(), "Plain");
    EXPECT_EQ(panel.model.paperType(), "Plain Paper");
    EXPECT_EQ(notifications.size(), 1U);
    EXPECT_FALSE(HAS_PAPERSIZE_CONFLICT);
  }
}

TEST_F(ConflictWindows, PaperSizeSecondChoiceShowsThePageSetUpSteps) {
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

TEST_F(ConflictWindows, PagesPerSheetFirstChoiceTakesPlainPaper) {
  for (const int code : {3, 6}) {
    bringAbout(code);
    process({choosing("MsgTwo", 1)});
    EXPECT_EQ(panel.model.paperTypeTicket(), "Plain");
    EXPECT_EQ(panel.model.paperType(), "Plain Paper");
    EXPECT_EQ(notifications.size(), 1U);
    EXPECT_FALSE(HAS_PAGESPERSHEET_CONFLICT);
  }
}

TEST_F(ConflictWindows, PagesPerSheetSecondChoiceShowsTheLayoutSteps) {
  bringAbout(3);
  process({choosing("MsgTwo", 2), closing("Instruction")});
  EXPECT_TRUE(
      seen.at(1).label("ibInstructionText").starts_with("1) From the pop-up menu, choose Layout."));
  EXPECT_TRUE(HAS_PAGESPERSHEET_INSTRUCTION);
  EXPECT_FALSE(HAS_PAGESPERSHEET_CONFLICT);
  EXPECT_TRUE(notifications.empty());
  process({choosing("MsgTwo", 1)});
}

TEST_F(ConflictWindows, PagesPerSheetThirdChoiceIsForOnePaperOnly) {
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

TEST_F(ConflictWindows, MirrorFirstChoiceSwitchesItOff) {
  bringAbout(10);
  process({choosing("MsgTwo", 1)});
  EXPECT_EQ(panel.model.mirror(), "Off");
  EXPECT_EQ(panel.model.mirrorTicket(), "False");
  EXPECT_EQ(notifications.size(), 1U);
  EXPECT_FALSE(HAS_MIRROR_CONFLICT);
}

TEST_F(ConflictWindows, MirrorSecondChoiceShowsThePageSetUpSteps) {
  bringAbout(10);
  process({choosing("MsgTwo", 2), closing("Instruction")});
  EXPECT_TRUE(seen.at(1).label("ibInstructionText").starts_with("1) If your application"));
  EXPECT_TRUE(HAS_MIRROR_INSTRUCTION);
  EXPECT_FALSE(HAS_MIRROR_CONFLICT);
  EXPECT_EQ(panel.model.mirrorTicket(), "True");
  EXPECT_TRUE(notifications.empty());
}

TEST_F(ConflictWindows, MirrorThirdChoiceIsNeverAskedAgain) {
  bringAbout(10);
  process({choosing("MsgTwo", 3)});
  EXPECT_TRUE(IGNORE_MIRROR_ENVELOPE_CONFLICT);
  EXPECT_EQ(countSet(kIgnoreFlags), 1);
  EXPECT_EQ(panel.model.mirrorTicket(), "True");
  EXPECT_TRUE(notifications.empty());
  process({});
}

TEST_F(ConflictWindows, BlackAndCartridgeFirstChoiceTakesColour) {
  for (const int code : {8, 11, 12}) {
    bringAbout(code);
    process({choosing("MsgFive", 1)});
    EXPECT_EQ(panel.model.blackAndWhiteTicket(), "Color");
    EXPECT_EQ(panel.model.blackAndWhite(), "In Color");
    EXPECT_EQ(notifications.size(), 1U);
    EXPECT_EQ(countSet(kConflictFlags), 0);
  }
}

TEST_F(ConflictWindows, BlackSecondChoiceShowsTheColourSteps) {
  bringAbout(8);
  process({choosing("MsgFive", 2), closing("Instruction")});
  EXPECT_TRUE(seen.at(1)
                  .label("ibInstructionText")
                  .starts_with("1) From the pop-up menu, choose Color options."));
  EXPECT_TRUE(HAS_PRINTINBLACK_INSTRUCTION);
  EXPECT_EQ(countSet(kConflictFlags), 0);
  EXPECT_TRUE(notifications.empty());
}

TEST_F(ConflictWindows, CartridgeSecondChoiceShowsTheCartridgeSteps) {
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

TEST_F(ConflictWindows, TheNotificationNamesTheOkButton) {
  bringAbout(0);
  process({choosing("MsgOne", 1)});
  const Button* ok = &toolkit.interface("Conflicts")->button("ibOkButton_MsgOne");
  EXPECT_EQ(notifications, std::vector<const void*>{ok});
}

TEST_F(ConflictWindows, AChoiceThatThePrinterLacksLeavesTheKeywordWithoutAText) {
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

TEST_F(ConflictWindows, APrinterWithoutOptionsCanStillBeLedOut) {
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
