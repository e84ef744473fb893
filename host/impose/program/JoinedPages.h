#pragma once

#include <string>
#include <vector>

#include "host/impose/pages/Qpdf.h"
#include "host/impose/program/ImposeArguments.h"

namespace tavrin {

// Writes the pages of all these PDFs into one, as they are but for how a reader turns them: for
// each page a digit, so many quarters of a circle clockwise. Throws Trouble where the pages are not
// as many as the digits, or as the library does.
void joinPages(const std::vector<NamedDocument>& documents, const std::string& turns,
               Pipeline& output);

}  // namespace tavrin
