#pragma once

#include <vector>

#include "host/prepare/DocumentPreparer.h"
#include "host/preview/SheetList.h"

namespace tavrin {

// Sets for each sheet of a document that was laid out on this paper how it is turned for reading.
// The print system turns each page that lies across the paper; what the imposer has turned says so.
void setUpright(std::vector<Sheet>& sheets, const PreparedDocument& document, const Paper& paper);

}  // namespace tavrin
