#include "host/prepare/Imposition.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "host/request/JobOptions.h"
#include "platform/text/IgnoringCase.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {

namespace {

constexpr std::array kImposerOptions{
    kPageRangesOption,   kPageSetOption, kOrientationOption, "landscape", kPagesPerSheetOption,
    kOrderOnSheetOption, kBorderOption,  kBookletOption,     kFitOption,  "scaling",
    "natural-scaling",   "ppi",          "fit-to-page",      "fitplot",   "fill",
    kPositionOption};

// The pictures that the filters read.
constexpr std::array kPictures{"image/jpeg",
                               "image/png",
                               "image/gif",
                               "image/tiff",
                               "image/x-portable-anymap",
                               "image/x-portable-bitmap",
                               "image/x-portable-graymap",
                               "image/x-portable-pixmap"};

// A queue's defaults must not lay the sheets out again.
constexpr std::array kNothingToDo{
    std::pair{kPageRangesOption, "1-"},   std::pair{kPageSetOption, "all"},
    std::pair{kPagesPerSheetOption, "1"}, std::pair{kBorderOption, "none"},
    std::pair{kBookletOption, "false"},   std::pair{kOrientationOption, "3"},
    std::pair{kFitOption, "none"},        std::pair{kPositionOption, "center"}};

constexpr char kTextMargin[] = "36";  // points

bool isOneOf(const std::string& value, std::initializer_list<const char*> others) {
  return std::ranges::any_of(others, [&](auto other) { return equalIgnoringCase(value, other); });
}

// Set, and to something else than these.
bool isOther(const OptionList& options, const char* name,
             std::initializer_list<const char*> usual) {
  const OptString value = optionValue(options, name);
  return value && !value->empty() && !isOneOf(*value, usual);
}

bool isBooklet(const OptionList& options) {
  return isOther(options, kBookletOption, {"false", "no", "off"});
}

bool hasSeveralPagesOnASheet(const OptionList& options) {
  return isOther(options, kPagesPerSheetOption, {"1"}) || isBooklet(options);
}

bool hasPageRange(const OptionList& options) { return isOther(options, kPageRangesOption, {}); }

bool hasPageSet(const OptionList& options) { return isOther(options, kPageSetOption, {"all"}); }

bool choosesPages(const OptionList& options) {
  return hasPageRange(options) || hasPageSet(options);
}

bool hasBorder(const OptionList& options) { return isOther(options, kBorderOption, {"none"}); }

// The filters cut paper of the person's own size down to a picture.
bool isOnOwnPaper(const OptionList& options) {
  for (const char* name : {kPageSizeKey, kPaperOption})
    if (optionValue(options, name).value_or("").starts_with("Custom.")) return true;
  return false;
}

bool hasOrientation(const OptionList& options) {
  return optionValue(options, kOrientationOption) || isOther(options, "landscape", {"false"});
}

bool isPortraitAnyway(const DocumentFacts& document, const OptionList& options) {
  return document.isPortrait() && !isOther(options, kOrientationOption, {"3"}) &&
         !isOther(options, "landscape", {"false"});
}

bool isPositioned(const OptionList& options) {
  return isOther(options, kPositionOption, {"center"});
}

bool isScaled(const OptionList& options) {
  return isOther(options, "scaling", {}) || isOther(options, "natural-scaling", {});
}

// The filters put a page somewhere as long as they do not scale it.
bool isPositionedAndFitted(const OptionList& options) {
  return isPositioned(options) && isOther(options, kFitOption, {"none", "auto"});
}

// The filters count sheets, and lose the order of pages that are wider than high.
bool mustPDFBeImposed(const DocumentFacts& document, const OptionList& options) {
  if (document.isStoredOtherwise) return true;
  if (isScaled(options) || isPositionedAndFitted(options)) return true;
  // The filters pick every second of the pages that a range has left.
  if (hasPageRange(options) && hasPageSet(options)) return true;
  if (hasOrientation(options) && !isPortraitAnyway(document, options)) return true;
  return hasSeveralPagesOnASheet(options) &&
         (choosesPages(options) || isPositioned(options) || !document.isPortrait());
}

// A picture that is larger than the paper would come on several sheets.
bool isEnlarged(const OptionList& options) {
  const int percent = std::atoi(optionValue(options, "scaling").value_or("").c_str());
  return percent > 100 || isOther(options, "natural-scaling", {}) || isOther(options, "ppi", {});
}

// The filters put a picture of its actual size into the middle.
bool isPositionedAsItIs(const OptionList& options) {
  return isPositioned(options) && isOneOf(optionValue(options, kFitOption).value_or(""), {"none"});
}

// The imposer says what is wrong with such a picture; the filters print what there is of it, in
// silence. One that no command can read goes as it is.
bool isDamaged(const DocumentFacts& picture) {
  return picture.pages == 0 && picture.problem.empty();
}

// The filters take pictures as they are, one on a sheet.
bool mustPictureBeImposed(const DocumentFacts& document, const OptionList& options) {
  return document.isStoredOtherwise || document.pages > 1 || isDamaged(document) ||
         std::ranges::find(kPictures, document.format) == kPictures.end() ||
         hasOrientation(options) || hasSeveralPagesOnASheet(options) || isEnlarged(options) ||
         isPositionedAsItIs(options) || hasBorder(options) || isOnOwnPaper(options) ||
         (choosesPages(options) && document.pages != 1);
}

// Nobody has counted the pages of a text.
bool mustTextBeImposed(const OptionList& options) {
  return choosesPages(options) || isScaled(options) || isPositioned(options) ||
         (hasSeveralPagesOnASheet(options) && hasOrientation(options));
}

}  // namespace

bool mustBeImposed(const DocumentFacts& document, const OptionList& options) {
  if (optionValue(options, kRawOption)) return false;
  if (isPDF(document.format)) return mustPDFBeImposed(document, options);
  if (isPicture(document.format)) return mustPictureBeImposed(document, options);
  return isText(document.format) && mustTextBeImposed(options);
}

bool arePictures(const std::vector<DocumentFacts>& documents) {
  return std::ranges::all_of(documents, [](const auto& one) { return isPicture(one.format); });
}

bool goTogether(const std::vector<DocumentFacts>& documents, const OptionList& options) {
  return documents.size() > 1 && arePictures(documents) && !optionValue(options, kRawOption) &&
         optionValue(options, kTogetherOption) == std::string(kTogether);
}

bool isForImposer(const std::string& name) {
  return std::ranges::any_of(kImposerOptions,
                             [&](auto option) { return equalIgnoringCase(name, option); });
}

OptionList optionsOnceImposed(OptionList options) {
  std::erase_if(options, [](const auto& option) { return isForImposer(option.first); });
  for (const char* done : {kFormatOption, kTogetherOption}) removeOption(options, done);
  for (const auto& [name, value] : kNothingToDo) setOption(options, name, value);
  return options;
}

OptionList optionsOfText(OptionList options) {
  std::erase_if(options, [](const auto& option) {
    const std::string& name = option.first;
    return isForImposer(name) && !equalIgnoringCase(name, kOrientationOption) &&
           !equalIgnoringCase(name, "landscape");
  });
  return options;
}

OptionList withTextMargins(OptionList options, const Paper& paper) {
  if (!paper.margins.isNull()) return options;
  for (const char* side : {"page-left", "page-right", "page-top", "page-bottom"})
    if (!optionValue(options, side)) setOption(options, side, kTextMargin);
  return options;
}

}  // namespace tavrin
