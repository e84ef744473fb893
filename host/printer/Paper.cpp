#include "host/printer/Paper.h"

#include <cmath>
#include <span>

#include "ppd/PPDKeywords.h"

namespace tavrin {

namespace {

constexpr double kTolerance = 3;  // points; sizes are written in millimetres, inches and points

bool isAsLarge(const ppd_size_t& paper, const QSizeF& page) {
  return std::abs(paper.width - page.width()) <= kTolerance &&
         std::abs(paper.length - page.height()) <= kTolerance;
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
  if (!size || size->width <= 0 || size->length <= 0) return {};
  return {QSizeF(size->width, size->length),
          QMarginsF(size->left, size->length - size->top, size->width - size->right, size->bottom)};
}

}  // namespace tavrin
