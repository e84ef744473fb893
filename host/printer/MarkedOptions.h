#pragma once

#include <array>
#include <string>
#include <vector>

#include <cups/ppd.h>

#include "host/support/OptionList.h"

// Between options as the print system writes them and the choices that are marked in a PPD.

namespace tavrin {

// Its options for printing on both sides. Makers of printer software agree on what it means but not
// on its name.
inline constexpr std::array kTwoSidedKeywords{"Duplex", "JCLDuplex", "EFDuplex", "KD03Duplex"};

// The PPD's option for printing on both sides; null where it has none.
const ppd_option_t* twoSidedOption(ppd_file_t& ppd);

// The choice of such an option for paper that is turned over its short edge; absent where it has
// none.
OptString shortEdgeChoice(const ppd_option_t& twoSided);

// Whether the group of this keyword says what is installed in the printer, which is for the
// administrator to set and does not belong in a job.
bool isInstalledOptions(const std::string& groupKeyword);

// Whether a choice keyword stands for a value of the person's own ("Custom", "Custom.10x15cm").
bool isCustomChoice(const std::string& choice);

// Marks a choice in a PPD; nothing happens, and the answer is false, where the PPD is null or has
// no such option or choice.
bool markChoice(ppd_file_t* ppd, const std::string& key, const std::string& choice);

// Takes every mark of the option away.
void unmark(ppd_file_t& ppd, ppd_option_t& option);

// The keywords of the options in which nothing is marked.
std::vector<std::string> optionsWithoutMark(const ppd_file_t& ppd);

// The keywords of the option's marked choices, with commas between them where there are several;
// empty without a mark.
std::string markedChoices(const ppd_option_t& option);

// The PPD's marked choices as options, in the order of the file, without what is installed in the
// printer and without options that are named like settings of a job. Of values of the person's own,
// the size of custom paper is there; others are not in the marks.
OptionList markedOptions(ppd_file_t& ppd);

// Marks a PPD's defaults, and in their place the choices that options name: the start of a dialog
// from a command line or a printer instance. One sentence for each paper that the printer has not,
// and for each option of the PPD whose value it does not have; options that are not the PPD's, and
// settings of the job, are left alone.
std::vector<std::string> markOptions(ppd_file_t& ppd, OptionList options);

}  // namespace tavrin
