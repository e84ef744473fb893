#include "host/panels/HostJob.h"

#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(HostJob, KeepsSettingsByKey) {
  HostPrintSettings settings;
  EXPECT_EQ(settings.value(kPMLayoutColumns), std::nullopt);
  settings.setValue(kPMLayoutColumns, "2");
  EXPECT_EQ(settings.value(kPMLayoutColumns), "2");
  settings.setValue(kPMLayoutColumns, std::nullopt);
  EXPECT_EQ(settings.value(kPMLayoutColumns), std::nullopt);
}

TEST(HostJob, HasAPaperOnceItIsSet) {
  HostPageFormat format;
  EXPECT_EQ(format.paper(), nullptr);
  format.setPaper("A4");
  ASSERT_NE(format.paper(), nullptr);
  EXPECT_EQ(format.paper()->ppdPaperName(), "A4");
  format.setPaper(std::nullopt);
  EXPECT_EQ(format.paper(), nullptr);
}

TEST(LayoutColumns, GrowWithThePages) {
  const std::vector<std::pair<int, int>> expected{{1, 1}, {2, 2}, {4, 2}, {6, 3}, {9, 3}, {16, 4}};
  for (const auto& [pages, columns] : expected) EXPECT_EQ(layoutColumns(pages), columns) << pages;
}

}  // namespace
}  // namespace tavrin
