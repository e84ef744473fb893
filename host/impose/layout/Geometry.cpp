#include "host/impose/layout/Geometry.h"

#include <algorithm>

namespace tavrin {

Matrix then(const Matrix& first, const Matrix& second) {
  const Point origin = mapped(second, Point{first.e, first.f});
  return {second.a * first.a + second.c * first.b,
          second.b * first.a + second.d * first.b,
          second.a * first.c + second.c * first.d,
          second.b * first.c + second.d * first.d,
          origin.x,
          origin.y};
}

Point mapped(const Matrix& m, Point p) {
  return {m.a * p.x + m.c * p.y + m.e, m.b * p.x + m.d * p.y + m.f};
}

Rect mapped(const Matrix& matrix, const Rect& rect) {
  double left = 0, bottom = 0, right = 0, top = 0;
  bool isFirst = true;
  for (const Point corner : {Point{rect.left, rect.bottom}, Point{rect.right(), rect.bottom},
                             Point{rect.left, rect.top()}, Point{rect.right(), rect.top()}}) {
    const Point place = mapped(matrix, corner);
    left = isFirst ? place.x : std::min(left, place.x);
    bottom = isFirst ? place.y : std::min(bottom, place.y);
    right = isFirst ? place.x : std::max(right, place.x);
    top = isFirst ? place.y : std::max(top, place.y);
    isFirst = false;
  }
  return {left, bottom, right - left, top - bottom};
}

Matrix ontoRect(const Rect& rect) {
  return {rect.width, 0, 0, rect.height, rect.left, rect.bottom};
}

Matrix fromRect(const Rect& rect) {
  return {
      1 / rect.width, 0, 0, 1 / rect.height, -rect.left / rect.width, -rect.bottom / rect.height};
}

Rect within(Size sheet, const Margins& margins) {
  return {margins.left, margins.bottom, sheet.width - margins.left - margins.right,
          sheet.height - margins.bottom - margins.top};
}

Rect shrunk(const Rect& rect, double bySide) {
  return {rect.left + bySide, rect.bottom + bySide, rect.width - 2 * bySide,
          rect.height - 2 * bySide};
}

Rect common(const Rect& one, const Rect& other) {
  const double left = std::max(one.left, other.left);
  const double bottom = std::max(one.bottom, other.bottom);
  return {left, bottom, std::min(one.right(), other.right()) - left,
          std::min(one.top(), other.top()) - bottom};
}

double fitScale(Size page, Size area) {
  return std::min(area.width / page.width, area.height / page.height);
}

}  // namespace tavrin
