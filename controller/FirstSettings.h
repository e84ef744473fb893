#pragma once

#include <cups/ppd.h>

#include "ppd/PDEModel.h"

// What a new panel's model starts with.

namespace tavrin {

// Binds every setting to the PPD's option, null where the PPD has none or is null. Dry time is
// bound to the pop-up's option or the check box's by the kind that the PPD declares; any other
// kind leaves it without an option.
void setSupportedPPDOptionsToPDEModel(PDEModel& model, ppd_file_t* ppd);

// Sets the bound settings of a new model to their default choices; absent where the option or the
// choice is missing. The PPD's own defaults are not consulted.
void setDefaultsToPDEModel(PDEModel& model);

}  // namespace tavrin
