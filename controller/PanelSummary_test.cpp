#include "controller/PanelSummary.h"

#include "tests/fixtures/ControllerTest.h"

namespace tavrin {
namespace {

using Lines = std::map<std::string, OptString>;

class Summary : public ControllerTest {};

TEST_F(Summary, HasALineForEachSetting) {
  show(fullPrinter());
  EXPECT_EQ(controller->infoForSummaryPanel(), (Lines{
                                                   {"Print Quality", "Auto Quality"},
                                                   {"Print in Black and White", "In Color"},
                                                   {"Paper Type", "Auto Paper"},
                                                   {"Paper Source", "Upper Tray"},
                                                   {"Mirror Image", "Not Mirrored"},
                                                   {"Image Sharpening", "Auto"},
                                                   {"Dry Time", "Auto Dry"},
                                               }));
}

TEST_F(Summary, LeavesOutWhatThePrinterDoesNotHave) {
  show({printQualityOption(), paperTypeOption(), colorModelOption(), mirrorOption(),
        sharpeningOption()});
  EXPECT_EQ(controller->infoForSummaryPanel().size(), 5u);
  start(nullptr);
  EXPECT_TRUE(controller->infoForSummaryPanel().empty());
}

TEST_F(Summary, TellsTheMirrorInThePrintersWords) {
  show(fullPrinter());
  panel().click("ibMIrror", "mirrorAction:");
  EXPECT_EQ(model().mirror(), "On");
  EXPECT_EQ(controller->infoForSummaryPanel().at("Mirror Image"), "Mirrored");
}

TEST_F(Summary, TellsTheDryTimeBox) {
  show({dryTimeCheckBoxOption()});
  EXPECT_EQ(controller->infoForSummaryPanel(), (Lines{{"Extra Dry Time", "Runs"}}));
}

TEST_F(Summary, LetsALaterLineReplaceOneOfTheSameLabel) {
  show({{"PrintQuality/Same", "PickOne", "Automatic", {"Automatic/first"}},
        {"MediaType/Same", "PickOne", "Automatic", {"Automatic/second"}}});
  EXPECT_EQ(controller->infoForSummaryPanel(), (Lines{{"Same", "second"}}));
}

// The line beside the closed advanced options.
class AdvancedSummary : public ControllerTest {
 protected:
  std::string line() { return panel().label("advancedSummaryLabel").text; }
  void choosePaper(int index) { panel().choose("ibPaperType", index, "paperTypeAction:"); }
};

TEST_F(AdvancedSummary, IsEmptyWhenAllIsAsUsual) {
  show(fullPrinter());
  EXPECT_EQ(line(), "");
  show({dryTimeCheckBoxOption()});
  EXPECT_EQ(line(), "");
}

TEST_F(AdvancedSummary, TellsOfTheMirrorThatIronOnPaperSwitchesOn) {
  show(fullPrinter());
  choosePaper(2);
  EXPECT_EQ(line(), "— Mirror Image");
  choosePaper(0);
  EXPECT_EQ(line(), "");
}

TEST_F(AdvancedSummary, IsThereOnlyWhileTheOptionsAreClosed) {
  show(fullPrinter());
  panel().click("ibDisclosure", "disclosureAction:");
  panel().click("ibMIrror", "mirrorAction:");
  panel().pick("ibManualImageSharpening", "manualImageSharpeningAction:");
  panel().slide("ibManualImageSharpeningSlider", 7, "imageSharpeningSliderAction:");
  EXPECT_EQ(line(), "");
  panel().click("ibDisclosure", "disclosureAction:");
  EXPECT_EQ(line(), "— Mirror Image, Image Sharpening: 7");
}

TEST_F(AdvancedSummary, FollowsTheMarkedChoices) {
  show({dryTimeCheckBoxOption()});
  mark("DupDryTime", "True");
  controller->updatePDEModelwithMarkedChoices();
  EXPECT_EQ(line(), "— Extra Dry Time");
}

}  // namespace
}  // namespace tavrin
