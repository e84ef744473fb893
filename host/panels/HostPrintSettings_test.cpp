#include "host/panels/HostPrintSettings.h"

#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(HostPrintSettings, KeepsSettingsByKey) {
  HostPrintSettings settings;
  EXPECT_EQ(settings.value(kPMLayoutColumns), std::nullopt);
  settings.setValue(kPMLayoutColumns, "2");
  EXPECT_EQ(settings.value(kPMLayoutColumns), "2");
  settings.setValue(kPMLayoutColumns, std::nullopt);
  EXPECT_EQ(settings.value(kPMLayoutColumns), std::nullopt);
}

TEST(LayoutColumns, GrowWithThePages) {
  const std::vector<std::pair<int, int>> expected{{1, 1}, {2, 2}, {4, 2}, {6, 3}, {9, 3}, {16, 4}};
  for (const auto& [pages, columns] : expected) EXPECT_EQ(layoutColumns(pages), columns) << pages;
}

}  // namespace
}  // namespace tavrin
