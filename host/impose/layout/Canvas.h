#pragma once

#include "host/impose/layout/Geometry.h"
#include "host/impose/layout/LayoutOptions.h"

namespace tavrin {

// What pages go to and what the printer can print on.
struct Paper {
  Size size;
  Margins margins;
};

// The paper as it is held for reading what will be on it.
struct Canvas {
  Size size;
  Rect printable;
  Matrix toPaper;
  Turn turn = Turn::upright;  // that it was made with
};

Canvas canvasOn(const Paper& paper, Turn turn);

}  // namespace tavrin
