#pragma once

#include "host/support/OptionList.h"

namespace tavrin {

// Whether the value of a switch says yes.
bool saysYes(const OptString& value);

// The options with those that have another name for the same in the words of the first: "landscape"
// is an orientation, "fit-to-page" a way of scaling, "Collate" an order of sheets. Of two that
// contradict each other, the one by its first name holds.
OptionList inFirstNames(const OptionList& options);

// The other names, which inFirstNames() leaves none of.
const std::vector<std::string>& otherNames();

}  // namespace tavrin
