#pragma once

#include <QString>

#include "host/support/OptionList.h"

namespace tavrin {

// What the options of a job mean for its sheets, in one line: "pages 2 to 4, two on a sheet,
// mirrored". What is usual goes without saying; there is always a word on the pages.
QString jobInWords(const OptionList& options);

}  // namespace tavrin
