#pragma once

#include <string>

namespace tavrin {

// The text of a PPD for filters that run as the user: it is the same for them, but names no
// programs of its own, which whoever wrote the PPD could have run here. Empty where that cannot be
// achieved, or where the text is no PPD.
std::string harmlessPPD(std::string text);

}  // namespace tavrin
