#include "host/prepare/HarmlessPPD.h"

#include <gtest/gtest.h>

#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

// What libcups reads in it that names a program.
int programsIn(const std::string& text) {
  const PPDPtr ppd = parsePPD(text);
  int count = ppd->num_filters;
  for (const char* keyword : {"cupsFilter2", "cupsPreFilter"})
    count += ppdFindAttr(ppd.get(), keyword, nullptr) != nullptr;
  return count;
}

TEST(HarmlessPPDTest, NamesNoPrograms) {
  for (const char* statement : {"*cupsFilter: \"application/vnd.cups-pdf 0 /tmp/evil\"",
                                "*cupsFilter2: \"application/pdf image/x 0 /tmp/evil\"",
                                "*cupsPreFilter: \"application/pdf 0 /tmp/evil\"",
                                "*CUPSPREFILTER: \"application/pdf 0 /tmp/evil\""}) {
    const std::string text = ppdText({paperTypeOption()}, {statement});
    EXPECT_GE(programsIn(text), 1) << statement;
    EXPECT_EQ(programsIn(harmlessPPD(text)), 0) << statement;
  }
}

TEST(HarmlessPPDTest, HidesNoStatementBehindALineEndOrAQuote) {
  const std::string text =
      ppdText({paperTypeOption()}, {"*Note: \"a\r*cupsPreFilter: \"application/pdf 0 /tmp/evil\"",
                                    "*End\r*cupsFilter: \"application/pdf 0 /tmp/evil\""});
  const std::string harmless = harmlessPPD(text);
  ASSERT_NE(harmless, "");
  EXPECT_EQ(programsIn(harmless), 0);
}

TEST(HarmlessPPDTest, LeavesTheRestAsItIs) {
  const std::string text = ppdText({paperTypeOption(), mirrorOption()});
  EXPECT_EQ(harmlessPPD(text), text);
}

TEST(HarmlessPPDTest, WhatIsNoPPDIsNotMadeOne) {
  EXPECT_EQ(harmlessPPD("no PPD"), "");
  EXPECT_EQ(harmlessPPD(""), "");
}

}  // namespace
}  // namespace tavrin
