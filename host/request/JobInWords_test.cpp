#include "host/request/JobInWords.h"

#include <gtest/gtest.h>

#include "host/request/JobSetting.h"

namespace tavrin {
namespace {

std::string inWords(const OptionList& options, const JobScope& scope = {}) {
  return jobInWords(options, scope).toStdString();
}

TEST(JobInWords, SaysWhatIsNotUsual) {
  EXPECT_EQ(inWords({{"page-ranges", "2-4"}, {"number-up", "2"}, {"Mirror", "True"}}),
            "pages 2 to 4, two on a sheet, mirrored");
  EXPECT_EQ(inWords({}), "all pages");
  EXPECT_EQ(inWords({{"number-up", "1"},
                     {"Mirror", "False"},
                     {"sides", "one-sided"},
                     {"print-scaling", "auto"},
                     {"position", "center"},
                     {"copies", "1"},
                     {"MediaType", "Plain"}}),
            "all pages");
}

TEST(JobInWords, NamesPages) {
  EXPECT_EQ(inWords({{"page-ranges", "7"}}), "page 7");
  EXPECT_EQ(inWords({{"page-ranges", "7-"}}), "pages 7 to the end");
  EXPECT_EQ(inWords({{"page-ranges", "1-3,5,8-9"}}), "pages 1 to 3, 5 and 8 to 9");
  EXPECT_EQ(inWords({{"page-ranges", "-4"}}), "pages 1 to 4");
  EXPECT_EQ(inWords({{"page-set", "Odd"}}), "the odd pages");
  EXPECT_EQ(inWords({{"page-ranges", "2-9"}, {"page-set", "even"}}),
            "the even pages among pages 2 to 9");
}

TEST(JobInWords, SaysHowOftenAndInWhichOrder) {
  EXPECT_EQ(inWords({{"copies", "3"}, {"sheet-collate", "uncollated"}, {"outputorder", "reverse"}}),
            "3 copies of all pages, not collated, in reverse order");
  EXPECT_EQ(inWords({{"copies", "3"}, {"Collate", "True"}}), "3 copies of all pages, collated");
  EXPECT_EQ(inWords({{"sheet-collate", "collated"}}), "all pages");
}

TEST(JobInWords, SaysHowPagesLieOnASheet) {
  EXPECT_EQ(inWords({{"landscape", "true"}, {"scaling", "50"}, {"position", "top-left"}}),
            "all pages, landscape, at 50 percent, at the top left");
  EXPECT_EQ(inWords({{"number-up", "4"}, {"number-up-layout", "tblr"}, {"page-border", "single"}}),
            "all pages, four on a sheet, in columns, with a border");
  EXPECT_EQ(inWords({{"booklet", "yes"}, {"number-up", "4"}}), "all pages, as a booklet");
  EXPECT_EQ(inWords({{"fitplot", "true"}}), "all pages, as large as fits");
  EXPECT_EQ(inWords({{"ppi", "300"}}), "all pages, at 300 pixels per inch");
  EXPECT_EQ(inWords({{"natural-scaling", "70"}}), "all pages, at 70 percent of actual size");
}

TEST(JobInWords, SaysHowManyThereAre) {
  JobScope scope{.pages = 8, .sheets = 8, .paper = "A4"};
  EXPECT_EQ(inWords({}, scope), "all 8 pages, on A4");
  EXPECT_EQ(inWords({{"copies", "2"}}, scope), "2 copies of all 8 pages, on 16 sheets of A4");
  scope.sheets = 1;
  EXPECT_EQ(inWords({{"number-up", "9"}}, scope),
            "all 8 pages, nine on a sheet, on one sheet of A4");
  EXPECT_EQ(inWords({}, {.pages = 1, .sheets = 1}), "one page");
  EXPECT_EQ(inWords({}, {.documents = 3}), "all pages of 3 documents");
  EXPECT_EQ(inWords({{"page-ranges", "2"}}, {.documents = 3}), "page 2 of each of 3 documents");
  EXPECT_EQ(inWords({}, {.documents = 2, .pages = 5, .sheets = 3}),
            "all 5 pages of 2 documents, on 3 sheets");
}

TEST(JobInWords, CallsPicturesPictures) {
  JobScope scope{.contents = Contents::pictures, .pages = 1, .sheets = 1};
  EXPECT_EQ(inWords({{"copies", "3"}}, scope), "3 copies of one picture, on 3 sheets");
  scope.documents = 4;
  scope.pages = 4;
  EXPECT_EQ(inWords({{"number-up", "4"}}, scope), "4 pictures, four on a sheet, on one sheet");
  EXPECT_EQ(inWords({{"page-ranges", "1"}}, scope), "page 1 of each of 4 documents, on one sheet");
  scope.pages = 9;
  EXPECT_EQ(inWords({}, scope), "all 9 pages of 4 documents, on one sheet") << "one is a book";
}

TEST(JobInWords, SaysOfWhichSizeAShareIs) {
  const OptionList half{{"scaling", "50"}};
  EXPECT_EQ(inWords(half, {.contents = Contents::pages}),
            "all pages, at 50 percent of actual size");
  EXPECT_EQ(inWords(half, {.contents = Contents::pictures, .pages = 1}),
            "one picture, at 50 percent of what fits");
}

TEST(JobInWords, BelievesThePrintersOptionForBothSides) {
  EXPECT_EQ(inWords({{"sides", "two-sided-short-edge"}}),
            "all pages, two-sided (short-edge binding)");
  EXPECT_EQ(inWords({{"Duplex", "DuplexNoTumble"}}), "all pages, two-sided (long-edge binding)");
  EXPECT_EQ(inWords({{"Duplex", "DuplexTumble"}}), "all pages, two-sided (short-edge binding)");
  EXPECT_EQ(inWords({{"Duplex", "None"}, {"sides", "two-sided-long-edge"}}), "all pages");
}

TEST(JobInWords, HasAWordForEveryValueThatIsNotUsual) {
  for (const JobSetting& setting : jobSettings())
    for (const std::string& value : setting.values) {
      if (value == setting.usual()) continue;
      const OptionList several{{"copies", "2"}, {"number-up", "2"}};
      OptionList options = several;
      setOption(options, setting.option, value);
      EXPECT_EQ(inWords(options) != inWords(several), value != "2") << setting.option << value;
    }
}

}  // namespace
}  // namespace tavrin
