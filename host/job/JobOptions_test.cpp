#include "host/job/JobOptions.h"

#include <gtest/gtest.h>

#include "host/printer/MarkedOptions.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

PPDPtr familyPPD() {
  return makePPD({pageSizeOption(),
                  paperTypeOption(),
                  mirrorOption(),
                  printQualityOption(),
                  {"Staple/Staple", "PickMany", "Left", {"Left", "Right", "Top"}},
                  {"Duplex/Two-Sided", "PickOne", "None", {"None", "DuplexTumble"}}});
}

TEST(JobOptions, PutsTheMarksOverTheRequest) {
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

TEST(JobOptions, SendsNothingWhereEveryMarkWasTakenAway) {
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

TEST(JobOptions, KeepsTheRequestOfAPrinterWithoutAPPD) {
  JobRequest request;
  request.options = {{"media", "Letter"}};
  EXPECT_EQ(jobOptions(request, nullptr), request.options);
}

TEST(JobOptions, WritesTheSameAsALpCommand) {
  JobRequest request{"photo", "draft", 2, "Ada's card", "", {}, "my card.pdf"};
  EXPECT_EQ(lpCommand(request, {{"MediaType", "IronOn"}, {"copies", "2"}, {"note", "a b'c"}}),
            "lp -d 'photo/draft' -n 2 -t 'Ada'\\''s card' -o 'MediaType=IronOn' "
            "-o 'note=a\\ b\\'\\''c' -- 'my card.pdf'");
}

TEST(JobOptions, QuotesAValueSoThatItIsReadBackTheSame) {
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

TEST(JobOptions, NamesTheJobAfterItsDocument) {
  EXPECT_EQ(jobTitle({"", "", 1, "Holiday", "", {}, "/x/a.pdf"}), "Holiday");
  EXPECT_EQ(jobTitle({"", "", 1, "", "", {}, "/x/a.pdf"}), "a.pdf");
  EXPECT_EQ(jobTitle({}), "(stdin)");
}

}  // namespace
}  // namespace tavrin
