#include "host/printer/Paper.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "ppd/PPDKeywords.h"

namespace tavrin {

namespace {

constexpr double kTolerance = 3;  // points; sizes are written in millimetres, inches and points
constexpr double kLargestMargins = 0.9;  // of a side of the paper

bool isAsLarge(const ppd_size_t& paper, const QSizeF& page) {
  return std::abs(paper.width - page.width()) <= kTolerance &&
         std::abs(paper.length - page.height()) <= kTolerance;
}

bool isLength(double length) { return std::isfinite(length) && length > 0; }

// Two opposite margins, as far as they make sense: a printer can print on most of any paper.
std::pair<double, double> soundMargins(double one, double other, double side) {
  if (!std::isfinite(one) || !std::isfinite(other)) return {0, 0};
  one = std::max(one, 0.0);
  other = std::max(other, 0.0);
  return one + other <= side * kLargestMargins ? std::pair(one, other) : std::pair(0.0, 0.0);
}

}  // namespace

OptString paperOfSize(ppd_file_t& ppd, const QSizeF& page) {
  OptString found;
  for (const ppd_size_t& paper : std::span(ppd.sizes, static_cast<std::size_t>(ppd.num_sizes))) {
    if (!isAsLarge(paper, page) && !isAsLarge(paper, page.transposed())) continue;
    if (ppdIsMarked(&ppd, kPageSizeKey, paper.name)) return paper.name;
    if (!found) found = paper.name;
  }
  return found;
}

Paper markedPaper(ppd_file_t& ppd) {
  const ppd_size_t* size = ppdPageSize(&ppd, nullptr);
  if (!size || !isLength(size->width) || !isLength(size->length)) return {};
  const QSizeF whole(size->width, size->length);
  const auto [left, right] = soundMargins(size->left, size->width - size->right, whole.width());
  const auto [bottom, top] = soundMargins(size->bottom, size->length - size->top, whole.height());
  return {whole, QMarginsF(left, top, right, bottom), ppd.landscape < 0};
}

}  // namespace tavrin
