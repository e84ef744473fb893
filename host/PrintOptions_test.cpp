#include "host/PrintOptions.h"

#include <gtest/gtest.h>

#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

using Problems = std::vector<std::string>;

PPDPtr familyPPD() {
  return makePPD({pageSizeOption(),
                  paperTypeOption(),
                  mirrorOption(),
                  printQualityOption(),
                  {"Staple/Staple", "PickMany", "Left", {"Left", "Right", "Top"}},
                  {"Duplex/Two-Sided", "PickOne", "None", {"None", "DuplexTumble"}}});
}

TEST(PrintOptions, ReadsWhatFollowsAnO) {
  EXPECT_EQ(parseOptions("MediaType=IronOn"), (OptionList{{"MediaType", "IronOn"}}));
  EXPECT_EQ(parseOptions("a=1 b='two words' c"),
            (OptionList{{"a", "1"}, {"b", "two words"}, {"c", "true"}}));
  EXPECT_EQ(parseOptions("noMirror"), (OptionList{{"Mirror", "false"}}));
  EXPECT_TRUE(parseOptions("").empty());
}

TEST(PrintOptions, KnowsAnOptionInAnyLetterCase) {
  OptionList options{{"mirror", "true"}, {"x", "1"}};
  setOption(options, "Mirror", "False");
  setOption(options, "y", "2");
  EXPECT_EQ(options, (OptionList{{"Mirror", "False"}, {"x", "1"}, {"y", "2"}}));
  EXPECT_EQ(optionValue(options, "MIRROR"), "False");
  EXPECT_EQ(optionValue(options, "z"), std::nullopt);
}

TEST(PrintOptions, MarksWhatTheOptionsName) {
  const PPDPtr ppd = familyPPD();
  EXPECT_EQ(
      markOptions(*ppd, {{"mediatype", "IronOn"}, {"Mirror", "true"}, {"job-sheets", "none"}}),
      Problems{});
  const OptionList marked = markedOptions(*ppd);
  EXPECT_EQ(optionValue(marked, "MediaType"), "IronOn");
  EXPECT_EQ(optionValue(marked, "Mirror"), "True");
}

TEST(PrintOptions, UnderstandsThePrintSystemsGeneralOptions) {
  const PPDPtr ppd = familyPPD();
  EXPECT_EQ(markOptions(*ppd, {{"sides", "two-sided-short-edge"}}), Problems{});
  EXPECT_EQ(optionValue(markedOptions(*ppd), "Duplex"), "DuplexTumble");
}

TEST(PrintOptions, NamesAChoiceThatThePrinterLacks) {
  const PPDPtr ppd = familyPPD();
  EXPECT_EQ(markOptions(*ppd, {{"MediaType", "Parchment"}, {"Scent", "Rose"}}),
            Problems{"The printer's option \"MediaType\" has no choice \"Parchment\"."});
}

TEST(PrintOptions, TakesSeveralChoicesWhereThePrinterDoes) {
  const PPDPtr ppd = familyPPD();
  EXPECT_EQ(markOptions(*ppd, {{"Staple", "Right,Top"}}), Problems{});
  EXPECT_EQ(markOptions(*ppd, {{"MediaType", "IronOn,Plain"}}).size(), 1u);
}

TEST(PrintOptions, LeavesOutWhatIsInstalledInThePrinter) {
  const PPDPtr ppd =
      parsePPD(ppdText({}, {"*OpenGroup: InstallableOptions/Installed",
                            "*OpenUI *Tray2Option/Tray: Boolean", "*DefaultTray2Option: True",
                            "*Tray2Option False/No: \"\"", "*Tray2Option True/Yes: \"\"",
                            "*CloseUI: *Tray2Option", "*CloseGroup: InstallableOptions"}));
  ASSERT_NE(ppdFindMarkedChoice(ppd.get(), "Tray2Option"), nullptr);
  EXPECT_EQ(optionValue(markedOptions(*ppd), "Tray2Option"), std::nullopt);
}

TEST(PrintOptions, PutsTheMarksOverTheRequest) {
  const PPDPtr ppd = familyPPD();
  JobRequest request;
  request.options = {{"mirror", "True"},
                     {"media", "Letter"},
                     {"sides", "one-sided"},
                     {"copies", "7"},
                     {"job-hold-until", "night"}};
  request.copies = 3;
  request.pageRanges = "1-3,5";
  const OptionList options = jobOptions(request, ppd.get());
  EXPECT_EQ(options.front(), (std::pair<std::string, std::string>("Mirror", "False")));
  EXPECT_EQ(optionValue(options, "media"), std::nullopt);
  EXPECT_EQ(optionValue(options, "sides"), std::nullopt);
  EXPECT_EQ(optionValue(options, "job-hold-until"), "night");
  EXPECT_EQ(optionValue(options, "copies"), "3");
  EXPECT_EQ(optionValue(options, "page-ranges"), "1-3,5");
}

TEST(PrintOptions, SendsNothingWhereEveryMarkWasTakenAway) {
  const PPDPtr ppd = familyPPD();
  JobRequest request;
  request.options = {{"Staple", "Right,Top"}, {"job-hold-until", "night"}};
  ppd_choice_t* byDefault = ppdFindMarkedChoice(ppd.get(), "Staple");
  ASSERT_NE(byDefault, nullptr);
  byDefault->marked = 0;
  cupsArrayRemove(ppd->marked, byDefault);
  const OptionList options = jobOptions(request, ppd.get());
  EXPECT_EQ(optionValue(options, "Staple"), std::nullopt);
  EXPECT_EQ(optionValue(options, "job-hold-until"), "night");
}

TEST(PrintOptions, KeepsTheRequestOfAPrinterWithoutAPPD) {
  JobRequest request;
  request.options = {{"media", "Letter"}};
  EXPECT_EQ(jobOptions(request, nullptr), request.options);
}

TEST(PrintOptions, WritesTheSameAsALpCommand) {
  JobRequest request{"photo", "draft", 2, "Ada's card", "", {}, "my card.pdf"};
  EXPECT_EQ(lpCommand(request, {{"MediaType", "IronOn"}, {"copies", "2"}, {"note", "a b'c"}}),
            "lp -d 'photo/draft' -n 2 -t 'Ada'\\''s card' -o 'MediaType=IronOn' "
            "-o 'note=a\\ b\\'\\''c' -- 'my card.pdf'");
}

TEST(PrintOptions, QuotesAValueSoThatItIsReadBackTheSame) {
  const std::string value = "two words 'and' \"quotes\" \\ back";
  const std::string command = lpCommand({}, {{"note", value}});
  std::string argument = command.substr(command.find("-o '") + 4);
  argument.resize(argument.rfind("' -- '-'"));
  for (std::size_t at; (at = argument.find("'\\''")) != std::string::npos;)
    argument.replace(at, 4, "\x01");
  for (char& c : argument)
    if (c == '\x01') c = '\'';
  EXPECT_EQ(parseOptions(argument), (OptionList{{"note", value}}));
}

TEST(PrintOptions, NamesTheJobAfterItsDocument) {
  EXPECT_EQ(jobTitle({"", "", 1, "Holiday", "", {}, "/x/a.pdf"}), "Holiday");
  EXPECT_EQ(jobTitle({"", "", 1, "", "", {}, "/x/a.pdf"}), "a.pdf");
  EXPECT_EQ(jobTitle({}), "(stdin)");
}

}  // namespace
}  // namespace tavrin
