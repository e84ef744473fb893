#include "ppd/Setting.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(Setting, FindsItsRow) {
  for (const SettingRow& row : kSettings) EXPECT_EQ(&rowOf(row.setting), &row) << row.keyword;
}

TEST(Setting, IsFoundByItsKeywordToTheLetter) {
  for (const SettingRow& row : kSettings) EXPECT_EQ(settingWithKeyword(row.keyword), row.setting);
  EXPECT_EQ(settingWithKeyword("MediaType"), Setting::paperType);
  EXPECT_EQ(settingWithKeyword("mediatype"), std::nullopt);
  EXPECT_EQ(settingWithKeyword("PageSize"), std::nullopt);
  EXPECT_EQ(settingWithKeyword(""), std::nullopt);
  EXPECT_EQ(settingWithKeyword(std::nullopt), std::nullopt);
}

}  // namespace
}  // namespace tavrin
