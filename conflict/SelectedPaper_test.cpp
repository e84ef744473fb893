#include "conflict/SelectedPaper.h"

#include <gtest/gtest.h>

#include "tests/fakes/FakeJob.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

PPDPtr printerWithPapers(const std::vector<std::string>& papers) {
  return makePPD({{"PageSize/Paper Size", "PickOne", "A4", papers}});
}

std::string textOf(const OptString& name, ppd_file_t* ppd) {
  FakePageFormat format;
  format.name = name;
  return SelectedPaper(&format).text(ppd);
}

const std::pair<const char*, const char*> kOldAndTodays[] = {{"B5", "B5JIS"},
                                                             {"ISOB5", "EnvelopeB5"},
                                                             {"Env10", "Envelope10"},
                                                             {"EnvDL", "EnvelopeDL"},
                                                             {"EnvChou3", "EnvelopeChokei3"}};

TEST(SelectedPaper, GoesByThePPDsTextOfTodaysName) {
  for (const auto& [old, todays] : kOldAndTodays) {
    const PPDPtr ppd = printerWithPapers(
        {"A4/A4", old + std::string("/Former Text"), todays + std::string("/Text of Today")});
    EXPECT_EQ(textOf(old, ppd.get()), "Text of Today");
    EXPECT_EQ(textOf(todays, ppd.get()), "Text of Today");
  }
}

TEST(SelectedPaper, GoesByThePPDsTextOfTheOldNameWhereThePPDListsNoOther) {
  for (const auto& [old, todays] : kOldAndTodays) {
    const PPDPtr ppd = printerWithPapers({"A4/A4", old + std::string("/Former Text")});
    EXPECT_EQ(textOf(old, ppd.get()), "Former Text");
    EXPECT_EQ(textOf(todays, ppd.get()), todays);
  }
}

TEST(SelectedPaper, GoesByTodaysNameWhereThePPDListsNeither) {
  const PPDPtr ppd = printerWithPapers({"A4/A4"});
  for (ppd_file_t* printer : {ppd.get(), static_cast<ppd_file_t*>(nullptr)}) {
    for (const auto& [old, todays] : kOldAndTodays) EXPECT_EQ(textOf(old, printer), todays);
    EXPECT_EQ(textOf("EnvMonarch", printer), "EnvMonarch");
  }
}

TEST(SelectedPaper, IsNothingInAJobWithoutPaper) {
  const PPDPtr ppd = printerWithPapers({"A4/A4"});
  EXPECT_EQ(textOf(std::nullopt, ppd.get()), "");
  EXPECT_EQ(SelectedPaper(nullptr).text(ppd.get()), "");
}

}  // namespace
}  // namespace tavrin
