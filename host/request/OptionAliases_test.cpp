#include "host/request/OptionAliases.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(OptionAliases, SayTheSameByTheFirstNames) {
  EXPECT_EQ(inFirstNames({{"landscape", "true"}, {"fitplot", "yes"}, {"collate", "True"}}),
            (OptionList{{"orientation-requested", "4"},
                        {"print-scaling", "fit"},
                        {"sheet-collate", "collated"}}));
  EXPECT_EQ(inFirstNames({{"fill", "on"}}), (OptionList{{"print-scaling", "fill"}}));
  EXPECT_EQ(inFirstNames({{"multiple-document-handling", "separate-documents-collated-copies"}}),
            (OptionList{{"sheet-collate", "collated"}}));
}

TEST(OptionAliases, ThatSayNoAreGone) {
  EXPECT_EQ(inFirstNames({{"landscape", "false"}, {"fill", "no"}, {"Collate", "False"}}),
            (OptionList{{"sheet-collate", "uncollated"}}));
}

TEST(OptionAliases, GiveWayToTheFirstName) {
  const OptionList options = inFirstNames(
      {{"orientation-requested", "6"}, {"landscape", "true"}, {"print-scaling", "none"}});
  EXPECT_EQ(options, (OptionList{{"orientation-requested", "6"}, {"print-scaling", "none"}}));
}

TEST(OptionAliases, LeaveOtherOptionsAlone) {
  const OptionList options{{"multiple-document-handling", "single-document"}, {"Mirror", "True"}};
  EXPECT_EQ(inFirstNames(options), options);
}

}  // namespace
}  // namespace tavrin
