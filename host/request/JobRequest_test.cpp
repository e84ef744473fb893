#include "host/request/JobRequest.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(JobRequest, NamesTheJobAfterItsDocument) {
  EXPECT_EQ(jobTitle({"", "", 1, "Holiday", "", {}, "/x/a.pdf"}), "Holiday");
  EXPECT_EQ(jobTitle({"", "", 1, "", "", {}, "/x/a.pdf"}), "a.pdf");
  EXPECT_EQ(jobTitle({}), "(stdin)");
}

}  // namespace
}  // namespace tavrin
