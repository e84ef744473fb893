#pragma once

#include <string>

#include <QString>

#include "platform/text/Result.h"

namespace tavrin {

// A page range as a person writes it ("5, 1-3" or "5; 1–3") in the print system's form: ascending,
// without overlaps or blanks ("1-3,5"). "7-" goes to the last page. Or a sentence that says what is
// wrong.
Result<std::string> checkedPageRanges(const QString& text);

}  // namespace tavrin
