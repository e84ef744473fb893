#pragma once

#include <optional>
#include <vector>

#include "host/support/OptionList.h"

namespace tavrin {

// Pages counted from 1, both ends included.
struct PageRange {
  int first;
  int last;
};

enum class PageSet { all, odd, even };

// How what is to be read lies on the paper; left and right say where the top of the text is.
enum class Turn { upright, left, right, upsideDown };

// How large a page becomes.
enum class Scaling {
  usual,   // pictures as large as they fit; other pages as they are, smaller where they must
  fit,     // as large as fits the area
  fill,    // as large as covers the area
  actual,  // as the document says
};

// The way through the cells of a sheet.
struct CellOrder {
  bool byColumns = false;
  bool rightToLeft = false;
  bool bottomToTop = false;
};

enum class Border { none, single, singleThick, twice, twiceThick };

// -1 is left or bottom, 0 the centre, 1 right or top.
struct Position {
  int x = 0;
  int y = 0;
};

// What the options of a job say about how its pages get onto sheets.
struct LayoutOptions {
  std::vector<PageRange> ranges;    // in no order; empty: all pages
  PageSet set = PageSet::all;       // of the document's pages
  std::optional<Turn> orientation;  // absent: as is best
  int numberUp = 1;                 // pages on a sheet
  CellOrder order;
  Border border = Border::none;
  bool booklet = false;
  Scaling scaling = Scaling::usual;
  double share = 1;           // of the size that the scaling gives
  std::optional<double> ppi;  // of pictures; absent: their own
  Position position;
};

// Reads the options by the names that CUPS and IPP give them. Unknown ones do not count, nor do
// those with a value that makes no sense; letter case does not matter.
LayoutOptions layoutOptions(const OptionList& options);

}  // namespace tavrin
