#pragma once

#include <vector>

#include "host/impose/layout/Geometry.h"
#include "host/impose/layout/LayoutOptions.h"

namespace tavrin {

// A rectangle that is drawn as a line round a page.
struct Frame {
  Rect rect;  // through the middle of the line
  double line;
};

// How much room a border needs on each side of a page, with a little that keeps it apart from its
// neighbour's; 0 for none.
double borderRoom(Border border);

// The lines of a border whose inner edge is that rectangle.
std::vector<Frame> framesRound(const Rect& page, Border border);

}  // namespace tavrin
