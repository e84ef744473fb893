#include "host/fields/SettingTexts.h"

#include <algorithm>

#include <QCoreApplication>
#include <QLocale>

#include "host/request/JobSetting.h"
#include "platform/text/OptionalString.h"

namespace tavrin {
namespace {

struct SettingTexts {
  Q_DECLARE_TR_FUNCTIONS(SettingTexts)
};

struct Text {
  const char* option;
  const char* value;
  const char* text;
};

#define TEXT(words) QT_TRANSLATE_NOOP("SettingTexts", words)

constexpr Text kTexts[] = {{kPageSetOption, "all", TEXT("All Pages")},
                           {kPageSetOption, "odd", TEXT("Odd Pages Only")},
                           {kPageSetOption, "even", TEXT("Even Pages Only")},
                           {kOrientationOption, "", TEXT("Automatic")},
                           {kOrientationOption, "3", TEXT("Portrait")},
                           {kOrientationOption, "4", TEXT("Landscape")},
                           {kOrientationOption, "5", TEXT("Reverse Landscape")},
                           {kOrientationOption, "6", TEXT("Reverse Portrait")},
                           {kPositionOption, "center", TEXT("Center")},
                           {kPositionOption, "top-left", TEXT("Top Left")},
                           {kPositionOption, "top", TEXT("Top")},
                           {kPositionOption, "top-right", TEXT("Top Right")},
                           {kPositionOption, "left", TEXT("Left")},
                           {kPositionOption, "right", TEXT("Right")},
                           {kPositionOption, "bottom-left", TEXT("Bottom Left")},
                           {kPositionOption, "bottom", TEXT("Bottom")},
                           {kPositionOption, "bottom-right", TEXT("Bottom Right")},
                           {kOrderOnSheetOption, "lrtb", TEXT("Left to Right, Then Down")},
                           {kOrderOnSheetOption, "lrbt", TEXT("Left to Right, Then Up")},
                           {kOrderOnSheetOption, "rltb", TEXT("Right to Left, Then Down")},
                           {kOrderOnSheetOption, "rlbt", TEXT("Right to Left, Then Up")},
                           {kOrderOnSheetOption, "tblr", TEXT("Down, Then Left to Right")},
                           {kOrderOnSheetOption, "tbrl", TEXT("Down, Then Right to Left")},
                           {kOrderOnSheetOption, "btlr", TEXT("Up, Then Left to Right")},
                           {kOrderOnSheetOption, "btrl", TEXT("Up, Then Right to Left")},
                           {kBorderOption, "none", TEXT("None")},
                           {kBorderOption, "single", TEXT("Single Line")},
                           {kBorderOption, "single-thick", TEXT("Single Thick Line")},
                           {kBorderOption, "double", TEXT("Double Line")},
                           {kBorderOption, "double-thick", TEXT("Double Thick Line")},
                           {kBookletOption, kNo, TEXT("Off")},
                           {kBookletOption, kYes, TEXT("On")},
                           {kSheetOrderOption, "normal", TEXT("First Page First")},
                           {kSheetOrderOption, kReverse, TEXT("Last Page First")},
                           {kCollateOption, "uncollated", TEXT("Off")},
                           {kCollateOption, kCollated, TEXT("On")},
                           {kSidesOption, kOneSided, TEXT("Off")},
                           {kSidesOption, "two-sided-long-edge", TEXT("Long Edge")},
                           {kSidesOption, kTwoSidedShortEdge, TEXT("Short Edge")},
                           {kTogetherOption, "", TEXT("Off")},
                           {kTogetherOption, kTogether, TEXT("On")}};

#undef TEXT

}  // namespace

QString valueText(const std::string& option, const std::string& value) {
  const auto place = std::ranges::find_if(
      kTexts, [&](const Text& text) { return option == text.option && value == text.value; });
  if (place != std::end(kTexts)) return SettingTexts::tr(place->text);
  if (option == kPagesPerSheetOption) return QLocale().toString(integerValue(value));
  return QString::fromStdString(value);
}

QString byHandText(const std::string& sides) {
  const QString text = valueText(kSidesOption, sides);
  return sides == kOneSided ? text
                            : SettingTexts::tr("%1, by hand", "two-sided printing").arg(text);
}

QString scalingText(ScalingField::Way way) {
  switch (way) {
    case ScalingField::Way::automatic:
      return SettingTexts::tr("Automatic");
    case ScalingField::Way::fit:
      return SettingTexts::tr("Fit to Paper");
    case ScalingField::Way::fill:
      return SettingTexts::tr("Fill Paper");
    case ScalingField::Way::actualSize:
      return SettingTexts::tr("Actual Size");
    case ScalingField::Way::percent:
      return SettingTexts::tr("Percent");
    case ScalingField::Way::asGiven:
      return SettingTexts::tr("As Given");
  }
  return {};
}

}  // namespace tavrin
