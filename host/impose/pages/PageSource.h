#pragma once

#include "host/impose/layout/Geometry.h"
#include "host/impose/layout/Placement.h"
#include "host/impose/pages/Qpdf.h"

namespace tavrin {

// What to draw for a page.
struct Drawing {
  QPDFObjectHandle object;  // an image or a form, of the output
  Matrix toUnitSquare;      // with this in front, the page fills the unit square
};

// The pages of one document. What goes wrong is thrown as Trouble or by the library.
class PageSource {
 public:
  virtual ~PageSource() = default;

  virtual int count() const = 0;
  virtual PageLook look(int page) const = 0;
  // Whether the pages are stored otherwise than a reader shows them: a picture in another position,
  // a page with more around it.
  virtual bool isStoredOtherwise() const { return false; }
  // Makes the page part of the output. The source must live until the output is written.
  virtual Drawing draw(int page, QPDF& output) = 0;
};

}  // namespace tavrin
