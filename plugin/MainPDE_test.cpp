#include "plugin/MainPDE.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "platform/files/RootFolder.h"
#include "tests/fakes/FakeJob.h"
#include "tests/fakes/FakePPD.h"
#include "tests/fakes/FakeToolkit.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

using Pairs = std::vector<std::pair<std::string, OptString>>;

class MainPDETest : public testing::Test {
 protected:
  MainPDETest() { setRootFolder(root); }
  ~MainPDETest() override { setRootFolder({}); }

  void start(PPDPtr printer) {
    panel.reset();
    ppd = std::move(printer);
    host.ppd = ppd.get();
    panel = MainPDE::initWithCallback(&host);
  }

  void show(const std::vector<PPDOptionText>& options) {
    start(makePPD(options));
    panel->panelView();
    panel->willShow();
  }

  FakeInterface& controls() { return *toolkit.interface("TavrinPDENIB"); }

  Pairs saved() {
    host.handedOver.clear();
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    return host.handedOver;
  }

  // The value that the panel shows for a setting, by its label in the summary.
  OptString value(const std::string& label) { return panel->summaryInfo().at(label); }

  const test::TemporaryFolder folder;
  const std::filesystem::path root = folder.path();
  FakeToolkit toolkit;
  FakeHelpViewer viewer;
  FakeHost host;
  PPDPtr ppd;
  std::unique_ptr<MainPDE> panel;
};

TEST_F(MainPDETest, NeedsAHost) { EXPECT_EQ(MainPDE::initWithCallback(nullptr), nullptr); }

TEST_F(MainPDETest, AsksForThePageFormatBeforeThePrintSettings) {
  start(makePPD(fullPrinter()));
  EXPECT_EQ(host.asked, (std::vector<std::string>{"pageFormat", "printSettings"}));
}

TEST_F(MainPDETest, HasAKindAndAName) {
  start(nullptr);
  EXPECT_EQ(panel->panelKind(), "com.tavrin.print.pde.TavrinPDEKind");
  EXPECT_EQ(panel->panelName(), "Print Settings");
  EXPECT_EQ(panel->panelName(), "Print Settings");
}

TEST_F(MainPDETest, AgreesToBeHidden) {
  start(nullptr);
  EXPECT_TRUE(panel->shouldHide());
}

TEST_F(MainPDETest, GivesTheSameViewEveryTime) {
  show(fullPrinter());
  EXPECT_NE(panel->panelView(), nullptr);
  EXPECT_EQ(panel->panelView(), panel->panelView());
}

TEST_F(MainPDETest, LabelsAndRefreshesItsControlsWheneverItIsShown) {
  show(fullPrinter());
  EXPECT_EQ(controls().label("ibPaperTypeLabel").text, "Paper Type:");
  controls().label("ibPaperTypeLabel").text = "other";
  controls().popUp("ibPaperType").selected = 3;
  panel->willShow();
  EXPECT_EQ(controls().label("ibPaperTypeLabel").text, "Paper Type:");
  EXPECT_EQ(controls().popUp("ibPaperType").selected, 0);
}

TEST_F(MainPDETest, HandsOverAllSevenChoices) {
  show(fullPrinter());
  EXPECT_EQ(saved(), (Pairs{{"MediaType", "Automatic"},
                            {"PrintQuality", "Automatic"},
                            {"PaperSource", "Tray1"},
                            {"ColorModel", "Color"},
                            {"Mirror", "False"},
                            {"Sharpening", "Automatic"},
                            {"DupDryTime", "Automatic"}}));
}

TEST_F(MainPDETest, HandsOverFiveWithoutPaperSourceAndDryTime) {
  show({printQualityOption(), paperTypeOption(), colorModelOption(), mirrorOption(),
        sharpeningOption()});
  EXPECT_EQ(saved(), (Pairs{{"MediaType", "Automatic"},
                            {"PrintQuality", "Automatic"},
                            {"ColorModel", "Color"},
                            {"Mirror", "False"},
                            {"Sharpening", "Automatic"}}));
}

TEST_F(MainPDETest, HandsOverWhatIsAbsentToo) {
  start(nullptr);
  EXPECT_EQ(saved(), (Pairs{{"MediaType", std::nullopt},
                            {"PrintQuality", std::nullopt},
                            {"ColorModel", std::nullopt},
                            {"Mirror", std::nullopt},
                            {"Sharpening", std::nullopt}}));
  show({dryTimeCheckBoxOption()});
  EXPECT_EQ(saved().back(), (std::pair<std::string, OptString>{"DupDryTime", std::nullopt}));
}

