#include "controller/PanelControls.h"

#include "tests/fixtures/ControllerTest.h"

namespace tavrin {
namespace {

class Controls : public ControllerTest {};

// --- First filling ---

TEST_F(Controls, FillsThePopUpsOnce) {
  show(fullPrinter());
  EXPECT_TRUE(controller->isFinishedInited());
  EXPECT_EQ(panel().popUp("ibPrintQuality").numberOfItems(), 4);
  EXPECT_EQ(panel().popUp("ibPaperType").numberOfItems(), 6);
  EXPECT_EQ(panel().popUp("ibPaperSource").numberOfItems(), 2);
  EXPECT_EQ(panel().popUp("ibDryTimePopUp").numberOfItems(), 3);
  willShow();
  EXPECT_EQ(panel().popUp("ibPrintQuality").numberOfItems(), 4);
}

TEST_F(Controls, ShowsThePaperSourceWithASecondTray) {
  show({paperSourceOption(), tray2Option("True")});
  EXPECT_FALSE(panel().popUp("ibPaperSource").hidden);
  EXPECT_FALSE(panel().label("ibPaperSourceLabel").hidden);
}

TEST_F(Controls, DoesNotFillThePaperSourceWithoutASecondTray) {
  show({paperSourceOption(), tray2Option("False")});
  EXPECT_EQ(panel().popUp("ibPaperSource").numberOfItems(), 0);
}

TEST_F(Controls, TakesFirstStatesFromThePPDsDefaults) {
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

TEST_F(Controls, TakesAMissingDefaultForAnotherChoice) {
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

TEST_F(Controls, ShowsTheKindOfDryTimeThatThePrinterHas) {
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

TEST_F(Controls, TakesTheDryTimeBoxFromItsDefaultFirst) {
  start(makePPD({dryTimeCheckBoxOption("True")}));
  view = controller->mainView();
  controller->initializeControls();
  EXPECT_EQ(panel().button("ibDryTimeCheckBox").state, 1);
}

// --- Labels ---

TEST_F(Controls, LabelsControlsWithThePPDsTexts) {
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

TEST_F(Controls, LabelsAPaperSourceThatItDoesNotShow) {
  show({paperSourceOption(), tray2Option("False")});
  EXPECT_EQ(panel().label("ibPaperSourceLabel").text, "Paper Source:");
}

TEST_F(Controls, LabelsTheDryTimeBox) {
  show({dryTimeCheckBoxOption()});
  EXPECT_EQ(panel().button("ibDryTimeCheckBox").title, "Extra Dry Time");
  EXPECT_EQ(panel().label("ibDryTimeLabel").text, "");
}

// --- Following the model ---

TEST_F(Controls, FollowsTheModel) {
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

TEST_F(Controls, SelectsNothingForATextThatNoItemHas) {
  show(fullPrinter());
  model().setPrintQuality("Superb");
  model().setPaperSource(std::nullopt);
  controller->updateControls();
  EXPECT_EQ(panel().popUp("ibPrintQuality").selected, -1);
  EXPECT_EQ(panel().popUp("ibPaperSource").selected, -1);
}

TEST_F(Controls, TouchesOnlyWhatDisagrees) {
  show(fullPrinter());
  const int before = panel().popUp("ibPrintQuality").selections;
  controller->updateControls();
  EXPECT_EQ(panel().popUp("ibPrintQuality").selections, before);
}

TEST_F(Controls, ComparesTheDryTimesKeywordWithItsTitle) {
  show(fullPrinter());
  const int before = panel().popUp("ibDryTimePopUp").selections;
  controller->updateControls();
  EXPECT_EQ(panel().popUp("ibDryTimePopUp").selections, before + 1);
  EXPECT_EQ(panel().popUp("ibDryTimePopUp").selected, 0);
}

TEST_F(Controls, LeavesAPaperSourceThatItDoesNotShowAlone) {
  show({paperSourceOption(), tray2Option("False")});
  EXPECT_EQ(panel().popUp("ibPaperSource").selections, 0);
}

TEST_F(Controls, FollowsTheDryTimeBox) {
  show({dryTimeCheckBoxOption()});
  model().setDryTimeTicket("True");
  controller->updateControls();
  EXPECT_EQ(panel().button("ibDryTimeCheckBox").state, 1);
  model().setDryTimeTicket(std::nullopt);
  controller->updateControls();
  EXPECT_EQ(panel().button("ibDryTimeCheckBox").state, 0);
}

}  // namespace
}  // namespace tavrin
