#include "host/server/PrinterReasons.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(PrinterReason, IsInWordsWithOrWithoutASeverity) {
  for (const char* keyword : {"media-jam", "media-jam-report", "media-jam-error"})
    EXPECT_EQ(explained(keyword).words, "paper jam") << keyword;
}

TEST(PrinterReason, IsAsGraveAsThePrinterSaysAndNoLessThanItIs) {
  EXPECT_EQ(explained("door-open-report").concern, Concern::warning);
  EXPECT_EQ(explained("door-open-error").concern, Concern::trouble);
  EXPECT_EQ(explained("connecting-to-device").concern, Concern::none);
}

TEST(PrinterReason, IsToldInItsOwnWordsWhereItIsAnUnknownError) {
  EXPECT_EQ(explained("lamp-at-eol-error").words, "lamp at eol");
  EXPECT_EQ(explained("lamp-at-eol-error").concern, Concern::trouble);
  EXPECT_EQ(explained("lamp-at-eol-warning").words, "");
  EXPECT_EQ(explained("cups-waiting-for-job-completed").words, "");
}

}  // namespace
}  // namespace tavrin
