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
#include "tests/randomwalk/Plan.h"
#include "tests/randomwalk/StepRules.h"
#include "tests/randomwalk/Tickets.h"

namespace tavrin::walk {

// What walks came across: how often each code and choice; choice 0 is a window that was closed.
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

  // What went wrong, in a sentence; empty if all is well.
  const std::string& fault() const { return firstFault; }
  // The walk as a replay script, up to where it stopped.
  const std::string& script() const { return lines; }
  // The tickets of each panel at the end.
  std::vector<Tickets> tickets() const;
  // Where "/Library/Printers/..." was; as long as the walk lives.
  std::filesystem::path rootFolder() const { return root.file("/"); }

 private:
  void open(int panel);
  void take(const Step& step);
  void answerWindow(FakeInterface& windows);
  void answerConflict(FakeInterface& windows, const std::string& name);
  Answer nextAnswer(const std::string& window);
  void checkExpected(int composedCode);
  void checkOthers(const std::vector<Tickets>& before, int except);
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

  // About the step under way.
  PanelUnderTest* panel = nullptr;
  const Step* step = nullptr;
  std::size_t answered = 0;
  std::vector<Answer> used;
  std::map<std::string, int> choice;  // what each window's OK will mean
  Expected expected;
  int notifications = 0;
  int windowsOfStep = 0;
};

}  // namespace tavrin::walk
