#pragma once

#include "host/impose/pages/Qpdf.h"

namespace tavrin {

// Lets the layers of a document be shown and hidden in the output as they are in the document,
// where pages of it are copied to the output.
void keepLayers(QPDF& document, QPDF& output);

}  // namespace tavrin
