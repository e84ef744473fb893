#pragma once

#include <QMarginsF>
#include <QSizeF>
#include <cups/ppd.h>

#include "platform/text/OptionalString.h"

namespace tavrin {

// The shape of the paper, in points.
struct Paper {
  QSizeF size{595, 842};
  QMarginsF margins;  // where the printer cannot print
  // What lies across the paper has its top at the paper's right, not at its left.
  bool turnsRight = false;

  bool operator==(const Paper&) const = default;
};

// The choice of paper in a PPD that is as large as a page (in points), upright or turned; the
// marked one where several are. Absent where there is none, and for a page without a size.
OptString paperOfSize(ppd_file_t& ppd, const QSizeF& page);

// The paper that is marked in a PPD; A4 without margins where none is. Margins that would leave
// next to nothing of the paper, or reach beyond it, are none.
Paper markedPaper(ppd_file_t& ppd);

}  // namespace tavrin
