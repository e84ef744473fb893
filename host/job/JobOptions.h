#pragma once

#include <string>

#include <cups/ppd.h>

#include "host/job/JobRequest.h"

// A request as the print system gets it.

namespace tavrin {

// The print system's own options that fields of the dialog stand for.
inline constexpr char kCopiesOption[] = "copies";
inline constexpr char kPageRangesOption[] = "page-ranges";
inline constexpr char kPagesPerSheetOption[] = "number-up";

// All options of the job as they are sent: the request's own, the PPD's marked choices over them
// (a null PPD has none), then copies and page ranges where they say something. An option of the PPD
// in which nothing is marked is not sent.
OptionList jobOptions(const JobRequest& request, ppd_file_t* ppd);

// The command that prints the request with these options (see jobOptions) without a dialog, quoted
// for a shell. A request without a printer names none.
std::string lpCommand(const JobRequest& request, const OptionList& options);

}  // namespace tavrin
