#include "tests/fixtures/ControllerTest.h"

namespace tavrin {
namespace {

constexpr int kPlain = 1;
constexpr int kIronOn = 2;

class Actions : public ControllerTest {
 protected:
  Actions() { show(fullPrinter()); }

  void choosePaper(int index) { panel().choose("ibPaperType", index, "paperTypeAction:"); }
  void clickMirror() { panel().click("ibMIrror", "mirrorAction:"); }
};

TEST_F(Actions, StoreThePopUpsChoice) {
  panel().choose("ibPrintQuality", 3, "printQualityAction:");
  EXPECT_EQ(model().printQuality(), "Photo");
  EXPECT_EQ(model().printQualityTicket(), "Best");
  panel().choose("ibPaperSource", 1, "paperSourceAction:");
  EXPECT_EQ(model().paperSource(), "Lower Tray");
  EXPECT_EQ(model().paperSourceTicket(), "Tray2");
  panel().choose("ibDryTimePopUp", 2, "dryTimePopUpAction:");
  EXPECT_EQ(model().dryTime(), "Extra Long Dry");
  EXPECT_EQ(model().dryTimeTicket(), "Extra");
}

TEST_F(Actions, SwitchTheMirrorOnForIronOnPaper) {
  choosePaper(kIronOn);
  EXPECT_EQ(model().mirror(), "On");
  EXPECT_EQ(model().mirrorTicket(), "True");
  EXPECT_EQ(panel().button("ibMIrror").state, 1);
}

TEST_F(Actions, SwitchAnAutomaticMirrorOffForOtherPaper) {
  choosePaper(kIronOn);
  choosePaper(kPlain);
  EXPECT_EQ(model().mirror(), "Off");
  EXPECT_EQ(model().mirrorTicket(), "False");
  EXPECT_EQ(panel().button("ibMIrror").state, 0);
}

TEST_F(Actions, LeaveAMirrorThatTheUserSwitchedOn) {
  clickMirror();
  choosePaper(kPlain);
  EXPECT_EQ(model().mirrorTicket(), "True");
  EXPECT_EQ(panel().button("ibMIrror").state, 1);
}

TEST_F(Actions, DoNotProtectAMirrorThatTheUserSwitchedOff) {
  clickMirror();
  clickMirror();
  EXPECT_EQ(model().mirror(), "Off");
  choosePaper(kIronOn);
  EXPECT_EQ(model().mirrorTicket(), "True");
}

TEST_F(Actions, LeaveAPresetsMirrorUntilTheUserTouchesIt) {
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

TEST_F(Actions, TakeBlackAndWhiteFromTheChoicesPosition) {
  panel().click("ibBlackAndWhite", "blackAndWhiteAction:");
  EXPECT_EQ(model().blackAndWhite(), "Black Ink");
  EXPECT_EQ(model().blackAndWhiteTicket(), "Black");
  panel().click("ibBlackAndWhite", "blackAndWhiteAction:");
  EXPECT_EQ(model().blackAndWhiteTicket(), "Color");
}

TEST_F(Actions, CountTheSliderBehindTheAutomaticChoice) {
  panel().slide("ibManualImageSharpeningSlider", 10, "imageSharpeningSliderAction:");
  EXPECT_EQ(model().imageSharpeningTicket(), "10");
  EXPECT_EQ(model().imageSharpening(), "Most");
}

TEST_F(Actions, StartManualSharpeningAtNone) {
  panel().slide("ibManualImageSharpeningSlider", 10, "imageSharpeningSliderAction:");
  panel().pick("ibManualImageSharpening", "manualImageSharpeningAction:");
  EXPECT_EQ(model().imageSharpeningTicket(), "0");
  EXPECT_EQ(panel().button("ibAutoImageSharpening").state, 0);
  EXPECT_EQ(panel().slider("ibManualImageSharpeningSlider").value, 0);
  EXPECT_TRUE(panel().slider("ibManualImageSharpeningSlider").enabled);
  EXPECT_EQ(panel().label("ibNoneLabel").color, TextColor::black);
  EXPECT_EQ(panel().label("ibMostLabel").color, TextColor::black);
}

TEST_F(Actions, GoBackToAutomaticSharpening) {
  panel().pick("ibManualImageSharpening", "manualImageSharpeningAction:");
  panel().pick("ibAutoImageSharpening", "autoImageSharpeningAction:");
  EXPECT_EQ(model().imageSharpeningTicket(), "Automatic");
  EXPECT_EQ(model().imageSharpening(), "Auto");
  EXPECT_EQ(panel().button("ibManualImageSharpening").state, 0);
  EXPECT_FALSE(panel().slider("ibManualImageSharpeningSlider").enabled);
  EXPECT_EQ(panel().label("ibMostLabel").color, TextColor::grey);
}

TEST_F(Actions, IgnoreASharpeningButtonThatIsNotOn) {
  panel().slide("ibManualImageSharpeningSlider", 4, "imageSharpeningSliderAction:");
  panel().button("ibManualImageSharpening").state = 1;
  panel().click("ibManualImageSharpening", "manualImageSharpeningAction:");
  panel().button("ibAutoImageSharpening").state = 1;
  panel().click("ibAutoImageSharpening", "autoImageSharpeningAction:");
  EXPECT_EQ(model().imageSharpeningTicket(), "4");
}

TEST_F(Actions, StoreTheDryTimeCheckBox) {
  show({dryTimeCheckBoxOption()});
  panel().click("ibDryTimeCheckBox", "dryTimeCheckBoxAction:");
  EXPECT_EQ(model().dryTime(), "Waits");
  EXPECT_EQ(model().dryTimeTicket(), "True");
  panel().click("ibDryTimeCheckBox", "dryTimeCheckBoxAction:");
  EXPECT_EQ(model().dryTime(), "Runs");
  EXPECT_EQ(model().dryTimeTicket(), "False");
}

// Iron-on paper at draft quality brings a window up: the conflict check has run.
TEST_F(Actions, CheckForConflictsWhereSettingsCanClash) {
  panel().choose("ibPrintQuality", 1, "printQualityAction:");
  EXPECT_TRUE(toolkit.shown.empty());
  choosePaper(kIronOn);
  EXPECT_EQ(toolkit.shown.size(), 1u);
  panel().choose("ibPrintQuality", 1, "printQualityAction:");
  EXPECT_EQ(toolkit.shown.size(), 2u);
  clickMirror();
  EXPECT_EQ(toolkit.shown.size(), 3u);
  panel().click("ibBlackAndWhite", "blackAndWhiteAction:");
  EXPECT_EQ(toolkit.shown.size(), 4u);
}

TEST_F(Actions, DoNotCheckForConflictsElsewhere) {
  model().setPaperTypeTicket("IronOn");
  model().setPrintQualityTicket("Draft");
  panel().choose("ibPaperSource", 1, "paperSourceAction:");
  panel().choose("ibDryTimePopUp", 1, "dryTimePopUpAction:");
  panel().slide("ibManualImageSharpeningSlider", 3, "imageSharpeningSliderAction:");
  panel().pick("ibManualImageSharpening", "manualImageSharpeningAction:");
  EXPECT_TRUE(toolkit.shown.empty());
}

TEST_F(Actions, SwitchTheMirrorBeforeTheConflictCheck) {
  panel().choose("ibPrintQuality", 1, "printQualityAction:");
  OptString mirror;
  toolkit.answers.emplace_back([&](FakeInterface&) { mirror = model().mirrorTicket(); });
  choosePaper(kIronOn);
  EXPECT_EQ(mirror, "True");
}

}  // namespace
}  // namespace tavrin
