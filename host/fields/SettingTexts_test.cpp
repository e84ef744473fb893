#include "host/fields/SettingTexts.h"

#include <algorithm>
#include <set>

#include <QPalette>
#include <gtest/gtest.h>

#include "host/fields/SettingPictures.h"
#include "host/request/JobSetting.h"
#include "host/request/SettingWords.h"

namespace tavrin {
namespace {

TEST(SettingTexts, TellTheValuesOfASettingApart) {
  for (const JobSetting& setting : jobSettings()) {
    std::set<QString> texts;
    for (const std::string& value : setting.values) {
      const QString text = valueText(setting.option, value);
      const bool isNumber = setting.option == kPagesPerSheetOption;
      EXPECT_EQ(text.toStdString() == value, isNumber) << setting.option;
      texts.insert(text);
    }
    EXPECT_EQ(texts.size(), setting.values.size()) << setting.option;
  }
}

TEST(SettingTexts, SayThatThePersonTurnsThePaperOver) {
  EXPECT_EQ(byHandText("one-sided"), "Off");
  EXPECT_EQ(byHandText("two-sided-short-edge"), "Short-Edge Binding, by Hand");
}

TEST(SettingPictures, TellTheValuesOfASettingApart) {
  for (const char* option : {kOrientationOption, kPositionOption, kOrderOnSheetOption}) {
    std::vector<QImage> seen;
    for (const std::string& value : findJobSetting(option)->values) {
      if (value.empty()) continue;
      const QImage picture = valuePicture(option, value, QPalette(), 16).pixmap(64).toImage();
      EXPECT_FALSE(picture.isNull()) << option << value;
      EXPECT_EQ(std::ranges::find(seen, picture), seen.end()) << option << value;
      seen.push_back(picture);
    }
  }
  EXPECT_TRUE(valuePicture(kBorderOption, "single", QPalette(), 16).isNull());
}

}  // namespace
}  // namespace tavrin
