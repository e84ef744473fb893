#include "host/printer/MarkedOptions.h"

#include <gtest/gtest.h>

#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

using Problems = std::vector<std::string>;

TEST(MarkedOptions, MarksWhatTheOptionsName) {
  const PPDPtr ppd = officePPD();
  EXPECT_EQ(
      markOptions(*ppd, {{"mediatype", "IronOn"}, {"Mirror", "true"}, {"job-sheets", "none"}}),
      Problems{});
  const OptionList marked = markedOptions(*ppd);
  EXPECT_EQ(optionValue(marked, "MediaType"), "IronOn");
  EXPECT_EQ(optionValue(marked, "Mirror"), "True");
}

TEST(MarkedOptions, UnderstandsThePrintSystemsGeneralOptions) {
  const PPDPtr ppd = officePPD();
  EXPECT_EQ(markOptions(*ppd, {{"sides", "two-sided-short-edge"}}), Problems{});
  EXPECT_EQ(optionValue(markedOptions(*ppd), "Duplex"), "DuplexTumble");
}

TEST(MarkedOptions, NamesAChoiceThatThePrinterLacks) {
  const PPDPtr ppd = officePPD();
  EXPECT_EQ(markOptions(*ppd, {{"MediaType", "Parchment"}, {"Scent", "Rose"}}),
            Problems{"The printer's option \"MediaType\" has no choice \"Parchment\"."});
}

TEST(MarkedOptions, AreWithoutSettingsOfTheJob) {
  const PPDPtr ppd = makePPD({mirrorOption(), {"page-ranges", "PickOne", "1", {"1", "3"}}});
  EXPECT_EQ(markOptions(*ppd, {{"Page-Ranges", "2"}, {"Mirror", "True"}}), Problems{});
  EXPECT_EQ(markedOptions(*ppd), (OptionList{{"Mirror", "True"}}));
}

TEST(MarkedOptions, TakesSeveralChoicesWhereThePrinterDoes) {
  const PPDPtr ppd = officePPD();
  EXPECT_EQ(markOptions(*ppd, {{"Staple", "Right,Top"}}), Problems{});
  EXPECT_EQ(markOptions(*ppd, {{"MediaType", "IronOn,Plain"}}).size(), 1u);
  EXPECT_EQ(markOptions(*ppd, {{"Staple", ""}}).size(), 1u);
}

TEST(MarkedOptions, LeavesOutWhatIsInstalledInThePrinter) {
  const PPDPtr ppd =
      parsePPD(ppdText({}, {"*OpenGroup: InstallableOptions/Installed",
                            "*OpenUI *Tray2Option/Tray: Boolean", "*DefaultTray2Option: True",
                            "*Tray2Option False/No: \"\"", "*Tray2Option True/Yes: \"\"",
                            "*CloseUI: *Tray2Option", "*CloseGroup: InstallableOptions"}));
  ASSERT_NE(ppdFindMarkedChoice(ppd.get(), "Tray2Option"), nullptr);
  EXPECT_EQ(optionValue(markedOptions(*ppd), "Tray2Option"), std::nullopt);
}

TEST(MarkedOptions, KnowWhichChoiceTurnsThePaperOverTheShortEdge) {
  const PPDPtr ppd = makePPD({{"Duplex", "PickOne", "None", {"None", "DuplexNoTumble"}},
                              {"EFDuplex", "PickOne", "False", {"False", "True", "TrueTumble"}}});
  EXPECT_EQ(shortEdgeChoice(*ppdFindOption(ppd.get(), "Duplex")), std::nullopt);
  EXPECT_EQ(shortEdgeChoice(*ppdFindOption(ppd.get(), "EFDuplex")), "TrueTumble");
}

}  // namespace
}  // namespace tavrin
