#pragma once

#include <string>

#include "host/request/JobRequest.h"

namespace tavrin {

// What a job's folder says of the job, as JSON: title, document and its format, copies, page ranges
// (null: all pages), options as jobOptions gives them, and the lp command that does the same. The
// document goes by the name that it has in the folder.
std::string ticketText(const JobRequest& request, const std::string& document,
                       const std::string& format, const OptionList& options);

}  // namespace tavrin
