#include "controller/MirrorRule.h"

#include "tests/fixtures/ControllerTest.h"

namespace tavrin {
namespace {

constexpr int kPlain = 1;
constexpr int kIronOn = 2;

// The rule at work in a whole panel.
class Mirror : public ControllerTest {
 protected:
  void choosePaper(int index) { panel().choose("ibPaperType", index, "paperTypeAction:"); }
  void clickMirror() { panel().click("ibMIrror", "mirrorAction:"); }
  void setPaperFromOutside(const std::string& text, const std::string& keyword) {
    model().setPaperType(text);
    model().setPaperTypeTicket(keyword);
    controller->updateControls();
  }
};

// --- The user chooses a paper type ---

TEST_F(Mirror, IsSwitchedOnForIronOnPaper) {
  show(fullPrinter());
  choosePaper(kIronOn);
  EXPECT_EQ(model().mirror(), "On");
  EXPECT_EQ(model().mirrorTicket(), "True");
  EXPECT_EQ(panel().button("ibMIrror").state, 1);
}

TEST_F(Mirror, IsSwitchedOffForOtherPaperWhenItWasAutomatic) {
  show(fullPrinter());
  choosePaper(kIronOn);
  choosePaper(kPlain);
  EXPECT_EQ(model().mirror(), "Off");
  EXPECT_EQ(model().mirrorTicket(), "False");
  EXPECT_EQ(panel().button("ibMIrror").state, 0);
}

TEST_F(Mirror, StaysWhenTheUserSwitchedItOn) {
  show(fullPrinter());
  clickMirror();
  choosePaper(kPlain);
  EXPECT_EQ(model().mirrorTicket(), "True");
  EXPECT_EQ(panel().button("ibMIrror").state, 1);
}

TEST_F(Mirror, IsNotProtectedWhenTheUserSwitchedItOff) {
  show(fullPrinter());
  clickMirror();
  clickMirror();
  EXPECT_EQ(model().mirror(), "Off");
  choosePaper(kIronOn);
  EXPECT_EQ(model().mirrorTicket(), "True");
}

TEST_F(Mirror, StaysAsAPresetLeftItUntilTheUserTouchesIt) {
  show(fullPrinter());
  mark("Mirror", "True");
  controller->updatePDEModelwithMarkedChoices();
  choosePaper(kPlain);
  EXPECT_EQ(model().mirrorTicket(), "True");
  clickMirror();
  clickMirror();
  clickMirror();
  choosePaper(kIronOn);
  choosePaper(kPlain);
  EXPECT_EQ(model().mirrorTicket(), "False");
}

TEST_F(Mirror, IsSwitchedBeforeTheConflictCheck) {
  show(fullPrinter());
  panel().choose("ibPrintQuality", 1, "printQualityAction:");
  OptString mirror;
  toolkit.answers.emplace_back([&](FakeInterface&) { mirror = model().mirrorTicket(); });
  choosePaper(kIronOn);
  EXPECT_EQ(mirror, "True");
}

// --- Marked choices ---

TEST_F(Mirror, FollowsItsMarkedChoice) {
  show(fullPrinter());
  mark("Mirror", "True");
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(model().mirror(), "Mirrored");
  EXPECT_EQ(model().mirrorTicket(), "True");
}

TEST_F(Mirror, GoesBackToItsDefaultWithoutAMark) {
  show(fullPrinter());
  model().setMirror("On");
  model().setMIrrorTicket("True");
  unmark("Mirror");
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(model().mirror(), "Not Mirrored");
  EXPECT_EQ(model().mirrorTicket(), "False");
}

TEST_F(Mirror, GoesBackToAbsentWithoutAPrinter) {
  start(nullptr);
  model().setMIrrorTicket("True");
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(model().mirrorTicket(), std::nullopt);
}

TEST_F(Mirror, RemembersThatThePresetSwitchedItOn) {
  show(fullPrinter());
  mark("Mirror", "True");
  controller->updatePDEModelwithMarkedChoices();
  choosePaper(kPlain);
  EXPECT_EQ(model().mirrorTicket(), "True") << "a preset's mirror outlives a paper type";

  mark("Mirror", "False");
  controller->updatePDEModelwithMarkedChoices();
  choosePaper(kIronOn);
  choosePaper(kPlain);
  EXPECT_EQ(model().mirrorTicket(), "False") << "an automatic one does not";
}

TEST_F(Mirror, KeepsWhatItKnewOfThePresetWithoutAMark) {
  show(fullPrinter());
  mark("Mirror", "True");
  controller->updatePDEModelwithMarkedChoices();
  unmark("Mirror");
  controller->updatePDEModelwithMarkedChoices();
  choosePaper(kIronOn);
  choosePaper(kPlain);
  EXPECT_EQ(model().mirrorTicket(), "True");
}

// --- The paper type changes from outside the panel ---

TEST_F(Mirror, IsSwitchedOffWhenOtherPaperComesFromOutside) {
  show(fullPrinter());
  choosePaper(kIronOn);
  ASSERT_EQ(panel().button("ibMIrror").state, 1);
  setPaperFromOutside("Plain Paper", "Plain");
  EXPECT_EQ(model().mirror(), "Off");
  EXPECT_EQ(model().mirrorTicket(), "False");
  EXPECT_EQ(panel().button("ibMIrror").state, 0);
}

TEST_F(Mirror, IsSwitchedOnWhenIronOnPaperComesFromOutside) {
  show(fullPrinter());
  setPaperFromOutside("Iron-On Transfer", "IronOn");
  EXPECT_EQ(model().mirrorTicket(), "True");
  EXPECT_EQ(panel().button("ibMIrror").state, 1);
}

TEST_F(Mirror, StaysWhenTheUserSwitchedItOnAndPaperComesFromOutside) {
  show(fullPrinter());
  clickMirror();
  setPaperFromOutside("Plain Paper", "Plain");
  EXPECT_EQ(model().mirrorTicket(), "True");
}

TEST_F(Mirror, IsNoLongerTheUsersWhenTheModelOverridesIt) {
  show(fullPrinter());
  clickMirror();
  model().setMirror("Off");
  model().setMIrrorTicket("False");
  controller->updateControls();
  EXPECT_EQ(panel().button("ibMIrror").state, 0);
  choosePaper(kIronOn);
  EXPECT_EQ(model().mirrorTicket(), "True") << "the mirror was automatic again";
  choosePaper(kPlain);
  EXPECT_EQ(model().mirrorTicket(), "False");
}

TEST_F(Mirror, StaysAsAPresetLeftItWhenPaperComesFromOutside) {
  show(fullPrinter());
  mark("Mirror", "True");
  controller->updatePDEModelwithMarkedChoices();
  setPaperFromOutside("Plain Paper", "Plain");
  EXPECT_EQ(model().mirrorTicket(), "True");
}

TEST_F(Mirror, IsSwitchedOnForIronOnPaperFromOutsideWhateverThePreset) {
  show(fullPrinter());
  mark("Mirror", "True");
  controller->updatePDEModelwithMarkedChoices();
  model().setMIrrorTicket("False");
  setPaperFromOutside("Iron-On Transfer", "IronOn");
  EXPECT_EQ(model().mirrorTicket(), "True");
}

// The box still shows the user's mirror when the rule looks, and is switched off only afterwards.
TEST_F(Mirror, StaysOffForIronOnPaperFromOutsideWhileTheUsersBoxIsOn) {
  show(fullPrinter());
  clickMirror();
  model().setMirror("Off");
  model().setMIrrorTicket("False");
  setPaperFromOutside("Iron-On Transfer", "IronOn");
  EXPECT_EQ(model().mirrorTicket(), "False");
  EXPECT_EQ(panel().button("ibMIrror").state, 0);
}

TEST_F(Mirror, StaysAbsentWhenPaperComesFromOutside) {
  show({paperTypeOption()});
  setPaperFromOutside("Iron-On Transfer", "IronOn");
  EXPECT_EQ(model().mirrorTicket(), std::nullopt);
}

TEST_F(Mirror, StaysWhenThePopUpShowsThePaperAlready) {
  show(fullPrinter());
  model().setMIrrorTicket("True");
  controller->updateControls();
  EXPECT_EQ(model().mirrorTicket(), "True");
}

}  // namespace
}  // namespace tavrin
