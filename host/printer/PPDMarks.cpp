#include "host/printer/PPDMarks.h"

#include <algorithm>
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

OptString joinedMarks(const ppd_option_t& option, const char* (*text)(const ppd_choice_t&)) {
  OptString joined;
  for (const ppd_choice_t& choice : choicesOf(option))
    if (choice.marked) joined = joined ? *joined + ", " + text(choice) : text(choice);
  return joined;
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

PPDMarks::PPDMarks(ppd_file_t& ppd, QObject* parent) : QObject(parent), file(&ppd) {}

const ppd_option_t* PPDMarks::option(const std::string& keyword) const {
  return ppdFindOption(file, keyword.c_str());
}

OptString PPDMarks::choice(const std::string& keyword) const {
  const ppd_choice_t* marked = ppdFindMarkedChoice(file, keyword.c_str());
  return marked ? OptString(marked->choice) : std::nullopt;
}

OptString PPDMarks::choiceText(const std::string& keyword) const {
  const ppd_option_t* found = option(keyword);
  if (!found) return std::nullopt;
  return joinedMarks(*found, [](const ppd_choice_t& choice) -> const char* { return choice.text; });
}

bool PPDMarks::isMarked(const std::string& keyword, const std::string& choice) const {
  const ppd_option_t* found = option(keyword);
  if (!found) return false;
  return std::ranges::any_of(choicesOf(*found), [&](const ppd_choice_t& candidate) {
    return candidate.marked && candidate.choice == choice;
  });
}

void PPDMarks::choose(const std::string& keyword, const std::string& choice) {
  const auto before = snapshot();
  ppdMarkOption(file, keyword.c_str(), choice.c_str());
  tellDifferences(before);
}

void PPDMarks::setPicked(const std::string& keyword, const std::string& choice, bool picked) {
  ppd_option_t* found = ppdFindOption(file, keyword.c_str());
  if (!found) return;
  const auto before = snapshot();
  std::vector<std::string> marks;
  for (const ppd_choice_t& candidate : choicesOf(*found))
    if (candidate.choice == choice ? picked : candidate.marked != 0)
      marks.emplace_back(candidate.choice);
  unmark(*file, *found);
  for (const std::string& mark : marks) ppdMarkOption(file, keyword.c_str(), mark.c_str());
  tellDifferences(before);
}

void PPDMarks::marksWereReplaced() { emit refreshed(); }

std::vector<std::string> PPDMarks::conflictingOptions() const {
  std::vector<std::string> texts;
  if (ppdConflicts(file) == 0) return texts;
  for (const PPDSection& section : sectionsOf(*file))
    for (const ppd_option_t* option : section.options)
      if (option->conflicted && std::ranges::find(texts, option->text) == texts.end())
        texts.emplace_back(option->text);
  return texts;
}

std::map<std::string, OptString> PPDMarks::snapshot() const {
  std::map<std::string, OptString> marks;
  for (const PPDSection& section : sectionsOf(*file))
    for (const ppd_option_t* option : section.options)
      marks.emplace(option->keyword,
                    joinedMarks(*option, [](const ppd_choice_t& marked) -> const char* {
                      return marked.choice;
                    }));
  return marks;
}

void PPDMarks::tellDifferences(const std::map<std::string, OptString>& before) {
  const auto now = snapshot();
  for (const auto& [keyword, mark] : now)
    if (const auto old = before.find(keyword); old == before.end() || old->second != mark)
      emit changed(keyword, choice(keyword));
  emit refreshed();
}

}  // namespace tavrin
