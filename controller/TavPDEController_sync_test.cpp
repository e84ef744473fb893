#include "tests/fixtures/ControllerTest.h"

namespace tavrin {
namespace {

class Synchronisation : public ControllerTest {
 protected:
  static constexpr const char* kSettings[] = {"MediaType",  "PrintQuality", "PaperSource",
                                              "ColorModel", "Mirror",       "Sharpening",
                                              "DupDryTime"};

  void unmark(const char* keyword) {
    ppd_option_t* option = ppdFindOption(ppd.get(), keyword);
    for (int i = 0; i < option->num_choices; ++i) option->choices[i].marked = 0;
    cupsArrayRemove(ppd->marked, ppdFindMarkedChoice(ppd.get(), keyword));
  }
};

TEST_F(Synchronisation, TakesTheMarkedChoices) {
  show(fullPrinter());
  mark("MediaType", "Greeting");
  mark("PrintQuality", "Best");
  mark("PaperSource", "Tray2");
  mark("ColorModel", "Black");
  mark("Sharpening", "7");
  mark("DupDryTime", "Long");
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(model().paperType(), "Greeting Card");
  EXPECT_EQ(model().paperTypeTicket(), "Greeting");
  EXPECT_EQ(model().printQuality(), "Photo");
  EXPECT_EQ(model().paperSourceTicket(), "Tray2");
  EXPECT_EQ(model().blackAndWhiteTicket(), "Black");
  EXPECT_EQ(model().imageSharpeningTicket(), "7");
  EXPECT_EQ(model().dryTime(), "Long Dry");
  EXPECT_EQ(model().dryTimeTicket(), "Long");
}

TEST_F(Synchronisation, RefreshesTheControls) {
  show(fullPrinter());
  mark("MediaType", "Greeting");
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(panel().popUp("ibPaperType").titleOfSelectedItem(), "Greeting Card");
}

TEST_F(Synchronisation, RefreshesTheControlsEveryTime) {
  show(fullPrinter());
  for (const char* keyword : kSettings) unmark(keyword);
  for (int time = 0; time < 2; ++time) {
    panel().button("ibBlackAndWhite").state = 1;
    controller->updatePDEModelwithMarkedChoices();
    EXPECT_EQ(panel().button("ibBlackAndWhite").state, 0);
  }
}

TEST_F(Synchronisation, GivesACheckBoxDryTimeItsTicket) {
  show({dryTimeCheckBoxOption()});
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(model().dryTimeTicket(), "False");
}

TEST_F(Synchronisation, LeavesUnmarkedSettingsAlone) {
  show(fullPrinter());
  for (const char* keyword : kSettings) unmark(keyword);
  panel().choose("ibPaperType", 4, "paperTypeAction:");
  panel().choose("ibPrintQuality", 3, "printQualityAction:");
  panel().choose("ibPaperSource", 1, "paperSourceAction:");
  panel().click("ibBlackAndWhite", "blackAndWhiteAction:");
  panel().slide("ibManualImageSharpeningSlider", 10, "imageSharpeningSliderAction:");
  panel().choose("ibDryTimePopUp", 1, "dryTimePopUpAction:");
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(model().paperType(), "Greeting Card");
  EXPECT_EQ(model().paperTypeTicket(), "Greeting");
  EXPECT_EQ(model().printQuality(), "Photo");
  EXPECT_EQ(model().printQualityTicket(), "Best");
  EXPECT_EQ(model().paperSource(), "Lower Tray");
  EXPECT_EQ(model().paperSourceTicket(), "Tray2");
  EXPECT_EQ(model().blackAndWhite(), "Black Ink");
  EXPECT_EQ(model().blackAndWhiteTicket(), "Black");
  EXPECT_EQ(model().imageSharpening(), "Most");
  EXPECT_EQ(model().imageSharpeningTicket(), "10");
  EXPECT_EQ(model().dryTime(), "Long Dry");
  EXPECT_EQ(model().dryTimeTicket(), "Long");
}

TEST_F(Synchronisation, TakesAMarkedMirror) {
  show(fullPrinter());
  mark("Mirror", "True");
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(model().mirror(), "Mirrored");
  EXPECT_EQ(model().mirrorTicket(), "True");
}

TEST_F(Synchronisation, ResetsAnUnmarkedMirrorToItsDefault) {
  show(fullPrinter());
  model().setMirror("On");
  model().setMIrrorTicket("True");
  unmark("Mirror");
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(model().mirror(), "Not Mirrored");
  EXPECT_EQ(model().mirrorTicket(), "False");
}

TEST_F(Synchronisation, ResetsTheMirrorOfNoPrinterToAbsent) {
  start(nullptr);
  model().setMIrrorTicket("True");
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(model().mirrorTicket(), std::nullopt);
}

TEST_F(Synchronisation, RemembersThatThePresetSwitchedTheMirrorOn) {
  show(fullPrinter());
  mark("Mirror", "True");
  controller->updatePDEModelwithMarkedChoices();
  panel().choose("ibPaperType", 1, "paperTypeAction:");
  EXPECT_EQ(model().mirrorTicket(), "True") << "a preset's mirror outlives a paper type";

  mark("Mirror", "False");
  controller->updatePDEModelwithMarkedChoices();
  panel().choose("ibPaperType", 2, "paperTypeAction:");
  panel().choose("ibPaperType", 1, "paperTypeAction:");
  EXPECT_EQ(model().mirrorTicket(), "False") << "an automatic one does not";
}

TEST_F(Synchronisation, KeepsWhatItKnewOfThePresetWhenNoMirrorIsMarked) {
  show(fullPrinter());
  mark("Mirror", "True");
  controller->updatePDEModelwithMarkedChoices();
  unmark("Mirror");
  controller->updatePDEModelwithMarkedChoices();
  panel().choose("ibPaperType", 2, "paperTypeAction:");
  panel().choose("ibPaperType", 1, "paperTypeAction:");
  EXPECT_EQ(model().mirrorTicket(), "True");
}

TEST_F(Synchronisation, ChangesNothingTheSecondTime) {
  show(fullPrinter());
  mark("MediaType", "IronOn");
  controller->updatePDEModelwithMarkedChoices();
  const OptString mirror = model().mirrorTicket();
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(model().paperTypeTicket(), "IronOn");
  EXPECT_EQ(mirror, "True");
  EXPECT_EQ(model().mirrorTicket(), "False") << "the PPD's mark, which the host has not changed";
}

TEST_F(Synchronisation, MapsAPositionToAChoice) {
  start(makePPD({printQualityOption()}));
  EXPECT_EQ(controller->selectedItemFromIndex(0, "PrintQuality", true), "Automatic");
  EXPECT_EQ(controller->selectedItemFromIndex(0, "PrintQuality", false), "Auto Quality");
  EXPECT_EQ(controller->selectedItemFromIndex(3, "PrintQuality", true), "Best");
}

TEST_F(Synchronisation, MapsNoPositionToAbsent) {
  start(makePPD({printQualityOption()}));
  EXPECT_EQ(controller->selectedItemFromIndex(4, "PrintQuality", true), std::nullopt);
  EXPECT_EQ(controller->selectedItemFromIndex(-1, "PrintQuality", true), std::nullopt);
  EXPECT_EQ(controller->selectedItemFromIndex(0, "Mirror", true), std::nullopt);
}

TEST_F(Synchronisation, ReadsAPositionsTextInThePPDsEncoding) {
  start(makePPD({{"PrintQuality", "PickOne", "A", {"A/Qualit\xc3\xa9"}}}));
  EXPECT_EQ(controller->selectedItemFromIndex(0, "PrintQuality", false), "Qualité");
  controller =
      TavPDEController::initializeWithPPD(ppd.get(), kMacOSRomanEncoding, nullptr, nullptr);
  EXPECT_EQ(controller->selectedItemFromIndex(0, "PrintQuality", false), "Qualit√©");
}

}  // namespace
}  // namespace tavrin
