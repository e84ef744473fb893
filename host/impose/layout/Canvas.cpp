#include "host/impose/layout/Canvas.h"

namespace tavrin {

namespace {

Matrix matrixOf(Turn turn, Size paper) {
  switch (turn) {
    case Turn::left:
      return {0, 1, -1, 0, paper.width, 0};
    case Turn::right:
      return {0, -1, 1, 0, 0, paper.height};
    case Turn::upsideDown:
      return {-1, 0, 0, -1, paper.width, paper.height};
    case Turn::upright:
      break;
  }
  return {};
}

Margins marginsOf(Turn turn, const Margins& m) {
  switch (turn) {
    case Turn::left:
      return {m.bottom, m.right, m.top, m.left};
    case Turn::right:
      return {m.top, m.left, m.bottom, m.right};
    case Turn::upsideDown:
      return {m.right, m.top, m.left, m.bottom};
    case Turn::upright:
      break;
  }
  return m;
}

}  // namespace

Canvas canvasOn(const Paper& paper, Turn turn) {
  const bool isOnItsSide = turn == Turn::left || turn == Turn::right;
  const Size size = isOnItsSide ? onItsSide(paper.size) : paper.size;
  return {size, within(size, marginsOf(turn, paper.margins)), matrixOf(turn, paper.size), turn};
}

}  // namespace tavrin
