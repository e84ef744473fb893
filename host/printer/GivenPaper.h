#pragma once

#include <string>
#include <vector>

#include <cups/ppd.h>

#include "host/support/OptionList.h"

namespace tavrin {

// Takes what the printer has not out of the options that name paper, its source or its type: paper
// whose size makes no sense or is beyond the PPD's limits, and what the print system finds nothing
// for in the PPD. It would be misread, or left out in silence. A sentence for each that is taken
// out. A source or a type by the PPD's name becomes an option of its own. What a "PageSize" without
// a size of its own names is left as it is.
//
// What is marked in the PPD is lost.
std::vector<std::string> removeImpossiblePaper(OptionList& options, ppd_file_t& ppd);

}  // namespace tavrin
