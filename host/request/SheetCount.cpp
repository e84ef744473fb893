#include "host/request/SheetCount.h"

#include <algorithm>

#include "host/printer/MarkedOptions.h"
#include "host/request/JobOptions.h"
#include "host/request/OptionAliases.h"
#include "host/request/PageRanges.h"

namespace tavrin {
namespace {

constexpr char kTwoSidedLongEdge[] = "two-sided-long-edge";
constexpr int kPagesOnBookletSheet = 4;

int roundedUp(int count, int each) { return (count + each - 1) / each; }

int sheetsFor(int pages, const OptionList& options) {
  const int sidesOfSheet = sidesOf(options) == kOneSided ? 1 : 2;
  if (saysYes(optionValue(options, kBookletOption)))
    return roundedUp(pages, kPagesOnBookletSheet) * 2 / sidesOfSheet;
  const int onSide = std::max(integerValue(optionValue(options, kPagesPerSheetOption)), 1);
  return roundedUp(roundedUp(pages, onSide), sidesOfSheet);
}

}  // namespace

std::string sidesOf(const OptionList& options) {
  for (const char* keyword : kTwoSidedKeywords) {
    const OptString choice = optionValue(options, keyword);
    if (!choice) continue;
    if (choice->ends_with("NoTumble") || saysYes(choice)) return kTwoSidedLongEdge;
    return choice->ends_with("Tumble") ? kTwoSidedShortEdge : kOneSided;
  }
  const std::string asked = optionValue(options, kSidesOption).value_or(kOneSided);
  return findJobSetting(kSidesOption)->meant(asked).value_or(kOneSided);
}

int sheetCount(const std::vector<int>& pagesOfDocuments, const OptionList& allOptions) {
  const OptionList options = inFirstNames(allOptions);
  const std::string ranges = optionValue(options, kPageRangesOption).value_or("");
  const std::string set = optionValue(options, kPageSetOption).value_or("");
  int sheets = 0;
  for (const int pages : pagesOfDocuments) {
    if (pages == 0) return 0;
    sheets += sheetsFor(pagesInRanges(ranges, set, pages), options);
  }
  return sheets;
}

}  // namespace tavrin
