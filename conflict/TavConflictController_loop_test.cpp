#include "tests/fixtures/ConflictWindowsTest.h"

// The loop over the windows: its order, what it keeps and resets, and how it ends.

namespace tavrin {
namespace {

class ConflictLoop : public ConflictWindowsTest {
 protected:
  void expectUnchanged() {
    EXPECT_EQ(panel.model.paperTypeTicket(), "IronOn");
    EXPECT_EQ(panel.model.paperType(), "Iron-On Transfer");
    EXPECT_EQ(panel.model.printQualityTicket(), "Draft");
    EXPECT_EQ(panel.model.printQuality(), "Quick Print");
    EXPECT_TRUE(notifications.empty());
  }
  void ironOnAtDraft() {
    panel.setPaper("IronOn");
    panel.setQuality("Draft");
  }
};

TEST_F(ConflictLoop, WithoutConflictNothingIsShown) {
  process({});
  EXPECT_TRUE(toolkit.shown.empty());
}

TEST_F(ConflictLoop, TheFirstCodeIsDealtWithAndTheListMadeAnew) {
  ironOnAtDraft();
  panel.format.name = "EnvelopeDL";
  ASSERT_EQ(panel.codes(), (std::vector{0, 2}));
  process({choosing("MsgOne", 1), choosing("MsgFive", 1)});
  EXPECT_EQ(toolkit.shown, (Names{"ibMsgOneWindow", "ibMsgFiveWindow"}));
}

TEST_F(ConflictLoop, OneAnswerCanResolveSeveralConflicts) {
  ironOnAtDraft();
  panel.format.name = "EnvelopeDL";
  panel.settings.columns = "2";
  ASSERT_EQ(panel.codes(), (std::vector{0, 2, 3}));
  process({choosing("MsgOne", 2)});
  EXPECT_EQ(panel.codes(), std::vector<int>{});
}

TEST_F(ConflictLoop, AWindowClosedWithoutOkComesBackAtOnceAndChangesNothing) {
  ironOnAtDraft();
  process({closing("MsgOne"), closing("MsgOne"), [this](FakeInterface& windows) {
             expectUnchanged();
             choosing("MsgOne", 1)(windows);
           }});
  EXPECT_EQ(toolkit.shown, (Names{"ibMsgOneWindow", "ibMsgOneWindow", "ibMsgOneWindow"}));
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");
}

// Composing puts the first button on but does not take back the choice: the window that comes back
// shows the first choice and still means the second.
TEST_F(ConflictLoop, AChoiceOutlivesAWindowThatWasClosed) {
  ironOnAtDraft();
  process({[](FakeInterface& windows) {
             pickChoice(windows, "MsgOne", 2);
             closing("MsgOne")(windows);
           },
           choosing("MsgOne", 0)});
  EXPECT_EQ(seen.at(1).states.at("ibFirstButton_MsgOne"), 1);
  EXPECT_EQ(seen.at(1).states.at("ibSecondButton_MsgOne"), 0);
  EXPECT_EQ(panel.model.paperTypeTicket(), "Plain");
  EXPECT_EQ(panel.model.printQualityTicket(), "Draft");
}

TEST_F(ConflictLoop, TheButtonsOfEveryWindowComeUpWithTheFirstOneOn) {
  panel.setPaper("Transparency");
  panel.format.name = "BannerBA4";
  panel.settings.columns = "2";
  const auto choosingAndClosing = [](const std::string& dialog, int choice) {
    return [=](FakeInterface& windows) {
      pickChoice(windows, dialog, choice);
      closing(dialog)(windows);
    };
  };
  process({choosingAndClosing("MsgFive", 2), choosing("MsgFive", 2), closing("Instruction"),
           choosingAndClosing("MsgTwo", 2), choosingAndClosing("MsgTwo", 3),
           choosing("MsgTwo", 1)});
  EXPECT_EQ(seen.at(1).states.at("ibFirstButton_MsgFive"), 1);
  EXPECT_EQ(seen.at(1).states.at("ibSecondButton_MsgFive"), 0);
  for (const std::size_t window : {4U, 5U}) {
    EXPECT_EQ(seen.at(window).states.at("ibFirstButton_MsgTwo"), 1);
    EXPECT_EQ(seen.at(window).states.at("ibSecondButton_MsgTwo"), 0);
    EXPECT_EQ(seen.at(window).states.at("ibThirdButton_MsgTwo"), 0);
  }
}

TEST_F(ConflictLoop, TheButtonsOfMsgOneComeUpWithTheFirstOneOn) {
  ironOnAtDraft();
  for (const char* chosen : {"ibSecondButton_MsgOne", "ibThirdButton_MsgOne"}) {
    process({[&](FakeInterface& windows) {
               windows.button("ibFirstButton_MsgOne").state = 0;
               windows.button(chosen).state = 1;
               closing("MsgOne")(windows);
             },
             choosing("MsgOne", 3)});
    EXPECT_EQ(seen.at(1).states.at("ibFirstButton_MsgOne"), 1);
    EXPECT_EQ(seen.at(1).states.at("ibSecondButton_MsgOne"), 0);
    EXPECT_EQ(seen.at(1).states.at("ibThirdButton_MsgOne"), 0);
    forgetConflicts();
  }
}

TEST_F(ConflictLoop, TheNextCheckStartsWithTheFirstChoice) {
  ironOnAtDraft();
  process({[](FakeInterface& windows) { pickChoice(windows, "MsgOne", 2); }});  // the program ends
  expectUnchanged();
  process({choosing("MsgOne", 0)});
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");

  panel.settings.columns = "2";
  process({[](FakeInterface& windows) { pickChoice(windows, "MsgTwo", 3); }});
  process({choosing("MsgTwo", 0)});
  EXPECT_EQ(panel.model.paperTypeTicket(), "Plain");

  panel.setPaper("Greeting");
  panel.format.name = "BannerBA4";
  process({[](FakeInterface& windows) { pickChoice(windows, "MsgFive", 2); }});
  process({choosing("MsgFive", 0)});
  EXPECT_EQ(panel.model.paperTypeTicket(), "Plain");
}

// Somebody who follows the change may bring the conflict back: the choice is the first again when
// he is told.
TEST_F(ConflictLoop, MsgOnesChoiceIsTheFirstAgainBeforeTheChangeIsTold) {
  ironOnAtDraft();
  bool broughtBack = false;
  NotificationCenter::defaultCenter().addObserver(
      &broughtBack, ConflictControllerChangeNotification, [&](const void*) {
        if (!broughtBack) ironOnAtDraft();
        broughtBack = true;
      });
  process({choosing("MsgOne", 2), choosing("MsgOne", 0)});
  NotificationCenter::defaultCenter().removeObserver(&broughtBack);
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");
  EXPECT_EQ(panel.model.paperTypeTicket(), "IronOn");
}

TEST_F(ConflictLoop, AfterInstructionsTheNextMsgTwoStartsWithTheFirstChoice) {
  panel.setPaper("IronOn");
  panel.settings.columns = "2";
  panel.setMirror("True");
  panel.format.name = "EnvelopeDL";
  process({choosing("MsgFive", 2), closing("Instruction"), choosing("MsgTwo", 2),
           closing("Instruction"), choosing("MsgTwo", 0)});
  EXPECT_EQ(panel.model.mirrorTicket(), "False");
  EXPECT_FALSE(IGNORE_MIRROR_ENVELOPE_CONFLICT);
}

TEST_F(ConflictLoop, AfterOkTheNextWindowOfTheKindStartsWithTheFirstChoice) {
  panel.setPaper("PhotoGlossy");
  panel.setColor("Black");
  panel.format.name = "BannerBA4";
  ASSERT_EQ(panel.codes(), (std::vector{7, 8}));
  process({choosing("MsgFive", 2), closing("Instruction"), choosing("MsgFive", 0)});
  EXPECT_EQ(panel.model.blackAndWhiteTicket(), "Color");
  EXPECT_EQ(panel.model.paperTypeTicket(), "PhotoGlossy");
}

TEST_F(ConflictLoop, TheButtonsTurnEachOtherOff) {
  ironOnAtDraft();
  panel.settings.columns = "2";
  const auto states = [](FakeInterface& windows, const std::string& dialog) {
    return std::vector{windows.button("ibFirstButton_" + dialog).state,
                       windows.button("ibSecondButton_" + dialog).state,
                       windows.button("ibThirdButton_" + dialog).state};
  };
  const auto exercise = [&](const std::string& dialog) {
    return [&, dialog](FakeInterface& windows) {
      for (const int choice : {2, 3, 1, 3, 2, 1}) {
        pickChoice(windows, dialog, choice);
        std::vector<int> expected(3, 0);
        expected[static_cast<std::size_t>(choice) - 1] = 1;
        EXPECT_EQ(states(windows, dialog), expected) << dialog << " " << choice;
      }
      pressOk(windows, dialog);
    };
  };
  process({exercise("MsgOne"), exercise("MsgTwo")});
}

TEST_F(ConflictLoop, TheTwoButtonsOfMsgFiveTurnEachOtherOff) {
  panel.setPaper("Greeting");
  panel.format.name = "BannerBA4";
  process({[](FakeInterface& windows) {
    pickChoice(windows, "MsgFive", 2);
    EXPECT_EQ(windows.button("ibFirstButton_MsgFive").state, 0);
    pickChoice(windows, "MsgFive", 1);
    EXPECT_EQ(windows.button("ibSecondButton_MsgFive").state, 0);
    pressOk(windows, "MsgFive");
  }});
  EXPECT_EQ(panel.model.paperTypeTicket(), "Plain");
}

TEST_F(ConflictLoop, AClickThatLeavesItsButtonOffChoosesNothing) {
  ironOnAtDraft();
  process({[](FakeInterface& windows) {
    windows.button("ibSecondButton_MsgOne").state = 1;
    windows.click("ibSecondButton_MsgOne", "clickSecondButton_MsgOne:");  // now off
    EXPECT_EQ(windows.button("ibFirstButton_MsgOne").state, 1);
    pressOk(windows, "MsgOne");
  }});
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");
}

TEST_F(ConflictLoop, InstructionFlagsLastUntilTheNextCheck) {
  for (bool* flag : kInstructionFlags) *flag = true;
  for (bool* flag : kConflictFlags) *flag = true;
  for (bool* flag : kIgnoreFlags) *flag = true;
  process({});
  EXPECT_EQ(countSet(kInstructionFlags), 0);
  EXPECT_EQ(countSet(kConflictFlags), 5);
  EXPECT_EQ(countSet(kIgnoreFlags), 4);
}

TEST_F(ConflictLoop, InstructionsSilenceTheirConflictForTheRestOfTheLoop) {
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
TEST_F(ConflictLoop, AnOkDealsWithEveryConflictThatIsFlagged) {
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

TEST_F(ConflictLoop, OfSeveralFlaggedConflictsTheLastOnesStepsAreShown) {
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

TEST_F(ConflictLoop, MirrorAndLayoutFlaggedTogetherShowTheLayoutSteps) {
  panel.setPaper("IronOn");
  panel.settings.columns = "2";
  HAS_MIRROR_CONFLICT = true;
  process({choosing("MsgTwo", 2), closing("Instruction")});
  EXPECT_TRUE(seen.at(1).label("ibInstructionText").starts_with("1) From the pop-up menu"));
  EXPECT_TRUE(HAS_MIRROR_INSTRUCTION);
  EXPECT_TRUE(HAS_PAGESPERSHEET_INSTRUCTION);
}

TEST_F(ConflictLoop, ContinuingIgnoresEveryFlaggedConflictOfTheWindow) {
  panel.setPaper("IronOn");
  panel.settings.columns = "2";
  HAS_MIRROR_CONFLICT = true;
  process({choosing("MsgTwo", 3)});
  EXPECT_TRUE(IGNORE_IRONON_PAGESPERSHEET_CONFLICT);
  EXPECT_TRUE(IGNORE_MIRROR_ENVELOPE_CONFLICT);
  EXPECT_EQ(countSet(kConflictFlags), 0);
}

TEST_F(ConflictLoop, ContinuingWithALayoutOnOtherPaperIgnoresNothing) {
  panel.setMirror("True");
  panel.format.name = "EnvelopeDL";
  HAS_PAGESPERSHEET_CONFLICT = true;
  process({choosing("MsgTwo", 3)});
  EXPECT_FALSE(IGNORE_IRONON_PAGESPERSHEET_CONFLICT);
  EXPECT_FALSE(IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT);
  EXPECT_TRUE(IGNORE_MIRROR_ENVELOPE_CONFLICT);
  EXPECT_FALSE(HAS_PAGESPERSHEET_CONFLICT);
}

// The cartridges can be changed between the check and the window: then nothing names them, and
// the lines stay as they were.
TEST_F(ConflictLoop, WithNoCartridgeToNameTheLinesStayAsTheyWere) {
  panel.setColor("Black");
  root.installCartridges(kTestYear, kTestModel, "Black Standard", "Photo Standard");
  process({choosing("MsgFive", 1)});
  panel.setColor("Black");
  root.removePreferences(kTestYear);
  panel.checker->composeMsgFive(2);
  const auto windows = toolkit.interface("Conflicts");
  EXPECT_EQ(windows->label("ibLabelA_MsgFive").text, "Cartridge(s) installed: Photo");
  EXPECT_EQ(windows->label("ibLabelA_FirstButton_MsgFive").text, "Cartridge(s) installed: Photo");
  EXPECT_EQ(windows->label("ibLabelC_MsgFive").text, "Document Color: Black Only");
}

TEST_F(ConflictLoop, EachWindowIsCentredAndBroughtUpAnew) {
  ironOnAtDraft();
  process({closing("MsgOne"), [](FakeInterface& windows) {
             EXPECT_TRUE(windows.window("ibMsgOneWindow").open);
             EXPECT_EQ(windows.window("ibMsgOneWindow").centred, 2);
             choosing("MsgOne", 1)(windows);
             EXPECT_FALSE(windows.window("ibMsgOneWindow").open);
           }});
}

TEST_F(ConflictLoop, TheInstructionsComeUpInsideTheStoppedRunOfTheirWindow) {
  panel.setPaper("Greeting");
  panel.format.name = "BannerBA4";
  process({choosing("MsgFive", 2), [this](FakeInterface& windows) {
             EXPECT_FALSE(windows.window("ibMsgFiveWindow").open);
             EXPECT_TRUE(windows.window("ibInstructionWindow").open);
             EXPECT_EQ(toolkit.runs(), 2);
             toolkit.stopModal();
             toolkit.stopModal();  // the run is stopped once
             windows.window("ibInstructionWindow").close();
             windows.window("ibInstructionWindow").close();
           }});
  EXPECT_EQ(toolkit.mostRuns, 2);
  EXPECT_EQ(toolkit.runs(), 0);
}

TEST_F(ConflictLoop, ClosingAnyWindowClosesMsgTwo) {
  ironOnAtDraft();
  process({[](FakeInterface& windows) {
             windows.window("ibMsgTwoWindow").open = true;
             closing("MsgOne")(windows);
             EXPECT_FALSE(windows.window("ibMsgTwoWindow").open);
           },
           choosing("MsgOne", 1)});
}

TEST_F(ConflictLoop, AWindowThatClosesItselfInItsOwnHandlerIsToldOnce) {
  panel.setPaper("IronOn");
  panel.settings.columns = "2";
  int told = 0;
  process({[&](FakeInterface& windows) {
             const auto original = windows.bindings.windowWillClose;
             windows.bindings.windowWillClose = [&, original] {
               ++told;
               original();
             };
             windows.window("ibMsgTwoWindow").close();
             windows.bindings.windowWillClose = original;
           },
           choosing("MsgTwo", 1)});
  EXPECT_EQ(told, 1);
}

// --- Where the loop ends otherwise ---

TEST_F(ConflictLoop, AMissingInterfaceFileShowsNothingAndIsLookedForAgain) {
  ironOnAtDraft();
  toolkit.missing = {"Conflicts"};
  process({});
  expectUnchanged();
  EXPECT_EQ(countSet(kConflictFlags), 0);
  toolkit.missing.clear();
  process({choosing("MsgOne", 1)});
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");
}

TEST_F(ConflictLoop, AnIncompleteInterfaceFileIsLoadedAgainAndNothingDangles) {
  ironOnAtDraft();
  toolkit.unconnected = {"ibInstructionWindow"};
  process({});
  expectUnchanged();
  toolkit.missing = {"Conflicts"};
  process({});
  toolkit.missing.clear();
  toolkit.unconnected.clear();
  process({choosing("MsgOne", 1)});
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");
}

TEST_F(ConflictLoop, AWindowThatIsThereIsShownWhateverElseIsMissing) {
  const std::string dialogs[] = {"MsgOne", "MsgTwo", "MsgFive"};
  for (const std::string missing : {"MsgOne", "MsgTwo", "MsgFive", "Instruction"}) {
    for (const std::string& dialog : dialogs) {
      if (dialog == missing) continue;
      SCOPED_TRACE(dialog + " without " + missing);
      ConflictTestPanel incomplete(ppd.get());
      toolkit.unconnected = {"ib" + missing + "Window"};
      incomplete.setPaper("IronOn");
      if (dialog == "MsgOne") incomplete.setQuality("Draft");
      if (dialog == "MsgTwo") incomplete.settings.columns = "2";
      if (dialog == "MsgFive") incomplete.format.name = "EnvelopeDL";
      process(incomplete, {choosing(dialog, 1)});
      EXPECT_EQ(notifications.size(), 1U);
    }
  }
}

TEST_F(ConflictLoop, AConflictWhoseWindowIsMissingEndsTheCheckUntilTheNextOne) {
  const std::pair<std::string, void (*)(ConflictTestPanel&)> examples[] = {
      {"MsgOne", [](ConflictTestPanel& on) { on.setQuality("Draft"); }},
      {"MsgTwo", [](ConflictTestPanel& on) { on.settings.columns = "2"; }},
      {"MsgFive", [](ConflictTestPanel& on) { on.format.name = "EnvelopeDL"; }}};
  for (const auto& [dialog, bringAbout] : examples) {
    SCOPED_TRACE(dialog);
    ConflictTestPanel incomplete(ppd.get());
    incomplete.setPaper("IronOn");
    bringAbout(incomplete);
    toolkit.unconnected = {"ib" + dialog + "Window"};
    process(incomplete, {});
    EXPECT_TRUE(toolkit.shown.empty());
    EXPECT_TRUE(notifications.empty());
    EXPECT_EQ(incomplete.model.paperType(), "Iron-On Transfer");
    EXPECT_EQ(countSet(kConflictFlags), 0);
    toolkit.unconnected.clear();
    process(incomplete, {choosing(dialog, 1)});
  }
}

TEST_F(ConflictLoop, AWindowBeforeAMissingOneIsStillAnswered) {
  ironOnAtDraft();
  panel.format.name = "EnvelopeDL";
  toolkit.unconnected = {"ibMsgFiveWindow"};
  process({choosing("MsgOne", 1)});
  EXPECT_EQ(panel.codes(), std::vector{2});
}

TEST_F(ConflictLoop, StepsThatNoWindowShowsCountAsShown) {
  panel.setPaper("Transparency");
  panel.format.name = "BannerBA4";
  panel.settings.columns = "2";
  toolkit.unconnected = {"ibInstructionWindow"};
  process({choosing("MsgFive", 2), choosing("MsgTwo", 2)});
  EXPECT_EQ(toolkit.shown, (Names{"ibMsgFiveWindow", "ibMsgTwoWindow"}));
  EXPECT_TRUE(HAS_PAPERSIZE_INSTRUCTION);
  EXPECT_TRUE(HAS_PAGESPERSHEET_INSTRUCTION);
  EXPECT_EQ(countSet(kConflictFlags), 0);
  toolkit.unconnected.clear();
  process({choosing("MsgFive", 2), closing("Instruction"), choosing("MsgTwo", 1)});
}

TEST_F(ConflictLoop, TheInterfaceFileIsLoadedOnce) {
  ironOnAtDraft();
  process({choosing("MsgOne", 1)});
  const FakeInterface* first = toolkit.interface("Conflicts").get();
  panel.setQuality("Draft");
  process({choosing("MsgOne", 1)});
  EXPECT_EQ(toolkit.interface("Conflicts").get(), first);
}

TEST_F(ConflictLoop, AProgramThatEndsLeavesEverythingAsItIs) {
  ironOnAtDraft();
  panel.format.name = "EnvelopeDL";
  process({[](FakeInterface&) {}});
  expectUnchanged();
  EXPECT_EQ(toolkit.shown, Names{"ibMsgOneWindow"});
}

TEST_F(ConflictLoop, AProgramThatEndsDuringInstructionsShowsNothingMore) {
  panel.setPaper("PhotoGlossy");
  panel.setColor("Black");
  panel.format.name = "BannerBA4";
  toolkit.answers.push_back(choosing("MsgFive", 2));
  toolkit.answers.push_back([](FakeInterface&) {});
  panel.checker->processConflict();
  EXPECT_EQ(toolkit.shown, (Names{"ibMsgFiveWindow", "ibInstructionWindow"}));
  EXPECT_EQ(panel.model.paperTypeTicket(), "PhotoGlossy");
}

TEST_F(ConflictLoop, ThePanelMayBeReleasedWhileAWindowIsUp) {
  ironOnAtDraft();
  process({[this](FakeInterface& windows) {
    panel.checker.reset();
    EXPECT_FALSE(windows.window("ibMsgOneWindow").open);
    pressOk(windows, "MsgOne");  // nobody listens any more
  }});
  expectUnchanged();
}

TEST_F(ConflictLoop, ThePanelMayBeReleasedAndTheRunStopped) {
  ironOnAtDraft();
  panel.format.name = "EnvelopeDL";
  process({[this](FakeInterface&) {
    panel.checker.reset();
    toolkit.stopModal();
  }});
  EXPECT_EQ(toolkit.shown, Names{"ibMsgOneWindow"});
}

TEST_F(ConflictLoop, ThePanelMayBeReleasedWhileInstructionsAreUp) {
  for (const bool stopped : {false, true}) {
    ConflictTestPanel short_(ppd.get());
    short_.setPaper("Transparency");
    short_.format.name = "BannerBA4";
    short_.settings.columns = "2";
    toolkit.answers.push_back(choosing("MsgFive", 2));
    toolkit.answers.push_back([&](FakeInterface&) {
      short_.checker.reset();
      if (stopped) toolkit.stopModal();
    });
    toolkit.shown.clear();
    short_.checker->processConflict();
    EXPECT_EQ(toolkit.shown, (Names{"ibMsgFiveWindow", "ibInstructionWindow"}));
  }
}

TEST_F(ConflictLoop, ThePanelMayBeReleasedWhileMsgTwosInstructionsAreUp) {
  panel.setMirror("True");
  panel.format.name = "EnvelopeDL";
  process({choosing("MsgTwo", 2), [this](FakeInterface&) {
             panel.checker.reset();
             toolkit.stopModal();
           }});
}

TEST_F(ConflictLoop, ThePanelMayBeReleasedByAnObserverOfTheChange) {
  for (const char* dialog : {"MsgOne", "MsgTwo", "MsgFive"}) {
    ConflictTestPanel short_(ppd.get());
    short_.setPaper("IronOn");
    if (dialog == std::string("MsgOne")) short_.setQuality("Draft");
    if (dialog == std::string("MsgTwo")) short_.settings.columns = "2";
    if (dialog == std::string("MsgFive")) short_.format.name = "EnvelopeDL";
    NotificationCenter::defaultCenter().addObserver(&short_, ConflictControllerChangeNotification,
                                                    [&](const void*) { short_.checker.reset(); });
    process(short_, {choosing(dialog, 1)});
    NotificationCenter::defaultCenter().removeObserver(&short_);
  }
}

// --- Two panels in one process ---

TEST_F(ConflictLoop, EachPanelHasWindowsOfItsOwn) {
  ConflictTestPanel other(ppd.get());
  ironOnAtDraft();
  other.setPaper("IronOn");
  other.setQuality("Draft");
  process({closing("MsgOne"), choosing("MsgOne", 1)});
  process(other, {choosing("MsgOne", 2)});
  EXPECT_EQ(panel.model.paperTypeTicket(), "IronOn");
  EXPECT_EQ(other.model.paperTypeTicket(), "Plain");
  panel.setQuality("Draft");
  process({choosing("MsgOne", 1)});
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");
}

TEST_F(ConflictLoop, WhatOnePanelIgnoresIsIgnoredInTheOther) {
  ConflictTestPanel other(ppd.get());
  panel.setMirror("True");
  panel.format.name = "EnvelopeDL";
  other.setMirror("True");
  other.format.name = "EnvelopeB5";
  process({choosing("MsgTwo", 3)});
  process(other, {});
}

TEST_F(ConflictLoop, OnePanelsCheckForgetsTheOthersInstructions) {
  ConflictTestPanel other(ppd.get());
  panel.setPaper("Greeting");
  panel.format.name = "BannerBA4";
  process({choosing("MsgFive", 2), closing("Instruction")});
  EXPECT_EQ(panel.codes(), std::vector<int>{});
  process(other, {});
  EXPECT_EQ(panel.codes(), std::vector{9});
}

TEST_F(ConflictLoop, OnePanelsWindowCanComeUpInsideTheOthers) {
  ConflictTestPanel other(ppd.get());
  ironOnAtDraft();
  other.setPaper("PhotoGlossy");
  other.setColor("Black");
  toolkit.answers.push_back([&](FakeInterface& windows) {
    other.checker->processConflict();
    EXPECT_EQ(toolkit.runs(), 1);
    EXPECT_TRUE(windows.window("ibMsgOneWindow").open);
    choosing("MsgOne", 1)(windows);
  });
  toolkit.answers.push_back(choosing("MsgFive", 1));
  panel.checker->processConflict();
  EXPECT_EQ(toolkit.shown, (Names{"ibMsgOneWindow", "ibMsgFiveWindow"}));
  EXPECT_EQ(toolkit.mostRuns, 2);
  EXPECT_EQ(other.model.blackAndWhiteTicket(), "Color");
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");
}

}  // namespace
}  // namespace tavrin
