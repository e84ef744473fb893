#pragma once

#include <string>

#include "host/request/JobRequest.h"

namespace tavrin {

// The command that prints the request with these options (see jobOptions) without a dialog, quoted
// for a shell. A request without a printer names none.
std::string lpCommand(const JobRequest& request, const OptionList& options);

}  // namespace tavrin
