#include "host/printer/PPDMarks.h"

#include <algorithm>
#include <string_view>

#include "host/printer/MarkedOptions.h"
#include "host/printer/PPDSections.h"
#include "host/support/TextLists.h"
#include "ppd/PPDKeywords.h"
#include "ppd/PPDRecords.h"

namespace tavrin {

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
  std::vector<std::string> texts;
  for (const ppd_choice_t& choice : choicesOf(*found))
    if (choice.marked) texts.emplace_back(choice.text);
  return texts.empty() ? std::nullopt : OptString(joined(texts));
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
      if (const char* name = nameOf(*option);
          option->conflicted && std::ranges::find(texts, name) == texts.end())
        texts.emplace_back(name);
  return texts;
}

// A page region goes by the name of the paper: it is the same choice, which people make once.
const char* PPDMarks::nameOf(const ppd_option_t& option) const {
  const ppd_option_t* paper =
      std::string_view(option.keyword) == "PageRegion" ? this->option(kPageSizeKey) : nullptr;
  return paper ? paper->text : option.text;
}

PPDMarks::Snapshot PPDMarks::snapshot() const {
  Snapshot marks;
  for (const PPDSection& section : sectionsOf(*file))
    for (const ppd_option_t* option : section.options)
      marks.emplace(option->keyword, markedChoices(*option));
  return marks;
}

void PPDMarks::tellDifferences(const Snapshot& before) {
  for (const auto& [keyword, marked] : snapshot())
    if (before.at(keyword) != marked) emit changed(keyword, choice(keyword));
  emit refreshed();
}

}  // namespace tavrin
