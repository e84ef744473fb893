#include "host/panels/HostPageFormat.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(HostPageFormat, HasAPaperOnceItIsSet) {
  HostPageFormat format;
  EXPECT_EQ(format.paper(), nullptr);
  format.setPaper("A4");
  ASSERT_NE(format.paper(), nullptr);
  EXPECT_EQ(format.paper()->ppdPaperName(), "A4");
  format.setPaper(std::nullopt);
  EXPECT_EQ(format.paper(), nullptr);
}

}  // namespace
}  // namespace tavrin
