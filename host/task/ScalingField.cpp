#include "host/task/ScalingField.h"

#include <algorithm>
#include <array>

#include "host/request/JobSetting.h"
#include "platform/text/IgnoringCase.h"

namespace tavrin {
namespace {

using Way = ScalingField::Way;

constexpr char kPercentOption[] = "scaling";
// They say how large a page is by itself, and so the size on paper.
constexpr std::array kOtherOptions{"natural-scaling", "ppi"};

struct Word {
  const char* word;
  Way way;
};

constexpr std::array kWords{Word{"auto", Way::automatic}, Word{"auto-fit", Way::automatic},
                            Word{"fit", Way::fit}, Word{"fill", Way::fill},
                            Word{"none", Way::actualSize}};

int possiblePercent(int percent) { return std::clamp(percent, 1, kMostPercent); }

}  // namespace

std::string fitWord(Way way) {
  const auto place = std::ranges::find(kWords, way, &Word::way);
  return place != kWords.end() ? place->word : "";
}

void ScalingField::setWay(Way way) {
  if (way == Way::asGiven && !hasGiven()) return;
  chosen = way;
  byHand = true;
}

void ScalingField::setPercent(int percent) {
  percentage = possiblePercent(percent);
  setWay(Way::percent);
}

bool ScalingField::hasGiven() const {
  return std::ranges::any_of(
      kOtherOptions, [&](const char* name) { return optionValue(given, name).has_value(); });
}

bool ScalingField::suggest(const OptionList& options) {
  given = options;
  std::erase_if(given, [](const auto& option) {
    return std::ranges::none_of(
        optionNames(), [&](const auto& name) { return equalIgnoringCase(name, option.first); });
  });
  if (chosen == Way::asGiven && !hasGiven()) byHand = false;
  return byHand || take(given);
}

bool ScalingField::take(const OptionList& options) {
  chosen = Way::automatic;
  if (hasGiven()) {
    chosen = Way::asGiven;
  } else if (const OptString share = optionValue(options, kPercentOption)) {
    const int number = integerValue(share);
    if (number != possiblePercent(number)) return false;
    percentage = number;
    chosen = Way::percent;
  } else if (const OptString word = optionValue(options, kFitOption)) {
    const auto place = std::ranges::find_if(
        kWords, [&](const Word& known) { return equalIgnoringCase(known.word, *word); });
    if (place == kWords.end()) return false;
    chosen = place->way;
  }
  return true;
}

OptionList ScalingField::options() const {
  if (chosen == Way::asGiven) return given;
  if (chosen == Way::percent) return {{kPercentOption, std::to_string(percentage)}};
  if (chosen == Way::automatic && !optionValue(given, kFitOption)) return {};
  return {{kFitOption, fitWord(chosen)}};
}

const std::vector<std::string>& ScalingField::optionNames() {
  static const std::vector<std::string> names{kFitOption, kPercentOption, kOtherOptions[0],
                                              kOtherOptions[1]};
  return names;
}

}  // namespace tavrin
