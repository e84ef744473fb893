#include "host/request/JobInWords.h"

#include <gtest/gtest.h>

#include "host/request/JobSetting.h"

namespace tavrin {
namespace {

std::string inWords(const OptionList& options) { return jobInWords(options).toStdString(); }

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
  EXPECT_EQ(inWords({{"page-set", "Odd"}}), "odd pages only");
  EXPECT_EQ(inWords({{"page-ranges", "2-9"}, {"page-set", "even"}}),
            "pages 2 to 9, even pages only");
}

TEST(JobInWords, SaysHowOftenAndInWhichOrder) {
  EXPECT_EQ(inWords({{"copies", "3"}, {"sheet-collate", "uncollated"}, {"outputorder", "reverse"}}),
            "all pages, 3 copies, not collated, last page first");
  EXPECT_EQ(inWords({{"copies", "3"}, {"Collate", "True"}}), "all pages, 3 copies, collated");
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

TEST(JobInWords, BelievesThePrintersOptionForBothSides) {
  EXPECT_EQ(inWords({{"sides", "two-sided-short-edge"}}), "all pages, two-sided (short edge)");
  EXPECT_EQ(inWords({{"Duplex", "DuplexNoTumble"}}), "all pages, two-sided (long edge)");
  EXPECT_EQ(inWords({{"Duplex", "DuplexTumble"}}), "all pages, two-sided (short edge)");
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
