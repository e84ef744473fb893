#pragma once

#include <vector>

#include "host/support/OptionList.h"

// What the options of a job say about the look of its sheets, as the print system's filters take
// them.

namespace tavrin {

// Whether nothing but black ink comes to the paper.
bool printsInGrey(const OptionList& options);
bool isMirrored(const OptionList& options);
// Whether two sheets in succession are the front and the back of one.
bool isTwoSided(const OptionList& options);

// The pages of a document of that many pages on each sheet, counted from 1, in the order of
// reading. Empty where the options order the pages in a way that only the filters know.
std::vector<std::vector<int>> pagesOnSheets(int pages, const OptionList& options);

// Those on one sheet, which is counted from 1, too; none where there is no such sheet.
std::vector<int> pagesOnSheet(int sheet, int pages, const OptionList& options);

// The place in the order of reading of what comes out at that place among so many sheets, or sides
// of them. Both are counted from 0. An empty side that fills the last sheet of paper counts.
int placeInReading(int index, int count, const OptionList& options);

}  // namespace tavrin
