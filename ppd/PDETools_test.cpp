#include "ppd/PDETools.h"

#include <cstring>

#include <gtest/gtest.h>

#include "ppd/PPDKeywords.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

const PDETools tools;

// A PPD record that says it is written in an encoding, as a host may hand one over.
StringEncoding encodingNamed(const char* name) {
  ppd_file_t ppd{};
  std::string text = name;
  ppd.lang_encoding = text.data();
  return tools.getEncodingFromPPD(&ppd);
}

OptString modelYearOf(const std::string& driverPath) {
  const PPDPtr ppd = makePPD({}, {"*TavDriverPath: \"" + driverPath + "\""});
  return tools.getModelYear(ppd.get());
}

TEST(PDETools, KnowsTheEncodingsByTheirExactNames) {
  EXPECT_EQ(encodingNamed("ISOLatin1"), 5u);
  EXPECT_EQ(encodingNamed("WindowsANSI"), 12u);
  EXPECT_EQ(encodingNamed("JIS83-RKSJ"), 8u);
  EXPECT_EQ(encodingNamed("UTF-8"), 4u);
  EXPECT_EQ(encodingNamed("UTF8"), 4u);
}

TEST(PDETools, TakesMacOSRomanForEveryOtherEncoding) {
  EXPECT_EQ(encodingNamed("utf-8"), 30u);
  EXPECT_EQ(encodingNamed("ISOLatin2"), 30u);
  EXPECT_EQ(encodingNamed(""), 30u);
  ppd_file_t unnamed{};
  EXPECT_EQ(tools.getEncodingFromPPD(&unnamed), 30u);
  EXPECT_EQ(tools.getEncodingFromPPD(nullptr), 30u);
}

TEST(PDETools, ReadsTheModelName) {
  const PPDPtr ppd = makePPD({}, {"*ModelName: \"Tavrin R420 Series\""});
  EXPECT_EQ(tools.getModelName(ppd.get()), "Tavrin R420 Series");
  EXPECT_EQ(tools.getModelName(nullptr), std::nullopt);
}

TEST(PDETools, NamesAnOptionsUserInterfaceType) {
  const PPDPtr ppd =
      makePPD({mirrorOption(), printQualityOption(), {"Extras", "PickMany", "A", {"A", "B"}}});
  EXPECT_EQ(tools.getPPDOptionUI("Mirror", ppd.get()), 0);
  EXPECT_EQ(tools.getPPDOptionUI("PrintQuality", ppd.get()), 1);
  EXPECT_EQ(tools.getPPDOptionUI("Extras", ppd.get()), 2);
  EXPECT_EQ(tools.getPPDOptionUI("DupDryTime", ppd.get()), -1);
  EXPECT_EQ(tools.getPPDOptionUI("Mirror", nullptr), -1);
}

TEST(PDETools, FindsOptionsInAnyLetterCase) {
  const PPDPtr ppd = makePPD({mirrorOption()});
  ASSERT_NE(tools.getPPDOption("mirror", ppd.get()), nullptr);
  EXPECT_STREQ(tools.getPPDOption("mirror", ppd.get())->keyword, "Mirror");
  EXPECT_EQ(tools.getPPDOption("Mirror", nullptr), nullptr);
  EXPECT_EQ(tools.getPPDOption("Tray2Option", ppd.get()), nullptr);
}

TEST(PDETools, ReadsAnOptionsDefault) {
  const PPDPtr ppd = makePPD({sharpeningOption("5")});
  EXPECT_EQ(tools.getOptionsDefault("Sharpening", ppd.get()), "5");
  EXPECT_EQ(tools.getOptionsDefault("Mirror", ppd.get()), std::nullopt);
  EXPECT_EQ(tools.getOptionsDefault("Sharpening", nullptr), std::nullopt);
}

TEST(PDETools, NamesAPaperSize) {
  const PPDPtr ppd = makePPD({pageSizeOption()});
  EXPECT_EQ(tools.getLocalizedPaperSize("EnvelopeB5", ppd.get()), "B5 Envelope");
  EXPECT_EQ(tools.getLocalizedPaperSize("Letter", ppd.get()), std::nullopt);
  EXPECT_EQ(tools.getLocalizedPaperSize(std::nullopt, ppd.get()), std::nullopt);
  EXPECT_EQ(tools.getLocalizedPaperSize("A4", nullptr), std::nullopt);
}

TEST(PDETools, GivesAChoicesKeywordOrText) {
  const PPDPtr ppd = makePPD({paperTypeOption()});
  ppd_option_t* option = tools.getPPDOption(kPaperTypeKey, ppd.get());
  EXPECT_EQ(tools.getOptionsChoice("IronOn", option, true), "IronOn");
  EXPECT_EQ(tools.getOptionsChoice("ironon", option, true), "IronOn");
  EXPECT_EQ(tools.getOptionsChoice("IronOn", option, false), "Iron-On Transfer");
  EXPECT_EQ(tools.getOptionsChoice("Silk", option, false), std::nullopt);
  EXPECT_EQ(tools.getOptionsChoice(std::nullopt, option, false), std::nullopt);
  EXPECT_EQ(tools.getOptionsChoice("IronOn", nullptr, true), std::nullopt);
}

