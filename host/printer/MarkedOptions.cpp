#include "host/printer/MarkedOptions.h"

#include "host/printer/CustomPaper.h"
#include "host/printer/GivenPaper.h"
#include "host/printer/JobSettings.h"
#include "host/support/CupsOptions.h"
#include "host/support/TextLists.h"
#include "platform/text/IgnoringCase.h"
#include "platform/text/Quoted.h"
#include "ppd/PPDKeywords.h"
#include "ppd/PPDRecords.h"

namespace tavrin {
namespace {

constexpr std::string_view kCustom = "Custom";
constexpr std::string_view kInstalledGroup = "InstallableOptions";

void appendUnmarked(const ppd_group_t& group, std::vector<std::string>& keywords) {
  for (const ppd_option_t& option : optionsOf(group))
    if (std::ranges::none_of(choicesOf(option), [](const auto& choice) { return choice.marked; }))
      keywords.emplace_back(option.keyword);
  for (const ppd_group_t& inner : subgroupsOf(group)) appendUnmarked(inner, keywords);
}

void appendMarked(const ppd_group_t& group, const OptString& customPaper, OptionList& options) {
  if (isInstalledOptions(group.name)) return;
  for (const ppd_option_t& option : optionsOf(group)) {
    if (isJobSetting(option.keyword)) continue;
    const std::string choices = markedChoices(option);
    // The mark does not hold a value of the person's own; the option that they gave does.
    if (!choices.empty() && !isCustomChoice(choices)) setOption(options, option.keyword, choices);
    if (std::string_view(option.keyword) == kPageSizeKey && customPaper)
      setOption(options, kPageSizeKey, *customPaper);
  }
  for (const ppd_group_t& inner : subgroupsOf(group)) appendMarked(inner, customPaper, options);
}

// For an option where many choices can be picked; false when one of them is unknown.
bool markEach(ppd_file_t& ppd, const ppd_option_t& option, const std::string& value) {
  bool known = true;
  for (const std::string& choice : partsOf(value))
    known = markChoice(&ppd, option.keyword, choice) && known;
  return known;
}

bool markValue(ppd_file_t& ppd, const ppd_option_t& option, const std::string& value) {
  if (isCustomChoice(value) && ppdFindCustomOption(&ppd, option.keyword)) {
    ppdMarkOption(&ppd, option.keyword, value.c_str());
    return true;
  }
  if (markChoice(&ppd, option.keyword, value)) return true;
  return option.ui == PPD_UI_PICKMANY && markEach(ppd, option, value);
}

// Where some paper cannot be had.
std::string usedInstead(ppd_file_t& ppd) {
  const ppd_choice_t* paper = ppdFindMarkedChoice(&ppd, kPageSizeKey);
  return paper ? " " + quoted(paper->text) + " is used instead." : "";
}

}  // namespace

const ppd_option_t* twoSidedOption(ppd_file_t& ppd) {
  for (const char* keyword : kTwoSidedKeywords)
    if (const ppd_option_t* option = ppdFindOption(&ppd, keyword)) return option;
  return nullptr;
}

OptString shortEdgeChoice(const ppd_option_t& twoSided) {
  for (const ppd_choice_t& choice : choicesOf(twoSided)) {
    const std::string_view keyword = choice.choice;
    if (keyword.ends_with("Tumble") && !keyword.ends_with("NoTumble")) return choice.choice;
  }
  return std::nullopt;
}

bool isInstalledOptions(const std::string& groupKeyword) {
  return equalIgnoringCase(groupKeyword, kInstalledGroup);
}

bool isCustomChoice(const std::string& choice) {
  return equalIgnoringCase(std::string_view(choice).substr(0, choice.find('.')), kCustom);
}

bool markChoice(ppd_file_t* ppd, const std::string& key, const std::string& choice) {
  // Both keywords as the PPD spells them: libcups finds them in any letter case, but only marks by
  // the exact one are found again everywhere.
  ppd_option_t* option = ppd ? ppdFindOption(ppd, key.c_str()) : nullptr;
  const ppd_choice_t* known = option ? ppdFindChoice(option, choice.c_str()) : nullptr;
  if (!known) return false;
  ppdMarkOption(ppd, option->keyword, known->choice);
  return true;
}

// libcups keeps the marks a second time, in an array; only its own call may set one.
void unmark(ppd_file_t& ppd, ppd_option_t& option) {
  ppd_choice_t key{};
  key.option = &option;
  while (auto* choice = static_cast<ppd_choice_t*>(cupsArrayFind(ppd.marked, &key))) {
    choice->marked = 0;
    cupsArrayRemove(ppd.marked, choice);
  }
}

std::string markedChoices(const ppd_option_t& option) {
  std::vector<std::string> marked;
  for (const ppd_choice_t& choice : choicesOf(option))
    if (choice.marked) marked.emplace_back(choice.choice);
  return joined(marked, ",");
}

OptionList markedOptions(ppd_file_t& ppd) {
  OptionList options;
  const OptString customPaper = markedCustomPaper(ppd);
  for (const ppd_group_t& group : groupsOf(ppd)) appendMarked(group, customPaper, options);
  return options;
}

std::vector<std::string> optionsWithoutMark(const ppd_file_t& ppd) {
  std::vector<std::string> keywords;
  for (const ppd_group_t& group : groupsOf(ppd)) appendUnmarked(group, keywords);
  return keywords;
}

std::vector<std::string> markOptions(ppd_file_t& ppd, OptionList options) {
  std::vector<std::string> problems = removeImpossiblePaper(options, ppd);
  ppdMarkDefaults(&ppd);
  // First what the print system's general options ("media", "sides") mean on this printer.
  const CupsOptions all(options);
  cupsMarkOptions(&ppd, all.count(), all.data());
  for (std::string& paper : problems) paper += usedInstead(ppd);
  for (const auto& [name, value] : options) {
    if (isJobSetting(name)) continue;
    const ppd_option_t* option = ppdFindOption(&ppd, name.c_str());
    if (option && !markValue(ppd, *option, value))
      problems.push_back("The printer's option " + quoted(option->keyword) + " has no choice " +
                         quoted(value) + ".");
  }
  return problems;
}

}  // namespace tavrin
