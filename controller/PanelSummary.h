#pragma once

#include <map>
#include <string>

#include "ppd/PDEModel.h"

namespace tavrin {

// The panel's lines in the dialog's summary: one for each setting that the printer has, label to
// value, absent where nothing is set. Of two settings with one label, the later one wins.
std::map<std::string, OptString> panelSummary(const PDEModel& model);

// What is unusual among the advanced options, for people who do not see them: "Mirror Image, Image
// Sharpening: 7". Empty when all are as a new panel has them.
std::string advancedSummary(const PDEModel& model);

}  // namespace tavrin
