#pragma once

#include <QString>

#include "host/preview/Sheets.h"
#include "host/support/OptionList.h"

// What is said of a sheet, on the screen and aloud.

namespace tavrin {

// Around the sheet's number, which somebody can change: "Sheet ", " of 5". On paper that is printed
// on both sides, the sides are counted.
QString textBeforeNumber(const OptionList& options);
QString textAfterNumber(int count, const OptionList& options);

// What is on the sheet with that index, as far as it is known: "pages 1 and 2, mirrored"; empty
// where there is nothing to say.
QString contentsText(const Sheets& sheets, int index, const OptionList& options);

// All of it: "Sheet 1 of 5: pages 1 and 2, mirrored".
QString sheetText(const Sheets& sheets, int index, const OptionList& options);

}  // namespace tavrin
