#include "controller/FirstSettings.h"

#include "tests/fixtures/ControllerTest.h"

namespace tavrin {
namespace {

using Keys = std::vector<std::string>;

class FirstSettings : public ControllerTest {};

std::vector<PPDOptionText> fullPrinterWithout(const std::string& keyword) {
  std::vector<PPDOptionText> options;
  for (const PPDOptionText& option : fullPrinter()) {
    if (!option.keyword.starts_with(keyword)) options.push_back(option);
  }
  return options;
}

TEST_F(FirstSettings, BindsEveryOptionOfTheFamily) {
  start(makePPD(fullPrinter()));
  EXPECT_EQ(controller->supportedOptions(),
            (Keys{"PrintQuality", "MediaType", "PaperSource", "DupDryTime", "ColorModel",
                  "Sharpening", "Mirror"}));
  EXPECT_STREQ(model().paperTypeOption()->keyword, "MediaType");
  EXPECT_STREQ(model().blackAndWhiteOption()->keyword, "ColorModel");
}

TEST_F(FirstSettings, WritesTheFixedDefaults) {
  start(makePPD(fullPrinter()));
  EXPECT_EQ(model().printQuality(), "Auto Quality");
  EXPECT_EQ(model().printQualityTicket(), "Automatic");
  EXPECT_EQ(model().paperType(), "Auto Paper");
  EXPECT_EQ(model().paperSource(), "Upper Tray");
  EXPECT_EQ(model().paperSourceTicket(), "Tray1");
  EXPECT_EQ(model().blackAndWhite(), "In Color");
  EXPECT_EQ(model().mirror(), "Not Mirrored");
  EXPECT_EQ(model().mirrorTicket(), "False");
  EXPECT_EQ(model().imageSharpening(), "Auto");
  EXPECT_EQ(model().dryTime(), "Auto Dry");
  EXPECT_EQ(model().dryTimeTicket(), "Automatic");
}

TEST_F(FirstSettings, DoesNotConsultThePPDsOwnDefaults) {
  start(makePPD({sharpeningOption("5")}));
  EXPECT_EQ(model().imageSharpeningTicket(), "Automatic");
}

TEST_F(FirstSettings, BindsABooleanDryTimeAsACheckBoxWithoutATicket) {
  start(makePPD({dryTimeCheckBoxOption("True")}));
  EXPECT_NE(model().dryTimeCheckBoxOption(), nullptr);
  EXPECT_EQ(model().dryTimePopUpOption(), nullptr);
  EXPECT_EQ(model().dryTime(), "Runs");
  EXPECT_EQ(model().dryTimeTicket(), std::nullopt);
  EXPECT_EQ(controller->supportedOptions(), Keys{"DupDryTime"});
}

TEST_F(FirstSettings, BindsAPickOneDryTimeAsAPopUp) {
  start(makePPD({dryTimePopUpOption()}));
  EXPECT_NE(model().dryTimePopUpOption(), nullptr);
  EXPECT_EQ(model().dryTimeCheckBoxOption(), nullptr);
}

TEST_F(FirstSettings, LeavesAPickManyDryTimeAlone) {
  start(makePPD({{"DupDryTime", "PickMany", "Automatic", {"Automatic", "Long"}}}));
  EXPECT_EQ(model().dryTimePopUpOption(), nullptr);
  EXPECT_EQ(model().dryTimeCheckBoxOption(), nullptr);
  EXPECT_EQ(controller->supportedOptions(), Keys{});
}

TEST_F(FirstSettings, LeavesAMissingSettingAbsent) {
  start(makePPD(fullPrinterWithout("PaperSource")));
  EXPECT_EQ(model().paperSource(), std::nullopt);
  EXPECT_EQ(model().paperSourceTicket(), std::nullopt);
  EXPECT_EQ(controller->supportedOptions(), (Keys{"PrintQuality", "MediaType", "DupDryTime",
                                                  "ColorModel", "Sharpening", "Mirror"}));
  start(makePPD(fullPrinterWithout("Mirror")));
  EXPECT_EQ(model().mirror(), std::nullopt);
  EXPECT_EQ(model().mirrorTicket(), std::nullopt);
}

TEST_F(FirstSettings, LeavesADefaultThatTheOptionLacksAbsent) {
  start(makePPD({{"PaperSource", "PickOne", "Rear", {"Rear/Rear Tray"}}}));
  EXPECT_EQ(model().paperSource(), std::nullopt);
  EXPECT_EQ(model().paperSourceTicket(), std::nullopt);
}

TEST_F(FirstSettings, AcceptsNoPPD) {
  start(nullptr);
  EXPECT_EQ(controller->supportedOptions(), Keys{});
  EXPECT_EQ(model().printQuality(), std::nullopt);
  EXPECT_FALSE(controller->isFinishedInited());
}

}  // namespace
}  // namespace tavrin
