#include "tests/fixtures/ConflictWindowsTest.h"

// The choice buttons of the windows, and which choice an OK means.

namespace tavrin {
namespace {

using Choices = ConflictWindowsTest;

// Composing puts the first button on but does not take back the choice: the window that comes back
// shows the first choice and still means the second.
TEST_F(Choices, AChoiceOutlivesAWindowThatWasClosed) {
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

TEST_F(Choices, TheButtonsOfEveryWindowComeUpWithTheFirstOneOn) {
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

TEST_F(Choices, TheButtonsOfMsgOneComeUpWithTheFirstOneOn) {
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

TEST_F(Choices, TheNextCheckStartsWithTheFirstChoice) {
  ironOnAtDraft();
  process({[](FakeInterface& windows) { pickChoice(windows, "MsgOne", 2); }});  // the program ends
  expectStillIronOnAtDraft();
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
TEST_F(Choices, MsgOnesChoiceIsTheFirstAgainBeforeTheChangeIsTold) {
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

TEST_F(Choices, AfterInstructionsTheNextMsgTwoStartsWithTheFirstChoice) {
  panel.setPaper("IronOn");
  panel.settings.columns = "2";
  panel.setMirror("True");
  panel.format.name = "EnvelopeDL";
  process({choosing("MsgFive", 2), closing("Instruction"), choosing("MsgTwo", 2),
           closing("Instruction"), choosing("MsgTwo", 0)});
  EXPECT_EQ(panel.model.mirrorTicket(), "False");
  EXPECT_FALSE(IGNORE_MIRROR_ENVELOPE_CONFLICT);
}

TEST_F(Choices, AfterOkTheNextWindowOfTheKindStartsWithTheFirstChoice) {
  panel.setPaper("PhotoGlossy");
  panel.setColor("Black");
  panel.format.name = "BannerBA4";
  ASSERT_EQ(panel.codes(), (std::vector{7, 8}));
  process({choosing("MsgFive", 2), closing("Instruction"), choosing("MsgFive", 0)});
  EXPECT_EQ(panel.model.blackAndWhiteTicket(), "Color");
  EXPECT_EQ(panel.model.paperTypeTicket(), "PhotoGlossy");
}

TEST_F(Choices, TheButtonsTurnEachOtherOff) {
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

TEST_F(Choices, TheTwoButtonsOfMsgFiveTurnEachOtherOff) {
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

TEST_F(Choices, AClickThatLeavesItsButtonOffChoosesNothing) {
  ironOnAtDraft();
  process({[](FakeInterface& windows) {
    windows.button("ibSecondButton_MsgOne").state = 1;
    windows.click("ibSecondButton_MsgOne", "clickSecondButton_MsgOne:");  // now off
    EXPECT_EQ(windows.button("ibFirstButton_MsgOne").state, 1);
    pressOk(windows, "MsgOne");
  }});
  EXPECT_EQ(panel.model.printQualityTicket(), "Normal");
}

TEST(ConflictWindowChoice, NothingIsSelectedAtFirst) {
  ConflictWindow window("MsgOne", {2, 2, 1});
  EXPECT_EQ(window.takeSelected(), std::nullopt);
  EXPECT_EQ(window.takeSelected(), firstChoice);
}

}  // namespace
}  // namespace tavrin
