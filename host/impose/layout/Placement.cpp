#include "host/impose/layout/Placement.h"

#include <algorithm>

namespace tavrin {

namespace {

// Papers of the same name differ by this much from one program to the next.
constexpr double kTolerance = 1.01;
constexpr double kRounding = 0.01;  // points

bool fits(Size size, Size room) {
  return size.width <= room.width * kTolerance && size.height <= room.height * kTolerance;
}

Size times(Size size, double scale) { return {size.width * scale, size.height * scale}; }

Size actualSize(const PageLook& page, const LayoutOptions& options) {
  const bool isResolved = page.isPicture && options.ppi;
  return isResolved ? times(page.pixels, 72 / *options.ppi) : page.size;
}

double fillScale(Size page, Size area) {
  return std::max(area.width / page.width, area.height / page.height);
}

double scaleIn(const Cell& cell, const PageLook& page, Size size, Scaling scaling) {
  const Size area = cell.area.size();
  switch (scaling) {
    case Scaling::fit:
      return fitScale(size, area);
    case Scaling::fill:
      return fillScale(size, area);
    case Scaling::actual:
      return 1;
    case Scaling::usual:
      break;
  }
  return page.isPicture || !fits(size, cell.limit.size()) ? fitScale(size, area) : 1;
}

// The lower edge on one axis. What is larger than the area is centred on what it is cut off at, so
// that a page as large as the paper stays where it is.
double aligned(int side, double length, double start, double room, double limitStart,
               double limitRoom) {
  if (side < 0) return start;
  if (side > 0) return start + room - length;
  const bool isLarger = length > room + kRounding;
  return isLarger ? limitStart + (limitRoom - length) / 2 : start + (room - length) / 2;
}

bool reachesBeyond(const Rect& rect, const Rect& limit) {
  return rect.left < limit.left - kRounding || rect.bottom < limit.bottom - kRounding ||
         rect.right() > limit.right() + kRounding || rect.top() > limit.top() + kRounding;
}

}  // namespace

bool fitsAsItIs(const PageLook& page, Size room, const LayoutOptions& options) {
  const bool keepsSize =
      options.scaling == Scaling::actual || (options.scaling == Scaling::usual && !page.isPicture);
  const double share = options.scaling == Scaling::actual ? options.share : 1;
  return keepsSize && fits(times(actualSize(page, options), share), room);
}

Placement placedIn(const Cell& cell, const PageLook& page, const LayoutOptions& options) {
  const Size actual = actualSize(page, options);
  const Size size = times(actual, scaleIn(cell, page, actual, options.scaling) * options.share);
  const Rect& area = cell.area;
  const Rect& limit = options.scaling == Scaling::fill ? cell.area : cell.limit;
  const Rect rect{
      aligned(options.position.x, size.width, area.left, area.width, limit.left, limit.width),
      aligned(options.position.y, size.height, area.bottom, area.height, limit.bottom,
              limit.height),
      size.width, size.height};
  return {rect, reachesBeyond(rect, limit) ? std::optional(limit) : std::nullopt};
}

}  // namespace tavrin
