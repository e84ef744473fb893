#include "host/task/JobFields.h"

#include <algorithm>

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

TEST(JobFields, AreOptionsOfTheJobUnlessTheyAreUsual) {
  JobFields fields;
  EXPECT_EQ(fields.options(), OptionList());
  fields.setCopies(2);
  fields.setPages({false, "5, 1-3"});
  fields.setValue("page-set", "odd");
  fields.setValue("orientation-requested", "4");
  fields.setPagesPerSheet(4);
  fields.setValue("number-up-layout", "tblr");
  fields.setValue("sheet-collate", "collated");
  fields.setScalingPercent(50);
  EXPECT_EQ(fields.options(), (OptionList{{"copies", "2"},
                                          {"page-ranges", "1-3,5"},
                                          {"page-set", "odd"},
                                          {"orientation-requested", "4"},
                                          {"number-up", "4"},
                                          {"number-up-layout", "tblr"},
                                          {"sheet-collate", "collated"},
                                          {"scaling", "50"}}));
  fields.setPages({false, "5-1"});
  EXPECT_EQ(optionValue(fields.options(), "page-ranges"), std::nullopt);
}

TEST(JobFields, AreUsualInSoManyWordsWhereSomethingElseWasGiven) {
  JobFields fields;
  fields.suggest(
      {},
      {{"copies", "3"}, {"outputorder", "reverse"}, {"landscape", "true"}, {"fitplot", "true"}});
  fields.setCopies(1);
  fields.setValue("outputorder", "normal");
  fields.setValue("orientation-requested", "");
  fields.setScaling(ScalingField::Way::automatic);
  EXPECT_EQ(fields.options(),
            (OptionList{{"copies", "1"}, {"outputorder", "normal"}, {"print-scaling", "auto"}}));
}

TEST(JobFields, AreFilledInFromOptions) {
  JobFields fields;
  EXPECT_EQ(fields.suggest({}, {{"Booklet", "yes"},
                                {"landscape", "true"},
                                {"position", "Top-Left"},
                                {"ppi", "300"},
                                {"Collate", "True"}}),
            "");
  EXPECT_EQ(fields.value("booklet"), "true");
  EXPECT_EQ(fields.value("orientation-requested"), "4");
  EXPECT_EQ(fields.value("position"), "top-left");
  EXPECT_EQ(fields.value("sheet-collate"), "collated");
  EXPECT_EQ(fields.options(), (OptionList{{"orientation-requested", "4"},
                                          {"position", "top-left"},
                                          {"booklet", "true"},
                                          {"sheet-collate", "collated"},
                                          {"ppi", "300"}}));
  EXPECT_EQ(fields.suggest({}, {}), "");
  EXPECT_EQ(fields.options(), OptionList()) << "another printer, which suggests nothing";
}

TEST(JobFields, KeepWhatThePersonHasSet) {
  JobFields fields;
  fields.setValue("page-border", "double");
  fields.setPagesPerSheet(2);
  fields.suggest({}, {{"page-border", "single"}, {"number-up", "4"}});
  EXPECT_EQ(fields.options(), (OptionList{{"number-up", "2"}, {"page-border", "double"}}));
}

TEST(JobFields, NameValuesThatCannotBe) {
  JobFields fields;
  EXPECT_EQ(fields.suggest({}, {{"page-set", "third"}, {"scaling", "0"}}),
            "The option “page-set” can be all, odd or even, not “third”. "
            "Pages can be scaled to 1 to 1000 percent, not “0”.");
  EXPECT_EQ(fields.suggest({}, {{"print-scaling", "huge"}}),
            "The option “print-scaling” can be auto, fit, fill or none, not “huge”.");
  EXPECT_EQ(fields.value("page-set"), "all");
  fields.setValue("page-set", "third");
  EXPECT_EQ(fields.value("page-set"), "all");
}

TEST(JobFields, ThatMakeNoDifferenceAreNotSent) {
  JobFields fields;
  fields.setPagesPerSheet(4);
  fields.setValue("page-border", "single");
  fields.setCopies(2);
  fields.setValue("sheet-collate", "collated");
  fields.setPagesPerSheet(1);
  fields.setCopies(1);
  EXPECT_FALSE(fields.matters("page-border"));
  EXPECT_EQ(fields.options(), OptionList());
}

TEST(JobFields, HaveTwoPagesOnASheetOfABooklet) {
  JobFields fields;
  fields.setPagesPerSheet(4);
  std::vector<int> pages;
  QObject::connect(&fields, &JobFields::pagesPerSheetChanged,
                   [&](int number) { pages.push_back(number); });
  fields.setValue("booklet", "true");
  EXPECT_EQ(fields.options(), (OptionList{{"booklet", "true"}}));
  fields.setValue("booklet", "false");
  EXPECT_EQ(fields.options(), (OptionList{{"number-up", "4"}}));
  EXPECT_EQ(pages, (std::vector<int>{2, 4}));
}

TEST(JobFields, PutPicturesTogetherOnlyWhereThereAreSeveral) {
  JobFields fields;
  fields.setPictures(3, 3);
  fields.setValue("multiple-document-handling", "single-document");
  EXPECT_EQ(fields.options(), (OptionList{{"multiple-document-handling", "single-document"}}));
  fields.setPictures(2, 3);
  EXPECT_EQ(fields.options(), OptionList());
}

TEST(JobFields, OfOnePageLeaveNothingToChoose) {
  JobFields fields;
  EXPECT_TRUE(fields.hasPagesToChoose()) << "nobody knows";
  fields.setDocumentPages(1);
  EXPECT_FALSE(fields.hasPagesToChoose());
  fields.suggestPageRange("2");
  EXPECT_TRUE(fields.hasPagesToChoose()) << "what is wrong can be put right";
  fields.suggestPageRange("");
  fields.suggestValue("page-set", "even");
  EXPECT_TRUE(fields.hasPagesToChoose());
}

TEST(JobFields, KnowWhatTheDocumentsAre) {
  JobFields fields;
  EXPECT_EQ(fields.contents(), Contents::unknown);
  fields.setPictures(0, 2);
  EXPECT_EQ(fields.contents(), Contents::pages);
  fields.setPictures(1, 2);
  EXPECT_EQ(fields.contents(), Contents::unknown) << "one of each";
  fields.setPictures(1, 1);
  EXPECT_EQ(fields.contents(), Contents::pictures);
  EXPECT_FALSE(fields.matters("multiple-document-handling"));
}

TEST(JobFields, TellThatTheDocumentHasNoSuchPage) {
  JobFields fields;
  fields.setPages({false, "50"});
  EXPECT_EQ(fields.pagesProblem(), "") << "nobody knows how long the document is";
  fields.setDocumentPages(8);
  EXPECT_EQ(fields.pagesProblem(), "The document has 8 pages; the range “50” holds none of them.");
  fields.setPages({false, "3"});
  EXPECT_EQ(fields.pagesProblem(), "");
  fields.setValue("page-set", "even");
  EXPECT_EQ(fields.pagesProblem(),
            "The document has 8 pages; no even one is among those to print.");
  fields.setPages({false, "5-1"});
  EXPECT_EQ(fields.pagesProblem().toStdString(), fields.pageRanges().reason());
}

TEST(JobFields, StandForTheseOptions) {
  const auto names = JobFields::optionNames();
  for (const char* name : {"copies", "page-ranges", "sides", "scaling", "landscape", "fill"})
    EXPECT_NE(std::ranges::find(names, name), names.end()) << name;
}

}  // namespace
}  // namespace tavrin
