#pragma once

#include <cups/ppd.h>

#include "host/support/OptionList.h"

namespace tavrin {

// Whether the print system sends the last sheet of a job first: because an option of the job says
// so, else because the sheets would lie in the wrong order in the output bin that is marked in the
// PPD, or in the printer's only one.
bool comesLastSheetFirst(ppd_file_t& ppd, const OptionList& options);

}  // namespace tavrin
