#pragma once

#include <string>
#include <vector>

#include "host/support/OptionList.h"

namespace tavrin {

// Which sides of the paper are printed, as a value of the option "sides". The printer's own option
// says more than the print system's.
std::string sidesOf(const OptionList& options);

// How many sheets of paper one copy of documents with so many pages takes, where each begins on a
// sheet of its own. 0 where the pages of one are not known, which are 0 then.
int sheetCount(const std::vector<int>& pagesOfDocuments, const OptionList& options);

}  // namespace tavrin