TEST(PDETools, GivesBothPartsOfAChoice) {
  const PPDPtr ppd = makePPD({paperTypeOption()});
  ppd_option_t* option = tools.getPPDOption(kPaperTypeKey, ppd.get());
  EXPECT_EQ(tools.optionsChoice("ironon", option), (SettingChoice{"Iron-On Transfer", "IronOn"}));
  EXPECT_EQ(tools.optionsChoice("Silk", option), SettingChoice{});
  EXPECT_EQ(tools.optionsChoice("IronOn", nullptr), SettingChoice{});
  ppdMarkOption(ppd.get(), "MediaType", "IronOn");
  EXPECT_EQ(tools.markedChoice("MediaType", ppd.get()),
            (SettingChoice{"Iron-On Transfer", "IronOn"}));
  EXPECT_EQ(tools.markedChoice("Mirror", ppd.get()), SettingChoice{});
  EXPECT_EQ(tools.markedChoice("MediaType", nullptr), SettingChoice{});
}

TEST(PDETools, GivesTheMarkedChoice) {
  const PPDPtr ppd = makePPD({paperTypeOption()});
  EXPECT_EQ(tools.getPPDMarkedChoice("MediaType", ppd.get(), true), "Automatic");
  ppdMarkOption(ppd.get(), "MediaType", "IronOn");
  EXPECT_EQ(tools.getPPDMarkedChoice("MediaType", ppd.get(), true), "IronOn");
  EXPECT_EQ(tools.getPPDMarkedChoice("MediaType", ppd.get(), false), "Iron-On Transfer");
  EXPECT_EQ(tools.getPPDMarkedChoice("MediaType", nullptr, true), std::nullopt);
}

TEST(PDETools, AnswersAbsentWhereNothingIsMarked) {
  const PPDPtr ppd = parsePPD(ppdText({paperTypeOption()}), false);
  EXPECT_EQ(tools.getPPDMarkedChoice("MediaType", ppd.get(), true), std::nullopt);
}

TEST(PDETools, TakesATextThatIsNoUTF8ForAbsent) {
  const PPDPtr ppd = makePPD({{"MediaType", "PickOne", "A", {"A/cut \xe7\xb4"}}});
  EXPECT_EQ(tools.getPPDMarkedChoice("MediaType", ppd.get(), false), std::nullopt);
  EXPECT_EQ(tools.getPPDMarkedChoice("MediaType", ppd.get(), true), "A");
}

TEST(PDETools, FindsTheModelYearInTheDriversPath) {
  EXPECT_EQ(modelYearOf("/Library/Printers/Tavrin/2007/Help"), "2007");
  EXPECT_EQ(modelYearOf("/Library/Printers/Tavrin/2006/Help/English"), "2006/Help");
  EXPECT_EQ(modelYearOf("/Library/Printers/Tavrin/Drivers/Printer.plugin"), "Drivers");
}

TEST(PDETools, TrimsASetOfCharactersNotAPrefix) {
  EXPECT_EQ(modelYearOf("/Library/Printers/Tavrin/abc/x"), "c");
}

TEST(PDETools, TrimsBothEndsBeforeTheLastComponentGoes) {
  EXPECT_EQ(modelYearOf("/Library/Printers/Tavrin/2007/Help/"), "2007");
  // Every letter of the last component is in the set, so that the year goes in its place.
  EXPECT_EQ(modelYearOf("/Library/Printers/Tavrin/2007/Printers"), "");
}

TEST(PDETools, FindsAnAttributeWithAnySpecifier) {
  const PPDPtr ppd = makePPD({}, {"*TavDriverPath Here/There: \"/Library/Printers/Tavrin/2009/D\"",
                                  "*TavHelpPath Here: \"/Help\""});
  EXPECT_EQ(tools.getModelYear(ppd.get()), "2009");
  EXPECT_EQ(tools.getComponentPath(HELP_KEY, ppd.get(), kUTF8Encoding), "/Help");
}

TEST(PDETools, LeavesNothingOfAPathWithoutFolder) {
  EXPECT_EQ(modelYearOf("2007"), "");
  EXPECT_EQ(modelYearOf("/Library/Printers/"), "");
}

TEST(PDETools, HasNoModelYearWithoutADriverPath) {
  EXPECT_EQ(tools.getModelYear(makePPD({}).get()), std::nullopt);
  EXPECT_EQ(tools.getModelYear(nullptr), std::nullopt);
}

TEST(PDETools, DecodesAComponentPath) {
  const PPDPtr ppd = makePPD({}, {"*TavHelpPath: \"/Hilfe/\xe9\""});
  EXPECT_EQ(tools.getComponentPath(HELP_KEY, ppd.get(), kISOLatin1Encoding), "/Hilfe/é");
  EXPECT_EQ(tools.getComponentPath(HELP_KEY, ppd.get(), kUTF8Encoding), std::nullopt);
  EXPECT_EQ(tools.getComponentPath(CUPS_DRIVER_KEY, ppd.get(), kUTF8Encoding), std::nullopt);
  EXPECT_EQ(tools.getComponentPath(HELP_KEY, nullptr, kUTF8Encoding), std::nullopt);
}

}  // namespace
}  // namespace tavrin
