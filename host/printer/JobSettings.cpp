#include "host/printer/JobSettings.h"

#include <algorithm>
#include <array>

#include "host/printer/PPDSections.h"
#include "platform/text/IgnoringCase.h"

namespace tavrin {
namespace {

constexpr std::array<std::string_view, 10> kBeginnings{
    "attributes-", "document-", "ipp-",     "job-",       "media-",
    "notify-",     "number-up", "printer-", "requested-", "requesting-"};

constexpr std::array<std::string_view, 27> kNames{"auth-info",
                                                  "compression",
                                                  "copies",
                                                  "cover-back",
                                                  "cover-front",
                                                  "finishing-template",
                                                  "finishings",
                                                  "finishings-col",
                                                  "force-front-side",
                                                  "imposition-template",
                                                  "insert-sheet",
                                                  "last-document",
                                                  "media",
                                                  "multiple-document-handling",
                                                  "orientation-requested",
                                                  "output-bin",
                                                  "output-device",
                                                  "overrides",
                                                  "page-delivery",
                                                  "page-ranges",
                                                  "page-set",
                                                  "presentation-direction-number-up",
                                                  "proof-print",
                                                  "raw",
                                                  "separator-sheets",
                                                  "sheet-collate",
                                                  "sides"};

}  // namespace

bool isJobSetting(std::string_view keyword) {
  const auto begins = [&](std::string_view beginning) {
    return equalIgnoringCase(keyword.substr(0, beginning.size()), beginning);
  };
  const auto is = [&](std::string_view name) { return equalIgnoringCase(keyword, name); };
  return std::ranges::any_of(kBeginnings, begins) || std::ranges::any_of(kNames, is);
}

bool isPrintersOwn(ppd_file_t& ppd, const std::string& option) {
  return !isJobSetting(option) && ppdFindOption(&ppd, option.c_str());
}

std::vector<std::string> optionsLeftAlone(const ppd_file_t& ppd) {
  std::vector<std::string> keywords;
  for (const PPDSection& section : sectionsOf(ppd))
    for (const ppd_option_t* option : section.options)
      if (isJobSetting(option->keyword)) keywords.emplace_back(option->keyword);
  return keywords;
}

}  // namespace tavrin
