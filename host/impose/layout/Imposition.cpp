#include "host/impose/layout/Imposition.h"

#include <algorithm>

#include "host/impose/layout/Grid.h"
#include "host/impose/layout/PickedPages.h"
#include "host/impose/layout/SheetOrder.h"

namespace tavrin {

namespace {

constexpr double kGap = 6;            // between cells without a border
constexpr double kBetter = 1 + 1e-6;  // what rounding makes larger is no reason to turn a page

// A canvas with its cells.
struct Template {
  Canvas canvas;
  std::vector<Cell> cells;
};

class Imposer {
 public:
  Imposer(const std::vector<PageLook>& thePages, const Paper& thePaper,
          const LayoutOptions& theOptions)
      : pages(thePages), paper(thePaper), options(theOptions) {}

  std::vector<CellPages> order() const {
    const std::vector<int> picked = pickedPages(static_cast<int>(pages.size()), options);
    if (options.booklet) return asBooklet(picked, options.order.rightToLeft);
    return inTurn(picked, options.numberUp);
  }

  std::vector<Sheet> sheets(const std::vector<CellPages>& order) const {
    if (!options.booklet && options.numberUp == 1) return single(order);
    const PageLook& first = pages[firstPage(order)];
    const Template cells = options.booklet ? booklet() : several(first);
    std::vector<Sheet> result;
    for (const CellPages& sheet : order) result.push_back(filled(cells, sheet));
    return result;
  }

 private:
  static int firstPage(const std::vector<CellPages>& order) {
    int first = kNoPage;
    for (const CellPages& sheet : order)
      for (const int page : sheet)
        if (page != kNoPage && (first == kNoPage || page < first)) first = page;
    return first;
  }

  double gap() const { return options.border == Border::none ? kGap : 0; }
  Cell cellIn(const Rect& room) const {
    const Rect area = shrunk(room, borderRoom(options.border));
    return {area, area};
  }

  std::vector<Sheet> single(const std::vector<CellPages>& order) const {
    const Template upright = one(options.orientation.value_or(Turn::upright));
    const Template turned = one(Turn::left);
    std::vector<Sheet> result;
    for (const CellPages& sheet : order) {
      const bool turns = !sheet.empty() && !options.orientation &&
                         isBetterTurned(pages[sheet.front()], upright, turned);
      result.push_back(filled(turns ? turned : upright, sheet));
    }
    return result;
  }

  // Without a border, only the paper cuts a page off.
  Template one(Turn turn) const {
    const Canvas canvas = canvasOn(paper, turn);
    const Rect whole{0, 0, canvas.size.width, canvas.size.height};
    if (options.border != Border::none) return {canvas, {cellIn(canvas.printable)}};
    return {canvas, {{canvas.printable, whole}}};
  }

  bool isBetterTurned(const PageLook& page, const Template& upright, const Template& turned) const {
    if (fitsAsItIs(page, upright.cells.front(), options)) return false;
    if (fitsAsItIs(page, turned.cells.front(), options)) return true;
    return fitScale(page.size, turned.cells.front().area.size()) >
           fitScale(page.size, upright.cells.front().area.size()) * kBetter;
  }

  Template several(const PageLook& first) const {
    if (options.orientation) return grid(*options.orientation, first);
    Template upright = grid(Turn::upright, first);
    Template turned = grid(Turn::left, first);
    const bool turns = fitScale(first.size, turned.cells.front().area.size()) >
                       fitScale(first.size, upright.cells.front().area.size()) * kBetter;
    return turns ? turned : upright;
  }

  Template grid(Turn turn, const PageLook& first) const {
    Template result{canvasOn(paper, turn), {}};
    const Rect& area = result.canvas.printable;
    const Grid best = bestGrid(options.numberUp, first.size, area.size(), gap());
    for (const Rect& cell : cellsOf(best, area, gap(), options.order))
      result.cells.push_back(cellIn(cell));
    return result;
  }

  // The halves of the paper, so that the fold is in its middle.
  Template booklet() const {
    const bool isWide = paper.size.width > paper.size.height;
    const Turn sideways = options.orientation == Turn::right ? Turn::right : Turn::left;
    const Turn upright = options.orientation == Turn::upsideDown ? Turn::upsideDown : Turn::upright;
    const Canvas canvas = canvasOn(paper, isWide ? upright : sideways);
    const Rect& area = canvas.printable;
    const double outer = std::max(area.left, canvas.size.width - area.right());
    const double middle = canvas.size.width / 2;
    const Rect left{outer, area.bottom, middle - outer, area.height};
    const Rect right{middle, area.bottom, middle - outer, area.height};
    return {canvas, {cellIn(left), cellIn(right)}};
  }

  Sheet filled(const Template& cells, const CellPages& sheet) const {
    Sheet result;
    for (std::size_t cell = 0; cell < sheet.size(); ++cell)
      if (sheet[cell] != kNoPage) add(sheet[cell], cells.cells[cell], cells.canvas, result);
    return result;
  }

  void add(int page, const Cell& cell, const Canvas& canvas, Sheet& sheet) const {
    const Placement placed = placedIn(cell, pages[page], options);
    PlacedPage onPaper{page, then(ontoRect(placed.rect), canvas.toPaper), {}};
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
  const Imposer imposer(pages, paper, options);
  std::vector<CellPages> order = imposer.order();
  if (order.empty()) return {};
  if (wholeSheets) order = evenInNumber(std::move(order));
  return imposer.sheets(order);
}

}  // namespace tavrin
