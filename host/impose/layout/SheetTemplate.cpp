#include "host/impose/layout/SheetTemplate.h"

#include <algorithm>

#include "host/impose/layout/Grid.h"
#include "host/impose/layout/PageBorder.h"

namespace tavrin {

namespace {

constexpr double kBetter = 1 + 1e-9;  // what rounding makes larger is not larger
constexpr double kGap = 6;            // between cells without a border
// On paper as small as a stamp, something of the pages must be left.
constexpr double kLargestGap = 1.0 / 50;    // of the shorter side
constexpr double kLargestBorder = 1.0 / 8;  // of the shorter side of the cell

double shorterSide(Size size) { return std::min(size.width, size.height); }

Cell cellIn(const Rect& room, Border border) {
  const double most = shorterSide(room.size()) * kLargestBorder;
  const Rect area = shrunk(room, std::min(borderRoom(border), most));
  return {area, area};
}

double gapIn(Size area, Border border) {
  return border == Border::none ? std::min(kGap, shorterSide(area) * kLargestGap) : 0;
}

// Pictures differ, so that the first one says little of the others.
Grid pictureGrid(int cells, Size area, double gap) {
  const Grid upright = bestGrid(cells, area, area, gap);
  const Grid lying = bestGrid(cells, onItsSide(area), area, gap);
  const double uprightScale = fitScale(area, cellSize(upright, area, gap));
  const double lyingScale = fitScale(onItsSide(area), cellSize(lying, area, gap));
  return lyingScale > uprightScale * kBetter ? lying : upright;
}

Turn bookletTurn(const Paper& paper, const LayoutOptions& options) {
  const bool isWide = paper.size.width > paper.size.height;
  if (isWide) return options.orientation == Turn::upsideDown ? Turn::upsideDown : Turn::upright;
  return options.orientation == Turn::right ? Turn::right : Turn::left;
}

}  // namespace

SheetTemplate singleTemplate(const Paper& paper, Turn turn, Border border) {
  const Canvas canvas = canvasOn(paper, turn);
  if (border != Border::none) return {canvas, {cellIn(canvas.printable, border)}};
  return {canvas, {{canvas.printable, {0, 0, canvas.size.width, canvas.size.height}}}};
}

SheetTemplate gridTemplate(const Paper& paper, Turn turn, const LayoutOptions& options,
                           const PageLook& first) {
  SheetTemplate result{canvasOn(paper, turn), {}};
  const Rect& area = result.canvas.printable;
  const double gap = gapIn(area.size(), options.border);
  const Grid grid = first.isPicture ? pictureGrid(options.numberUp, area.size(), gap)
                                    : bestGrid(options.numberUp, first.size, area.size(), gap);
  for (const Rect& cell : cellsOf(grid, area, gap, options.order))
    result.cells.push_back(cellIn(cell, options.border));
  return result;
}

// The halves are those of the paper, so that the fold is in its middle.
SheetTemplate bookletTemplate(const Paper& paper, const LayoutOptions& options) {
  const Canvas canvas = canvasOn(paper, bookletTurn(paper, options));
  const Rect& area = canvas.printable;
  const double middle = canvas.size.width / 2;
  const double outer = std::max(area.left, canvas.size.width - area.right());
  const double width = middle - outer;
  return {canvas,
          {cellIn({outer, area.bottom, width, area.height}, options.border),
           cellIn({middle, area.bottom, width, area.height}, options.border)}};
}

}  // namespace tavrin
