#pragma once

#include <optional>

#include "host/impose/layout/Geometry.h"
#include "host/impose/layout/LayoutOptions.h"

namespace tavrin {

// What the layout needs to know of a page.
struct PageLook {
  Size size;  // as a reader shows it; more than nothing
  bool isPicture = false;
  Size pixels{};  // of a picture, as it is shown
};

// Where a page may go.
struct Cell {
  Rect area;   // what it is fitted to and placed in
  Rect limit;  // what it is cut off at, as large as the area or larger
};

// Where a page went.
struct Placement {
  Rect rect;
  std::optional<Rect> clip;  // what shows of it; absent: all
};

// Whether the page keeps its actual size where there is room for it, and there is.
bool fitsAsItIs(const PageLook& page, Size room, const LayoutOptions& options);

Placement placedIn(const Cell& cell, const PageLook& page, const LayoutOptions& options);

}  // namespace tavrin
