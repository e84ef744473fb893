#include "host/impose/layout/PickedPages.h"

#include <algorithm>

namespace tavrin {

namespace {

bool isInRanges(int page, const std::vector<PageRange>& ranges) {
  return ranges.empty() || std::ranges::any_of(ranges, [page](const PageRange& range) {
           return page >= range.first && page <= range.last;
         });
}

bool isInSet(int page, PageSet set) {
  return set == PageSet::all || (page % 2 == 1) == (set == PageSet::odd);
}

}  // namespace

std::vector<int> pickedPages(int pages, const LayoutOptions& options) {
  std::vector<int> picked;
  for (int page = 1; page <= pages; ++page)
    if (isInSet(page, options.set) && isInRanges(page, options.ranges)) picked.push_back(page - 1);
  return picked;
}

}  // namespace tavrin
