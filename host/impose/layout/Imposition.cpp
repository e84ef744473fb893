#include "host/impose/layout/Imposition.h"

#include <utility>

#include "host/impose/layout/PickedPages.h"
#include "host/impose/layout/SheetOrder.h"
#include "host/impose/layout/SheetTemplate.h"

namespace tavrin {

namespace {

constexpr double kBetter = 1 + 1e-6;  // what rounding makes larger is no reason to turn a page

// The unit square lying on its left side.
constexpr Matrix kOnItsSide{0, 1, -1, 0, 1, 0};

PageLook onItsSide(const PageLook& page) {
  return {onItsSide(page.size), page.isPicture, onItsSide(page.pixels)};
}

double largest(Size page, const SheetTemplate& sheet) {
  return fitScale(page, sheet.cells.front().area.size());
}

class Imposer {
 public:
  Imposer(const std::vector<PageLook>& thePages, const Paper& thePaper,
          const LayoutOptions& theOptions)
      : pages(thePages), paper(thePaper), options(theOptions) {}

  // The pages must be there.
  std::vector<Sheet> sheets(const std::vector<CellPages>& order, int firstPage) const {
    if (options.booklet) return allOn(bookletTemplate(paper, options), order);
    if (options.numberUp > 1) return allOn(severalFor(pages[firstPage]), order);
    return single(order);
  }

 private:
  std::vector<Sheet> allOn(const SheetTemplate& places, const std::vector<CellPages>& order) const {
    std::vector<Sheet> result;
    result.reserve(order.size());
    for (const CellPages& sheet : order) result.push_back(filled(places, sheet));
    return result;
  }

  // One for all sheets, so that they are read in the same position.
  SheetTemplate severalFor(const PageLook& first) const {
    if (options.orientation) return gridTemplate(paper, *options.orientation, options, first);
    SheetTemplate upright = gridTemplate(paper, Turn::upright, options, first);
    SheetTemplate turned = gridTemplate(paper, Turn::left, options, first);
    return largest(first.size, turned) > largest(first.size, upright) * kBetter ? turned : upright;
  }

  std::vector<Sheet> single(const std::vector<CellPages>& order) const {
    const Turn turn = options.orientation.value_or(Turn::upright);
    const SheetTemplate upright = singleTemplate(paper, turn, options.border);
    const SheetTemplate turned = singleTemplate(paper, Turn::left, options.border);
    std::vector<Sheet> result;
    for (const CellPages& sheet : order) {
      const bool turns = !sheet.empty() && !options.orientation &&
                         isBetterTurned(pages[sheet.front()], upright, turned);
      result.push_back(filled(turns ? turned : upright, sheet));
    }
    return result;
  }

  // Rather turned than with an edge where the printer cannot print.
  bool isBetterTurned(const PageLook& page, const SheetTemplate& upright,
                      const SheetTemplate& turned) const {
    const Cell& one = upright.cells.front();
    const Cell& other = turned.cells.front();
    if (fitsAsItIs(page, one.area.size(), options)) return false;
    if (fitsAsItIs(page, other.area.size(), options)) return true;
    if (fitsAsItIs(page, one.limit.size(), options)) return false;
    if (fitsAsItIs(page, other.limit.size(), options)) return true;
    return largest(page.size, turned) > largest(page.size, upright) * kBetter;
  }

  Sheet filled(const SheetTemplate& places, const CellPages& sheet) const {
    Sheet result;
    result.turn = places.canvas.turn;
    for (std::size_t cell = 0; cell < sheet.size(); ++cell)
      if (sheet[cell] != kNoPage) add(sheet[cell], places.cells[cell], places.canvas, result);
    return result;
  }

  // Pictures are looked at one by one, so that each may lie as it gets largest, however the sheet
  // does; what is to be read stays as its neighbours are.
  bool liesInItsCell(const PageLook& page, const Cell& cell) const {
    const bool mayTurn = page.isPicture && options.numberUp > 1 && !options.booklet;
    if (!mayTurn || fitsAsItIs(page, cell.area.size(), options)) return false;
    const Size area = cell.area.size();
    return fitScale(onItsSide(page.size), area) > fitScale(page.size, area) * kBetter;
  }

  void add(int page, const Cell& cell, const Canvas& canvas, Sheet& sheet) const {
    const bool lies = liesInItsCell(pages[page], cell);
    const Placement placed = placedIn(cell, lies ? onItsSide(pages[page]) : pages[page], options);
    const Matrix toCanvas = then(lies ? kOnItsSide : Matrix{}, ontoRect(placed.rect));
    PlacedPage onPaper{page, then(toCanvas, canvas.toPaper), {}};
    if (placed.clip) onPaper.clip = mapped(canvas.toPaper, *placed.clip);
    sheet.pages.push_back(onPaper);
    const Rect shown = placed.clip ? common(placed.rect, *placed.clip) : placed.rect;
    for (const Frame& frame : framesRound(mapped(canvas.toPaper, shown), options.border))
      sheet.frames.push_back(frame);
  }

  const std::vector<PageLook>& pages;
  const Paper& paper;
  const LayoutOptions& options;
};

}  // namespace

std::vector<Sheet> imposed(const std::vector<PageLook>& pages, const Paper& paper,
                           const LayoutOptions& options, bool wholeSheets) {
  const std::vector<int> picked = pickedPages(static_cast<int>(pages.size()), options);
  if (picked.empty()) return {};
  std::vector<CellPages> order = options.booklet ? asBooklet(picked, options.order.rightToLeft)
                                                 : inTurn(picked, options.numberUp);
  if (wholeSheets) order = evenInNumber(std::move(order));
  return Imposer(pages, paper, options).sheets(order, picked.front());
}

}  // namespace tavrin
