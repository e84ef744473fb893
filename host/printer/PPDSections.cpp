#include "host/printer/PPDSections.h"

#include <set>
#include <string_view>

#include "host/printer/MarkedOptions.h"
#include "platform/text/IgnoringCase.h"
#include "ppd/PPDRecords.h"

namespace tavrin {

namespace {

void addSections(std::vector<PPDSection>& sections, const ppd_group_t& group,
                 const std::string& above) {
  PPDSection section{group.name, above + group.text, {}};
  for (const ppd_option_t& option : optionsOf(group)) section.options.push_back(&option);
  sections.push_back(section);
  for (const ppd_group_t& inner : subgroupsOf(group))
    addSections(sections, inner, section.title + ": ");
}

}  // namespace

std::vector<PPDSection> sectionsOf(const ppd_file_t& ppd) {
  std::vector<PPDSection> sections;
  for (const ppd_group_t& group : groupsOf(ppd)) addSections(sections, group, "");
  return sections;
}

std::vector<const ppd_choice_t*> pickableChoices(const ppd_option_t& option, ppd_file_t& ppd) {
  const bool hasCustom = ppdFindCustomOption(&ppd, option.keyword) != nullptr;
  std::vector<const ppd_choice_t*> choices;
  std::set<std::string_view, LessIgnoringCase> seen;
  for (const ppd_choice_t& choice : choicesOf(option)) {
    const bool custom = hasCustom && isCustomChoice(choice.choice);
    if (custom && !choice.marked) continue;
    if (seen.insert(choice.choice).second) choices.push_back(&choice);
  }
  return choices;
}

}  // namespace tavrin
