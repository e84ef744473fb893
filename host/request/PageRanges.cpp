#include "host/request/PageRanges.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <vector>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include "host/support/TextLists.h"
#include "platform/text/IgnoringCase.h"

namespace tavrin {

namespace {

constexpr int kLastPage = std::numeric_limits<int>::max();
const QRegularExpression kTwoNumbers("\\d \\d");

struct Range {
  int first;
  int last;
};

QString say(const char* sentence) { return QCoreApplication::translate("PageRanges", sentence); }

Failure failure(const QString& sentence) { return {sentence.toStdString()}; }

// A page number; the fallback where nothing is written.
std::optional<int> page(const QString& text, int fallback) {
  if (text.isEmpty()) return fallback;
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  const bool digitsOnly = std::ranges::all_of(text, [](QChar letter) { return letter.isDigit(); });
  if (!isNumber || !digitsOnly || number < 1) return std::nullopt;
  return number;
}

Result<Range> range(const QString& text) {
  const QStringList ends = text.split('-');
  const auto first = page(ends.front(), 1);
  const auto last = page(ends.back(), kLastPage);
  const bool namesNone = ends.join(QString()).isEmpty();
  if (ends.size() > 2 || namesNone || !first || !last)
    return failure(
        say("“%1” is not a page or a range of pages. Write them like this: 1-3,5.").arg(text));
  if (*last < *first)
    return failure(
        say("The range “%1” ends before it begins. Write the lower page first.").arg(text));
  return Range{*first, *last};
}

std::vector<Range> merged(std::vector<Range> ranges) {
  std::ranges::sort(ranges, {}, &Range::first);
  std::vector<Range> result;
  for (const Range& next : ranges)
    if (result.empty() || next.first > result.back().last)
      result.push_back(next);
    else
      result.back().last = std::max(result.back().last, next.last);
  return result;
}

std::string written(const Range& range) {
  const std::string first = std::to_string(range.first);
  if (range.first == range.last) return first;
  return first + "-" + (range.last == kLastPage ? "" : std::to_string(range.last));
}

// How many of the numbers up to this one are in the set.
int countUpTo(int number, const std::string& pageSet) {
  if (equalIgnoringCase(pageSet, "odd")) return (number + 1) / 2;
  if (equalIgnoringCase(pageSet, "even")) return number / 2;
  return number;
}

}  // namespace

Result<std::string> checkedPageRanges(const QString& text) {
  QString bare = text.simplified();
  if (bare.contains(kTwoNumbers))
    return failure(
        say("“%1” has no comma between two pages. Write them like this: 1-3,5.").arg(bare));
  // An en dash comes from pasted text, a semicolon from lists as spreadsheets have them.
  bare.remove(' ').replace(QChar(0x2013), '-').replace(';', ',');
  if (bare.isEmpty()) return failure(say("Write which pages to print, for example 1-3,5."));
  std::vector<Range> ranges;
  for (const QString& part : bare.split(',')) {
    const Result<Range> next = range(part);
    if (!next) return Failure{next.reason()};
    ranges.push_back(*next);
  }
  std::string result;
  for (const Range& next : merged(ranges)) result += (result.empty() ? "" : ",") + written(next);
  return result;
}

int pagesInRanges(const std::string& ranges, const std::string& pageSet, int documentPages) {
  int count = 0;
  for (const std::string& part : partsOf(ranges.empty() ? "1-" : ranges)) {
    const Result<Range> next = range(QString::fromStdString(part));
    if (!next || next->first > documentPages) continue;
    count += countUpTo(std::min(next->last, documentPages), pageSet) -
             countUpTo(next->first - 1, pageSet);
  }
  return count;
}

}  // namespace tavrin
