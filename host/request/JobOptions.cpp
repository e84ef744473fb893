#include "host/request/JobOptions.h"

#include <algorithm>
#include <cmath>

#include "host/printer/CustomPaper.h"
#include "host/printer/JobSettings.h"
#include "host/printer/MarkedOptions.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

// A general option of the print system says the same as a mark of the PPD and could contradict it.
void removeWhatMarksSay(OptionList& options, const OptionList& marked) {
  if (optionValue(marked, kPageSizeKey)) removeOption(options, kPaperOption);
  for (const char* keyword : kTwoSidedKeywords)
    if (optionValue(marked, keyword)) removeOption(options, kSidesOption);
}

// What was asked for in an option of the PPD before the person took every mark of it away.
void removeUnmarked(OptionList& options, ppd_file_t& ppd, const OptionList& marked) {
  std::erase_if(options, [&](const auto& option) {
    const auto& [name, value] = option;
    return !isJobSetting(name) && ppdFindOption(&ppd, name.c_str()) && !optionValue(marked, name) &&
           !isCustomChoice(value);
  });
}

// The paper as the person wrote it, where that is the one that is marked.
bool saysTheSame(const OptString& given, const std::string& marked) {
  const auto givenSize = customPaperSize(given.value_or(""));
  const auto markedSize = customPaperSize(marked);
  if (!givenSize || !markedSize) return false;
  const auto isNear = [](double one, double other) { return std::abs(one - other) < 0.1; };
  return isNear(givenSize->width, markedSize->width) &&
         isNear(givenSize->height, markedSize->height);
}

}  // namespace

OptionList withMarks(OptionList options, ppd_file_t& ppd) {
  const OptionList marked = markedOptions(ppd);
  removeWhatMarksSay(options, marked);
  removeUnmarked(options, ppd, marked);
  for (const auto& [name, value] : marked)
    if (!saysTheSame(optionValue(options, name), value)) setOption(options, name, value);
  return options;
}

OptionList jobOptions(const JobRequest& request, ppd_file_t* ppd) {
  OptionList options = ppd ? withMarks(request.options, *ppd) : request.options;
  if (request.copies > 1 || optionValue(options, kCopiesOption))
    setOption(options, kCopiesOption, std::to_string(request.copies));
  if (!request.pageRanges.empty()) setOption(options, kPageRangesOption, request.pageRanges);
  return options;
}

}  // namespace tavrin
