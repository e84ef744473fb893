#include "platform/toolkit/NotificationCenter.h"
#include "tests/fixtures/ControllerTest.h"

namespace tavrin {
namespace {

class PanelView : public ControllerTest {
 protected:
  Rect frameOf(const std::string& name) { return panel().view(name).place; }
  void disclose() { panel().click("ibDisclosure", "disclosureAction:"); }
  void setPaperFromOutside(const std::string& text, const std::string& keyword) {
    model().setPaperType(text);
    model().setPaperTypeTicket(keyword);
    controller->updateControls();
  }
};

TEST_F(PanelView, IsNullWithoutItsInterfaceFile) {
  toolkit.missing = {"TavrinPDENIB"};
  show(fullPrinter());
  EXPECT_EQ(view, nullptr);
}

TEST_F(PanelView, IsLoadedOnce) {
  show(fullPrinter());
  EXPECT_EQ(view, controller->mainView());
  EXPECT_EQ(view.get(), &panel().view("ibPDEView"));
}

TEST_F(PanelView, StartsCollapsed) {
  show(fullPrinter());
  EXPECT_TRUE(panel().view("ibAdvancedView").hidden);
  EXPECT_EQ(frameOf("ibPDEView"), (Rect{0, 0, 400, 200}));
  EXPECT_EQ(frameOf("ibHeaderView"), (Rect{0, 100, 400, 200}));
}

TEST_F(PanelView, DisclosesTheAdvancedArea) {
  show(fullPrinter());
  disclose();
  EXPECT_FALSE(panel().view("ibAdvancedView").hidden);
  EXPECT_EQ(frameOf("ibPDEView"), (Rect{0, 0, 400, 300}));
  disclose();
  EXPECT_TRUE(panel().view("ibAdvancedView").hidden);
  EXPECT_EQ(frameOf("ibPDEView"), (Rect{0, 0, 400, 200}));
  EXPECT_EQ(frameOf("ibHeaderView"), (Rect{0, 100, 400, 200}));
}

TEST_F(PanelView, PutsTheHeaderInItsPlaceWhenItDisclosesOnly) {
  show(fullPrinter());
  disclose();
  panel().view("ibHeaderView").setFrameOrigin(5, 7);
  disclose();
  EXPECT_EQ(frameOf("ibHeaderView"), (Rect{5, 7, 400, 200}));
  disclose();
  EXPECT_EQ(frameOf("ibHeaderView"), (Rect{0, 100, 400, 200}));
}

TEST_F(PanelView, TellsThatItsHeightChanged) {
  show(fullPrinter());
  const void* told = nullptr;
  NotificationCenter::defaultCenter().addObserver(this,
                                                  PDEControllerDisclosureButtonChangedNotification,
                                                  [&told](const void* object) { told = object; });
  disclose();
  NotificationCenter::defaultCenter().removeObserver(this);
  EXPECT_EQ(told, static_cast<const Button*>(&panel().button("ibDisclosure")));
}

TEST_F(PanelView, AsksToBeDrawnAgain) {
  show(fullPrinter());
  const int before = panel().view("ibPDEView").redisplays;
  disclose();
  EXPECT_EQ(panel().view("ibPDEView").redisplays, before + 1);
}

TEST_F(PanelView, WithoutSecondTrayFreesThePaperSourceRow) {
  show({paperSourceOption(), tray2Option("False")});
  EXPECT_TRUE(panel().popUp("ibPaperSource").hidden);
  EXPECT_TRUE(panel().label("ibPaperSourceLabel").hidden);
  EXPECT_EQ(panel().button("ibDisclosure").place, (Rect{10, 45, 20, 20}));
  EXPECT_EQ(panel().label("ibDisclosureLabel").place, (Rect{40, 45, 100, 20}));
  EXPECT_EQ(frameOf("ibHeaderView"), (Rect{0, 65, 400, 200}));
  EXPECT_EQ(frameOf("ibPDEView"), (Rect{0, 0, 400, 200}));
}

TEST_F(PanelView, WithoutSecondTrayExpandsToALowerPanel) {
  show({tray2Option("False")});
  disclose();
  EXPECT_EQ(frameOf("ibPDEView"), (Rect{0, 0, 400, 260}));
  EXPECT_EQ(frameOf("ibHeaderView"), (Rect{0, 65, 400, 200}));
}

// --- First filling ---

TEST_F(PanelView, FillsThePopUpsOnce) {
  show(fullPrinter());
  EXPECT_TRUE(controller->isFinishedInited());
  EXPECT_EQ(panel().popUp("ibPrintQuality").numberOfItems(), 4);
  EXPECT_EQ(panel().popUp("ibPaperType").numberOfItems(), 6);
  EXPECT_EQ(panel().popUp("ibPaperSource").numberOfItems(), 2);
  EXPECT_EQ(panel().popUp("ibDryTimePopUp").numberOfItems(), 3);
  willShow();
  EXPECT_EQ(panel().popUp("ibPrintQuality").numberOfItems(), 4);
}

TEST_F(PanelView, DoesNotFillThePaperSourceWithoutASecondTray) {
  show({paperSourceOption(), tray2Option("False")});
  EXPECT_EQ(panel().popUp("ibPaperSource").numberOfItems(), 0);
}

TEST_F(PanelView, TakesFirstStatesFromThePPDsDefaults) {
  PPDOptionText color = colorModelOption();
  color.defaultChoice = "Black";
  PPDOptionText mirror = mirrorOption();
  mirror.defaultChoice = "True";
  start(makePPD({color, mirror, sharpeningOption("5")}));
  view = controller->mainView();
  controller->initializeControls();
  EXPECT_EQ(panel().button("ibBlackAndWhite").state, 1);
  EXPECT_EQ(panel().button("ibMIrror").state, 1);
  EXPECT_EQ(panel().button("ibManualImageSharpening").state, 1);
  EXPECT_EQ(panel().button("ibAutoImageSharpening").state, 0);
  EXPECT_EQ(panel().slider("ibManualImageSharpeningSlider").value, 5);
  EXPECT_TRUE(panel().slider("ibManualImageSharpeningSlider").enabled);
  EXPECT_EQ(panel().label("ibNoneLabel").color, std::nullopt);
}

TEST_F(PanelView, GreysTheEndsOfAutomaticSharpening) {
  show(fullPrinter());
  EXPECT_EQ(panel().button("ibAutoImageSharpening").state, 1);
  EXPECT_FALSE(panel().slider("ibManualImageSharpeningSlider").enabled);
  EXPECT_EQ(panel().label("ibNoneLabel").color, TextColor::grey);
  EXPECT_EQ(panel().label("ibMostLabel").color, TextColor::grey);
}

TEST_F(PanelView, LeavesTheSliderOfAnAutomaticDefaultWhereItStands) {
  start(makePPD({sharpeningOption()}));
  view = controller->mainView();
  panel().slider("ibManualImageSharpeningSlider").value = 4;
  controller->initializeControls();
  EXPECT_EQ(panel().slider("ibManualImageSharpeningSlider").value, 4);
}

TEST_F(PanelView, TakesAMissingDefaultForAnotherChoice) {
  start(nullptr);
  view = controller->mainView();
  controller->initializeControls();
  EXPECT_EQ(panel().button("ibBlackAndWhite").state, 1);
  EXPECT_EQ(panel().button("ibMIrror").state, 1);
  EXPECT_EQ(panel().button("ibManualImageSharpening").state, 1);
  EXPECT_EQ(panel().slider("ibManualImageSharpeningSlider").value, 0);
  EXPECT_TRUE(panel().popUp("ibDryTimePopUp").hidden);
  EXPECT_TRUE(panel().button("ibDryTimeCheckBox").hidden);
}

TEST_F(PanelView, ShowsTheKindOfDryTimeThatThePrinterHas) {
  show({dryTimePopUpOption()});
  EXPECT_FALSE(panel().popUp("ibDryTimePopUp").hidden);
  EXPECT_FALSE(panel().label("ibDryTimeLabel").hidden);
  EXPECT_TRUE(panel().button("ibDryTimeCheckBox").hidden);

  show({dryTimeCheckBoxOption("True")});
  EXPECT_TRUE(panel().popUp("ibDryTimePopUp").hidden);
  EXPECT_TRUE(panel().label("ibDryTimeLabel").hidden);
  EXPECT_FALSE(panel().button("ibDryTimeCheckBox").hidden);

  show({{"DupDryTime/Dry", "PickMany", "A", {"A", "B"}}});
  EXPECT_TRUE(panel().popUp("ibDryTimePopUp").hidden);
  EXPECT_TRUE(panel().button("ibDryTimeCheckBox").hidden);
  EXPECT_EQ(panel().label("ibDryTimeLabel").text, "");
  EXPECT_EQ(panel().button("ibDryTimeCheckBox").title, "");
}

TEST_F(PanelView, TakesTheDryTimeBoxFromItsDefaultFirst) {
  start(makePPD({dryTimeCheckBoxOption("True")}));
  view = controller->mainView();
  controller->initializeControls();
  EXPECT_EQ(panel().button("ibDryTimeCheckBox").state, 1);
}

// --- Labels ---

TEST_F(PanelView, LabelsControlsWithThePPDsTexts) {
  show(fullPrinter());
  EXPECT_EQ(panel().label("ibDisclosureLabel").text, "Advanced Options");
  EXPECT_EQ(panel().button("ibBlackAndWhite").title, "Print in Black and White");
  EXPECT_EQ(panel().label("ibPrintQualityLabel").text, "Print Quality:");
  EXPECT_EQ(panel().label("ibPaperTypeLabel").text, "Paper Type:");
  EXPECT_EQ(panel().label("ibPaperSourceLabel").text, "Paper Source:");
  EXPECT_EQ(panel().button("ibMIrror").title, "Mirror Image");
  EXPECT_EQ(panel().label("ibImageSharpeningLabel").text, "Image Sharpening:");
  EXPECT_EQ(panel().button("ibAutoImageSharpening").title, "Automatic");
  EXPECT_EQ(panel().button("ibManualImageSharpening").title, "Manual");
  EXPECT_EQ(panel().label("ibNoneLabel").text, "None");
  EXPECT_EQ(panel().label("ibMostLabel").text, "Most");
  EXPECT_EQ(panel().label("ibDryTimeLabel").text, "Dry Time");
  EXPECT_EQ(panel().button("ibDryTimeCheckBox").title, "");
}

TEST_F(PanelView, LabelsAPaperSourceThatItDoesNotShow) {
  show({paperSourceOption(), tray2Option("False")});
  EXPECT_EQ(panel().label("ibPaperSourceLabel").text, "Paper Source:");
}

TEST_F(PanelView, LabelsTheDryTimeBox) {
  show({dryTimeCheckBoxOption()});
  EXPECT_EQ(panel().button("ibDryTimeCheckBox").title, "Extra Dry Time");
  EXPECT_EQ(panel().label("ibDryTimeLabel").text, "");
}

// --- Following the model ---

TEST_F(PanelView, FollowsTheModel) {
  show(fullPrinter());
  model().setPrintQuality("Photo");
  model().setPaperSource("Lower Tray");
  model().setBlackAndWhiteTicket("Black");
  model().setDryTime("Long Dry");
  model().setDryTimeTicket("Long");
  controller->updateControls();
  EXPECT_EQ(panel().popUp("ibPrintQuality").selected, 3);
  EXPECT_EQ(panel().popUp("ibPaperSource").selected, 1);
  EXPECT_EQ(panel().button("ibBlackAndWhite").state, 1);
  EXPECT_EQ(panel().popUp("ibDryTimePopUp").selected, 1);
}

TEST_F(PanelView, SelectsNothingForATextThatNoItemHas) {
  show(fullPrinter());
  model().setPrintQuality("Superb");
  model().setPaperSource(std::nullopt);
  controller->updateControls();
  EXPECT_EQ(panel().popUp("ibPrintQuality").selected, -1);
  EXPECT_EQ(panel().popUp("ibPaperSource").selected, -1);
}

TEST_F(PanelView, TouchesOnlyWhatDisagrees) {
  show(fullPrinter());
  const int before = panel().popUp("ibPrintQuality").selections;
  controller->updateControls();
  EXPECT_EQ(panel().popUp("ibPrintQuality").selections, before);
}

TEST_F(PanelView, ComparesTheDryTimesKeywordWithItsTitle) {
  show(fullPrinter());
  const int before = panel().popUp("ibDryTimePopUp").selections;
  controller->updateControls();
  EXPECT_EQ(panel().popUp("ibDryTimePopUp").selections, before + 1);
  EXPECT_EQ(panel().popUp("ibDryTimePopUp").selected, 0);
}

TEST_F(PanelView, LeavesAPaperSourceThatItDoesNotShowAlone) {
  show({paperSourceOption(), tray2Option("False")});
  EXPECT_EQ(panel().popUp("ibPaperSource").selections, 0);
}

TEST_F(PanelView, LeavesSharpeningThatAgreesAlone) {
  start(makePPD({sharpeningOption("5")}));
  view = controller->mainView();
  model().setImageSharpeningTicket("5");
  willShow();
  EXPECT_EQ(panel().label("ibNoneLabel").color, std::nullopt);
  EXPECT_EQ(panel().label("ibMostLabel").color, std::nullopt);
}

TEST_F(PanelView, ReadsTheSliderWhereBothSharpeningButtonsAreOn) {
  show(fullPrinter());
  panel().button("ibManualImageSharpening").state = 1;
  panel().slider("ibManualImageSharpeningSlider").value = 3;
  model().setImageSharpeningTicket("3");
  controller->updateControls();
  EXPECT_EQ(panel().button("ibAutoImageSharpening").state, 1) << "it agrees: nothing changes";
  model().setImageSharpeningTicket("Automatic");
  controller->updateControls();
  EXPECT_EQ(panel().button("ibManualImageSharpening").state, 0);
}

TEST_F(PanelView, FollowsManualSharpening) {
  show(fullPrinter());
  model().setImageSharpeningTicket("7");
  controller->updateControls();
  EXPECT_EQ(panel().button("ibManualImageSharpening").state, 1);
  EXPECT_EQ(panel().button("ibAutoImageSharpening").state, 0);
  EXPECT_TRUE(panel().slider("ibManualImageSharpeningSlider").enabled);
  EXPECT_EQ(panel().slider("ibManualImageSharpeningSlider").value, 7);
  EXPECT_EQ(panel().label("ibNoneLabel").color, TextColor::black);

  model().setImageSharpeningTicket("Automatic");
  controller->updateControls();
  EXPECT_EQ(panel().button("ibAutoImageSharpening").state, 1);
  EXPECT_EQ(panel().slider("ibManualImageSharpeningSlider").value, 0);
  EXPECT_FALSE(panel().slider("ibManualImageSharpeningSlider").enabled);
}

TEST_F(PanelView, FollowsTheDryTimeBox) {
  show({dryTimeCheckBoxOption()});
  model().setDryTimeTicket("True");
  controller->updateControls();
  EXPECT_EQ(panel().button("ibDryTimeCheckBox").state, 1);
  model().setDryTimeTicket(std::nullopt);
  controller->updateControls();
  EXPECT_EQ(panel().button("ibDryTimeCheckBox").state, 0);
}

TEST_F(PanelView, SwitchesTheMirrorOffWhenAnotherPaperComesFromOutside) {
  show(fullPrinter());
  panel().choose("ibPaperType", 2, "paperTypeAction:");
  ASSERT_EQ(panel().button("ibMIrror").state, 1);
  model().setPaperType("Plain Paper");
  model().setPaperTypeTicket("Plain");
  controller->updateControls();
  EXPECT_EQ(model().mirror(), "Off");
  EXPECT_EQ(model().mirrorTicket(), "False");
  EXPECT_EQ(panel().button("ibMIrror").state, 0);
}

TEST_F(PanelView, SwitchesTheMirrorOnWhenIronOnPaperComesFromOutside) {
  show(fullPrinter());
  model().setPaperType("Iron-On Transfer");
  model().setPaperTypeTicket("IronOn");
  controller->updateControls();
  EXPECT_EQ(model().mirrorTicket(), "True");
  EXPECT_EQ(panel().button("ibMIrror").state, 1);
}

TEST_F(PanelView, LeavesAMirrorThatTheUserSwitchedOnWhenPaperComesFromOutside) {
  show(fullPrinter());
  panel().click("ibMIrror", "mirrorAction:");
  model().setPaperType("Plain Paper");
  model().setPaperTypeTicket("Plain");
  controller->updateControls();
  EXPECT_EQ(model().mirrorTicket(), "True");
}

TEST_F(PanelView, ForgetsTheUsersMirrorWhenTheModelOverridesIt) {
  show(fullPrinter());
  panel().click("ibMIrror", "mirrorAction:");
  model().setMirror("Off");
  model().setMIrrorTicket("False");
  controller->updateControls();
  EXPECT_EQ(panel().button("ibMIrror").state, 0);
  panel().choose("ibPaperType", 2, "paperTypeAction:");
  EXPECT_EQ(model().mirrorTicket(), "True") << "the mirror was automatic again";
  panel().choose("ibPaperType", 1, "paperTypeAction:");
  EXPECT_EQ(model().mirrorTicket(), "False");
}

TEST_F(PanelView, LeavesAPresetsMirrorWhenPaperComesFromOutside) {
  show(fullPrinter());
  mark("Mirror", "True");
  controller->updatePDEModelwithMarkedChoices();
  setPaperFromOutside("Plain Paper", "Plain");
  EXPECT_EQ(model().mirrorTicket(), "True");
}

TEST_F(PanelView, SwitchesTheMirrorOnForIronOnPaperFromOutsideWhateverThePreset) {
  show(fullPrinter());
  mark("Mirror", "True");
  controller->updatePDEModelwithMarkedChoices();
  model().setMIrrorTicket("False");
  setPaperFromOutside("Iron-On Transfer", "IronOn");
  EXPECT_EQ(model().mirrorTicket(), "True");
}

// The box still shows the user's mirror when the rule looks, and is switched off only afterwards.
TEST_F(PanelView, LeavesTheMirrorOffForIronOnPaperFromOutsideWhileTheUsersBoxIsOn) {
  show(fullPrinter());
  panel().click("ibMIrror", "mirrorAction:");
  model().setMirror("Off");
  model().setMIrrorTicket("False");
  setPaperFromOutside("Iron-On Transfer", "IronOn");
  EXPECT_EQ(model().mirrorTicket(), "False");
  EXPECT_EQ(panel().button("ibMIrror").state, 0);
}

TEST_F(PanelView, LeavesAnAbsentMirrorAloneWhenPaperComesFromOutside) {
  show({paperTypeOption()});
  setPaperFromOutside("Iron-On Transfer", "IronOn");
  EXPECT_EQ(model().mirrorTicket(), std::nullopt);
}

TEST_F(PanelView, AppliesTheMirrorRuleOnlyWhenThePopUpShowsAnotherPaper) {
  show(fullPrinter());
  model().setMIrrorTicket("True");
  controller->updateControls();
  EXPECT_EQ(model().mirrorTicket(), "True");
}

}  // namespace
}  // namespace tavrin
