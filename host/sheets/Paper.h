#pragma once

#include <QMarginsF>
#include <QSizeF>
#include <cups/ppd.h>

namespace tavrin {

// The shape of the paper, in points.
struct Paper {
  QSizeF size{595, 842};
  QMarginsF margins;  // where the printer cannot print

  bool operator==(const Paper&) const = default;
};

// The paper that is marked in a PPD; A4 without margins where none is.
Paper markedPaper(ppd_file_t& ppd);

}  // namespace tavrin
