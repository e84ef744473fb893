#include "host/impose/layout/PageBorder.h"

namespace tavrin {

namespace {

constexpr double kThin = 0.5;
constexpr double kThick = 1.5;
constexpr double kApart = 1.5;  // from the neighbour's, and the two lines of a border

double lineOf(Border border) {
  return border == Border::singleThick || border == Border::twiceThick ? kThick : kThin;
}

int linesOf(Border border) {
  if (border == Border::none) return 0;
  return border == Border::twice || border == Border::twiceThick ? 2 : 1;
}

}  // namespace

double borderRoom(Border border) { return linesOf(border) * (lineOf(border) + kApart); }

std::vector<Frame> framesRound(const Rect& page, Border border) {
  std::vector<Frame> frames;
  const double line = lineOf(border);
  frames.reserve(linesOf(border));
  for (int index = 0; index < linesOf(border); ++index)
    frames.push_back({shrunk(page, -(line / 2 + index * (line + kApart))), line});
  return frames;
}

}  // namespace tavrin
