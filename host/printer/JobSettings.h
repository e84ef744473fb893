#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ppd/CupsHandles.h"

// A PPD may have options that are named like settings that the print system has for every job. Such
// an option would override the dialog unseen, so it is left alone: it is neither offered nor sent.
// An option that a person gives by that name is the job's, and no choice of the printer's.

namespace tavrin {

// Whether the print system has a setting of every job by this name, in any letter case: what goes
// with a request or a subscription, what a job is made of, how its sheets are laid out. Not the
// names that printers have for their own features, such as "print-scaling", "Collate" and
// "OutputOrder".
bool isJobSetting(std::string_view keyword);

// Whether an option of this name is one of the printer's, whose choices the PPD has, rather than a
// setting of the job. A printer may well have its own way to make a booklet or to collate.
bool isPrintersOwn(ppd_file_t& ppd, const std::string& option);

// The keywords of the PPD's options that are left alone.
std::vector<std::string> optionsLeftAlone(const ppd_file_t& ppd);

}  // namespace tavrin
