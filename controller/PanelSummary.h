#pragma once

#include <map>
#include <string>

#include "ppd/PDEModel.h"

namespace tavrin {

// The panel's lines in the dialog's summary: one for each setting that the printer has, label to
// value, absent where nothing is set. Of two settings with one label, the later one wins.
std::map<std::string, OptString> panelSummary(const PDEModel& model);

}  // namespace tavrin
