#include "host/task/JobFields.h"

#include <gtest/gtest.h>

#include "host/request/JobOptions.h"

namespace tavrin {
namespace {

TEST(JobFields, FollowSuggestionsUntilThePersonHasSetThem) {
  JobFields fields;
  fields.suggestCopies(2);
  fields.suggestPageRange("5,1-3");
  EXPECT_TRUE(fields.suggestPagesPerSheet(4));
  EXPECT_EQ(fields.copies(), 2);
  EXPECT_EQ(*fields.pageRanges(), "1-3,5");
  EXPECT_EQ(fields.pagesPerSheet(), 4);

  fields.setCopies(7);
  fields.setPages({true, "5"});
  fields.setPagesPerSheet(9);
  fields.suggestCopies(1);
  fields.suggestPageRange("2");
  EXPECT_TRUE(fields.suggestPagesPerSheet(1));
  EXPECT_EQ(fields.copies(), 7);
  EXPECT_EQ(*fields.pageRanges(), "");
  EXPECT_EQ(fields.pagesPerSheet(), 9);
}

TEST(JobFields, HoldOnlyWhatCanBe) {
  JobFields fields;
  fields.setCopies(0);
  EXPECT_EQ(fields.copies(), 1);
  fields.setCopies(kMostCopies + 1);
  EXPECT_EQ(fields.copies(), kMostCopies);
  EXPECT_FALSE(fields.suggestPagesPerSheet(5));
  EXPECT_EQ(fields.pagesPerSheet(), 1);
  fields.setPagesPerSheet(5);
  EXPECT_EQ(fields.pagesPerSheet(), 1);
  fields.setPages({false, "5-1"});
  EXPECT_FALSE(fields.pageRanges());
}

TEST(JobFields, TheRequestGoesBeforeThePrintersOptions) {
  const OptionList options{{"copies", "3"}, {"page-ranges", "4"}, {"number-up", "2"}};
  JobFields fields;
  EXPECT_EQ(fields.suggest({}, options), "");
  EXPECT_EQ(fields.copies(), 3);
  EXPECT_EQ(*fields.pageRanges(), "4");
  EXPECT_EQ(fields.pagesPerSheet(), 2);

  JobRequest request;
  request.copies = 5;
  request.pageRanges = "1-2";
  fields.suggest(request, options);
  EXPECT_EQ(fields.copies(), 5);
  EXPECT_EQ(*fields.pageRanges(), "1-2");
}

TEST(JobFields, NameANumberOfPagesPerSheetThatCannotBe) {
  JobFields fields;
  EXPECT_EQ(fields.suggest({}, {{"number-up", "3"}}),
            "A sheet can hold 1, 2, 4, 6, 9 or 16 pages, not “3”.");
}

TEST(JobFields, TellOfSuggestionsThatWereTaken) {
  JobFields fields;
  int taken = 0;
  std::vector<int> pages;
  QObject::connect(&fields, &JobFields::suggestionTaken, [&] { ++taken; });
  QObject::connect(&fields, &JobFields::pagesPerSheetChanged,
                   [&](int number) { pages.push_back(number); });
  fields.suggestPagesPerSheet(2);
  EXPECT_EQ(taken, 1);
  fields.setPagesPerSheet(6);
  fields.suggestPagesPerSheet(4);
  EXPECT_EQ(taken, 1) << "the person has set the field";
  EXPECT_EQ(pages, (std::vector<int>{2, 6}));
}

}  // namespace
}  // namespace tavrin
