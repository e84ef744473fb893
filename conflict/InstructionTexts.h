#pragma once

#include "platform/text/OptionalString.h"

namespace tavrin {

// What the Instructions window can tell: how to mend what the panel cannot mend itself.
enum InstructionKind : signed char {
  pageSetUpSteps = 0,
  colorSteps = 1,
  layoutSteps = 2,
  cartridgeSteps = 3
};

// The translated steps of an InstructionKind, a line each, the last one without a line break;
// absent for any other kind. A translation may name the printer's model in the step that starts the
// utility; an absent model name shows as nothing.
OptString instructionText(signed char kind, const OptString& modelName);

}  // namespace tavrin
