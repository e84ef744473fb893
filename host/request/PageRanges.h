#pragma once

#include <string>

#include <QString>

#include "platform/text/Result.h"

namespace tavrin {

// A page range as a person writes it ("5, 1-3" or "5; 1–3") in the print system's form: ascending,
// without overlaps or blanks ("1-3,5"). "7-" goes to the last page, "-4" begins with the first. Or
// a sentence that says what is wrong.
Result<std::string> checkedPageRanges(const QString& text);

// How many pages of a document with that many are in the ranges, which are in the print system's
// form (empty: all pages), and in the set: "odd", "even", or anything else for both.
int pagesInRanges(const std::string& ranges, const std::string& pageSet, int documentPages);

}  // namespace tavrin