TEST_F(MainPDETest, NeverWritesAnError) {
  show(fullPrinter());
  std::string error = "untouched";
  EXPECT_TRUE(panel->saveValuesAndReturnError(&error));
  EXPECT_TRUE(panel->restoreValuesAndReturnError(&error));
  EXPECT_EQ(error, "untouched");
}

TEST_F(MainPDETest, RestoresTheMarkedChoices) {
  show(fullPrinter());
  ppdMarkOption(ppd.get(), "PrintQuality", "Best");
  EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
  EXPECT_EQ(value("Print Quality"), "Photo");
  EXPECT_EQ(controls().popUp("ibPrintQuality").selected, 3);
}

TEST_F(MainPDETest, FollowsEveryChoiceThatChangesElsewhere) {
  show(fullPrinter());
  panel->PPDOptionKeyValueDidChange("MediaType", "Greeting");
  panel->PPDOptionKeyValueDidChange("PrintQuality", "Best");
  panel->PPDOptionKeyValueDidChange("PaperSource", "Tray2");
  panel->PPDOptionKeyValueDidChange("ColorModel", "Black");
  panel->PPDOptionKeyValueDidChange("Mirror", "True");
  panel->PPDOptionKeyValueDidChange("Sharpening", "10");
  panel->PPDOptionKeyValueDidChange("DupDryTime", "Long");
  EXPECT_EQ(saved(), (Pairs{{"MediaType", "Greeting"},
                            {"PrintQuality", "Best"},
                            {"PaperSource", "Tray2"},
                            {"ColorModel", "Black"},
                            {"Mirror", "True"},
                            {"Sharpening", "10"},
                            {"DupDryTime", "Long"}}));
  EXPECT_EQ(panel->summaryInfo(), (std::map<std::string, OptString>{
                                      {"Print Quality", "Photo"},
                                      {"Print in Black and White", "Black Ink"},
                                      {"Paper Type", "Greeting Card"},
                                      {"Paper Source", "Lower Tray"},
                                      {"Mirror Image", "Mirrored"},
                                      {"Image Sharpening", "Most"},
                                      {"Dry Time", "Long Dry"},
                                  }));
  EXPECT_EQ(controls().popUp("ibPaperType").titleOfSelectedItem(), "Greeting Card");
  EXPECT_EQ(controls().button("ibMIrror").state, 1);
}

TEST_F(MainPDETest, FollowsADryTimeBox) {
  show({dryTimeCheckBoxOption()});
  panel->PPDOptionKeyValueDidChange("DupDryTime", "True");
  EXPECT_EQ(value("Extra Dry Time"), "Waits");
  EXPECT_EQ(saved().back().second, "True");
}

TEST_F(MainPDETest, StoresTheTicketOfASettingThatThePrinterLacks) {
  show({paperTypeOption()});
  panel->PPDOptionKeyValueDidChange("PrintQuality", "Best");
  panel->PPDOptionKeyValueDidChange("ColorModel", "Black");
  panel->PPDOptionKeyValueDidChange("Mirror", "True");
  panel->PPDOptionKeyValueDidChange("Sharpening", "10");
  EXPECT_EQ(saved(), (Pairs{{"MediaType", "Automatic"},
                            {"PrintQuality", "Best"},
                            {"ColorModel", "Black"},
                            {"Mirror", "True"},
                            {"Sharpening", "10"}}));
  show({});
  panel->PPDOptionKeyValueDidChange("MediaType", "Greeting");
  EXPECT_EQ(saved().front(), (std::pair<std::string, OptString>{"MediaType", "Greeting"}));
}

TEST_F(MainPDETest, HandsOverNoPaperSourceThatThePrinterLacks) {
  show({mirrorOption()});
  controls().button("ibMIrror").state = 1;
  panel->PPDOptionKeyValueDidChange("PaperSource", "Tray2");
  EXPECT_EQ(saved().size(), 5u);
  EXPECT_EQ(controls().button("ibMIrror").state, 0) << "the controls are refreshed all the same";
}

TEST_F(MainPDETest, StoresNothingForADryTimeThatThePrinterLacks) {
  show({mirrorOption()});
  controls().button("ibMIrror").state = 1;
  panel->PPDOptionKeyValueDidChange("DupDryTime", "Long");
  EXPECT_EQ(saved().size(), 5u);
  EXPECT_EQ(controls().button("ibMIrror").state, 0) << "the controls are refreshed all the same";
}

