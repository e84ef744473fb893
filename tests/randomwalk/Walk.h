#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/fakes/FakeToolkit.h"
#include "tests/fixtures/PrinterRoot.h"
#include "tests/randomwalk/PanelUnderTest.h"
#include "tests/randomwalk/Step.h"
#include "tests/randomwalk/WindowRules.h"

namespace tavrin::walk {

// Everything that a walk depends on.
struct Plan {
  std::vector<Printer> printers;  // one panel each
  CartridgeSet cartridges;
  std::vector<Step> steps;
};

Plan randomPlan(unsigned seed, int steps);

// What walks came across: code and choice to how often, choice 0 for a window that was closed.
struct Figures {
  long steps = 0;
  long windows = 0;
  std::map<std::pair<int, int>, long> answers;
};

// Walks through a plan in a process that has seen no conflict, and stops at the first fault.
class Walk {
 public:
  Walk(const Plan& plan, Figures& figures);
  ~Walk();

  // What went wrong, in a sentence; empty when all is well.
  const std::string& fault() const { return firstFault; }
  // The walk as a replay script, up to where it stopped.
  const std::string& script() const { return lines; }
  // The tickets of each panel at the end.
  std::vector<std::map<std::string, OptString>> tickets() const;
  // Where "/Library/Printers/..." was; as long as the walk lives.
  std::filesystem::path rootFolder() const { return root.file("/"); }

 private:
  // What must be so when the next window comes up or the step ends.
  struct Expected {
    Outcome outcome;
    bool refreshed = false;  // the controls were brought in line: the mirror's rule may have run
    bool mayLoseMirror = false;  // other paper than iron-on was picked
  };

  void open(int panel);
  void take(const Step& step);
  Expected expectedOf(const Step& step);
  void answerWindow(FakeInterface& windows);
  void answerConflict(FakeInterface& windows, const std::string& name);
  Answer nextAnswer(const std::string& window);
  void checkExpected(int composedCode);
  void checkOthers(const std::vector<std::map<std::string, OptString>>& before, int except);
  void checkEnd(const Step& step);
  void fail(const std::string& sentence);
  Outcome current();

  const Plan& plan;
  Figures& figures;
  PrinterRoot root;
  FakeToolkit toolkit;
  std::vector<std::unique_ptr<PanelUnderTest>> panels;
  std::string lines;
  std::string firstFault;
  bool ended = false;

  // Of the step under way.
  PanelUnderTest* panel = nullptr;
  const Step* step = nullptr;
  std::size_t answered = 0;
  std::vector<Answer> used;
  std::map<std::string, int> choice;  // what each window's OK will mean
  Expected expected;
  int notifications = 0;
  int windowsOfStep = 0;
};

// The fewest steps of a failing plan that still fail.
Plan shrunk(const Plan& failing);

// Writes the walk of a plan as a replay: script.jsonl, the PPDs, the root folder with the cartridge
// preferences, and tickets.jsonl with what each panel hands over at the end. Gives the fault and
// the script.
std::string writeReplay(const Plan& plan, const std::filesystem::path& folder);

}  // namespace tavrin::walk
