#include "tests/randomwalk/Walk.h"

#include "conflict/TavConflictController.h"
#include "platform/toolkit/NotificationCenter.h"
#include "ppd/PPDKeywords.h"
#include "tests/fixtures/FreshConflicts.h"
#include "tests/randomwalk/Invariants.h"

namespace tavrin::walk {
namespace {

using Verb = Step::Verb;
using Tickets = std::map<std::string, OptString>;

constexpr int kTooManyWindows = 100;

Tickets ticketsOf(PanelUnderTest& panel) {
  Tickets tickets;
  for (const auto& [key, setting] : panel.settings()) tickets[key] = setting.ticket;
  return tickets;
}

// Whether the step ends in a check for conflicts.
bool checksConflicts(const Step& step) {
  return step.name == "ibPaperType" || step.name == "ibPrintQuality" ||
         step.name == "ibBlackAndWhite" || step.name == "ibMIrror";
}

// Whether the step brings the panel's controls in line with its model.
bool refreshes(const Step& step) {
  return step.verb == Verb::hostChange || step.verb == Verb::restore ||
         step.verb == Verb::willShow || step.verb == Verb::reopen;
}

OptString keywordAt(const ppd_option_t* option, int index) {
  if (option == nullptr || index >= option->num_choices) return std::nullopt;
  return option->choices[index].choice;
}

OptString keywordOf(ppd_option_t* option, const char* choice) {
  const ppd_choice_t* found = option != nullptr ? ppdFindChoice(option, choice) : nullptr;
  return found != nullptr ? OptString(found->choice) : std::nullopt;
}

// Equal, or changed as iron-on paper or its going changes a mirror.
bool mirrorFollows(const OptString& expected, const OptString& now, bool ironOn, bool refreshed) {
  if (now == expected) return true;
  return refreshed &&
         (ironOn ? expected == "False" && now == "True" : expected == "True" && now == "False");
}

std::string ticketsFault(Tickets expected, Tickets now, bool refreshed) {
  const bool ironOn = now[kNSPaperTypeKey] == "IronOn";
  if (!mirrorFollows(expected[kNSMirrorKey], now[kNSMirrorKey], ironOn, refreshed)) {
    return "the mirror is " + now[kNSMirrorKey].value_or("absent");
  }
  expected.erase(kNSMirrorKey);
  now.erase(kNSMirrorKey);
  for (const auto& [key, ticket] : expected) {
    if (now[key] != ticket) {
      return key + " is " + now[key].value_or("absent") + ", not " + ticket.value_or("absent");
    }
  }
  return now.size() == expected.size() ? "" : "other settings are handed over";
}

// The flag that a window's code sets as the window is composed.
void flagConflict(FlagState& flags, int code) {
  if (code == 3 || code == 6) flags.conflict[1] = true;
  if (code == 8) flags.conflict[2] = true;
  if (code == 10) flags.conflict[3] = true;
  if (code == 11 || code == 12) flags.conflict[4] = true;
  if (windowOfCode(code) == "MsgFive" && code != 8 && code < 11) flags.conflict[0] = true;
}

}  // namespace

Plan randomPlan(unsigned seed, int steps) {
  Dice dice(seed);
  Plan plan;
  const int panels = chance(dice, 30) ? 2 : 1;
  for (int i = 0; i < panels; ++i) plan.printers.push_back(randomPrinter(dice));
  plan.cartridges = randomCartridges(dice);
  plan.steps = randomSteps(dice, steps, panels);
  return plan;
}

Walk::Walk(const Plan& toWalk, Figures& found) : plan(toWalk), figures(found) {
  forgetConflicts();
  NotificationCenter::defaultCenter().addObserver(this, ConflictControllerChangeNotification,
                                                  [this](const void*) { ++notifications; });
  for (const Printer& printer : plan.printers) {
    if (!plan.cartridges.first || !printer.year) continue;
    root.installCartridges(*printer.year, printer.model, plan.cartridges.first,
                           plan.cartridges.second);
  }
  panels.resize(plan.printers.size());
  for (std::size_t i = 0; i < panels.size(); ++i) open(static_cast<int>(i));
  for (const Step& next : plan.steps) {
    if (ended || !firstFault.empty()) break;
    take(next);
  }
}

Walk::~Walk() {
  panels.clear();
  NotificationCenter::defaultCenter().removeObserver(this);
  forgetConflicts();
}

void Walk::open(int number) {
  const auto index = static_cast<std::size_t>(number);
  panels[index].reset();
  panels[index] = std::make_unique<PanelUnderTest>(plan.printers[index], toolkit);
  lines += openingLines(number, plan.printers[index].markDefaults);
  for (const std::string& fault : {settingsFault(*panels[index]), controlsFault(*panels[index])}) {
    if (!fault.empty()) fail("opened: " + fault);
  }
}

void Walk::fail(const std::string& sentence) {
  if (firstFault.empty()) firstFault = sentence;
  ended = true;
}

std::vector<Tickets> Walk::tickets() const {
  std::vector<Tickets> all;
  for (const auto& each : panels) all.push_back(ticketsOf(*each));
  return all;
}

Outcome Walk::current() { return {ticketsOf(*panel), FlagState::now(), notifications}; }

// --- A step ---

void Walk::take(const Step& next) {
  const auto index = static_cast<std::size_t>(next.panel);
  if (index >= panels.size()) return;
  panel = panels[index].get();
  step = &next;
  answered = 0;
  used.clear();
  choice = {{"MsgOne", 1}, {"MsgTwo", 1}, {"MsgFive", 1}};
  notifications = 0;
  windowsOfStep = 0;
  std::vector<Tickets> before;
  for (const auto& each : panels) before.push_back(ticketsOf(*each));
  expected = expectedOf(next);
  toolkit.answers = {[this](FakeInterface& windows) { answerWindow(windows); }};

  if (next.verb == Verb::reopen) {
    ++figures.steps;
    lines += replayLines(next, {});
    open(next.panel);
    return;
  }
  if (!panel->carryOut(next)) return;
  ++figures.steps;
  lines += replayLines(next, used);
  if (ended) return;
  checkExpected(-1);
  checkOthers(before, next.panel);
  checkEnd(next);
}

// What the step must leave behind before any window comes up.
Walk::Expected Walk::expectedOf(const Step& next) {
  Expected made{current(), refreshes(next)};
  Tickets& tickets = made.outcome.tickets;
  const auto set = [&](const std::string& key, const OptString& ticket) {
    if (tickets.contains(key)) tickets[key] = ticket;
  };
  if (checksConflicts(next)) made.outcome.flags.instruction.assign(5, false);
  if (next.verb == Verb::hostChange) set(next.name, next.text);
  if (next.verb == Verb::restore) {
    for (auto& [key, ticket] : tickets) {
      const ppd_choice_t* marked = ppdFindMarkedChoice(panel->host().ppd, key.c_str());
      if (marked != nullptr) ticket = marked->choice;
      if (marked == nullptr && key == kNSMirrorKey) ticket = keywordOf(panel->option(key), "False");
    }
  }
  FakeInterface& controls = panel->controls();
  const auto choices = [&](const char* key) { return panel->option(key); };
  if (next.verb == Verb::slide)
    set(kNSSharpeningKey, keywordAt(choices(kSharpeningKey), next.number + 1));
  if (next.name == "ibAutoImageSharpening")
    set(kNSSharpeningKey, keywordAt(choices(kSharpeningKey), 0));
  if (next.name == "ibManualImageSharpening")
    set(kNSSharpeningKey, keywordAt(choices(kSharpeningKey), 1));
  if (next.name == "ibPrintQuality")
    set(kNSPrintQualityKey, keywordAt(choices(kPrintQualityKey), next.number));
  if (next.name == "ibPaperSource")
    set(kNSPaperSourceKey, keywordAt(choices(kPaperSourceKey), next.number));
  if (next.name == "ibDryTimePopUp")
    set(kNSDupDryTimeKey, keywordAt(choices(kDupDryTimeKey), next.number));
  if (next.name == "ibBlackAndWhite") {
    set(kNSColorModelKey, keywordAt(choices(kColorModelKey), 1 - controls.button(next.name).state));
  }
  if (next.name == "ibMIrror") {
    set(kNSMirrorKey, controls.button(next.name).state == 0 ? "True" : "False");
  }
  if (next.name == "ibDryTimeCheckBox") {
    set(kNSDupDryTimeKey, keywordOf(choices(kDupDryTimeKey),
                                    controls.button(next.name).state == 0 ? "True" : "False"));
  }
  if (next.name == "ibPaperType") {
    const OptString paper = keywordAt(choices(kPaperTypeKey), next.number);
    set(kNSPaperTypeKey, paper);
    // Whoever switched it on, iron-on paper is mirrored; other paper may switch it off.
    if (paper == "IronOn") set(kNSMirrorKey, "True");
    if (paper != "IronOn") made.mayLoseMirror = true;
  }
  return made;
}

void Walk::checkExpected(int composedCode) {
  Outcome wanted = expected.outcome;
  if (composedCode >= 0) flagConflict(wanted.flags, composedCode);
  const Outcome now = current();
  if (now.notifications != wanted.notifications) fail("the change was not announced once");
  if (now.flags != wanted.flags) fail("the flags are not what the answers make them");
  const bool refreshed = expected.refreshed || notifications > 0;
  Tickets tickets = wanted.tickets;
  if (expected.mayLoseMirror && now.tickets.at(kNSMirrorKey) == "False") {
    tickets[kNSMirrorKey] = "False";
  }
  const std::string fault = ticketsFault(tickets, now.tickets, refreshed);
  if (!fault.empty()) fail(fault);
}

void Walk::checkOthers(const std::vector<Tickets>& before, int except) {
  for (std::size_t i = 0; i < panels.size(); ++i) {
    if (static_cast<int>(i) == except) continue;
    const std::string fault = ticketsFault(before[i], ticketsOf(*panels[i]), notifications > 0);
    if (!fault.empty()) fail("in the other panel, " + fault);
  }
}

void Walk::checkEnd(const Step& done) {
  if (checksConflicts(done) && !panel->conflicts().empty()) fail("a conflict is left");
  if (!checksConflicts(done) && windowsOfStep > 0) fail("a window came up unasked");
  for (std::size_t i = 0; i < panels.size(); ++i) {
    PanelUnderTest& each = *panels[i];
    const bool inLine = notifications > 0 || (refreshes(done) && &each == panel);
    for (const std::string& fault :
         {settingsFault(each), itemsFault(each), inLine ? controlsFault(each) : std::string()}) {
      if (!fault.empty()) fail(fault);
    }
  }
}

// --- Windows ---

void Walk::answerWindow(FakeInterface& windows) {
  toolkit.answers = {[this](FakeInterface& next) { answerWindow(next); }};
  ++figures.windows;
  if (++windowsOfStep > kTooManyWindows) return fail("the windows do not end");
  const std::string name = toolkit.shown.back();
  if (name == "ibInstructionWindow") {
    used.push_back({{}, Answer::End::close});
    checkExpected(-1);
    windows.window(name).close();
    return;
  }
  answerConflict(windows, name.substr(2, name.size() - 2 - std::string("Window").size()));
}

void Walk::answerConflict(FakeInterface& windows, const std::string& name) {
  const std::vector<int> codes = panel->conflicts();
  if (codes.empty()) return fail("a window came up without a conflict");
  if (windowOfCode(codes.front()) != name) return fail("another conflict's window came up");
  checkExpected(codes.front());
  if (ended) return;

  const Answer answer = nextAnswer(name);
  used.push_back(answer);
  if (answer.end == Answer::End::programEnds) {
    ended = true;
    return;
  }
  static const char* const ordinals[] = {"First", "Second", "Third"};
  for (const int picked : answer.choices) {
    const std::string button = std::string(ordinals[picked - 1]) + "Button_" + name;
    windows.pick("ib" + button, "click" + button + ":");
    choice[name] = picked;
  }
  const bool ok = answer.end == Answer::End::ok;
  ++figures.answers[{codes.front(), ok ? choice[name] : 0}];
  expected.outcome = ok ? afterOk(name, choice[name], current()) : current();
  if (!ok) return windows.window("ib" + name + "Window").close();
  choice[name] = 1;
  windows.press("ibOkButton_" + name, "clickOkButton_" + name + ":");
}

// The step's next answer without the choices that the window lacks; when there is none left, one
// choice after the other. The first alone may lead nowhere: a host can report iron-on paper to the
// panel of a printer without paper types, and then the mirror image that was switched off comes on
// again at once.
Answer Walk::nextAnswer(const std::string& window) {
  const bool given = answered < step->answers.size();
  Answer answer =
      given ? step->answers[answered++] : Answer{{1 + windowsOfStep % 3}, Answer::End::ok};
  std::erase_if(answer.choices, [&](int number) { return number > choicesOfWindow(window); });
  return answer;
}

}  // namespace tavrin::walk
