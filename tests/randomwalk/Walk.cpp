#include "tests/randomwalk/Walk.h"

#include "conflict/TavConflictController.h"
#include "platform/toolkit/NotificationCenter.h"
#include "ppd/PPDKeywords.h"
#include "tests/fixtures/FreshConflicts.h"
#include "tests/randomwalk/Invariants.h"
#include "tests/randomwalk/ReplayLines.h"

namespace tavrin::walk {
namespace {

constexpr int kTooManyWindows = 100;

// The flag that a window's code sets as the window is composed.
void flagConflict(FlagState& flags, int code) {
  if (code == 3 || code == 6) flags.conflict[1] = true;
  if (code == 8) flags.conflict[2] = true;
  if (code == 10) flags.conflict[3] = true;
  if (code == 11 || code == 12) flags.conflict[4] = true;
  if (windowOfCode(code) == "MsgFive" && code != 8 && code < 11) flags.conflict[0] = true;
}

}  // namespace

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
  expected = afterStep(next, *panel, current());
  toolkit.answers = {[this](FakeInterface& windows) { answerWindow(windows); }};

  if (next.verb == Step::Verb::reopen) {
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

// The step's next answer without the choices that the window lacks; once all are used, each choice
// in turn. The first choice alone may lead nowhere: a host can report iron-on paper to the panel of
// a printer without paper types, and then a mirror image that was switched off comes on again at
// once.
Answer Walk::nextAnswer(const std::string& window) {
  const bool given = answered < step->answers.size();
  Answer answer =
      given ? step->answers[answered++] : Answer{{1 + windowsOfStep % 3}, Answer::End::ok};
  std::erase_if(answer.choices, [&](int number) { return number > choicesOfWindow(window); });
  return answer;
}

}  // namespace tavrin::walk
