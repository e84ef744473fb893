#include "host/printer/GivenPaper.h"

#include <algorithm>

#include "host/printer/CustomPaper.h"
#include "host/printer/MarkedOptions.h"
#include "host/support/CupsOptions.h"
#include "host/support/TextLists.h"
#include "platform/text/Quoted.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

constexpr char kMediaOption[] = "media";
constexpr double kRounding = 0.1;  // points

void unmarkAll(ppd_file_t& ppd) {
  while (auto* choice = static_cast<ppd_choice_t*>(cupsArrayFirst(ppd.marked))) {
    choice->marked = 0;
    cupsArrayRemove(ppd.marked, choice);
  }
}

// The print system has names of its own for paper, its sources and its types; only it knows which
// of the printer's choices they stand for.
bool isUnderstood(ppd_file_t& ppd, const std::string& name) {
  unmarkAll(ppd);
  const CupsOptions alone({{kMediaOption, name}});
  cupsMarkOptions(&ppd, alone.count(), alone.data());
  return cupsArrayCount(ppd.marked) > 0;
}

// Of a source or a type the print system takes only names of its own. The PPD's name becomes an
// option, unless there is one.
bool becomesOption(OptionList& options, ppd_file_t& ppd, const std::string& name) {
  for (const char* keyword : {"InputSlot", "MediaType"}) {
    ppd_option_t* option = ppdFindOption(&ppd, keyword);
    if (!option || !ppdFindChoice(option, name.c_str())) continue;
    if (!optionValue(options, keyword)) setOption(options, keyword, name);
    return true;
  }
  return false;
}

bool isWithin(const PaperSize& size, const PaperSize& least, const PaperSize& most) {
  return size.width >= least.width - kRounding && size.height >= least.height - kRounding &&
         size.width <= most.width + kRounding && size.height <= most.height + kRounding;
}

// What is wrong with paper of the person's own size; empty for nothing.
std::string problemWithCustom(ppd_file_t& ppd, const std::string& choice) {
  if (!takesCustomPaper(ppd))
    return "The printer takes no paper of another size than its own, such as " + quoted(choice) +
           ".";
  const auto size = customPaperSize(choice);
  if (!size) return "There is no size of paper in " + quoted(choice) + ".";
  if (isWithin(*size, leastPaper(ppd), mostPaper(ppd))) return {};
  return "Paper of the size " + quoted(choice) + " is too small or too large for the printer.";
}

// Takes what the printer has not out of a list of paper, a source and a type.
std::vector<std::string> removeUnknown(OptionList& options, ppd_file_t& ppd,
                                       const std::string& media) {
  std::vector<std::string> problems;
  std::vector<std::string> known;
  for (const std::string& part : partsOf(media)) {
    const bool isCustom = isCustomChoice(part);
    const std::string problem = isCustom ? problemWithCustom(ppd, part) : "";
    if (!problem.empty()) problems.push_back(problem);
    if (isCustom ? problem.empty() : isUnderstood(ppd, part) || becomesOption(options, ppd, part))
      known.push_back(part);
  }
  if (known.empty() && problems.empty())
    problems.push_back("The printer has no paper, and no source or type of paper, by the name " +
                       quoted(media) + ".");
  removeOption(options, kMediaOption);
  if (!known.empty()) setOption(options, kMediaOption, joined(known, ","));
  return problems;
}

}  // namespace

std::vector<std::string> removeImpossiblePaper(OptionList& options, ppd_file_t& ppd) {
  std::vector<std::string> problems;
  if (const OptString media = optionValue(options, kMediaOption))
    problems = removeUnknown(options, ppd, *media);
  for (const char* keyword : {kPageSizeKey, "PageRegion"}) {
    const OptString choice = optionValue(options, keyword);
    if (!choice || !isCustomChoice(*choice)) continue;
    const std::string problem = problemWithCustom(ppd, *choice);
    if (problem.empty()) continue;
    problems.push_back(problem);
    removeOption(options, keyword);
  }
  return problems;
}

}  // namespace tavrin
