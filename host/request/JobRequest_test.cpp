#include "host/request/JobRequest.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(JobRequest, NamesTheJobAfterItsDocument) {
  EXPECT_EQ(jobTitle({"", "", 1, "Holiday", "", {}, "/x/a.pdf"}), "Holiday");
  EXPECT_EQ(jobTitle({"", "", 1, "", "", {}, "/x/a.pdf"}), "a.pdf");
  EXPECT_EQ(jobTitle({}), "(stdin)");
}

TEST(JobRequest, IsCalledAsPeopleCallItsDocument) {
  EXPECT_EQ(titleInWords({"", "", 1, "Holiday", "", {}, "-"}), "Holiday");
  EXPECT_EQ(titleInWords({"", "", 1, "", "", {}, "/x/a.pdf"}), "a.pdf");
  EXPECT_EQ(titleInWords({}), "standard input");
}

}  // namespace
}  // namespace tavrin
