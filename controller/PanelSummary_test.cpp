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

}  // namespace
}  // namespace tavrin
