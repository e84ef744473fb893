#pragma once

#include <vector>

#include "host/impose/layout/Imposition.h"
#include "host/impose/pages/Qpdf.h"
#include "host/impose/program/DocumentPages.h"

namespace tavrin {

// Writes the sheets as a PDF, each as large as the paper. The same sheets give the same bytes.
void writeSheets(const std::vector<Sheet>& sheets, Size paper, const DocumentPages& pages,
                 Pipeline& output);

}  // namespace tavrin
