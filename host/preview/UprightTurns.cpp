#include "host/preview/UprightTurns.h"

#include <algorithm>

#include "host/preview/SheetLook.h"

namespace tavrin {

namespace {

constexpr int kQuarter = 90;
constexpr int kFull = 360;

int turnOfPage(const Paper& paper) { return paper.turnsRight ? kFull - kQuarter : kQuarter; }

// What the filters do with a page by themselves.
int turnByFilters(int page, const DocumentFacts& document, const Paper& paper) {
  const bool isWide = std::ranges::binary_search(document.widePages, page);
  const bool isOnWidePaper = paper.size.width() > paper.size.height();
  if (document.pages == 0 || isWide == isOnWidePaper) return 0;
  return isPicture(document.format) ? kQuarter : turnOfPage(paper);
}

int turnOf(int page, const PreparedDocument& document, const Paper& paper) {
  if (document.turns.empty()) return turnByFilters(page, document.facts, paper);
  const auto place = static_cast<std::size_t>(page) - 1;
  return place < document.turns.size() ? (document.turns[place] - '0') * kQuarter : 0;
}

}  // namespace

void setUpright(std::vector<Sheet>& sheets, const PreparedDocument& document, const Paper& paper) {
  const int pages = document.turns.empty() ? document.facts.pages : int(document.turns.size());
  const auto onSheets = pagesOnSheets(pages, document.options);
  for (std::size_t sheet = 0; sheet < sheets.size(); ++sheet) {
    // Where the filters order the pages, they are all alike.
    const auto place =
        static_cast<std::size_t>(placeInReading(int(sheet), int(sheets.size()), document.options));
    const int first = place < onSheets.size() ? onSheets[place].front() : 1;
    const int turn = turnOf(first, document, paper);
    // The mirror image of what lies to the left lies to the right.
    sheets[sheet].upright = isMirrored(document.options) ? (kFull - turn) % kFull : turn;
  }
}

}  // namespace tavrin
