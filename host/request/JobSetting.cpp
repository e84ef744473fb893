#include "host/request/JobSetting.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/text/IgnoringCase.h"

namespace tavrin {

namespace {

// Other words for the values of a switch.
constexpr std::array kSwitchWords{std::pair{"yes", kYes}, std::pair{"on", kYes},
                                  std::pair{"no", kNo}, std::pair{"off", kNo}};

std::string_view inSwitchWords(std::string_view value) {
  for (const auto& [word, meaning] : kSwitchWords)
    if (equalIgnoringCase(word, value)) return meaning;
  return value;
}

}  // namespace

OptString JobSetting::meant(std::string_view written) const {
  const std::string_view value = usual() == kNo ? inSwitchWords(written) : written;
  const auto place = std::ranges::find_if(
      values, [&](const std::string& known) { return equalIgnoringCase(known, value); });
  return place != values.end() ? OptString(*place) : std::nullopt;
}

const std::vector<JobSetting>& jobSettings() {
  static const std::vector<JobSetting> settings{
      {kPageSetOption, {"all", "odd", "even"}},
      {kOrientationOption, {"", "3", "4", "5", "6"}},
      {kPositionOption,
       {"center", "top-left", "top", "top-right", "left", "right", "bottom-left", "bottom",
        "bottom-right"}},
      {kPagesPerSheetOption, {"1", "2", "4", "6", "9", "16"}},
      {kOrderOnSheetOption, {"lrtb", "lrbt", "rltb", "rlbt", "tblr", "tbrl", "btlr", "btrl"}},
      {kBorderOption, {"none", "single", "single-thick", "double", "double-thick"}},
      {kBookletOption, {kNo, kYes}},
      {kSheetOrderOption, {"normal", kReverse}},
      {kCollateOption, {"uncollated", kCollated}},
      {kSidesOption, {kOneSided, "two-sided-long-edge", kTwoSidedShortEdge}},
      {kTogetherOption, {"", kTogether}}};
  return settings;
}

const JobSetting* findJobSetting(std::string_view option) {
  const auto place = std::ranges::find_if(jobSettings(), [&](const JobSetting& setting) {
    return equalIgnoringCase(setting.option, option);
  });
  return place != jobSettings().end() ? &*place : nullptr;
}

}  // namespace tavrin
