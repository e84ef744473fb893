#include "host/request/JobInWords.h"

#include <algorithm>

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include "host/printer/MarkedOptions.h"
#include "host/request/JobOptions.h"
#include "host/request/OptionAliases.h"
#include "host/support/TextLists.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

struct JobInWords {
  Q_DECLARE_TR_FUNCTIONS(JobInWords)
};

struct Phrase {
  const char* option;
  const char* value;
  const char* text;
};

#define WORDS(text) QT_TRANSLATE_NOOP("JobInWords", text)

// Values that need no word are not here.
constexpr Phrase kPhrases[] = {
    {kPageSetOption, "odd", WORDS("odd pages only")},
    {kPageSetOption, "even", WORDS("even pages only")},
    {kSheetOrderOption, kReverse, WORDS("last page first")},
    {kCollateOption, "uncollated", WORDS("not collated")},
    {kCollateOption, kCollated, WORDS("collated")},
    {kBookletOption, kYes, WORDS("as a booklet")},
    {kPagesPerSheetOption, "2", WORDS("two on a sheet")},
    {kPagesPerSheetOption, "4", WORDS("four on a sheet")},
    {kPagesPerSheetOption, "6", WORDS("six on a sheet")},
    {kPagesPerSheetOption, "9", WORDS("nine on a sheet")},
    {kPagesPerSheetOption, "16", WORDS("sixteen on a sheet")},
    {kOrderOnSheetOption, "lrbt", WORDS("in rows from left to right and from the bottom up")},
    {kOrderOnSheetOption, "rltb", WORDS("in rows from right to left")},
    {kOrderOnSheetOption, "rlbt", WORDS("in rows from right to left and from the bottom up")},
    {kOrderOnSheetOption, "tblr", WORDS("in columns")},
    {kOrderOnSheetOption, "tbrl", WORDS("in columns from right to left")},
    {kOrderOnSheetOption, "btlr", WORDS("in columns from the bottom up")},
    {kOrderOnSheetOption, "btrl", WORDS("in columns from the bottom up and from right to left")},
    {kBorderOption, "single", WORDS("with a border")},
    {kBorderOption, "single-thick", WORDS("with a thick border")},
    {kBorderOption, "double", WORDS("with a double border")},
    {kBorderOption, "double-thick", WORDS("with a thick double border")},
    {kTogetherOption, kTogether, WORDS("pictures together on sheets")},
    {kOrientationOption, "3", WORDS("portrait")},
    {kOrientationOption, "4", WORDS("landscape")},
    {kOrientationOption, "5", WORDS("landscape, turned the other way")},
    {kOrientationOption, "6", WORDS("upside down")},
    {kFitOption, "fit", WORDS("as large as fits")},
    {kFitOption, "fill", WORDS("filling the paper")},
    {kFitOption, "none", WORDS("in actual size")},
    {kPositionOption, "top-left", WORDS("at the top left")},
    {kPositionOption, "top", WORDS("at the top")},
    {kPositionOption, "top-right", WORDS("at the top right")},
    {kPositionOption, "left", WORDS("at the left")},
    {kPositionOption, "right", WORDS("at the right")},
    {kPositionOption, "bottom-left", WORDS("at the bottom left")},
    {kPositionOption, "bottom", WORDS("at the bottom")},
    {kPositionOption, "bottom-right", WORDS("at the bottom right")},
    {kSidesOption, "two-sided-long-edge", WORDS("two-sided (long edge)")},
    {kSidesOption, kTwoSidedShortEdge, WORDS("two-sided (short edge)")}};

#undef WORDS

QString number(int value) { return QLocale().toString(value); }

// The phrase for a value of the option; empty where it needs none.
QString phrase(const OptionList& options, const char* option) {
  const std::string asked = optionValue(options, option).value_or("");
  const JobSetting* setting = findJobSetting(option);
  const std::string value = (setting ? setting->meant(asked) : std::nullopt).value_or(asked);
  const auto place = std::ranges::find_if(kPhrases, [&](const Phrase& known) {
    return std::string_view(option) == known.option && value == known.value;
  });
  return place != std::end(kPhrases) ? JobInWords::tr(place->text) : QString();
}

