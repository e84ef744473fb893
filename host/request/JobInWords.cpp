#include "host/request/JobInWords.h"

#include <algorithm>

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include "host/request/JobOptions.h"
#include "host/request/OptionAliases.h"
#include "host/request/SettingWords.h"
#include "host/request/SheetCount.h"
#include "host/support/TextLists.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

struct JobInWords {
  Q_DECLARE_TR_FUNCTIONS(JobInWords)
};

QString number(int value) { return QLocale().toString(value); }

// The phrase for a value of the option; empty where it needs none.
QString phrase(const OptionList& options, const char* option) {
  const std::string asked = optionValue(options, option).value_or("");
  const JobSetting* setting = findJobSetting(option);
  const std::string value = (setting ? setting->meant(asked) : std::nullopt).value_or(asked);
  return valuePhrase(option, value);
}

// "2 to 4", "7"
QString rangeInWords(const std::string& range) {
  const std::vector<std::string> ends = partsOf(range, '-');
  const QString first = number(std::max(integerValue(ends.front()), 1));
  if (ends.size() == 1) return first;
  if (ends.back().empty()) return JobInWords::tr("%1 to the end", "pages").arg(first);
  return JobInWords::tr("%1 to %2", "pages").arg(first, number(integerValue(ends.back())));
}

QString rangesInWords(const std::string& ranges) {
  QStringList parts;
  for (const std::string& range : partsOf(ranges)) parts << rangeInWords(range);
  const bool isOne = parts.size() == 1 && ranges.find('-') == std::string::npos;
  if (isOne) return JobInWords::tr("page %1").arg(parts.front());
  const QString last = parts.takeLast();
  if (parts.isEmpty()) return JobInWords::tr("pages %1").arg(last);
  const QString others = parts.join(JobInWords::tr(", ", "between ranges of pages"));
  return JobInWords::tr("pages %1 and %2").arg(others, last);
}

QString allInWords(const JobScope& scope) {
  if (scope.pages == 1) return JobInWords::tr("one page");
  return scope.pages == 0 ? JobInWords::tr("all pages")
                          : JobInWords::tr("all %1 pages").arg(number(scope.pages));
}

QString pagesInWords(const OptionList& options, const JobScope& scope) {
  const std::string ranges = optionValue(options, kPageRangesOption).value_or("");
  const QString set = phrase(options, kPageSetOption);
  if (set.isEmpty()) return ranges.empty() ? allInWords(scope) : rangesInWords(ranges);
  if (ranges.empty()) return set;
  return JobInWords::tr("%1 among %2", "the odd pages, pages").arg(set, rangesInWords(ranges));
}

bool choosesPages(const OptionList& options) {
  return !optionValue(options, kPageRangesOption).value_or("").empty() ||
         !phrase(options, kPageSetOption).isEmpty();
}

// Each picture is a document of one page.
bool areAllPictures(const OptionList& options, const JobScope& scope) {
  return scope.contents == Contents::pictures && scope.pages == scope.documents &&
         !choosesPages(options);
}

QString documentsInWords(const OptionList& options, const JobScope& scope) {
  const QString count = number(scope.documents);
  if (areAllPictures(options, scope))
    return scope.pages == 1 ? JobInWords::tr("one picture")
                            : JobInWords::tr("%1 pictures").arg(count);
  const QString pages = pagesInWords(options, scope);
  if (scope.documents == 1) return pages;
  return choosesPages(options) ? JobInWords::tr("%1 of each of %2 documents").arg(pages, count)
                               : JobInWords::tr("%1 of %2 documents").arg(pages, count);
}

QStringList copiesInWords(const OptionList& options, const JobScope& scope) {
  const QString documents = documentsInWords(options, scope);
  const int copies = integerValue(optionValue(options, kCopiesOption));
  if (copies <= 1) return {documents};
  QStringList words{JobInWords::tr("%1 copies of %2").arg(number(copies), documents)};
  if (optionValue(options, kCollateOption)) words << phrase(options, kCollateOption);
  return words;
}

QStringList sheetInWords(const OptionList& options) {
  const QString booklet = phrase(options, kBookletOption);
  const QString several = booklet.isEmpty() ? phrase(options, kPagesPerSheetOption) : booklet;
  if (several.isEmpty()) return {};
  return {several, phrase(options, kOrderOnSheetOption), phrase(options, kBorderOption)};
}

// A share of the size that pages have by themselves, and pictures by their place.
QString shareInWords(int percent, Contents contents) {
  const QString text = contents == Contents::unknown ? JobInWords::tr("at %1 percent")
                       : contents == Contents::pages
                           ? JobInWords::tr("at %1 percent of actual size")
                           : JobInWords::tr("at %1 percent of what fits");
  return text.arg(number(percent));
}

QString sizeInWords(const OptionList& options, Contents contents) {
  if (const OptString density = optionValue(options, "ppi"))
    return JobInWords::tr("at %1 pixels per inch").arg(number(integerValue(density)));
  if (const OptString share = optionValue(options, "natural-scaling"))
    return shareInWords(integerValue(share), Contents::pages);
  if (const OptString share = optionValue(options, "scaling"))
    return shareInWords(integerValue(share), contents);
  return phrase(options, kFitOption);
}

bool isMirrored(const OptionList& options) {
  return saysYes(optionValue(options, kMirrorKey)) || saysYes(optionValue(options, "MirrorPrint"));
}

// As many sheets as pages go without saying.
QString paperInWords(const OptionList& options, const JobScope& scope) {
  const int copies = std::max(integerValue(optionValue(options, kCopiesOption)), 1);
  const int sheets = scope.sheets * copies;
  if (sheets == 0 || sheets == scope.pages)
    return scope.paper.isEmpty() ? QString() : JobInWords::tr("on %1", "paper").arg(scope.paper);
  const QString count = sheets == 1 ? JobInWords::tr("on one sheet")
                                    : JobInWords::tr("on %1 sheets").arg(number(sheets));
  return scope.paper.isEmpty()
             ? count
             : JobInWords::tr("%1 of %2", "sheets of paper").arg(count, scope.paper);
}

}  // namespace

QString jobInWords(const OptionList& allOptions, const JobScope& scope) {
  const OptionList options = inFirstNames(allOptions);
  QStringList parts = copiesInWords(options, scope);
  parts << phrase(options, kSheetOrderOption) << phrase(options, kTogetherOption)
        << sheetInWords(options) << phrase(options, kOrientationOption)
        << sizeInWords(options, scope.contents) << phrase(options, kPositionOption);
  if (isMirrored(options)) parts << JobInWords::tr("mirrored");
  parts << phrase({{kSidesOption, sidesOf(options)}}, kSidesOption) << paperInWords(options, scope);
  parts.removeAll(QString());
  return parts.join(JobInWords::tr(", ", "between the parts of what a job is like"));
}

}  // namespace tavrin
