#pragma once

// Lengths are in points; the origin is at the bottom left, as in PDF.

namespace tavrin {

struct Point {
  double x = 0;
  double y = 0;
};

struct Size {
  double width = 0;
  double height = 0;
};

struct Margins {
  double left = 0;
  double bottom = 0;
  double right = 0;
  double top = 0;
};

struct Rect {
  double left = 0;
  double bottom = 0;
  double width = 0;
  double height = 0;

  double right() const { return left + width; }
  double top() const { return bottom + height; }
  Size size() const { return {width, height}; }
};

// Takes (x, y) to (ax + cy + e, bx + dy + f).
struct Matrix {
  double a = 1;
  double b = 0;
  double c = 0;
  double d = 1;
  double e = 0;
  double f = 0;
};

// The matrix that does first what the one does, and then what the other does.
Matrix then(const Matrix& first, const Matrix& second);
Point mapped(const Matrix& matrix, Point point);
// The rectangle round what becomes of this one.
Rect mapped(const Matrix& matrix, const Rect& rect);
// Takes the unit square to the rectangle.
Matrix ontoRect(const Rect& rect);
// Takes the rectangle to the unit square.
Matrix fromRect(const Rect& rect);

// The rectangle that is left within margins, which are smaller than the sheet.
Rect within(Size sheet, const Margins& margins);
// The rectangle with that much taken off each side; more than is there with a negative number.
Rect shrunk(const Rect& rect, double bySide);
// What two rectangles that overlap have in common.
Rect common(const Rect& one, const Rect& other);
// The same size lying on its side.
inline Size onItsSide(Size size) { return {size.height, size.width}; }
// How many times as large a page can get within an area without being cut off.
double fitScale(Size page, Size area);

}  // namespace tavrin
