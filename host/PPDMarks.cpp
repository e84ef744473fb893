#include "host/PPDMarks.h"

#include <algorithm>
#include <set>
#include <span>
#include <strings.h>

namespace tavrin {

namespace {

std::span<const ppd_group_t> groupsIn(const ppd_group_t* groups, int count) {
  return {groups, groups ? static_cast<std::size_t>(count) : 0};
}

std::span<const ppd_option_t> optionsOf(const ppd_group_t& group) {
  return {group.options, group.options ? static_cast<std::size_t>(group.num_options) : 0};
}

std::span<const ppd_choice_t> choicesOf(const ppd_option_t& option) {
  return {option.choices, option.choices ? static_cast<std::size_t>(option.num_choices) : 0};
}

void addSections(std::vector<PPDSection>& sections, const ppd_group_t& group,
                 const std::string& above) {
  PPDSection section{group.name, above + group.text, {}};
  for (const ppd_option_t& option : optionsOf(group)) section.options.push_back(&option);
  sections.push_back(section);
  for (const ppd_group_t& inner : groupsIn(group.subgroups, group.num_subgroups))
    addSections(sections, inner, section.title + ": ");
}

OptString joinedMarks(const ppd_option_t& option, const char* (*text)(const ppd_choice_t&)) {
  OptString joined;
  for (const ppd_choice_t& choice : choicesOf(option))
    if (choice.marked) joined = joined ? *joined + ", " + text(choice) : text(choice);
  return joined;
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

// A choice that two options' file entries share is one choice to the person.
struct IgnoringCase {
  bool operator()(const char* a, const char* b) const { return strcasecmp(a, b) < 0; }
};

}  // namespace

std::vector<PPDSection> sectionsOf(const ppd_file_t& ppd) {
  std::vector<PPDSection> sections;
  for (const ppd_group_t& group : groupsIn(ppd.groups, ppd.num_groups))
    addSections(sections, group, "");
  return sections;
}

std::vector<const ppd_choice_t*> pickableChoices(const ppd_option_t& option, ppd_file_t& ppd) {
  const bool hasCustom = ppdFindCustomOption(&ppd, option.keyword) != nullptr;
  std::vector<const ppd_choice_t*> choices;
  std::set<const char*, IgnoringCase> seen;
  for (const ppd_choice_t& choice : choicesOf(option)) {
    const bool custom = hasCustom && strcasecmp(choice.choice, "Custom") == 0;
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
