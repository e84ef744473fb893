#include "tests/fixtures/ConflictWindowsTest.h"

// The loop over the windows: its order, how it ends, and which windows it finds.

namespace tavrin {
namespace {

using ConflictLoop = ConflictWindowsTest;

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
             expectStillIronOnAtDraft();
             choosing("MsgOne", 1)(windows);
           }});
  EXPECT_EQ(toolkit.shown, (Names{"ibMsgOneWindow", "ibMsgOneWindow", "ibMsgOneWindow"}));
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");
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

TEST_F(ConflictLoop, AMissingInterfaceFileShowsNothingAndIsLookedForAgain) {
  ironOnAtDraft();
  toolkit.missing = {"Conflicts"};
  process({});
  expectStillIronOnAtDraft();
  EXPECT_EQ(countSet(kConflictFlags), 0);
  toolkit.missing.clear();
  process({choosing("MsgOne", 1)});
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");
}

TEST_F(ConflictLoop, AnIncompleteInterfaceFileIsLoadedAgainAndNothingDangles) {
  ironOnAtDraft();
  toolkit.unconnected = {"ibMsgOneWindow"};
  process({});
  EXPECT_TRUE(toolkit.shown.empty());
  expectStillIronOnAtDraft();
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
  expectStillIronOnAtDraft();
  EXPECT_EQ(toolkit.shown, Names{"ibMsgOneWindow"});
}

TEST_F(ConflictLoop, ACheckAfterOneThatWasCutShortShowsEveryWindow) {
  ironOnAtDraft();
  panel.format.name = "EnvelopeDL";
  process({[](FakeInterface&) {}});
  process({choosing("MsgOne", 1), choosing("MsgFive", 1)});
  EXPECT_EQ(panel.codes(), std::vector<int>{});
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
  expectStillIronOnAtDraft();
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
