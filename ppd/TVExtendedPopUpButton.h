#pragma once

#include <cups/ppd.h>

#include "platform/toolkit/Toolkit.h"
#include "ppd/TextEncoding.h"

namespace tavrin {

// Fills a pop-up with one item for each choice of a PPD option, in the PPD's order: the title is
// the choice's text in that encoding (its keyword where the text cannot be decoded), the value its
// keyword. What was in the pop-up goes away; an option that the PPD lacks leaves it empty. The
// order of the items is relied on: an item's index is its choice's index.
void addItemsFromPPD(PopUpButton& popUp, ppd_file_t* ppd, const char* forKey,
                     StringEncoding encoding);

}  // namespace tavrin
