#pragma once

#include <vector>

#include "host/impose/layout/Canvas.h"
#include "host/impose/layout/LayoutOptions.h"
#include "host/impose/layout/Placement.h"

namespace tavrin {

// The places for pages on a sheet, in the order in which they are filled.
struct SheetTemplate {
  Canvas canvas;
  std::vector<Cell> cells;
};

// One place. Without a border, only the paper cuts a page off.
SheetTemplate singleTemplate(const Paper& paper, Turn turn, Border border);

// As many places as the options ask for, or more where they would not fill a grid. The grid is the
// one that suits the first page best; where that is a picture, pictures of the sheet's own shape,
// each of which may lie as it gets largest.
SheetTemplate gridTemplate(const Paper& paper, Turn turn, const LayoutOptions& options,
                           const PageLook& first);

// Two places beside each other on paper that lies on its side.
SheetTemplate bookletTemplate(const Paper& paper, const LayoutOptions& options);

}  // namespace tavrin