TEST_F(MainPDETest, OnlyRefreshesTheControlsForOtherKeys) {
  show(fullPrinter());
  const Pairs before = saved();
  controls().button("ibBlackAndWhite").state = 1;
  panel->PPDOptionKeyValueDidChange("PageSize", "A4");
  EXPECT_EQ(saved(), before);
  EXPECT_EQ(controls().button("ibBlackAndWhite").state, 0);
  panel->PPDOptionKeyValueDidChange("mediatype", "Greeting");
  panel->PPDOptionKeyValueDidChange(std::nullopt, "Greeting");
  EXPECT_EQ(saved(), before);
}

TEST_F(MainPDETest, KeepsAnUnknownChoiceAsATicketWithoutText) {
  show(fullPrinter());
  panel->PPDOptionKeyValueDidChange("MediaType", "Silk");
  EXPECT_EQ(saved().front().second, "Silk");
  EXPECT_EQ(value("Paper Type"), std::nullopt);
  panel->PPDOptionKeyValueDidChange("MediaType", std::nullopt);
  EXPECT_EQ(saved().front().second, std::nullopt);
}

TEST_F(MainPDETest, TellsTheHostThatItsViewWasResized) {
  show(fullPrinter());
  controls().click("ibDisclosure", "disclosureAction:");
  EXPECT_EQ(host.resizes, 1);
}

TEST_F(MainPDETest, TellsEveryPanelsHostThatAViewWasResized) {
  show(fullPrinter());
  FakeHost other;
  const auto second = MainPDE::initWithCallback(&other);
  controls().click("ibDisclosure", "disclosureAction:");
  EXPECT_EQ(host.resizes, 1);
  EXPECT_EQ(other.resizes, 1);
}

TEST_F(MainPDETest, IsDeafOnceReleased) {
  show(fullPrinter());
  const auto kept = toolkit.interface("TavrinPDENIB");
  FakeHost other;
  other.ppd = ppd.get();
  const auto second = MainPDE::initWithCallback(&other);
  panel.reset();
  second->panelView();
  controls().click("ibDisclosure", "disclosureAction:");
  EXPECT_EQ(host.resizes, 0);
  EXPECT_EQ(other.resizes, 1);
}

TEST_F(MainPDETest, SurvivesBeingReleasedWhileAConflictWindowIsUp) {
  show(fullPrinter());
  const auto kept = toolkit.interface("TavrinPDENIB");
  toolkit.answers.emplace_back([this](FakeInterface&) {
    panel.reset();
    ppd.reset();
    Toolkit::current().stopModal();
  });
  kept->choose("ibPrintQuality", 1, "printQualityAction:");
  kept->choose("ibPaperType", 2, "paperTypeAction:");
  EXPECT_EQ(toolkit.shown.size(), 1u);
}

// --- The help book ---

class HelpBookRegistration : public MainPDETest {
 protected:
  std::vector<std::string> registeredFor(const std::string& driverPath) {
    std::filesystem::create_directories(root / "Help");
    std::filesystem::create_directories(root / driverPath.substr(1));
    viewer.registered.clear();
    start(makePPD({}, {"*TavHelpPath: \"/Help\"", "*TavDriverPath: \"" + driverPath + "\""}));
    return viewer.registered;
  }
};

TEST_F(HelpBookRegistration, FollowsTheModelYear) {
  const std::string printers = "/Library/Printers/Tavrin/";
  using Paths = std::vector<std::string>;
  EXPECT_EQ(registeredFor(printers + "2006/Drv"), Paths{"/Help"});
  EXPECT_EQ(registeredFor(printers + "2007/Drv"), Paths{printers + "2007/Drv"});
  EXPECT_EQ(registeredFor(printers + "2010/Drv"), Paths{printers + "2010/Drv"});
  EXPECT_EQ(registeredFor(printers + "Drivers/P.plugin"), Paths{printers + "Drivers/P.plugin"});
  EXPECT_EQ(registeredFor(printers + "Models/Drv"), Paths{"/Help"});
}

TEST_F(HelpBookRegistration, IsLeftOutWhereNothingIsThere) {
  start(makePPD({}, {"*TavHelpPath: \"/Nowhere\""}));
  start(makePPD({}, {"*TavHelpPath: \"../../etc\""}));
  start(makePPD({}));
  start(nullptr);
  EXPECT_TRUE(viewer.registered.empty());
}

TEST_F(HelpBookRegistration, TakesAnOlderModelWithoutDriverPathForOne) {
  std::filesystem::create_directories(root / "Help");
  start(makePPD({}, {"*TavHelpPath: \"/Help\""}));
  EXPECT_EQ(viewer.registered, std::vector<std::string>{"/Help"});
}

}  // namespace
}  // namespace tavrin
