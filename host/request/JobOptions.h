#pragma once

#include <string>

#include <cups/ppd.h>

#include "host/request/JobRequest.h"
#include "host/request/JobSetting.h"

// A request as the print system gets it.

namespace tavrin {

// Options that the print system has for every printer.
inline constexpr char kCopiesOption[] = "copies";
inline constexpr char kPageRangesOption[] = "page-ranges";
inline constexpr char kPaperOption[] = "media";
// These two say what the document is, and are not sent with the job.
inline constexpr char kFormatOption[] = "document-format";
inline constexpr char kRawOption[] = "raw";

// The options with the PPD's marked choices over them. An option of the PPD in which nothing is
// marked is left out, unless it holds a value of the person's own, which no mark can hold.
OptionList withMarks(OptionList options, ppd_file_t& ppd);

// All options of the job as they are sent: the request's own, the PPD's marked choices over them
// (a null PPD has none), then copies and page ranges where they differ from one copy of all pages;
// one copy, too, where an option asks for another number.
// An option of the PPD in which nothing is marked is not sent.
OptionList jobOptions(const JobRequest& request, ppd_file_t* ppd);

}  // namespace tavrin
