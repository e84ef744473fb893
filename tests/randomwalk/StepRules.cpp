#include "tests/randomwalk/StepRules.h"

#include "ppd/PPDKeywords.h"
#include "tests/randomwalk/Tickets.h"

namespace tavrin::walk {
namespace {

using Verb = Step::Verb;

OptString keywordAt(const ppd_option_t* option, int index) {
  if (option == nullptr || index >= option->num_choices) return std::nullopt;
  return option->choices[index].choice;
}

OptString keywordOf(ppd_option_t* option, const char* choice) {
  const ppd_choice_t* found = option != nullptr ? ppdFindChoice(option, choice) : nullptr;
  return found != nullptr ? OptString(found->choice) : std::nullopt;
}

void set(Tickets& tickets, const std::string& key, const OptString& ticket) {
  if (tickets.contains(key)) tickets[key] = ticket;
}

// What is marked is taken; only the mirror is switched off where nothing is.
void restore(Tickets& tickets, PanelUnderTest& panel) {
  for (auto& [key, ticket] : tickets) {
    const ppd_choice_t* marked = ppdFindMarkedChoice(panel.host().ppd, key.c_str());
    if (marked != nullptr) ticket = marked->choice;
    if (marked == nullptr && key == kNSMirrorKey) ticket = keywordOf(panel.option(key), "False");
  }
}

// The controls whose items, or places, are choices in the order of the PPD.
void pick(Tickets& tickets, const Step& step, PanelUnderTest& panel) {
  const auto choose = [&](const char* key, int index) {
    set(tickets, key, keywordAt(panel.option(key), index));
  };
  if (step.verb == Verb::slide) choose(kSharpeningKey, step.number + 1);
  if (step.name == "ibAutoImageSharpening") choose(kSharpeningKey, 0);
  if (step.name == "ibManualImageSharpening") choose(kSharpeningKey, 1);
  if (step.name == "ibPrintQuality") choose(kPrintQualityKey, step.number);
  if (step.name == "ibPaperSource") choose(kPaperSourceKey, step.number);
  if (step.name == "ibDryTimePopUp") choose(kDupDryTimeKey, step.number);
  if (step.name == "ibPaperType") choose(kPaperTypeKey, step.number);
}

void flip(Tickets& tickets, const Step& step, PanelUnderTest& panel) {
  const int before = panel.controls().button(step.name).state;
  const char* const now = before == 0 ? "True" : "False";
  if (step.name == "ibBlackAndWhite")
    set(tickets, kNSColorModelKey, keywordAt(panel.option(kColorModelKey), 1 - before));
  if (step.name == "ibMIrror") set(tickets, kNSMirrorKey, now);
  if (step.name == "ibDryTimeCheckBox")
    set(tickets, kNSDupDryTimeKey, keywordOf(panel.option(kDupDryTimeKey), now));
}

}  // namespace

bool checksConflicts(const Step& step) {
  return step.name == "ibPaperType" || step.name == "ibPrintQuality" ||
         step.name == "ibBlackAndWhite" || step.name == "ibMIrror";
}

bool refreshes(const Step& step) {
  return step.verb == Verb::hostChange || step.verb == Verb::restore ||
         step.verb == Verb::willShow || step.verb == Verb::reopen;
}

Expected afterStep(const Step& step, PanelUnderTest& panel, const Outcome& before) {
  Expected made{before, refreshes(step)};
  Tickets& tickets = made.outcome.tickets;
  if (checksConflicts(step)) made.outcome.flags.instruction.assign(5, false);
  if (step.verb == Verb::hostChange) set(tickets, step.name, step.text);
  if (step.verb == Verb::restore) restore(tickets, panel);
  pick(tickets, step, panel);
  if (step.verb == Verb::click) flip(tickets, step, panel);
  if (step.name == "ibPaperType") {
    // Whoever switched it on, iron-on paper is mirrored; other paper may switch it off.
    const bool ironOn = keywordAt(panel.option(kPaperTypeKey), step.number) == OptString("IronOn");
    if (ironOn) set(tickets, kNSMirrorKey, "True");
    made.mayLoseMirror = !ironOn;
  }
  return made;
}

}  // namespace tavrin::walk
