#include "controller/TavPDEController.h"

#include "platform/toolkit/NotificationCenter.h"
#include "tests/fixtures/ControllerTest.h"

namespace tavrin {
namespace {

// The second tray shows in the panel: with one, the paper-source row stays.
bool showsPaperSource(FakeInterface& panel) { return !panel.popUp("ibPaperSource").hidden; }

class Controller : public ControllerTest {};

TEST_F(Controller, SeesTheSecondTrayOnlyWhereItIsMarkedTrueToTheLetter) {
  show({paperSourceOption(), tray2Option("True")});
  EXPECT_TRUE(showsPaperSource(panel()));
  show({paperSourceOption(), tray2Option("False")});
  EXPECT_FALSE(showsPaperSource(panel()));
  show({paperSourceOption()});
  EXPECT_FALSE(showsPaperSource(panel()));
  show({paperSourceOption(), {"Tray2Option", "PickOne", "TRUE", {"TRUE", "False"}}});
  EXPECT_FALSE(showsPaperSource(panel()));
}

TEST_F(Controller, FollowsTheConflictNotificationUntilItIsGone) {
  show(fullPrinter());
  model().setPrintQuality("Photo");
  NotificationCenter::defaultCenter().post(ConflictControllerChangeNotification, nullptr);
  EXPECT_EQ(panel().popUp("ibPrintQuality").selected, 3);

  const auto kept = toolkit.interface("TavrinPDENIB");
  controller.reset();
  NotificationCenter::defaultCenter().post(ConflictControllerChangeNotification, nullptr);
  EXPECT_TRUE(kept->detached);
}

TEST_F(Controller, TellsThatItsHeightChanged) {
  show(fullPrinter());
  const void* told = nullptr;
  NotificationCenter::defaultCenter().addObserver(this,
                                                  PDEControllerDisclosureButtonChangedNotification,
                                                  [&told](const void* object) { told = object; });
  panel().click("ibDisclosure", "disclosureAction:");
  NotificationCenter::defaultCenter().removeObserver(this);
  EXPECT_EQ(told, static_cast<const Button*>(&panel().button("ibDisclosure")));
}

// --- Actions ---

class Actions : public ControllerTest {
 protected:
  Actions() { show(fullPrinter()); }
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

TEST_F(Actions, TakeBlackAndWhiteFromTheChoicesPosition) {
  panel().click("ibBlackAndWhite", "blackAndWhiteAction:");
  EXPECT_EQ(model().blackAndWhite(), "Black Ink");
  EXPECT_EQ(model().blackAndWhiteTicket(), "Black");
  panel().click("ibBlackAndWhite", "blackAndWhiteAction:");
  EXPECT_EQ(model().blackAndWhiteTicket(), "Color");
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
  panel().choose("ibPaperType", 2, "paperTypeAction:");
  EXPECT_EQ(toolkit.shown.size(), 1u);
  panel().choose("ibPrintQuality", 1, "printQualityAction:");
  EXPECT_EQ(toolkit.shown.size(), 2u);
  panel().click("ibMIrror", "mirrorAction:");
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

// --- The PPD's choices ---

class MarkedChoices : public ControllerTest {
 protected:
  static constexpr const char* kKeywords[] = {"MediaType",  "PrintQuality", "PaperSource",
                                              "ColorModel", "Mirror",       "Sharpening",
                                              "DupDryTime"};
};

TEST_F(MarkedChoices, AreTaken) {
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

TEST_F(MarkedChoices, RefreshTheControls) {
  show(fullPrinter());
  mark("MediaType", "Greeting");
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(panel().popUp("ibPaperType").titleOfSelectedItem(), "Greeting Card");
}

TEST_F(MarkedChoices, RefreshTheControlsEveryTime) {
  show(fullPrinter());
  for (const char* keyword : kKeywords) unmark(keyword);
  for (int time = 0; time < 2; ++time) {
    panel().button("ibBlackAndWhite").state = 1;
    controller->updatePDEModelwithMarkedChoices();
    EXPECT_EQ(panel().button("ibBlackAndWhite").state, 0);
  }
}

TEST_F(MarkedChoices, GiveACheckBoxDryTimeItsTicket) {
  show({dryTimeCheckBoxOption()});
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(model().dryTimeTicket(), "False");
}

TEST_F(MarkedChoices, LeaveUnmarkedSettingsAlone) {
  show(fullPrinter());
  for (const char* keyword : kKeywords) unmark(keyword);
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

TEST_F(MarkedChoices, ChangeNothingTheSecondTime) {
  show(fullPrinter());
  mark("MediaType", "IronOn");
  controller->updatePDEModelwithMarkedChoices();
  const OptString mirror = model().mirrorTicket();
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(model().paperTypeTicket(), "IronOn");
  EXPECT_EQ(mirror, "True");
  EXPECT_EQ(model().mirrorTicket(), "False") << "the PPD's mark, which the host has not changed";
}

TEST_F(Controller, MapsAPositionToAChoice) {
  start(makePPD({printQualityOption()}));
  EXPECT_EQ(controller->selectedItemFromIndex(0, "PrintQuality", true), "Automatic");
  EXPECT_EQ(controller->selectedItemFromIndex(0, "PrintQuality", false), "Auto Quality");
  EXPECT_EQ(controller->selectedItemFromIndex(3, "PrintQuality", true), "Best");
}

TEST_F(Controller, MapsNoPositionToAbsent) {
  start(makePPD({printQualityOption()}));
  EXPECT_EQ(controller->selectedItemFromIndex(4, "PrintQuality", true), std::nullopt);
  EXPECT_EQ(controller->selectedItemFromIndex(-1, "PrintQuality", true), std::nullopt);
  EXPECT_EQ(controller->selectedItemFromIndex(0, "Mirror", true), std::nullopt);
}

TEST_F(Controller, ReadsAPositionsTextInThePPDsEncoding) {
  start(makePPD({{"PrintQuality", "PickOne", "A", {"A/Qualit\xc3\xa9"}}}));
  EXPECT_EQ(controller->selectedItemFromIndex(0, "PrintQuality", false), "Qualité");
  controller =
      TavPDEController::initializeWithPPD(ppd.get(), kMacOSRomanEncoding, nullptr, nullptr);
  EXPECT_EQ(controller->selectedItemFromIndex(0, "PrintQuality", false), "Qualit√©");
}

}  // namespace
}  // namespace tavrin
