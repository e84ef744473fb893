#include "host/request/OptionAliases.h"

#include <algorithm>
#include <array>

#include "host/request/JobSetting.h"
#include "platform/text/IgnoringCase.h"

namespace tavrin {
namespace {

// A switch that stands for a value of another option.
struct Alias {
  const char* name;
  const char* option;
  const char* valueOn;
  const char* valueOff;  // null where "no" says nothing
};

constexpr std::array kAliases{Alias{"landscape", kOrientationOption, "4", nullptr},
                              Alias{"fill", kFitOption, "fill", nullptr},
                              Alias{"fit-to-page", kFitOption, "fit", nullptr},
                              Alias{"fitplot", kFitOption, "fit", nullptr},
                              Alias{"Collate", kCollateOption, kCollated, "uncollated"}};

// Both are ways to order copies that say the same.
constexpr std::array kCollatings{std::pair{"separate-documents-collated-copies", kCollated},
                                 std::pair{"separate-documents-uncollated-copies", "uncollated"}};

void setIfMissing(OptionList& options, const char* name, const char* value) {
  if (value && !optionValue(options, name)) setOption(options, name, value);
}

void replaceAlias(OptionList& options, const Alias& alias) {
  const OptString value = optionValue(options, alias.name);
  if (!value) return;
  removeOption(options, alias.name);
  setIfMissing(options, alias.option, saysYes(value) ? alias.valueOn : alias.valueOff);
}

// The print system's filters take this option before the one by the first name.
void replaceCollating(OptionList& options) {
  const std::string value = optionValue(options, kTogetherOption).value_or("");
  for (const auto& [handling, collating] : kCollatings)
    if (equalIgnoringCase(value, handling)) {
      removeOption(options, kTogetherOption);
      setOption(options, kCollateOption, collating);
    }
}

}  // namespace

bool saysYes(const OptString& value) {
  return value && std::ranges::any_of(std::array{"true", "yes", "on"}, [&](const char* yes) {
           return equalIgnoringCase(*value, yes);
         });
}

OptionList inFirstNames(const OptionList& options) {
  OptionList result = options;
  for (const Alias& alias : kAliases) replaceAlias(result, alias);
  replaceCollating(result);
  return result;
}

const std::vector<std::string>& otherNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> all;
    all.reserve(kAliases.size());
    for (const Alias& alias : kAliases) all.emplace_back(alias.name);
    return all;
  }();
  return names;
}

}  // namespace tavrin
