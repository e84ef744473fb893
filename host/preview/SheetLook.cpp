#include "host/preview/SheetLook.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <ranges>
#include <string_view>

#include "host/printer/MarkedOptions.h"
#include "host/request/JobOptions.h"
#include "platform/text/IgnoringCase.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {

namespace {

bool isOneOf(std::string_view value, std::initializer_list<std::string_view> others) {
  return std::ranges::any_of(others, [&](auto other) { return equalIgnoringCase(value, other); });
}

bool has(const OptionList& options, const char* name,
         std::initializer_list<std::string_view> values) {
  const OptString value = optionValue(options, name);
  return value && isOneOf(*value, values);
}

int numberIn(std::string_view text, int otherwise) {
  int number = otherwise;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

// "3", "2-4", "-4" or "7-"
bool isInRange(int page, std::string_view range) {
  const std::size_t dash = range.find('-');
  if (dash == std::string_view::npos) return page == numberIn(range, 0);
  return page >= numberIn(range.substr(0, dash), 1) &&
         page <= numberIn(range.substr(dash + 1), page);
}

bool isInRanges(int page, std::string_view ranges) {
  while (!ranges.empty()) {
    const std::size_t comma = std::min(ranges.find(','), ranges.size());
    if (isInRange(page, ranges.substr(0, comma))) return true;
    ranges.remove_prefix(std::min(comma + 1, ranges.size()));
  }
  return false;
}

bool isLeftOut(int page, const OptionList& options) {
  const OptString ranges = optionValue(options, kPageRangesOption);
  if (ranges && !ranges->empty() && !isInRanges(page, *ranges)) return true;
  return has(options, kPageSetOption, {page % 2 ? "even" : "odd"});
}

bool isOrdinary(const OptionList& options) {
  return !has(options, kBookletOption, {"true", "yes", "on"}) &&
         !optionValue(options, "input-page-ranges");
}

int pagesPerSheet(const OptionList& options) {
  const OptString value = optionValue(options, kPagesPerSheetOption);
  return value ? std::clamp(numberIn(*value, 1), 1, 16) : 1;
}

}  // namespace

// The printer's own option says more than the print system's, which a queue may have by default.
bool printsInGrey(const OptionList& options) {
  if (optionValue(options, kColorModelKey))
    return has(options, kColorModelKey, {"Black", "Gray", "Grey", "Grayscale", "KGray", "Mono"});
  return has(options, "print-color-mode", {"monochrome", "auto-monochrome", "process-monochrome"});
}

bool isMirrored(const OptionList& options) {
  return has(options, kMirrorKey, {"true", "on", "yes"}) ||
         has(options, "MirrorPrint", {"true", "on", "yes"});
}

bool isTwoSided(const OptionList& options) {
  for (const char* keyword : kTwoSidedKeywords)
    if (has(options, keyword, {"DuplexNoTumble", "DuplexTumble"})) return true;
  return has(options, kSidesOption, {"two-sided-long-edge", "two-sided-short-edge"});
}

std::vector<std::vector<int>> pagesOnSheets(int pages, const OptionList& options) {
  if (!isOrdinary(options)) return {};
  const auto each = static_cast<std::size_t>(pagesPerSheet(options));
  std::vector<std::vector<int>> sheets;
  for (int page = 1; page <= pages; ++page) {
    if (isLeftOut(page, options)) continue;
    if (sheets.empty() || sheets.back().size() == each) sheets.emplace_back();
    sheets.back().push_back(page);
  }
  return sheets;
}

int placeInReading(int index, int count, const OptionList& options) {
  return has(options, "outputorder", {"reverse"}) ? count - 1 - index : index;
}

std::vector<int> pagesOnSheet(int sheet, int pages, const OptionList& options) {
  const auto sheets = pagesOnSheets(pages, options);
  const bool isThere = sheet >= 1 && sheet <= static_cast<int>(sheets.size());
  return isThere ? sheets[static_cast<std::size_t>(sheet) - 1] : std::vector<int>();
}

}  // namespace tavrin