// "2 to 4", "7"
QString rangeInWords(const std::string& range) {
  const std::vector<std::string> ends = partsOf(range, '-');
  const QString first = number(std::max(integerValue(ends.front()), 1));
  if (ends.size() == 1) return first;
  if (ends.back().empty()) return JobInWords::tr("%1 to the end", "pages").arg(first);
  return JobInWords::tr("%1 to %2", "pages").arg(first, number(integerValue(ends.back())));
}

QString pagesInWords(const std::string& ranges) {
  if (ranges.empty()) return JobInWords::tr("all pages");
  QStringList parts;
  for (const std::string& range : partsOf(ranges)) parts << rangeInWords(range);
  const bool isOne = parts.size() == 1 && ranges.find('-') == std::string::npos;
  if (isOne) return JobInWords::tr("page %1").arg(parts.front());
  const QString last = parts.takeLast();
  if (parts.isEmpty()) return JobInWords::tr("pages %1").arg(last);
  const QString others = parts.join(JobInWords::tr(", ", "between ranges of pages"));
  return JobInWords::tr("pages %1 and %2").arg(others, last);
}

QStringList copiesInWords(const OptionList& options) {
  const int copies = integerValue(optionValue(options, kCopiesOption));
  if (copies <= 1) return {};
  QStringList words{JobInWords::tr("%Ln copies", nullptr, copies)};
  if (optionValue(options, kCollateOption)) words << phrase(options, kCollateOption);
  return words;
}

QStringList sheetInWords(const OptionList& options) {
  const QString booklet = phrase(options, kBookletOption);
  const QString several = booklet.isEmpty() ? phrase(options, kPagesPerSheetOption) : booklet;
  if (several.isEmpty()) return {};
  return {several, phrase(options, kOrderOnSheetOption), phrase(options, kBorderOption)};
}

QString sizeInWords(const OptionList& options) {
  if (const OptString density = optionValue(options, "ppi"))
    return JobInWords::tr("at %1 pixels per inch").arg(number(integerValue(density)));
  if (const OptString share = optionValue(options, "natural-scaling"))
    return JobInWords::tr("at %1 percent of actual size").arg(number(integerValue(share)));
  if (const OptString share = optionValue(options, "scaling"))
    return JobInWords::tr("at %1 percent").arg(number(integerValue(share)));
  return phrase(options, kFitOption);
}

// The printer's own option says more than the print system's.
QString sidesInWords(const OptionList& options) {
  for (const char* keyword : kTwoSidedKeywords) {
    const OptString choice = optionValue(options, keyword);
    if (!choice) continue;
    if (choice->ends_with("NoTumble") || saysYes(choice))
      return phrase({{kSidesOption, "two-sided-long-edge"}}, kSidesOption);
    if (choice->ends_with("Tumble"))
      return phrase({{kSidesOption, kTwoSidedShortEdge}}, kSidesOption);
    return {};
  }
  return phrase(options, kSidesOption);
}

bool isMirrored(const OptionList& options) {
  return saysYes(optionValue(options, kMirrorKey)) || saysYes(optionValue(options, "MirrorPrint"));
}

}  // namespace

QString jobInWords(const OptionList& allOptions) {
  const OptionList options = inFirstNames(allOptions);
  const std::string ranges = optionValue(options, kPageRangesOption).value_or("");
  const QString pageSet = phrase(options, kPageSetOption);
  QStringList parts;
  if (!ranges.empty() || pageSet.isEmpty()) parts << pagesInWords(ranges);
  parts << pageSet;
  parts << copiesInWords(options) << phrase(options, kSheetOrderOption)
        << phrase(options, kTogetherOption) << sheetInWords(options)
        << phrase(options, kOrientationOption) << sizeInWords(options)
        << phrase(options, kPositionOption);
  if (isMirrored(options)) parts << JobInWords::tr("mirrored");
  parts << sidesInWords(options);
  parts.removeAll(QString());
  return parts.join(JobInWords::tr(", ", "between the parts of what a job is like"));
}

}  // namespace tavrin
