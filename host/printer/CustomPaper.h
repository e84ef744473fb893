#pragma once

#include <optional>
#include <string>

#include <cups/ppd.h>

#include "platform/text/OptionalString.h"

// Paper of the person's own size, where the PPD takes such paper.

namespace tavrin {

// In points.
struct PaperSize {
  double width = 0;
  double height = 0;

  bool operator==(const PaperSize&) const = default;
};

// Whether the PPD takes paper that has no name in it.
bool takesCustomPaper(ppd_file_t& ppd);

// The smallest and the largest paper that the PPD takes.
PaperSize leastPaper(const ppd_file_t& ppd);
PaperSize mostPaper(const ppd_file_t& ppd);

// The size of the marked paper, custom or not; without width and height where none is marked.
PaperSize markedPaperSize(ppd_file_t& ppd);

// The choice of the option "PageSize" for a paper: "Custom.100x150mm", in inches or points where
// millimetres would not say it.
std::string customPaperChoice(PaperSize size);
// The paper of such a choice; absent for another choice and for one that names no size.
std::optional<PaperSize> customPaperSize(const std::string& choice);

// The choice for the paper that is marked; absent where that is no custom one.
OptString markedCustomPaper(ppd_file_t& ppd);

}  // namespace tavrin
