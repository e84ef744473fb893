#pragma once

#include <string>

#include "platform/text/OptionalString.h"

namespace tavrin {

// The text with "%@" and "%1$@" replaced by the argument (nothing for an absent one) and "%%" by
// "%". Any other "%" stands for itself, so that no translation can break out of its text.
std::string formatWithObject(const std::string& format, const OptString& argument);

}  // namespace tavrin
