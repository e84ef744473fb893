#pragma once

#include <string>

#include "platform/text/OptionalString.h"

namespace tavrin {

// The print settings of a job, as far as a panel reads them. It exists so that a panel can ask for
// what other panes decide (the layout) without knowing them.
class PMPrintSettings {
 public:
  virtual ~PMPrintSettings() = default;

  // PMPrintSettingsGetValue: the value set for a key; absent if none is.
  virtual OptString value(const std::string& key) const = 0;
};

// The key of the number of columns of pages on a sheet.
inline constexpr char kPMLayoutColumns[] = "com.apple.print.PrintSettings.PMLayoutColumns";

// A paper that a page format names.
class PMPaper {
 public:
  virtual ~PMPaper() = default;

  // PMPaperGetPPDPaperName: the paper's keyword in the PPD's "PageSize"; absent if it has none.
  virtual OptString ppdPaperName() const = 0;
};

// The page format of a job: which paper it is laid out for.
class PMPageFormat {
 public:
  virtual ~PMPageFormat() = default;

  // PMGetPageFormatPaper: null for a format without paper; owned by the format.
  virtual const PMPaper* paper() const = 0;
};

}  // namespace tavrin
