#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "platform/OptionalString.h"

struct ppd_file_s;

namespace tavrin {

// Job options in the order in which they were given: name and value, as in lp's "-o NAME=VALUE".
using OptionList = std::vector<std::pair<std::string, std::string>>;

inline constexpr int kMostCopies = 9999;  // of a job
// The PPD's option for the size of the paper.
inline constexpr char kPaperSizeKeyword[] = "PageSize";

// Its options for printing on both sides: makers of printer software agree on the meaning but not
// on the name.
inline constexpr std::array kTwoSidedKeywords{"Duplex", "JCLDuplex", "EFDuplex", "KD03Duplex"};

// What is to be printed, and how.
struct JobRequest {
  std::string printer;   // the queue; empty for a printer without one
  std::string instance;  // of the queue; empty for the queue itself
  int copies = 1;
  std::string title;       // empty: the document's name
  std::string pageRanges;  // "1-3,5"; empty: all pages
  OptionList options;
  std::filesystem::path document = "-";  // "-": standard input
};

// The options in the argument of one "-o": several may be separated by blanks, values may be
// quoted, "name" and "noname" stand for true and false.
OptionList parseOptions(const std::string& argument);

// The option's value; absent when it is not there. Letter case of names does not count, as in the
// print system.
OptString optionValue(const OptionList& options, const std::string& name);
// Replaces the option, whatever its letter case was, or appends it.
void setOption(OptionList& options, const std::string& name, const std::string& value);

// The PPD's marked choices as options, in the order of the file. What is installed in the printer
// is the administrator's and is left out.
OptionList markedOptions(ppd_file_s& ppd);

// Marks the choices that options name in a PPD: the start of a dialog from a command line or a
// printer instance. One sentence for each option of the PPD whose value it does not have; options
// that are not the PPD's are left alone.
std::vector<std::string> markOptions(ppd_file_s& ppd, const OptionList& options);

// All options of the job as they are sent: the request's own, the PPD's marked choices over them
// (a null PPD has none), then copies and page ranges where they say something. An option of the PPD
// in which nothing is marked is not sent.
OptionList jobOptions(const JobRequest& request, ppd_file_s* ppd);

// The name that the job gets: its title, else the document's.
std::string jobTitle(const JobRequest& request);

// The command that prints the request with these options (see jobOptions) without a dialog, quoted
// for a shell. A request without a printer names none.
std::string lpCommand(const JobRequest& request, const OptionList& options);

}  // namespace tavrin
