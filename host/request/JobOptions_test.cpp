#include "host/request/JobOptions.h"

#include <gtest/gtest.h>

#include "host/printer/MarkedOptions.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

TEST(JobOptions, PutsTheMarksOverTheRequest) {
  const PPDPtr ppd = officePPD();
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
  const PPDPtr ppd = officePPD();
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

TEST(JobOptions, LeaveSettingsOfTheJobToThePerson) {
  const PPDPtr ppd = makePPD({mirrorOption(),
                              {"page-ranges", "PickOne", "1", {"1", "3"}},
                              {"Number-Up", "PickOne", "4", {"1", "4"}},
                              {"raw", "Boolean", "True", {"True", "False"}},
                              {"copies", "PickOne", "9", {"1", "9"}}});
  EXPECT_EQ(jobOptions({}, ppd.get()), (OptionList{{"Mirror", "False"}}));
  JobRequest request;
  request.options = {{"number-up", "2"}, {"raw", "true"}};
  request.pageRanges = "2";
  EXPECT_EQ(
      jobOptions(request, ppd.get()),
      (OptionList{{"number-up", "2"}, {"raw", "true"}, {"Mirror", "False"}, {"page-ranges", "2"}}));
}

TEST(JobOptions, HaveThePaperOfThePersonsOwnSize) {
  const PPDPtr ppd = makePPD({pageSizeOption()}, customPaperAttributes());
  JobRequest request;
  request.options = {{"PageSize", "Custom.10x15cm"}};
  markOptions(*ppd, request.options);
  EXPECT_EQ(jobOptions(request, ppd.get()), request.options) << "as it was written";
  markOptions(*ppd, {{"PageSize", "Custom.100x200mm"}});
  EXPECT_EQ(jobOptions(request, ppd.get()), (OptionList{{"PageSize", "Custom.100x200mm"}}));
  markOptions(*ppd, {{"PageSize", "A4"}});
  EXPECT_EQ(jobOptions(request, ppd.get()), (OptionList{{"PageSize", "A4"}}));
}

TEST(JobOptions, AskForOneCopyWhereAnOptionAsksForMore) {
  JobRequest request;
  request.options = {{"copies", "7"}};
  EXPECT_EQ(jobOptions(request, nullptr), (OptionList{{"copies", "1"}}));
}

TEST(JobOptions, KeepsTheRequestOfAPrinterWithoutAPPD) {
  JobRequest request;
  request.options = {{"media", "Letter"}};
  EXPECT_EQ(jobOptions(request, nullptr), request.options);
}

}  // namespace
}  // namespace tavrin
